// City files in the atlas folder: their location, items and writing.
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

// The countries that have a file, sorted by name ignoring case.
std::vector<std::string> Countries();

// Reads a file item by item. An item ends at a comma or a line end; leading blanks are skipped.
// Another item, possibly empty, follows every comma.
class CityReader {
 public:
  // Errors of foundation::ReadFile.
  explicit CityReader(std::filesystem::path file);

  bool AtEnd();
  foundation::ByteText Item();

 private:
  void ReadAppended();

  std::filesystem::path file_;
  std::string bytes_;
  std::size_t at_ = 0;
  bool afterComma_ = false;
};

// Replaces or extends a file by lines. FileAccess if it cannot be written.
enum class Writing { FromStart, AtEnd };
void WriteLines(const std::filesystem::path& file, Writing writing,
                const std::vector<foundation::ByteText>& lines);

}  // namespace atlas
