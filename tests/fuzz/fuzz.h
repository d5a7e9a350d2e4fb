// What the fuzz targets share.
#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

#include "foundation/error.h"
#include "foundation/files.h"

namespace fuzz {

// What a target does with one input; whatever comes out of it but an Error is a find.
void Run(const std::string& bytes);

// Whether it ran to its end.
template <typename Function>
bool Try(Function function) {
  try {
    function();
    return true;
  } catch (const foundation::Error&) {
    return false;
  }
}

inline void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace fuzz
