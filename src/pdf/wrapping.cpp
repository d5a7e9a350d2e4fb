#include "pdf/wrapping.h"

#include <algorithm>
#include <utility>

#include "foundation/numbers.h"

namespace pdf {

Wrapping::Wrapping(std::string bytes, double limit, std::function<double(char)> widthOf)
    : bytes_(std::move(bytes)), limit_(limit), widthOf_(std::move(widthOf)) {}

std::optional<WrappedLine> Wrapping::Next() {
  std::size_t blank = std::string::npos;
  std::int32_t length = 0;
  for (std::size_t i = start_; i < bytes_.size(); ++i) {
    if (bytes_[i] == ' ') blank = i;
    length = foundation::RoundToInt32(length + widthOf_(bytes_[i]));
    if (length <= limit_) continue;

    const std::size_t from = start_;
    const bool atBlank = blank != std::string::npos;
    const std::size_t end = atBlank ? blank : std::max(i, from + 1);
    start_ = atBlank ? blank + 1 : end;
    return WrappedLine{bytes_.substr(from, end - from), atBlank};
  }
  return std::nullopt;
}

}  // namespace pdf
