// Every #include in src/ must follow an arrow of the house.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

using Rooms = std::set<std::string>;

const fs::path kSource = PROJECT_FOLDER "/src";

std::vector<std::string> Split(const std::string& text, const std::string& separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t end; (end = text.find(separator, start)) != text.npos;) {
    parts.push_back(text.substr(start, end - start));
    start = end + separator.size();
  }
  parts.push_back(text.substr(start));
  return parts;
}

// What each room may include of the others: the rows "| level | `room` | on | holds |" of the
// document.
std::map<std::string, Rooms> ReadArrows() {
  std::map<std::string, Rooms> arrows;
  std::ifstream document(PROJECT_FOLDER "/docs/architecture.md");
  for (std::string line; std::getline(document, line);) {
    const std::vector<std::string> cells = Split(line, " | ");
    if (cells.size() != 4 || !cells[1].starts_with('`')) continue;
    const std::vector<std::string> on = Split(cells[2], ", ");
    const std::string name = Split(cells[1].substr(1, cells[1].size() - 2), ".")[0];
    arrows[name] = Rooms(on.begin(), on.end());
  }
  return arrows;
}

const std::map<std::string, Rooms> kArrows = ReadArrows();

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
  ASSERT_EQ(kArrows.size(), 12U);
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
