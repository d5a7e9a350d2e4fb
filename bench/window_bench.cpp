#include "bench/window_bench.h"

#include <sys/resource.h>

#include <QApplication>
#include <QProcess>
#include <QTimer>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>

#include "bench/figure.h"
#include "foundation/numbers.h"
#include "screens/find_in_list.h"
#include "screens/qt/application.h"

namespace bench {
namespace {

constexpr int kIdleSeconds = 20;

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

double ResidentMegabytes() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) return foundation::LeadingNumber(line.substr(6)) / 1024;
  }
  return 0;
}

// Records when a window is first painted.
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

void RunFor(double seconds) {
  // Not quit(), which would ask the windows first, and the dashboard would ask its user.
  QTimer::singleShot(static_cast<int>(seconds * 1000), [] { QCoreApplication::exit(); });
  QApplication::exec();
}

// The program that all window benchmarks share.
screens::qt::Program& OneProgram() {
  NeedToolkit();
  static auto* const program = [] {
    auto* fresh = new screens::qt::Program;  // lives until the process ends, like its windows
    fresh->Start();
    return fresh;
  }();
  return *program;
}

// Each run starts from a country with few places.
void LargestCountry(benchmark::State& state) {
  screens::qt::Program& program = OneProgram();
  screens::frmCity& picker = program.Picker();
  picker.Load("Nepal", "", program.dashboard);
  program.host.Show(picker);
  for (auto _ : state) {
    screens::FindInCombo("USA", picker.cmbCountry);
    program.host.WindowOf(picker).Mirror();
    state.PauseTiming();
    screens::FindInCombo("Nepal", picker.cmbCountry);
    RunFor(0.1);
    state.ResumeTiming();
  }
  program.host.Hide(picker);
}
FIGURE(LargestCountry, "loading the largest country (21,133 places) into the open picker",
       "Durvela")
    ->Iterations(5);

void YearsReport(benchmark::State& state) {
  screens::qt::Program& program = OneProgram();
  screens::frmDurvela& timetable = program.Timetable();
  program.host.Show(timetable);
  timetable.DT1.moment = foundation::DateFromParts(2011, 1, 1);
  timetable.DT2.moment = foundation::DateFromParts(2011, 12, 31);
  for (auto _ : state) timetable.cmdPreview_Click();
}
FIGURE(YearsReport, "a year's report, twelve pages", "Durvela")->Iterations(5);

void TurningAPage(benchmark::State& state) {
  screens::qt::Program& program = OneProgram();
  screens::frmSPkun& preview = program.Preview();
  RunFor(0.5);
  for (auto _ : state) {
    preview.cmdNext_Click();
    program.host.WindowOf(preview).Mirror();
    program.host.WindowOf(preview).repaint();
  }
}
FIGURE(TurningAPage, "turning a page in the preview", "Durvela")->Iterations(3);

}  // namespace

void NeedToolkit() {
  static int argc = 1;
  static char name[] = "durvela_bench";
  static char* argv[] = {name, nullptr};
  if (qApp != nullptr) return;
  screens::qt::LeaveThemeAside();
  new QApplication(argc, argv);  // lives until the process ends
  screens::qt::DressApplication();
}

bool IsChild(std::string_view argument) {
  return foundation::WholeNumber(argument).has_value();
}

int RunChild(int argc, char** argv) {
  const double made = *foundation::WholeNumber(argv[1]);
  screens::qt::LeaveThemeAside();
  QApplication application(argc, argv);
  screens::qt::DressApplication();
  FirstPaint paint;
  screens::qt::Program program;
  program.host.WindowOf(program.dashboard).installEventFilter(&paint);
  program.Start();
  RunFor(2);
  const double before = ProcessorSeconds();
  RunFor(kIdleSeconds);
  const double idle = (ProcessorSeconds() - before) / kIdleSeconds;
  const auto text = [](double x, int decimals) { return foundation::FixedText(x, decimals); };
  std::puts((text(1000 * (paint.at - made), 0) + " " + text(100 * idle, 2) + " " +
             text(ResidentMegabytes(), 0))
                .c_str());
  return 0;
}

void PrintChild() {
  NeedToolkit();
  QProcess child;
  child.start(QCoreApplication::applicationFilePath(),
              {QString::fromStdString(foundation::FixedText(SecondsSinceBoot(), 3))});
  child.waitForFinished(1000 * (kIdleSeconds + 20));
  const QStringList figures = QString::fromUtf8(child.readAllStandardOutput()).split(' ');
  if (figures.size() != 3) return;
  const auto line = [](const char* what, const QString& figure, const char* unit) {
    std::puts(("| " + std::string(what) + " | " + figure.trimmed().toStdString() + unit + " | |")
                  .c_str());
  };
  line("start to first painted window", figures[0], " ms");
  line("processor use of an open dashboard", figures[1], " %");
  line("memory of an open dashboard", figures[2], " MB");
}

}  // namespace bench
