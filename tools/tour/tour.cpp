// Drives the program's windows and writes a picture of each screen to a folder.

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

#include "foundation/locale_names.h"
#include "screens/qt/application.h"

namespace {

using screens::qt::FormWindow;

// A stopped clock in India, for the picture of a known day.
struct StandingClock : foundation::Clock {
  static constexpr auto kDate = std::chrono::year(2011) / 3 / 5;
  static constexpr auto kTime =
      std::chrono::hours(11) + std::chrono::minutes(12) + std::chrono::seconds(9);
  static constexpr auto kEast = std::chrono::minutes(330);

  foundation::DateTime Now() const override {
    return foundation::DateFromParts(2011, 3, 5) + foundation::TimeFromParts(11, 12, 9);
  }
  std::chrono::sys_seconds InstantNow() const override {
    return std::chrono::sys_days(kDate) + kTime - kEast;
  }
  std::chrono::seconds OffsetAt(std::chrono::sys_seconds) const override { return kEast; }
};

class Tour {
 public:
  explicit Tour(const QDir& folder) : folder_(folder) {}

  void Take(FormWindow& window, const QString& name) {
    Wait(150);
    const QString path = folder_.filePath(name + QStringLiteral(".png"));
    if (!window.grab().save(path)) {
      std::fprintf(stderr, "%s cannot be written\n", qPrintable(path));
      failed_ = true;
      return;
    }
    std::printf("%s\n", qPrintable(path));
  }

  void TakeDashboard(const foundation::Clock& clock, const QString& name, bool sizes) {
    screens::qt::Program program(clock);
    program.Start();
    FormWindow& window = program.host.WindowOf(program.dashboard);
    Take(window, name);
    if (sizes) TakeSizes(window, name);
  }

  // The screens of the dashboard's menu, and the picker.
  void TakeOthers() {
    const StandingClock clock;
    screens::qt::Program program(clock);
    TakeForm(program, program.Timetable(), QStringLiteral("timetable"), true);
    TakeForm(program, program.About(), QStringLiteral("about"), false);
    for (const auto* page :
         {&screens::WhatIsPage(), &screens::CalculatePage(), &screens::GulikPage(),
          &screens::YumPage(), &screens::ProductsPage(), &screens::SitaraDeskPage()}) {
      const std::string name(page->name.substr(3));
      TakeForm(program, program.Information(*page), QString::fromStdString(name).toLower(), false);
    }
    program.Picker().Load("India", "Ujjain", program.dashboard);
    TakeForm(program, program.Picker(), QStringLiteral("picker"), false);
    TakeForm(program, program.Preferences(), QStringLiteral("preferences"), true);
    program.Zones().Load("Asia/Kolkata");
    TakeForm(program, program.Zones(), QStringLiteral("zones"), true);
    TakeReport(program);
  }

  bool Failed() const { return failed_; }

 private:
  void TakeSizes(FormWindow& window, const QString& name) {
    window.resize(window.minimumSize());
    Take(window, name + QStringLiteral("-smallest"));
    window.resize(1920, 1080);
    Take(window, name + QStringLiteral("-largest"));
  }

  void TakeForm(screens::qt::Program& program, forms::Form& form, const QString& name, bool sizes) {
    FormWindow& window = program.host.WindowOf(form);
    window.show();
    Wait(sizes ? 1500 : 0);  // wait for sliding parts
    Take(window, name);
    if (sizes) TakeSizes(window, name);
    program.host.Unload(form);
  }

  // A two-month report in the preview, and its first page in full.
  void TakeReport(screens::qt::Program& program) {
    screens::frmDurvela& timetable = program.Timetable();
    program.host.Show(timetable);
    timetable.cmdPreview_Click();
    screens::frmSPkun& preview = program.Preview();
    FormWindow& window = program.host.WindowOf(preview);
    window.Mirror();
    Wait(1000);  // wait for the side panel
    Take(window, QStringLiteral("preview"));
    forms::PicturePtr page = preview.PIC.picture;
    const QString path = folder_.filePath(QStringLiteral("page-1.png"));
    QImage image(909, 682, QImage::Format_RGB32);
    QPainter painter(&image);
    screens::qt::PaintPicture(painter, *page, QRectF(image.rect()));
    painter.end();
    failed_ = failed_ || !image.save(path);
    std::printf("%s\n", qPrintable(path));
  }

  static void Wait(int milliseconds) {
    QElapsedTimer time;
    for (time.start(); time.elapsed() < milliseconds;) QApplication::processEvents();
  }

  QDir folder_;
  bool failed_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  screens::qt::LeaveThemeAside();
  QApplication application(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: durvela_tour FOLDER\n");
    return EXIT_FAILURE;
  }
  screens::qt::DressApplication();
  // The same pictures in any language.
  foundation::SetUserNames(foundation::EnglishNames());
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  if (!folder.mkpath(QStringLiteral("."))) {
    std::fprintf(stderr, "%s cannot be created\n", argv[1]);
    return EXIT_FAILURE;
  }
  // Separate settings, so that the pictures show the default place.
  const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());

  Tour tour(folder);
  tour.TakeDashboard(screens::qt::QtClock(), QStringLiteral("dashboard"), true);
  tour.TakeDashboard(StandingClock(), QStringLiteral("dashboard-5-march-2011"), false);
  tour.TakeOthers();
  return tour.Failed() ? EXIT_FAILURE : EXIT_SUCCESS;
}
