// An argument that may be a number, a text or a list of numbers.
#pragma once

#include <concepts>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "foundation/numbers.h"

namespace pdf {

class Argument {
 public:
  template <typename Number>
  requires std::is_arithmetic_v<Number> Argument(Number number)
      : value_(static_cast<double>(number)) {}
  template <std::convertible_to<std::string_view> Text>
  Argument(const Text& text) : value_(std::string(std::string_view(text))) {}
  Argument(std::initializer_list<double> list) : value_(std::vector<double>(list)) {}
  Argument(std::vector<double> list) : value_(std::move(list)) {}

  // Null if the argument is of another kind.
  const double* Number() const { return std::get_if<double>(&value_); }
  const std::string* Text() const { return std::get_if<std::string>(&value_); }
  const std::vector<double>* List() const { return std::get_if<std::vector<double>>(&value_); }

  bool IsEmptyText() const { return Text() != nullptr && Text()->empty(); }

  // As shown in a message; a list is shown as empty text.
  std::string Shown() const {
    if (Number() != nullptr) return foundation::NumberText(*Number());
    return Text() == nullptr ? std::string() : *Text();
  }

 private:
  std::variant<double, std::string, std::vector<double>> value_;
};

}  // namespace pdf
