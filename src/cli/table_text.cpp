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

}  // namespace cli
