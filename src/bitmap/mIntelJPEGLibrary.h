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

// A JPEG library that does not start: error 26001.
class JpegLibraryError : public foundation::Error {
 public:
  explicit JpegLibraryError(int result);

  std::string Source() const;
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  std::string text_;
};

// True when the file is written; false when the library cannot, and the user is told. A former file
// goes before the new one is written; the new one gets its times of access and change and its mode,
// but not that of its creation, which no program can set here.
// InvalidCall for a quality outside 1 to 100, before anything is touched; JpegLibraryError;
// FileAccess where the former file cannot be deleted.
bool SaveJPG(const cDIBSection& cDib, const std::filesystem::path& sFile, std::int32_t lQuality,
             JpegLibrary& library, foundation::MessageBoxes& boxes);

}  // namespace bitmap
