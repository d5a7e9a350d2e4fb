// Index files: data on a country's places for which its city file has no field.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace atlas {

inline constexpr std::string_view kIndexExtension = ".index";

// Reads a file place by place; docs/formats.md describes it. Every member raises InvalidCall if the
// file is malformed. Texts live as long as the reader.
class IndexFile {
 public:
  // Errors of foundation::ReadFile; FileNotFound for a name that no file can have.
  explicit IndexFile(std::string_view country);
  IndexFile(const IndexFile&) = delete;
  IndexFile& operator=(const IndexFile&) = delete;

  // The number of the column with this name.
  std::size_t Column(std::string_view name) const;

  // Moves to the next place, initially to the first. Returns false after the last.
  bool Next();
  // The current place's value in a column.
  std::string_view Text(std::size_t column) const;
  double Number(std::size_t column) const;

 private:
  std::string_view TakeLine();

  std::string bytes_;
  std::string_view rest_;
  std::map<std::string_view, std::vector<std::string_view>> lists_;
  std::vector<std::string_view> columns_, fields_;
};

}  // namespace atlas
