#include "pdf/font_metrics.h"

#include <algorithm>
#include <optional>

#include "foundation/error.h"
#include "foundation/files.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pdf {
namespace {

using foundation::Error;
using foundation::ErrorKind;

bool Holds(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

// The second word of a field such as " WX 667 ".
double SecondWord(std::string_view field) {
  field.remove_prefix(std::min(field.find_first_not_of(' '), field.size()));
  field = field.substr(0, field.find_last_not_of(' ') + 1);
  const auto words = foundation::Split(field, ' ');
  if (words.size() < 2) throw Error(ErrorKind::Subscript);
  const auto number = foundation::WholeNumber(words[1]);
  if (!number) throw Error(ErrorKind::TypeMismatch);
  return *number;
}

struct CharacterWidth {
  int code;
  std::int32_t width;
};

CharacterWidth ReadLine(std::string_view line) {
  const auto fields = foundation::Split(line, ';');
  if (fields.size() < 2) throw Error(ErrorKind::Subscript);
  return {foundation::RoundToInt32(SecondWord(fields[0])),
          foundation::FloorToInt32(SecondWord(fields[1]))};
}

bool EndsMetrics(std::string_view line) {
  return Holds(line, "EndCharMetrics") || Holds(line, "-1 ;");
}

// Leaves `text` after the line that starts the section.
bool FindMetrics(std::string_view& text) {
  while (!text.empty()) {
    if (!Holds(foundation::TakeLine(text), "StartCharMetrics")) continue;
    if (text.empty()) throw Error(ErrorKind::FileAccess);
    return true;
  }
  return false;
}

}  // namespace

WidthTable ReadWidths(std::string_view metrics) {
  WidthTable widths, none;
  if (!FindMetrics(metrics)) return none;
  std::optional<int> first;
  int last = 0;
  while (!metrics.empty()) {
    const std::string_view line = foundation::TakeLine(metrics);
    if (EndsMetrics(line)) {
      for (int code = 1; code <= 255; ++code) {
        if (code < first.value_or(0) || code > last) widths[code] = 0;
      }
      return widths;
    }
    const auto [code, width] = ReadLine(line);
    widths[code] = width;
    if (!first) first = code;
    last = code;
  }
  return none;
}

double TextWidth(const foundation::ByteText& text, const WidthTable& widths, double size) {
  const std::string& bytes = text.Bytes();
  if (bytes.find('\0') != std::string::npos) throw Error(ErrorKind::Subscript);
  const std::int32_t* const ofCode1 = &widths[1];
  std::int64_t sum = 0;
  for (const char c : bytes) sum += ofCode1[static_cast<unsigned char>(c) - 1];
  return foundation::RoundToInt32(static_cast<double>(sum)) * size / 1000;
}

}  // namespace pdf
