#include "tools/atlas/index_lines.h"

#include <cstddef>
#include <map>

namespace {

// Texts that many places share: each is written once, and places refer to it by number.
class SharedTexts {
 public:
  explicit SharedTexts(std::string column) : line_(std::move(column)) {}

  std::string NumberOf(const std::string& text) {
    const auto [entry, isNew] = numbers_.try_emplace(text, numbers_.size() + 1);
    if (isNew) line_ += '\t' + text;
    return std::to_string(entry->second);
  }
  const std::string& Line() const { return line_; }

 private:
  std::string line_;
  std::map<std::string, std::size_t> numbers_;
};

}  // namespace

std::vector<std::string> IndexLines(const std::vector<TablePlace>& places) {
  SharedTexts states("state"), codes("iso"), zones("zone");
  std::vector<std::string> rows;
  for (const TablePlace& place : places) {
    const std::int32_t latitude = LatitudeMinutes(place), longitude = LongitudeMinutes(place);
    rows.push_back(place.name + '\t' + states.NumberOf(place.state) + '\t' +
                   std::to_string(place.latitude < 0 ? -latitude : latitude) + '\t' +
                   std::to_string(place.longitude < 0 ? -longitude : longitude) + '\t' +
                   codes.NumberOf(place.iso) + '\t' + zones.NumberOf(place.zone) + '\t' +
                   place.population);
  }
  std::vector<std::string> lines = {states.Line(), codes.Line(), zones.Line(), "",
                                    "place\tstate\tlatitude\tlongitude\tiso\tzone\tpopulation"};
  lines.insert(lines.end(), rows.begin(), rows.end());
  return lines;
}
