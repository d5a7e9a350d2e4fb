// Resume on error: a failed statement is skipped and the routine goes on with the next.
#pragma once

#include <optional>
#include <utility>

#include "foundation/error.h"

namespace foundation {

// Runs a statement and swallows its Error, leaving what it would have set unchanged. Returns
// whether it succeeded.
template <typename Statement>
bool Resume(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
    return true;
  } catch (const Error&) {
    return false;
  }
}

// The value of a result that an earlier statement may have failed to set; Subscript if so.
template <typename T>
const T& Filled(const std::optional<T>& result) {
  if (!result) throw Error(ErrorKind::Subscript);
  return *result;
}

}  // namespace foundation
