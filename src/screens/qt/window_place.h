// Fits windows, with the frames that the desktop draws around them, on the screen.
#pragma once

#include <QWidget>

namespace screens::qt {

// The largest size of a window, without its frame, that fits on the screen, in logical pixels. A
// window not shown yet is assumed to get the same frame as the program's other windows.
QSize RoomOnScreen(const QWidget& window);

// Shrinks a window to its screen; if it is visible, also moves it back onto the screen.
void FitOnScreen(QWidget& window);

// Centres a window on another, without leaving that one's screen.
void CentreOn(const QWidget& owner, QWidget& window);

}  // namespace screens::qt
