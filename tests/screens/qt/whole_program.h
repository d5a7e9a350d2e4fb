// The program in the first seconds of a day, with its own settings.
#pragma once

#include "screens/qt/application.h"
#include "support/machine_fakes.h"
#include "support/temporary_folder.h"

namespace screens::qt {

struct WholeProgram {
  WholeProgram() { clock.now = foundation::DateFromParts(2011, 3, 5); }

  support::ConfigFolderScope settings;
  support::FakeClock clock;
  Program program{clock};
};

}  // namespace screens::qt
