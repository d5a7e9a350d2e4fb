// The program: every interface wired to the toolkit, and the forms on top.
#pragma once

#include "foundation/session.h"
#include "screens/frmMain.h"
#include "screens/qt/qt_host.h"
#include "screens/qt/qt_machine.h"
#include "screens/qt/qt_settings.h"

namespace screens::qt {

// Fonts, colours, icon and names of the whole program, for a fresh QApplication.
void DressApplication();

// Everything that lives as long as the program does. Needs a QApplication.
class Program {
 public:
  // With the machine's own clock, or another that outlives the program.
  Program() : Program(clock_) {}
  explicit Program(const foundation::Clock& clock);

  void Start() { host.Show(dashboard); }

 private:
  QtClock clock_;
  QtSettings settings_;
  QtMessageBoxes boxes_;
  QtBrowser browser_;
  foundation::SessionTable session_;

 public:
  frmMain dashboard;
  QtHost host;  // last, so that no window outlives its form
};

}  // namespace screens::qt
