// City files as they lie in the atlas folder: where, in which items, and how they are written.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/byte_text.h"

namespace atlas {

inline constexpr std::string_view kCityExtension = ".city";

// The file of a country. FileNotFound for a name that no file can have.
std::filesystem::path CityFile(std::string_view country);

// The countries that have a file, sorted by name, case aside.
std::vector<std::string> Countries();

// A file read item by item: an item goes up to a comma or a line's end, without the blanks before
// it. Behind a comma there is always one more.
class CityReader {
 public:
  // Errors as of foundation::ReadFile.
  explicit CityReader(std::filesystem::path file);

  bool AtEnd();
  foundation::ByteText Item();

 private:
  void ReadWhatWasAppended();

  std::filesystem::path file_;
  std::string bytes_;
  std::size_t at_ = 0;
  bool behindComma_ = false;
};

// Replaces or extends a file by lines. FileAccess where it cannot be written.
enum class Writing { FromStart, AtEnd };
void WriteLines(const std::filesystem::path& file, Writing writing,
                const std::vector<foundation::ByteText>& lines);

}  // namespace atlas
