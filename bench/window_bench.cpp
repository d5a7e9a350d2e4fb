// From the start of the process to the first painted dashboard, what the dashboard costs while
// nobody touches it, and how fast the picker answers.

#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>

#include "foundation/numbers.h"
#include "report/page_row.h"
#include "screens/find_in_list.h"
#include "screens/qt/application.h"

namespace {

constexpr int kIdleSeconds = 20;

// Seconds since the machine started at which the kernel made this process, to 1/100.
double ProcessStart() {
  std::ifstream stat("/proc/self/stat");
  std::string line;
  std::getline(stat, line);
  std::size_t at = line.rfind(')') + 2;
  for (int field = 3; field < 22; ++field) at = line.find(' ', at) + 1;
  return foundation::LeadingNumber(line.substr(at)) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

double SecondsSinceBoot() {
  timespec now{};
  clock_gettime(CLOCK_BOOTTIME, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

double ProcessorSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& t) {
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// Notes the moment at which a window has been painted for the first time.
class FirstPaint : public QObject {
 public:
  double at = 0;
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool handled = QObject::eventFilter(watched, event);
    if (at == 0 && event->type() == QEvent::UpdateRequest) {
      QMetaObject::invokeMethod(
          this, [this] { at = SecondsSinceBoot(); }, Qt::QueuedConnection);
    }
    return handled;
  }
};

void Report(const char* what, double figure) {
  std::puts((what + foundation::FixedText(figure, 2)).c_str());
}

void RunFor(double seconds) {
  // Not quit(), which would ask the windows, and the dashboard its user.
  QTimer::singleShot(static_cast<int>(seconds * 1000), [] { QCoreApplication::exit(); });
  QApplication::exec();
}

// The largest country chosen, and a letter typed, in the open picker.
void MeasurePicker(screens::qt::Program& program) {
  screens::frmCity& picker = program.Picker();
  picker.Load("India", "Delhi", program.dashboard);
  program.host.Show(picker);
  RunFor(1);
  double start = SecondsSinceBoot();
  screens::FindInCombo("USA", picker.cmbCountry);
  program.host.WindowOf(picker).Mirror();
  Report("largest country into the open picker, ms: ", 1000 * (SecondsSinceBoot() - start));
  RunFor(0.2);
  start = SecondsSinceBoot();
  forms::SetText(picker.txtCity, "zz");
  program.host.WindowOf(picker).Mirror();
  Report("a keystroke's search there, ms: ", 1000 * (SecondsSinceBoot() - start));
}

// A year's report, and the turning of a page.
void MeasureReport(screens::qt::Program& program) {
  screens::frmDurvela& timetable = program.Timetable();
  program.host.Show(timetable);
  timetable.DT1.moment = foundation::DateFromParts(2011, 1, 1);
  timetable.DT2.moment = foundation::DateFromParts(2011, 12, 31);
  double start = SecondsSinceBoot();
  timetable.cmdPreview_Click();
  Report("a year's report, ms: ", 1000 * (SecondsSinceBoot() - start));

  foundation::SessionTable session = {};
  session.Current().LatitudeText = "28.40N";
  session.Current().LongitudeText = "77.13E";
  session.Current().ZoneMeridianText = "82.30E";
  report::pk_Durvela page;
  start = SecondsSinceBoot();
  for (int day = 0; day < 365; ++day) {
    report::FillRow(page, day % 31, timetable.DT1.moment + day + 0.5, session);
  }
  Report("of it the calculation, ms: ", 1000 * (SecondsSinceBoot() - start));

  report::frmSPkun& preview = program.Preview();
  RunFor(1);
  start = SecondsSinceBoot();
  preview.cmdNext_Click();
  program.host.WindowOf(preview).Mirror();
  program.host.WindowOf(preview).repaint();
  Report("turning a page, ms: ", 1000 * (SecondsSinceBoot() - start));
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  screens::qt::DressApplication();
  screens::qt::Program program;
  FirstPaint paint;
  program.host.WindowOf(program.dashboard).installEventFilter(&paint);
  program.Start();
  RunFor(2);
  Report("start to first painted window, ms: ", 1000 * (paint.at - ProcessStart()));

  const double before = ProcessorSeconds();
  RunFor(kIdleSeconds);
  Report("processor while idle, per cent: ", 100 * (ProcessorSeconds() - before) / kIdleSeconds);

  MeasurePicker(program);
  MeasureReport(program);
  return 0;
}
