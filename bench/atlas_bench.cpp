// Searching the country with the most places for one keystroke, and finding the zone of one of its
// places. If SQLite is installed, the search is compared with the same query on a prefix table of
// its full-text index over the same names.

#include <string>

#include "atlas/clsAtlas.h"
#include "atlas/zone_index.h"
#include "bench/figure.h"
#include "forms/form.h"
#include "screens/find_in_list.h"

#ifdef HAVE_SQLITE
#include <sqlite3.h>
#endif

namespace {

#define MISS "search per keystroke among 21,133 places, no match"
#define HIT "the same, with a match (\"los an\")"

struct NoEvents : foundation::Yielder {
  void Yield() override {}
};

struct ListForm : forms::Form {
  ListForm() : Form("ListForm", "", 1000, 1000) {}
  CONTROL(ListBox, List, {.sorted = true});
};

// The country's names in a list.
struct Loaded {
  NoEvents events;
  atlas::clsAtlas atlas{events};
  ListForm form;
  Loaded() { atlas.LoadCities("USA", form.List.items.get()); }
};

void Search(benchmark::State& state, const char* text) {
  Loaded usa;
  for (auto _ : state) {
    screens::FindInList(text, usa.form.List);
    benchmark::DoNotOptimize(usa.form.List.items->ListIndex());
  }
}
void SearchMiss(benchmark::State& state) {
  Search(state, "zzz");
}
void SearchHit(benchmark::State& state) {
  Search(state, "los an");
}
FIGURE(SearchMiss, MISS, "Durvela");

#ifdef HAVE_SQLITE

// A table of the names in list order, and a prepared query for the first match.
class FullTextTable {
 public:
  FullTextTable() {
    sqlite3_open(":memory:", &database_);
    Run("CREATE VIRTUAL TABLE places USING fts5(name, prefix='1 2 3')");
    Run("BEGIN");
    sqlite3_stmt* insert = Prepare("INSERT INTO places(rowid, name) VALUES (?, ?)");
    const Loaded usa;
    const forms::ItemList& list = *usa.form.List.items;
    for (int i = 0; i < list.ListCount(); ++i) {
      const std::string name(list.List(i));
      sqlite3_bind_int(insert, 1, i + 1);
      sqlite3_bind_text(insert, 2, name.data(), static_cast<int>(name.size()), SQLITE_TRANSIENT);
      sqlite3_step(insert);
      sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    Run("COMMIT");
    find_ = Prepare("SELECT rowid FROM places WHERE places MATCH ? ORDER BY rowid LIMIT 1");
  }
  ~FullTextTable() {
    sqlite3_finalize(find_);
    sqlite3_close(database_);
  }

  int First(const char* question) {
    sqlite3_bind_text(find_, 1, question, -1, SQLITE_STATIC);
    const int row = sqlite3_step(find_) == SQLITE_ROW ? sqlite3_column_int(find_, 0) : 0;
    sqlite3_reset(find_);
    return row;
  }

 private:
  void Run(const char* sql) { sqlite3_exec(database_, sql, nullptr, nullptr, nullptr); }
  sqlite3_stmt* Prepare(const char* sql) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database_, sql, -1, &statement, nullptr);
    return statement;
  }

  sqlite3* database_ = nullptr;
  sqlite3_stmt* find_ = nullptr;
};

void Ask(benchmark::State& state, const char* question, bool isThere) {
  FullTextTable table;
  if ((table.First(question) > 0) != isThere) state.SkipWithError("not the answer expected");
  for (auto _ : state) benchmark::DoNotOptimize(table.First(question));
}
void AskMiss(benchmark::State& state) {
  Ask(state, "^ \"zzz\" *", false);
}
void AskHit(benchmark::State& state) {
  Ask(state, "^ \"los an\" *", true);
}
FIGURE(AskMiss, MISS, "SQLite FTS5");

#endif

FIGURE(SearchHit, HIT, "Durvela");
#ifdef HAVE_SQLITE
FIGURE(AskHit, HIT, "SQLite FTS5");
#endif

// Of a place that the tables lack, so that every line of the index is read.
void FindZone(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(atlas::ZoneOfPlace("USA", "", "39.50N", "98.35W"));
  }
}
FIGURE(FindZone, "the zone of a place among 21,133", "Durvela");

}  // namespace
