// Every #include in src/ must follow an arrow of the house.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>

namespace {

namespace fs = std::filesystem;

const fs::path kProject = PROJECT_FOLDER;

// What each room may include of the others, ", one, another,": the rows
// "| level | `room` | on | holds |" of the document.
std::map<std::string, std::string> ReadArrows() {
  std::map<std::string, std::string> arrows;
  std::ifstream document(kProject / "docs/architecture.md");
  const std::regex row(R"(\| \d+ \| `([^.`]+).*?` \| (.*?) \| .* \|)");
  std::smatch cells;
  for (std::string line; std::getline(document, line);) {
    if (std::regex_match(line, cells, row)) arrows[cells[1]] = ", " + cells.str(2) + ",";
  }
  return arrows;
}

std::string RoomOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path().string() : "main";
}

TEST(Architecture, IncludesFollowTheArrows) {
  const auto arrows = ReadArrows();
  ASSERT_EQ(arrows.size(), 12U);
  const std::regex include(R"(#include ([<"])(.*)[>"].*)");
  std::smatch included;
  int seen = 0;
  for (const fs::path& path : fs::recursive_directory_iterator(kProject / "src")) {
    if (path.extension() != ".h" && path.extension() != ".cpp") continue;
    const std::string room = RoomOf(fs::relative(path, kProject / "src"));
    ASSERT_TRUE(arrows.contains(room)) << path << " stands in no known room";
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
      if (!std::regex_match(line, included, include)) continue;
      const std::string target = RoomOf(included.str(2));
      const bool mayInclude =
          included[1] == "\""
              ? target == room || arrows.at(room).find(", " + target + ",") != std::string::npos
              : !included.str(2).starts_with("Q") || room == "screens/qt" || room == "main";
      EXPECT_TRUE(mayInclude) << path << " includes " << included[2];
      ++seen;
    }
  }
  EXPECT_GT(seen, 100);
}

}  // namespace
