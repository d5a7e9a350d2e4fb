// Expects an expression to raise a kind of error.
#pragma once

#include <gtest/gtest.h>

#include "foundation/error.h"

#define EXPECT_ERROR(kind, ...)                                             \
  try {                                                                     \
    static_cast<void>(__VA_ARGS__);                                         \
    ADD_FAILURE() << #__VA_ARGS__ << " does not fail";                      \
  } catch (const ::foundation::Error& error) {                              \
    EXPECT_EQ(error.Kind(), ::foundation::ErrorKind::kind) << error.what(); \
  }                                                                         \
  static_assert(true, "")
