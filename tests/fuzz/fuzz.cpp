#include "fuzz/fuzz.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Try([&] { fuzz::Run(std::string(data, data + size)); });
  return 0;
}
