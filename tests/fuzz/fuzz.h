// Shared by the fuzz targets, which are one file each.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>

#include "foundation/error.h"
#include "foundation/files.h"

namespace fuzz {

// Processes one input; anything but an Error is a finding.
void Run(const std::string& bytes);

template <typename Function>
void Try(Function function) {
  try {
    function();
  } catch (const foundation::Error&) {
  }
}

inline void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Try([&] { fuzz::Run(std::string(data, data + size)); });
  return 0;
}
