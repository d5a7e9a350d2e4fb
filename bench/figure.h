// A row of the cost table: Durvela's figure and those of its peers.
#pragma once

#include <benchmark/benchmark.h>

// FIGURE(function, "a chart", "Durvela"): a benchmark in the table's row "a chart". The best of
// three runs counts, since other load only adds time.
#define FIGURE(function, line, program) \
  BENCHMARK(function)->Name(line "|" program)->Repetitions(3)->UseRealTime()
