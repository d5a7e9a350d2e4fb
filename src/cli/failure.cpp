#include "cli/failure.h"

#include <algorithm>

namespace cli {

std::string OneLine(std::string_view text) {
  std::string line(text);
  std::ranges::replace_if(
      line, [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
  return line;
}

std::string ErrorLine(std::string_view message) {
  return std::string(kProgram) + ": " + OneLine(message) + "\n";
}

}  // namespace cli
