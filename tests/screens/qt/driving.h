// A user's hands on the windows of the toolkit.
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QWidget>

namespace screens::qt {

inline void Turn() {
  QApplication::processEvents();
}

// However busy the machine is.
void RunUntil(const auto& condition, int milliseconds = 20000) {
  QElapsedTimer time;
  for (time.start(); !condition() && time.elapsed() < milliseconds;) Turn();
}

inline void Press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers with = {},
                  const QString& text = {}, bool held = false) {
  QKeyEvent press(QEvent::KeyPress, key, with, text, held);
  QApplication::sendEvent(widget, &press);
}

template <typename Widget>
Widget* Find(const QWidget& window, const char* name) {
  return window.findChild<Widget*>(QString::fromLatin1(name));
}

}  // namespace screens::qt
