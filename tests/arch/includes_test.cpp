// Every #include in src/ must follow an arrow of the house.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

using Rooms = std::set<std::string>;

const fs::path kSource = SOURCE_FOLDER;

// What each room may include of the others. The screens' toolkit room is the only one for Qt.
const std::map<std::string, Rooms> kArrows = {
    {"foundation", {}},
    {"forms", {"foundation"}},
    {"engine", {"foundation"}},
    {"atlas", {"foundation", "forms"}},
    {"bitmap", {"foundation", "forms"}},
    {"pdf", {"foundation", "forms", "bitmap"}},
    {"dayperiods", {"foundation", "engine"}},
    {"almanac", {"foundation", "engine", "dayperiods"}},
    {"report", {"foundation", "forms", "engine", "bitmap", "dayperiods"}},
    {"screens", {"foundation", "forms", "engine", "atlas", "dayperiods", "report"}},
    {"screens/qt", {"foundation", "forms", "engine", "atlas", "dayperiods", "report", "screens"}},
    {"main", {"foundation", "screens/qt"}},
};

std::string RoomOf(const fs::path& file) {
  const std::string folder = file.parent_path().generic_string();
  return folder.empty() ? "main" : folder;
}

void Check(const std::string& room, const std::string& included, bool quoted,
           const std::string& where) {
  ASSERT_TRUE(kArrows.contains(room)) << where << " stands in no known room";
  const std::string target = RoomOf(included);
  const bool mayInclude =
      quoted ? target == room || kArrows.at(room).contains(target)
             : !included.starts_with("Q") || room == "screens/qt" || room == "main";
  EXPECT_TRUE(mayInclude) << where << " includes " << included;
}

TEST(Architecture, IncludesFollowTheArrows) {
  int seen = 0;
  for (const auto& entry : fs::recursive_directory_iterator(kSource)) {
    const auto extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") continue;
    const fs::path relative = fs::relative(entry.path(), kSource);
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      if (!line.starts_with("#include ")) continue;
      const bool quoted = line[9] == '"';
      const std::size_t end = line.find(quoted ? '"' : '>', 10);
      Check(RoomOf(relative), line.substr(10, end - 10), quoted, relative.string());
      ++seen;
    }
  }
  EXPECT_GT(seen, 100);
}

}  // namespace
