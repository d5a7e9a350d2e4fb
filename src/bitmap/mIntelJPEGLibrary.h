// mIntelJPEGLibrary: writes a bitmap to a JPEG file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "bitmap/cDIBSection.h"
#include "bitmap/jpeg_library.h"
#include "foundation/error.h"
#include "foundation/machine.h"

namespace bitmap {

inline constexpr auto kNoJpegLibrary = foundation::ErrorKind{26001};

// The JPEG library could not be initialised: error 26001.
class JpegLibraryError : public foundation::Error {
 public:
  explicit JpegLibraryError(int result);

  std::string Source() const;
};

// Returns true if the file was written; false, after a message, if the library failed. An existing
// file is deleted first; the new one gets its access and modification times and its mode, but not
// its creation time, which cannot be set here. InvalidCall for a quality outside 1 to 100, before
// anything is touched; JpegLibraryError; FileAccess if the existing file cannot be deleted.
bool SaveJPG(const cDIBSection& cDib, const std::filesystem::path& sFile, std::int32_t lQuality,
             JpegLibrary& library, foundation::MessageBoxes& boxes);

}  // namespace bitmap
