#include "screens/qt/application.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>

#include "foundation/version.h"
#include "report/display_settings.h"
#include "screens/palette.h"
#include "screens/qt/accessibility.h"
#include "screens/qt/button_widget.h"
#include "screens/qt/qt_painting.h"
#include "screens/show_report.h"
#include "screens/signs.h"

namespace screens::qt {
namespace {

QString Name(forms::Colour colour) {
  return ToQt(colour).name();
}

// Fields to type into and choose from. Drop-downs in Qt's own dialogs keep Qt's look.
QString InputStyle() {
  return QStringLiteral(
             "screens--qt--TextBoxWidget, screens--qt--ComboBoxWidget, screens--qt--DateTimeWidget"
             " { background: %1; color: %2; border: 1px solid %3; border-radius: 10px;"
             " padding: 0 6px; selection-background-color: %4; }"
             "screens--qt--TextBoxWidget:focus, screens--qt--ComboBoxWidget:focus,"
             " screens--qt--DateTimeWidget:focus, QListView:focus { border: 2px solid %6; }"
             "screens--qt--TextBoxWidget:focus, screens--qt--ComboBoxWidget:focus,"
             " screens--qt--DateTimeWidget:focus { padding: 0 5px; }"
             "screens--qt--DateTimeWidget QLineEdit { background: transparent; border: none; }"
             "screens--qt--ComboBoxWidget::drop-down, screens--qt--DateTimeWidget::up-button,"
             " screens--qt--DateTimeWidget::down-button { border: none; width: 22px; }"
             "screens--qt--ComboBoxWidget { combobox-popup: 0; }"
             "screens--qt--ComboBoxWidget QAbstractItemView { selection-background-color: %5; }"
             "screens--qt--ComboBoxWidget QAbstractItemView::item { min-height: 28px; }"
             "QListView { background: %1; color: %2; border: none; padding: 2px;"
             " selection-background-color: %4; selection-color: %2; }"
             "QListView:focus { padding: 0; }")
      .arg(Name(palette::kPaper), Name(palette::kInk), Name(palette::kRule), Name(palette::kGold),
           Name(palette::kGoldOnPaper), Name(palette::kFocus));
}

// A groove with a darker thumb and no end buttons.
QString ScrollBarStyle() {
  return QStringLiteral(
             "QScrollBar { background: %1; border: none; margin: 0; }"
             "QScrollBar:vertical { width: 14px; } QScrollBar:horizontal { height: 14px; }"
             "QScrollBar::handle { background: %2; border-radius: 5px; margin: 2px; }"
             "QScrollBar::handle:vertical { min-height: 28px; }"
             "QScrollBar::handle:horizontal { min-width: 28px; }"
             "QScrollBar::handle:hover { background: %3; }"
             "QScrollBar:focus { border: 2px solid %4; }"
             "QScrollBar::handle:focus { background: %3; margin: 0; border-radius: 3px; }"
             "QScrollBar::handle:disabled { background: transparent; }"
             "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }"
             "QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }")
      .arg(Name(palette::kGroove), Name(palette::kThumb), Name(palette::kQuiet),
           Name(palette::kFocus));
}

// Qt's own windows: the calendar, and message boxes with their buttons.
QString DialogStyle() {
  return QStringLiteral(
             "QWidget#qt_calendar_navigationbar { background: %1; }"
             "QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }"
             "QDialogButtonBox QPushButton { min-width: 72px; min-height: 28px; }")
      .arg(Name(palette::kGroove));
}

QPalette Colours() {
  QPalette colours(ToQt(palette::kRule), ToQt(palette::kPaper));
  colours.setColor(QPalette::Base, ToQt(palette::kPaper));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::HighlightedText, QPalette::ToolTipText}) {
    colours.setColor(role, ToQt(palette::kInk));
  }
  colours.setColor(QPalette::Highlight, ToQt(palette::kGold));
  colours.setColor(QPalette::ToolTipBase, ToQt(palette::kPaper));
  colours.setColor(QPalette::PlaceholderText, ToQt(palette::kQuiet));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    colours.setColor(QPalette::Disabled, role, ToQt(palette::kQuiet));
  }
  return colours;
}

QFont ProgramFont() {
  QStringList faces;  // for all languages
  for (int language = 0; language <= 4; ++language) {
    faces.append(ToQt(report::display::kLanguageFonts[language].face));
  }
  faces.append(QApplication::font().family());
  faces.removeDuplicates();
  QFont font(faces);
  font.setPixelSize(14);
  return font;
}

}  // namespace

void LeaveThemeAside() {
  QApplication::setDesktopSettingsAware(false);
}

void DressApplication() {
  QApplication::setApplicationName(foundation::kProgramName);
  QApplication::setApplicationVersion(QString::fromLatin1(foundation::kVersion));
  QApplication::setDesktopFileName(QStringLiteral("org.durvela.Durvela"));
  QApplication::setWindowIcon(ToIcon(*ProgramSign()));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));

  QApplication::setPalette(Colours());
  qApp->setStyleSheet(InputStyle() + ScrollBarStyle() + ButtonStyle() + DialogStyle());

  // After the style, which applies the theme's fonts to Qt's own widgets.
  QApplication::setFont(ProgramFont());

  InstallAccessibility();
  foundation::SetUserNames(SystemNames());
}

Program::Program() : Program(clock_) {}

Program::Program(const foundation::Clock& clock) : now_(&clock), dashboard(MakeServices()) {
  yielder_.show = [this] { host.MirrorAll(); };
  FillMenu();
}

void Program::FillMenu() {
  const auto page = [this](const InformationPage& (*open)()) {
    return [this, open] { host.ShowModal(Information(open()), dashboard); };
  };
  dashboard.SetMenuItem(0, page(WhatIsPage));
  dashboard.SetMenuItem(1, [this] { host.Show(Timetable()); });
  dashboard.SetMenuItem(2, [this] { host.Show(About()); });
  dashboard.SetMenuItem(3, page(CalculatePage));
  dashboard.SetMenuItem(4, page(ProductsPage));
  dashboard.SetMenuItem(5, page(SitaraDeskPage));
  dashboard.SetMenuItem(6, page(YumPage));
  dashboard.SetMenuItem(7, page(GulikPage));
  dashboard.SetPreferences([this] { host.ShowModal(Preferences(), dashboard); });
}

frmDurvela& Program::Timetable() {
  if (!timetable_) {
    const auto report = [this](const report::ReportInput& input, forms::Control& status) {
      ShowReport(input, status, Preview(), MakePreviewServices());
    };
    timetable_.emplace(MakeServices(), dashboard,
                       frmDurvela::Navigation{[this]() -> frmCity& { return Picker(); }, report});
  }
  return *timetable_;
}

frmAbout& Program::About() {
  if (!about_) about_.emplace(MakeServices());
  return *about_;
}

frmCity& Program::Picker() {
  if (!picker_) picker_.emplace(host, atlas_);
  return *picker_;
}

frmSPkun& Program::Preview() {
  if (!preview_) preview_.emplace(MakePreviewServices());
  return *preview_;
}

screens::Preferences& Program::Preferences() {
  if (!preferences_) preferences_.emplace(MakeServices(), Zones());
  return *preferences_;
}

ZoneList& Program::Zones() {
  if (!zones_) zones_.emplace(*now_, host);
  return *zones_;
}

InformationScreen& Program::Information(const InformationPage& page) {
  return information_.try_emplace(&page, page, host).first->second;
}

}  // namespace screens::qt
