# Results must be the same on every machine: strict IEEE arithmetic, no fusing of a product and a
# sum into one rounding, and no build with "fast" mathematics.

if(CMAKE_BUILD_TYPE)
  string(TOUPPER "${CMAKE_BUILD_TYPE}" buildType)
endif()
foreach(flags CMAKE_CXX_FLAGS CMAKE_CXX_FLAGS_${buildType})
  if("${${flags}}" MATCHES "-Ofast|-ffast-math|-funsafe-math|-fassociative-math|-freciprocal-math|-ffinite-math-only|-ffp-contract=(fast|on)")
    message(FATAL_ERROR "${flags} asks for ${CMAKE_MATCH_0}: Durvela needs strict arithmetic.")
  endif()
endforeach()

add_library(durvela_options INTERFACE)
target_compile_features(durvela_options INTERFACE cxx_std_20)
target_compile_options(durvela_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
  # Rows of control tables name only what differs from the defaults.
  -Wno-missing-field-initializers
  # GCC 12 warns of an overlap in std::string that does not exist (its bug 105651).
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  -fno-fast-math -ffp-contract=off)
