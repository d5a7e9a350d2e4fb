// Checked floating-point arithmetic: infinity and NaN raise errors instead of spreading.
#pragma once

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>

#include "foundation/error.h"

#ifdef __FAST_MATH__
#error "Durvela needs strict arithmetic; build it without -ffast-math."
#endif

namespace foundation {

static_assert(std::numeric_limits<double>::is_iec559 && FLT_EVAL_METHOD == 0,
              "a step of 64-bit arithmetic must round once, to 64 bits");

// Returns x. Overflow if it is infinite, InvalidCall if it is not a number.
inline double Finite(double x) {
  if (std::isnan(x)) throw Error(ErrorKind::InvalidCall);
  if (std::isinf(x)) throw Error(ErrorKind::Overflow);
  return x;
}

inline double Divide(double dividend, double divisor) {
  if (divisor == 0) throw Error(ErrorKind::DivisionByZero);
  return Finite(dividend / divisor);
}

// InvalidCall for a negative x.
inline double SquareRoot(double x) {
  if (x < 0) throw Error(ErrorKind::InvalidCall);
  return std::sqrt(Finite(x));
}

// Integer division, truncating toward zero.
inline std::int64_t IntegerDivide(std::int64_t dividend, std::int64_t divisor) {
  if (divisor == 0) throw Error(ErrorKind::DivisionByZero);
  if (divisor == -1) {
    if (dividend == std::numeric_limits<std::int64_t>::min()) throw Error(ErrorKind::Overflow);
    return -dividend;
  }
  return dividend / divisor;
}

}  // namespace foundation
