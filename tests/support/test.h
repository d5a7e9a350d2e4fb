// Tables of rows, and errors that are expected.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "foundation/error.h"

namespace support {

// Checks a function against a table whose rows hold the arguments and, last, the result.
template <typename... Columns>
struct Row : std::tuple<Columns...> {
  explicit Row(Columns... columns) : std::tuple<Columns...>(columns...) {}
};

// Rows hold plain numbers, whatever type the function takes.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
template <typename Function, typename... Columns>
void ExpectRow(const Function& function, const std::tuple<Columns...>& row) {
  constexpr std::size_t kArguments = sizeof...(Columns) - 1;
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    EXPECT_EQ(function(std::get<I>(row)...), std::get<kArguments>(row))
        << "in the row " << testing::PrintToString(row);
  }
  (std::make_index_sequence<kArguments>());
}
#pragma GCC diagnostic pop

template <typename Function, typename... Rows>
void ExpectRows(const Function& function, const Rows&... rows) {
  (ExpectRow(function, rows), ...);
}

// The message of the error that the operation raises; empty if it raises none.
template <typename Operation>
std::string FailureOf(Operation operation) {
  try {
    operation();
  } catch (const foundation::Error& error) {
    return error.what();
  }
  return {};
}

}  // namespace support

using support::Row;

// Expects an error of this kind.
#define EXPECT_ERROR(kind, ...)                                               \
  try {                                                                       \
    static_cast<void>(__VA_ARGS__);                                           \
    ADD_FAILURE() << #__VA_ARGS__ << " does not fail";                        \
  } catch (const ::foundation::Error& raised) {                               \
    EXPECT_EQ(raised.Kind(), ::foundation::ErrorKind::kind) << raised.what(); \
  }                                                                           \
  static_assert(true, "")
