// Checks a function against a table whose rows hold the arguments and, last, the result.
#pragma once

#include <gtest/gtest.h>

#include <tuple>

namespace support {

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

}  // namespace support
