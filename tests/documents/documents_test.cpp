// What the documents name must be there.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
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

// What stands between `open` and the next `close`, everywhere.
std::set<std::string> Between(std::string_view text, std::string_view open, char close) {
  std::set<std::string> found;
  for (std::size_t at = 0; (at = text.find(open, at)) != text.npos;) {
    at += open.size();
    const std::size_t end = std::min(text.find(close, at), text.size());
    found.emplace(text.substr(at, end - at));
    at = std::min(end + 1, text.size());
  }
  return found;
}

bool BeginsWithAFolder(std::string_view name) {
  constexpr std::string_view kFolders[] = {"src/", "tests/", "docs/", "scripts/", "tools/"};
  return std::ranges::any_of(kFolders, [&](auto folder) { return name.starts_with(folder); });
}

// "Suite.TestInOneWord"
bool IsTest(std::string_view name) {
  const std::size_t point = name.find('.');
  const auto isCapital = [&](std::size_t at) {
    return at < name.size() && std::isupper(static_cast<unsigned char>(name[at])) != 0;
  };
  return point != name.npos && isCapital(0) && isCapital(point + 1);
}

std::vector<fs::path> Documents() {
  std::vector<fs::path> documents;
  for (const char* folder : {".", "docs", "examples", "data/Language"}) {
    for (const auto& entry : fs::directory_iterator(kProject / folder)) {
      if (entry.path().extension() == ".md") documents.push_back(entry.path());
    }
  }
  return documents;
}

TEST(Documents, LeadToFilesThatAreThere) {
  int seen = 0;
  for (const fs::path& document : Documents()) {
    const std::string text = TextOf(document);
    for (const std::string& link : Between(text, "](", ')')) {
      if (link.find(':') != link.npos) continue;
      EXPECT_TRUE(fs::exists(document.parent_path() / link)) << document << " leads to " << link;
      ++seen;
    }
    for (const std::string& file : Between(text, "`", '`')) {
      if (!BeginsWithAFolder(file) || file.find('<') != file.npos) continue;
      EXPECT_TRUE(fs::exists(kProject / file)) << document << " names " << file;
      ++seen;
    }
  }
  EXPECT_GT(seen, 20);
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
  std::string readme = TextOf(kProject / "README.md");
  std::ranges::replace(readme, '\n', ' ');
  const std::string measured = TextOf(kProject / "docs/accuracy.md");
  struct Claim {
    const char *row, *text;
    double units, unit;  // the worst of the rows in whole units, rounded up
  };
  for (const Claim& claim : {Claim{"Delhi, 28.7° N |", "64 seconds", 64, 1},
                             {"Ålesund, 62.5° N |", "132 at 62.5 degrees", 132, 1},
                             {", sidereal |", "within 0.6 minutes of arc", 6, 0.1},
                             {"Tithi |", "within two minutes of time", 2, 60},
                             {"Nakshatra |", "within two minutes of time", 2, 60}}) {
    double worst = 0;
    for (std::size_t at = 0; (at = measured.find(claim.row, at)) != measured.npos; ++at) {
      const std::string row = measured.substr(at, measured.find('\n', at) - at);
      const std::size_t last = row.rfind('|', row.size() - 2) + 1;
      worst = std::max(worst, foundation::LeadingNumber(row.substr(last)));
    }
    EXPECT_EQ(std::ceil(worst / claim.unit), claim.units) << claim.row;
    EXPECT_NE(readme.find(claim.text), readme.npos) << claim.text;
  }
}

TEST(Documents, NameTestsThatAreThere) {
  std::set<std::string> tests;
  for (const auto& entry : fs::recursive_directory_iterator(kProject / "tests")) {
    if (entry.path().extension() != ".cpp") continue;
    const std::string text = TextOf(entry.path());
    for (const char* open : {"\nTEST(", "\nTEST_F(", "\nTEST_P("}) {
      for (std::string name : Between(text, open, ')')) {
        tests.insert(name.replace(name.find(", "), 2, "."));
      }
    }
  }
  int named = 0;
  for (const std::string& test : Between(TextOf(kProject / "docs/behaviour.md"), "`", '`')) {
    if (!IsTest(test)) continue;
    EXPECT_TRUE(tests.contains(test)) << test;
    ++named;
  }
  EXPECT_GT(named, 40);
}

}  // namespace
