// Prints README's cost table. With a number as argument, measures a dashboard in its own process;
// see window_bench.h.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include "bench/window_bench.h"
#include "foundation/numbers.h"

namespace {

using foundation::FixedText;

std::string TimeText(double seconds) {
  if (seconds < 1e-4) return FixedText(seconds * 1e6, 1) + " µs";
  return FixedText(seconds * 1e3, seconds < 1e-2 ? 2 : 0) + " ms";
}

// The entry with that name; appended if it is new.
template <typename T>
T& Entry(std::vector<T>& list, std::string T::*key, const std::string& name) {
  const auto found =
      std::find_if(list.begin(), list.end(), [&](const T& item) { return item.*key == name; });
  if (found != list.end()) return *found;
  T& fresh = list.emplace_back();
  fresh.*key = name;
  return fresh;
}

// Keeps the best time of each "line|program", and lists peers next to their row.
class Table : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
      const std::string& name = run.run_name.function_name;
      const std::size_t bar = name.find('|');
      Note(name.substr(0, bar), name.substr(bar + 1),
           run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit));
    }
  }

  void Print() const {
    std::puts("| | Durvela | peers (times Durvela's time) |\n|---|---|---|");
    for (const Line& line : lines_) {
      const double own = line.times.front().seconds;
      std::string peers;
      for (std::size_t i = 1; i < line.times.size(); ++i) {
        const auto& [program, seconds] = line.times[i];
        if (i > 1) peers += ", ";
        const double times = seconds / own;
        peers +=
            program + " " + TimeText(seconds) + " (" + FixedText(times, times < 1 ? 2 : 1) + ")";
      }
      std::puts(("| " + line.name + " | " + TimeText(own) + " | " + peers + " |").c_str());
    }
  }

 private:
  struct Time {
    std::string program;
    double seconds = std::numeric_limits<double>::infinity();
  };
  struct Line {
    std::string name;
    std::vector<Time> times;
  };

  void Note(const std::string& name, const std::string& program, double seconds) {
    Time& time = Entry(Entry(lines_, &Line::name, name).times, &Time::program, program);
    time.seconds = std::min(time.seconds, seconds);
  }

  std::vector<Line> lines_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && bench::IsChild(argv[1])) return bench::RunChild(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  Table table;
  benchmark::RunSpecifiedBenchmarks(&table);
  table.Print();
  bench::PrintChild();
  benchmark::Shutdown();
  return EXIT_SUCCESS;
}
