// An INI file in memory. A new value changes no other byte of it.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace foundation {

// Reads files as Qt does. Keys before the first section, and those of [General], have the section
// "". Names are case-sensitive; the last of equal keys counts. A comment begins with ";", at the
// start of a line or later. A line continues after a backslash at its end, and inside quotation
// marks. Lines that are neither section, key nor comment are ignored.
class IniDocument {
 public:
  IniDocument() = default;
  explicit IniDocument(std::string bytes) : bytes_(std::move(bytes)) { Parse(); }

  const std::string& Bytes() const { return bytes_; }

  std::optional<std::string> Value(std::string_view section, std::string_view key) const;

  // A new key follows the last one of its section; a new section goes to the end.
  void Set(std::string_view section, std::string_view key, std::string_view value);

 private:
  struct Range {
    std::size_t begin, end;
  };

  void Parse();
  void Replace(Range value, std::string_view spelled);
  void EndLastLine(std::string_view lineEnd);
  void Insert(std::string_view section, const std::string& entry);

  std::string bytes_;
  std::map<std::string, Range, std::less<>> values_;  // by section, "/" and key
  // Where a new key goes in each section: after its last key, or its header.
  std::map<std::string, std::size_t, std::less<>> entryEnds_;
  char lastLineLacks_ = '\0';  // a line end, a quotation mark, or nothing
};

}  // namespace foundation
