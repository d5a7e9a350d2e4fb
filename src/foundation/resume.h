// Resume-on-error: a routine under it goes on with the next statement when one fails.
#pragma once

#include <optional>
#include <utility>

#include "foundation/error.h"

namespace foundation {

// Runs one statement and swallows its Error, so that what the statement would have set stays as
// it was. Tells whether the statement went through.
template <typename Statement>
bool Resume(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
    return true;
  } catch (const Error&) {
    return false;
  }
}

// The value of a result that an earlier, failed statement may have left unset; Subscript if so.
template <typename T>
const T& Filled(const std::optional<T>& result) {
  if (!result) throw Error(ErrorKind::Subscript);
  return *result;
}

}  // namespace foundation
