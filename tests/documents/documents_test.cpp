// What the documents name must be there.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "foundation/numbers.h"

namespace {

namespace fs = std::filesystem;

const fs::path kProject = PROJECT_FOLDER;

std::string TextOf(const fs::path& file) {
  std::ifstream stream(file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// The first group of every match.
std::set<std::string> Matches(const std::string& text, const char* pattern) {
  std::set<std::string> found;
  const std::regex expression(pattern);
  for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
    found.insert((*match)[1]);
  return found;
}

std::vector<fs::path> Documents() {
  std::vector<fs::path> documents;
  for (const fs::path& folder : {kProject, kProject / "docs"}) {
    for (const auto& entry : fs::directory_iterator(folder)) {
      if (entry.path().extension() == ".md") documents.push_back(entry.path());
    }
  }
  return documents;
}

TEST(Documents, LeadToFilesThatAreThere) {
  std::size_t seen = 0;
  for (const fs::path& document : Documents()) {
    const std::string text = TextOf(document);
    for (const std::string& link : Matches(text, "\\]\\(([^)#:]+)\\)")) {
      EXPECT_TRUE(fs::exists(document.parent_path() / link)) << document << " leads to " << link;
      ++seen;
    }
    for (const std::string& file : Matches(text, "`((?:src|tests|docs|scripts|tools)/[^`<]+)`")) {
      EXPECT_TRUE(fs::exists(kProject / file)) << document << " names " << file;
      ++seen;
    }
  }
  EXPECT_GT(seen, 10U);
}

TEST(Documents, CountThePlacesThatAreThere) {
  int files = 0, places = 0;
  for (const auto& entry : fs::directory_iterator(kProject / "data/atlas/places")) {
    const std::string table = TextOf(entry.path());
    places += static_cast<int>(std::count(table.begin(), table.end(), '\n')) - 1;
    ++files;
  }
  const std::string count = foundation::GroupedText(places);
  for (const char* document : {"README.md", "docs/atlas.md"}) {
    const std::string text = TextOf(kProject / document);
    EXPECT_NE(text.find(count), text.npos) << document << " does not tell of " << count;
    EXPECT_NE(text.find("in " + std::to_string(files)), text.npos) << document;
  }
}

// README tells the worst of docs/accuracy.md, which is made by a command.
TEST(Documents, TellTheAccuracyThatWasMeasured) {
  const std::string readme = TextOf(kProject / "README.md");
  const std::string measured = TextOf(kProject / "docs/accuracy.md");
  for (const auto& [place, claim] :
       {std::pair{"Delhi, 28.7° N", "64 seconds"}, {"Ålesund, 62.5° N", "132 at 62.5 degrees"}}) {
    int worst = 0;
    for (std::size_t at = 0; (at = measured.find(place, at)) != measured.npos; ++at) {
      const std::string row = measured.substr(at, measured.find('\n', at) - at);
      const std::size_t last = row.rfind('|', row.size() - 2) + 1;
      worst =
          std::max(worst, foundation::RoundToInt32(foundation::LeadingNumber(row.substr(last))));
    }
    EXPECT_TRUE(std::string_view(claim).starts_with(std::to_string(worst))) << place << worst;
    EXPECT_NE(readme.find(claim), readme.npos) << claim;
  }
}

TEST(Documents, NameTestsThatAreThere) {
  std::set<std::string> tests;
  for (const auto& entry : fs::recursive_directory_iterator(kProject / "tests")) {
    if (entry.path().extension() != ".cpp") continue;
    for (std::string name : Matches(TextOf(entry.path()), "\nTEST[_FP]*\\((\\w+, \\w+)\\)")) {
      tests.insert(name.replace(name.find(", "), 2, "."));
    }
  }
  const auto named = Matches(TextOf(kProject / "docs/behaviour.md"), "`([A-Z]\\w+\\.[A-Z]\\w+)`");
  EXPECT_GT(named.size(), 40U);
  for (const std::string& test : named) EXPECT_TRUE(tests.contains(test)) << test;
}

}  // namespace
