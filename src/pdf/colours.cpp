#include "pdf/colours.h"

#include <charconv>
#include <cmath>

#include "pdf/tokens.h"

namespace pdf {
namespace {

std::optional<double> HexPair(std::string_view pair) {
  unsigned value = 0;
  const auto [end, error] = std::from_chars(pair.data(), pair.data() + pair.size(), value, 16);
  if (error != std::errc() || end != pair.data() + pair.size()) return std::nullopt;
  return value;
}

std::string Share(double byte) {
  return PDFFormatNumber(byte / 255, 3);
}

}  // namespace

Rgb PDFColorFromLong(std::int32_t number) {
  const double blue = std::floor(number / 65536.0);
  const double rest = number - blue * 65536;
  const double green = std::floor(rest / 256);
  return {rest - green * 256, green, blue};
}

std::optional<Rgb> PDFColorFromHtml(std::string_view text) {
  if (!text.starts_with('#')) return std::nullopt;
  const std::string padded = std::string("000000").append(text);
  const std::string_view digits = std::string_view(padded).substr(padded.size() - 6);
  const auto red = HexPair(digits.substr(0, 2));
  const auto green = HexPair(digits.substr(2, 2));
  const auto blue = HexPair(digits.substr(4, 2));
  if (!red || !green || !blue) return Rgb{};
  return Rgb{*red, *green, *blue};
}

std::string PDFColorString(const Rgb& colour, std::string_view colourOperator) {
  return (Share(colour.red) + " " + Share(colour.green) + " " + Share(colour.blue) + " ")
      .append(colourOperator);
}

std::string FillOperatorOf(std::string_view lineOperator) {
  if (lineOperator.ends_with("RG")) {
    return std::string(lineOperator.substr(0, lineOperator.size() - 2)) + "rg";
  }
  return std::string(lineOperator.substr(0, lineOperator.size() - 1)) + "g";
}

}  // namespace pdf
