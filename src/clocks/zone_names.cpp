#include "clocks/zone_names.h"

#include <cstdlib>
#include <fstream>
#include <set>
#include <sstream>
#include <string_view>

namespace clocks {
namespace {

namespace fs = std::filesystem;

// Where cctz looks, too.
fs::path ZoneFolder() {
  const char* folder = std::getenv("TZDIR");
  return folder == nullptr || *folder == '\0' ? "/usr/share/zoneinfo" : folder;
}

struct Line {
  std::string first, second, third;
};

// "Z Asia/Kolkata 5:53:28 ..." is a zone, "L Asia/Kolkata Asia/Calcutta" another name for it.
std::string NameInSource(const Line& line) {
  return line.first == "Z" ? line.second : line.first == "L" ? line.third : "";
}

// "IN +2232+08822 Asia/Kolkata", with tabs between.
std::string NameInTable(const Line& line) {
  return line.first.starts_with('#') ? "" : line.third;
}

// Names without an area are old forms of others. Those of Etc have the signs of their hours turned
// round: Etc/GMT+5 is UTC-5.
bool IsOffered(std::string_view name) {
  return name.find('/') != std::string_view::npos && !name.starts_with("Etc/");
}

std::set<std::string> NamesIn(const fs::path& folder, const char* list,
                              std::string (*nameIn)(const Line&)) {
  std::set<std::string> names;
  std::ifstream file(folder / list);
  for (std::string text; std::getline(file, text);) {
    Line line;
    std::istringstream(text) >> line.first >> line.second >> line.third;
    const std::string name = nameIn(line);
    std::error_code failure;  // there is no such file
    if (IsOffered(name) && fs::is_regular_file(folder / name, failure)) names.insert(name);
  }
  return names;
}

}  // namespace

std::vector<std::string> ZoneNames() {
  return ZoneNames(ZoneFolder());
}

// Some systems have only the table, which lacks former names.
std::vector<std::string> ZoneNames(const fs::path& folder) {
  std::set<std::string> names = NamesIn(folder, "tzdata.zi", NameInSource);
  if (names.empty()) names = NamesIn(folder, "zone.tab", NameInTable);
  names.insert("UTC");
  return {names.begin(), names.end()};
}

}  // namespace clocks
