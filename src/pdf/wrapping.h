// The lines of a text that is broken at its blanks.
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
  // `widthOf` measures a character; a line is full when the sum, rounded at each character, is
  // beyond the limit. Line ends in the text count as characters.
  Wrapping(std::string bytes, double limit, std::function<double(char)> widthOf);

  // The next full line, without the blank that ends it: a line without a blank ends before the
  // character that is too much, but holds one at least. Nothing when the rest fits.
  std::optional<WrappedLine> Next();
  std::string Rest() const { return bytes_.substr(start_); }

 private:
  std::string bytes_;
  double limit_;
  std::function<double(char)> widthOf_;
  std::size_t start_ = 0;
};

}  // namespace pdf
