#include "cli/table_text.h"

#include <algorithm>

namespace cli {

std::string Padded(std::string text, std::size_t width) {
  text.resize(std::max(width, text.size()), ' ');
  return text;
}

std::string Line(std::string text) {
  text.resize(text.find_last_not_of(' ') + 1);
  return text + "\n";
}

void Append(std::string& text, std::string_view separator, std::string_view part) {
  if (part.empty()) return;
  if (!text.empty()) text += separator;
  text += part;
}

std::string_view ChangeText(const clocks::ZoneClock& clock, std::chrono::local_days date) {
  const auto change = clock.NextChange(clock.BeginOf(date) - std::chrono::seconds(1));
  if (!change || change->at >= clock.BeginOf(date + std::chrono::days(1))) return {};
  return change->after < change->before ? "clocks go back" : "clocks go forward";
}

}  // namespace cli
