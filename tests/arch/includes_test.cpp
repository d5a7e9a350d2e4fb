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

// What each room may include of the others. The screens' toolkit room is the only one for Qt.
const std::map<std::string, Rooms> kArrows = {
    {"foundation", {}},
    {"forms", {"foundation"}},
    {"engine", {"foundation"}},
    {"dayperiods", {"foundation", "engine"}},
    {"screens", {"foundation", "forms", "engine", "dayperiods"}},
    {"screens/qt", {"foundation", "forms", "engine", "dayperiods", "screens"}},
    {"main", {"screens/qt"}},
};

std::string RoomOf(const fs::path& file) {
  const std::string folder = file.parent_path().generic_string();
  return folder.empty() ? "main" : folder;
}

// Calls `visit(room, included, quoted, where)` for each #include below the source folder.
template <typename Visit>
int ForEachInclude(Visit visit) {
  int count = 0;
  for (const auto& entry : fs::recursive_directory_iterator(SOURCE_FOLDER)) {
    const auto extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") continue;
    const fs::path relative = fs::relative(entry.path(), SOURCE_FOLDER);
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      if (!line.starts_with("#include ")) continue;
      const bool quoted = line[9] == '"';
      const std::size_t end = line.find(quoted ? '"' : '>', 10);
      visit(RoomOf(relative), line.substr(10, end - 10), quoted, relative.string());
      ++count;
    }
  }
  return count;
}

TEST(Architecture, IncludesFollowTheArrows) {
  const int seen = ForEachInclude([](const std::string& room, const std::string& included,
                                     bool quoted, const std::string& where) {
    ASSERT_TRUE(kArrows.contains(room)) << where << " stands in no known room";
    if (!quoted) return;
    const std::string target = RoomOf(included);
    EXPECT_TRUE(target == room || kArrows.at(room).contains(target))
        << where << " includes " << included;
  });
  EXPECT_GT(seen, 100);
}

TEST(Architecture, OnlyTheToolkitRoomIncludesTheToolkit) {
  int toolkit = 0;
  ForEachInclude([&](const std::string& room, const std::string& included, bool quoted,
                     const std::string& where) {
    const bool isToolkit = !quoted && included.starts_with("Q");
    toolkit += isToolkit;
    EXPECT_FALSE(isToolkit && room != "screens/qt" && room != "main")
        << where << " includes " << included;
  });
  EXPECT_GT(toolkit, 10);
}

}  // namespace
