// Breaks a text into lines at its blanks.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace pdf {

struct WrappedLine {
  std::string bytes;
  bool endsAtBlank = false;
};

class Wrapping {
 public:
  // `widthOf` measures a character. A line is full when the sum, rounded at each character, exceeds
  // the limit. Line ends in the text count as characters.
  Wrapping(std::string bytes, double limit, std::function<double(char)> widthOf);

  // The next full line, without the blank that ends it. A line without a blank ends before the
  // first character that does not fit, but holds at least one. Nothing if the rest fits.
  std::optional<WrappedLine> Next();
  std::string Rest() const { return bytes_.substr(start_); }

 private:
  std::string bytes_;
  double limit_;
  std::function<double(char)> widthOf_;
  std::size_t start_ = 0;
};

}  // namespace pdf
