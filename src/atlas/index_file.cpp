#include "atlas/index_file.h"

#include <algorithm>

#include "atlas/city_file.h"
#include "foundation/error.h"
#include "foundation/files.h"
#include "foundation/numbers.h"

namespace atlas {
namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

[[noreturn]] void Broken() {
  throw foundation::Error(foundation::ErrorKind::InvalidCall);
}

// Into a vector that keeps its room: a country has up to twenty thousand lines.
void SplitAtTabs(std::string_view line, std::vector<std::string_view>& fields) {
  fields.clear();
  for (std::size_t tab; (tab = line.find('\t')) != kNowhere; line.remove_prefix(tab + 1)) {
    fields.push_back(line.substr(0, tab));
  }
  fields.push_back(line);
}

}  // namespace

IndexFile::IndexFile(std::string_view country)
    : bytes_(foundation::ReadFile(CityFile(country).replace_extension(kIndexExtension))),
      rest_(bytes_) {
  for (std::string_view line; !(line = TakeLine()).empty();) {
    SplitAtTabs(line, fields_);
    lists_[fields_.front()] = fields_;
  }
  SplitAtTabs(TakeLine(), columns_);
}

std::size_t IndexFile::Column(std::string_view name) const {
  const auto column = std::ranges::find(columns_, name);
  if (column == columns_.end()) Broken();
  return static_cast<std::size_t>(column - columns_.begin());
}

bool IndexFile::Next() {
  if (rest_.empty()) return false;
  SplitAtTabs(TakeLine(), fields_);
  if (fields_.size() != columns_.size()) Broken();
  return true;
}

std::string_view IndexFile::Text(std::size_t column) const {
  const auto list = lists_.find(columns_[column]);
  if (list == lists_.end()) return fields_[column];
  const std::int32_t number = foundation::RoundToInt32(Number(column));
  if (number < 1 || static_cast<std::size_t>(number) >= list->second.size()) Broken();
  return list->second[static_cast<std::size_t>(number)];  // behind the list's name
}

double IndexFile::Number(std::size_t column) const {
  const auto number = foundation::WholeNumber(fields_[column]);
  if (!number) Broken();
  return *number;
}

std::string_view IndexFile::TakeLine() {
  const std::size_t end = rest_.find('\n');
  if (end == kNowhere) Broken();
  const std::string_view line = rest_.substr(0, end);
  rest_.remove_prefix(end + 1);
  return line;
}

}  // namespace atlas
