// The program: every interface wired to the toolkit, and the forms on top.
#pragma once

#include <map>
#include <optional>

#include "atlas/clsAtlas.h"
#include "foundation/session.h"
#include "screens/frmAbout.h"
#include "screens/frmCity.h"
#include "screens/frmDurvela.h"
#include "screens/frmMain.h"
#include "screens/information.h"
#include "screens/qt/qt_host.h"
#include "screens/qt/qt_machine.h"
#include "screens/qt/qt_printer.h"
#include "screens/qt/qt_settings.h"

namespace screens::qt {

// Before there is a QApplication: fonts and colours, those of a printed page too, are the program's
// own under any theme of the desktop.
void LeaveThemeAside();

// Fonts, colours, icon and names of the whole program, for a fresh QApplication.
void DressApplication();

// Everything that lives as long as the program does. Needs a QApplication.
class Program {
 public:
  // With the machine's own clock, or another that outlives the program.
  Program();
  explicit Program(const foundation::Clock& clock);

  void Start() { host.Show(dashboard); }

  // Screens are made at their first use.
  frmDurvela& Timetable();
  frmAbout& About();
  frmCity& Picker();
  report::frmSPkun& Preview();
  InformationScreen& Information(const InformationPage& page);

 private:
  Services GiveServices() { return {*now_, settings_, session_, boxes_, browser_, host}; }
  report::Services GiveReportServices() {
    return {settings_, session_, boxes_, yielder_, host, rasteriser_, printer_};
  }
  void FillMenu();

  QtClock clock_;
  QtSettings settings_;
  QtMessageBoxes boxes_;
  QtBrowser browser_;
  QtYielder yielder_;
  QtRasteriser rasteriser_;
  QtPrinter printer_;
  foundation::SessionTable session_;
  atlas::clsAtlas atlas_{yielder_};
  const foundation::Clock* now_;
  std::optional<frmDurvela> timetable_;
  std::optional<frmAbout> about_;
  std::optional<frmCity> picker_;
  std::optional<report::frmSPkun> preview_;
  std::map<const InformationPage*, InformationScreen> information_;

 public:
  frmMain dashboard;
  QtHost host;  // last, so that no window outlives its form
};

}  // namespace screens::qt
