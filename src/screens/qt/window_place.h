// How windows fit on the screen with the frame that the desktop draws around them.
#pragma once

#include <QWidget>

namespace screens::qt {

// How large the inside of a window may be so that its frame stays on the screen, in logical pixels.
// A window that is not shown yet is expected to get the same frame as the program's other windows.
QSize RoomOnScreen(const QWidget& window);

// Shrinks a window that is larger than its screen. One that is shown also comes back onto it.
void FitOnScreen(QWidget& window);

// Centres a window on another one, on the same screen and no further out than its edges.
void CentreOn(const QWidget& owner, QWidget& window);

}  // namespace screens::qt
