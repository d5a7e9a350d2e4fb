// What the atlas and the search in it cost, in the country with the most places.

#include <benchmark/benchmark.h>

#include "atlas/clsAtlas.h"
#include "forms/form.h"
#include "screens/find_in_list.h"

namespace {

struct NoEvents : foundation::Yielder {
  void Yield() override {}
};

struct ListForm : forms::Form {
  ListForm() : Form("ListForm", "", 1000, 1000) {}
  CONTROL(ListBox, List, {.sorted = true});
};

void LoadTheLargestCountry(benchmark::State& state) {
  NoEvents events;
  atlas::clsAtlas atlas(events);
  ListForm form;
  for (auto _ : state) atlas.LoadCities("USA", form.List.items.get());
  state.counters["places"] = atlas.getLength();
}
BENCHMARK(LoadTheLargestCountry)->Unit(benchmark::kMillisecond);

// The search of one keystroke, to the last entry and past it.
void SearchWithoutAMatch(benchmark::State& state) {
  NoEvents events;
  atlas::clsAtlas atlas(events);
  ListForm form;
  atlas.LoadCities("USA", form.List.items.get());
  for (auto _ : state) screens::FindInList("zzz", form.List);
}
BENCHMARK(SearchWithoutAMatch)->Unit(benchmark::kMicrosecond);

}  // namespace
