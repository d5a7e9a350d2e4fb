// Checks how an operation fails.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "foundation/error.h"

namespace support {

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

// Expects an error of this kind.
#define EXPECT_ERROR(kind, ...)                                               \
  try {                                                                       \
    static_cast<void>(__VA_ARGS__);                                           \
    ADD_FAILURE() << #__VA_ARGS__ << " does not fail";                        \
  } catch (const ::foundation::Error& raised) {                               \
    EXPECT_EQ(raised.Kind(), ::foundation::ErrorKind::kind) << raised.what(); \
  }                                                                           \
  static_assert(true, "")
