// Every #include in src/ must be allowed by the table in docs/architecture.md.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>

namespace {

namespace fs = std::filesystem;

const fs::path kProject = PROJECT_FOLDER;

// The libraries that each library may include, as ", one, another,". Read from the document's rows
// "| level | `name` | on | holds |".
std::map<std::string, std::string> ReadAllowedIncludes() {
  std::map<std::string, std::string> allowed;
  std::ifstream document(kProject / "docs/architecture.md");
  const std::regex row(R"(\| \d+ \| `([^.`]+).*?` \| (.*?) \| .* \|)");
  std::smatch cells;
  for (std::string line; std::getline(document, line);) {
    if (std::regex_match(line, cells, row)) allowed[cells[1]] = ", " + cells.str(2) + ",";
  }
  return allowed;
}

std::string LibraryOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path().string() : "main";
}

TEST(Architecture, IncludesFollowTheTable) {
  const auto allowed = ReadAllowedIncludes();
  ASSERT_EQ(allowed.size(), 16U);
  const std::regex include(R"(#include ([<"])(.*)[>"].*)");
  std::smatch included;
  int seen = 0;
  for (const fs::path& path : fs::recursive_directory_iterator(kProject / "src")) {
    if (path.extension() != ".h" && path.extension() != ".cpp") continue;
    const std::string library = LibraryOf(fs::relative(path, kProject / "src"));
    ASSERT_TRUE(allowed.contains(library)) << path << " is in no known library";
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
      if (!std::regex_match(line, included, include)) continue;
      const std::string target = LibraryOf(included.str(2));
      const bool mayInclude =
          included[1] == "\""
              ? target == library ||
                    allowed.at(library).find(", " + target + ",") != std::string::npos
              : !included.str(2).starts_with("Q") || library == "screens/qt" || library == "main";
      EXPECT_TRUE(mayInclude) << path << " includes " << included[2];
      ++seen;
    }
  }
  EXPECT_GT(seen, 100);
}

}  // namespace
