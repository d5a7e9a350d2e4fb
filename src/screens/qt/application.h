// The program: its forms, and all interfaces implemented with Qt.
#pragma once

#include <map>
#include <optional>

#include "atlas/clsAtlas.h"
#include "foundation/session.h"
#include "foundation/settings_file.h"
#include "screens/frmAbout.h"
#include "screens/frmCity.h"
#include "screens/frmDurvela.h"
#include "screens/frmMain.h"
#include "screens/frmSPkun.h"
#include "screens/information.h"
#include "screens/preferences.h"
#include "screens/qt/qt_host.h"
#include "screens/qt/qt_machine.h"
#include "screens/qt/qt_printer.h"

namespace screens::qt {

// Call before creating the QApplication. Makes the program, printed pages included, independent of
// the desktop theme's fonts and colours.
void LeaveThemeAside();

// Sets the program's fonts, colours, icon and names. Call right after creating the QApplication.
void DressApplication();

// Everything that lives as long as the program. Needs a QApplication.
class Program {
 public:
  // Uses the machine's clock, or another that must outlive the program.
  Program();
  explicit Program(const foundation::Clock& clock);

  void Start() { host.Show(dashboard); }

  // Screens are created on first use.
  frmDurvela& Timetable();
  frmAbout& About();
  frmCity& Picker();
  frmSPkun& Preview();
  screens::Preferences& Preferences();
  ZoneList& Zones();
  InformationScreen& Information(const InformationPage& page);

 private:
  Services MakeServices() { return {*now_, settings_, session_, boxes_, browser_, host}; }
  PreviewServices MakePreviewServices() {
    return {settings_, session_, boxes_, yielder_, host, rasteriser_, printer_};
  }
  void FillMenu();

  QtClock clock_;
  foundation::SettingsFile settings_;
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
  std::optional<frmSPkun> preview_;
  std::optional<ZoneList> zones_;
  std::optional<screens::Preferences> preferences_;
  std::map<const InformationPage*, InformationScreen> information_;

 public:
  frmMain dashboard;
  QtHost host;  // last, so that no window outlives its form
};

}  // namespace screens::qt
