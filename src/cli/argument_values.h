// Values of arguments from their texts, the same in every locale.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace cli {

// Decimal degrees, "-33.9", from -most to most. Failure for anything else.
double ReadDegrees(const std::string& option, const std::string& text, double most);

// A date "YYYY-MM-DD" of the years 100 to 9999. Failure for anything else.
std::chrono::local_days ReadDate(const std::string& option, const std::string& text);

}  // namespace cli
