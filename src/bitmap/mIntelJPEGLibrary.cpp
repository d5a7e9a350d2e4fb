#include "bitmap/mIntelJPEGLibrary.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>

#include "foundation/files.h"
#include "foundation/version.h"

namespace bitmap {
namespace {

using foundation::Error;
using foundation::ErrorKind;
using foundation::kProgramName;
using FindData = struct stat;

std::optional<FindData> Find(const std::filesystem::path& file) {
  FindData found;
  if (stat(file.c_str(), &found) != 0) return std::nullopt;
  return found;
}

void Delete(const std::filesystem::path& file) {
  if (unlink(file.c_str()) != 0) {
    throw foundation::FileError(ErrorKind::FileAccess, file, "cannot be deleted");
  }
}

void RestoreTimesAndMode(const std::filesystem::path& file, const FindData& former) {
  const int handle = open(file.c_str(), O_WRONLY | O_CLOEXEC);
  if (handle < 0) return;
  const timespec times[] = {former.st_atim, former.st_mtim};
  futimens(handle, times);
  fchmod(handle, former.st_mode & 07777);
  close(handle);
}

void Describe(const cDIBSection& dib, const std::filesystem::path& file, std::int32_t quality,
              JpegProperties& record) {
  record.DIBWidth = dib.Width();
  record.DIBHeight = -dib.Height();
  record.DIBBytes = dib.DIBSectionBitsPtr();
  record.DIBPadBytes = dib.BytesPerScanLine() - dib.Width() * 3;
  record.JPGFile = file.c_str();
  record.JPGWidth = dib.Width();
  record.JPGHeight = dib.Height();
  record.jquality = quality;
}

}  // namespace

JpegLibraryError::JpegLibraryError(int result)
    : Error(kNoJpegLibrary, "Failed to initialise the IJL library: " + std::to_string(result)) {}

std::string JpegLibraryError::Source() const {
  return std::string(kProgramName) + ".mIntelJPEGLibrary";
}

bool SaveJPG(const cDIBSection& cDib, const std::filesystem::path& sFile, std::int32_t lQuality,
             JpegLibrary& library, foundation::MessageBoxes& boxes) {
  if (lQuality < 1 || lQuality > 100) throw Error(ErrorKind::InvalidCall);
  JpegProperties record;
  const int begun = library.ijlInit(record);
  if (begun != 0) throw JpegLibraryError(begun);
  const std::optional<FindData> former = Find(sFile);
  if (former) Delete(sFile);
  Describe(cDib, sFile, lQuality, record);
  const int result = library.ijlWrite(record, JpegMode::WriteWholeImage);
  if (result != 0) {
    boxes.Show(std::string(kProgramName) + "Failed to save to JPG " + std::to_string(result),
               foundation::MessageIcon::Exclamation);
  } else if (former) {
    RestoreTimesAndMode(sFile, *former);
  }
  library.ijlFree(record);
  return result == 0;
}

}  // namespace bitmap
