// One line of the table of costs: Durvela's own figure and those of its peers.
#pragma once

#include <benchmark/benchmark.h>

// FIGURE(function, "a chart", "Durvela"): a benchmark of that name in the table's line "a chart".
// The least of three runs counts, since what else the machine does only adds.
#define FIGURE(function, line, who) \
  BENCHMARK(function)->Name(line "|" who)->Repetitions(3)->UseRealTime()
