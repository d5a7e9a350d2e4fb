// What the documents name must be there, and what they forbid must not.

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <regex>
#include <set>
#include <string>

#include "foundation/files.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "support/test.h"

namespace {

namespace fs = std::filesystem;
using foundation::ReadFile;

const fs::path kProject = PROJECT_FOLDER;

// What a pattern finds in a text, in a form such as "$1.$2".
std::set<std::string> Found(const std::string& text, const std::string& pattern,
                            const std::string& form = "$1") {
  const std::regex regex(pattern);
  std::set<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), regex), end; at != end; ++at) {
    found.insert(at->format(form));
  }
  return found;
}

TEST(Documents, LeadToFilesThatAreThere) {
  int seen = 0;
  for (const char* folder : {".", "docs", "examples", "data/Language"}) {
    for (const fs::path& document : fs::directory_iterator(kProject / folder)) {
      if (document.extension() != ".md") continue;
      const std::string text = ReadFile(document);
      auto named = Found(text, R"(\]\(([^:)]+)\))", kProject / folder / "$1");
      named.merge(Found(text, "`((src|tests|docs|scripts|tools)/[^`<]*)`", kProject / "$1"));
      for (const auto& file : named) {
        EXPECT_TRUE(fs::exists(file)) << document << " names " << file;
        ++seen;
      }
    }
  }
  EXPECT_GT(seen, 20);
}

TEST(Documents, CountThePlacesThatAreThere) {
  std::int64_t files = 0, places = 0;
  for (const fs::path& table : fs::directory_iterator(kProject / "data/atlas/places")) {
    places += std::ranges::count(ReadFile(table), '\n') - 1;  // below the names of the columns
    ++files;
  }
  for (const char* document : {"README.md", "docs/atlas.md"}) {
    const std::string text = ReadFile(kProject / document);
    for (const auto& count : {foundation::GroupedText(places), "in " + std::to_string(files)}) {
      EXPECT_NE(text.find(count), text.npos) << document << " does not mention " << count;
    }
  }
}

// README quotes the worst figures of docs/accuracy.md, which scripts/accuracy makes.
TEST(Documents, TellTheAccuracyThatWasMeasured) {
  std::string readme = ReadFile(kProject / "README.md");
  std::ranges::replace(readme, '\n', ' ');
  const std::string measured = ReadFile(kProject / "docs/accuracy.md");
  // The worst of the rows, in whole units rounded up.
  const auto worstOf = [&](const std::string& row, double unit, const char* claim) {
    EXPECT_NE(readme.find(claim), readme.npos) << claim;
    double worst = 0;
    for (const auto& last : Found(measured, row + R"( .*\| (.*) \|\n)")) {
      worst = std::max(worst, foundation::LeadingNumber(last));
    }
    return std::ceil(worst / unit);
  };
  ExpectRows(worstOf, Row("Delhi, 28.7° N", 1, "64 seconds", 64),
             Row("Ålesund, 62.5° N", 1, "132 at 62.5 degrees", 132),
             Row(", sidereal", 0.1, "within 0.6 minutes of arc", 6),
             Row("Tithi", 60, "within two minutes of time", 2),
             Row("Nakshatra", 60, "nakshatras and yogas within one minute", 1),
             Row("Yoga", 60, "nakshatras and yogas within one minute", 1));
}

TEST(Documents, NameTestsThatAreThere) {
  std::set<std::string> tests;
  for (const fs::path& file : fs::recursive_directory_iterator(kProject / "tests")) {
    if (file.extension() == ".cpp") {
      tests.merge(Found(ReadFile(file), R"(\nTEST(?:_[FP])?\((\w+), (\w+)\))", "$1.$2"));
    }
  }
  const auto named = Found(ReadFile(kProject / "docs/behaviour.md"), R"(`([A-Z]\w*\.[A-Z][^`]*)`)");
  EXPECT_GT(named.size(), 40U);
  for (const auto& test : named) EXPECT_TRUE(tests.contains(test)) << test;
}

// By the table of docs/architecture.md.
TEST(Documents, SayWhatEachLibraryMayInclude) {
  // "pdf, pdf, foundation, forms, bitmap,": a library, then all that it may include.
  const auto rows = Found(ReadFile(kProject / "docs/architecture.md"),
                          R"(\n\| \d+ \| `([^.`]+)[^`]*` \| ([^|]*) \|)", "$1, $1, $2,");
  const auto libraryOf = [](const fs::path& file) {
    return file.has_parent_path() ? file.parent_path().string() : "main";
  };
  int seen = 0;
  for (const fs::path& path : fs::recursive_directory_iterator(kProject / "src")) {
    if (path.extension() != ".h" && path.extension() != ".cpp") continue;
    const std::string library = libraryOf(fs::relative(path, kProject / "src"));
    const auto row = rows.lower_bound(library + ", ");
    ASSERT_TRUE(row != rows.end() && row->starts_with(library + ", ")) << path;
    const std::string text = ReadFile(path);
    for (const std::string& included : Found(text, "#include \"(.*)\"")) {
      EXPECT_NE(row->find(", " + libraryOf(included) + ","), row->npos) << path << included;
      ++seen;
    }
    const bool usesQt = !Found(text, "#include <(Q.*)>").empty();
    EXPECT_TRUE(!usesQt || library == "screens/qt" || library == "main") << path;
  }
  EXPECT_GT(seen, 100);
}

}  // namespace
