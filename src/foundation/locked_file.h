// A file that one process at a time changes, completely or not at all.
#pragma once

#include <filesystem>
#include <string_view>

namespace foundation {

// Locks out all others that use this class on the same file. The lock is on the file's folder,
// which it creates if necessary: it leaves no lock file behind and ends with its process. On file
// systems without locks it does nothing.
class LockedFile {
 public:
  // Follows symbolic links. Waits at most five seconds for others. FileAccess after that, and for
  // links in a circle or a folder that cannot be made or opened.
  explicit LockedFile(std::filesystem::path file);
  ~LockedFile();
  LockedFile(const LockedFile&) = delete;
  LockedFile& operator=(const LockedFile&) = delete;

  // The file at the end of the links, whether it exists or not.
  const std::filesystem::path& Path() const { return file_; }

  // On return the new bytes are on the disk. Keeps the permissions and, if allowed, the owner.
  // FileAccess, with the old file untouched, if it cannot be written or is no regular file.
  void Replace(std::string_view bytes) const;

 private:
  std::filesystem::path file_;
  int folder_;
};

}  // namespace foundation
