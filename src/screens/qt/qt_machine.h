// The machine's clock, message boxes, event loop and browser, implemented with Qt.
#pragma once

#include <QElapsedTimer>
#include <QLocale>
#include <functional>

#include "foundation/locale_names.h"
#include "foundation/machine.h"

namespace screens::qt {

class QtClock : public foundation::Clock {
 public:
  foundation::DateTime Now() const override;
  std::chrono::sys_seconds InstantNow() const override;
  std::chrono::seconds OffsetAt(std::chrono::sys_seconds instant) const override;
};

class QtMessageBoxes : public foundation::MessageBoxes {
 public:
  foundation::MessageAnswer Show(std::string_view text, foundation::MessageIcon icon,
                                 foundation::MessageButtons buttons,
                                 std::string_view title) override;
};

class QtYielder : public foundation::Yielder {
 public:
  // Called several times a second to show what has changed.
  std::function<void()> show;

  void Yield() override;

 private:
  QElapsedTimer shown_;
};

class QtBrowser : public foundation::Browser {
 public:
  void Open(std::string_view address) override;
};

// Months and weekdays of a locale, by default the user's; English if it has no language.
foundation::LocaleNames SystemNames(const QLocale& locale = QLocale::system());

}  // namespace screens::qt
