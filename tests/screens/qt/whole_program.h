// The program on the first seconds of a day, with settings of its own.
#pragma once

#include <QSettings>
#include <QTemporaryDir>

#include "screens/qt/application.h"
#include "support/machine_fakes.h"

namespace screens::qt {

struct WholeProgram {
  WholeProgram() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    clock.now = foundation::DateFromParts(2011, 3, 5);
  }

  QTemporaryDir settings;
  support::FakeClock clock;
  Program program{clock};
};

}  // namespace screens::qt
