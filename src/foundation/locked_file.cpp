#include "foundation/locked_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <string>
#include <thread>

#include "foundation/files.h"

namespace foundation {
namespace {

namespace fs = std::filesystem;
using SteadyClock = std::chrono::steady_clock;

constexpr auto kLongestWait = std::chrono::seconds(5);
constexpr auto kPause = std::chrono::milliseconds(10);
constexpr int kMostLinks = 40;  // as many as the kernel follows

[[noreturn]] void Fail(const fs::path& file, std::string_view trouble = "cannot be written") {
  throw FileError(ErrorKind::FileAccess, file, trouble);
}

fs::path FollowLinks(fs::path file) {
  std::error_code failure;
  for (int links = 0; fs::is_symlink(file, failure); ++links) {
    if (links == kMostLinks) Fail(file);
    file = file.parent_path() / fs::read_symlink(file, failure);
  }
  return file;
}

bool Lock(int folder) {
  const auto end = SteadyClock::now() + kLongestWait;
  while (flock(folder, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) break;  // no locks here
    if (SteadyClock::now() > end) return false;
    std::this_thread::sleep_for(kPause);
  }
  return true;
}

// A name in the same folder that no other file has.
std::string NameBeside(const fs::path& file) {
  return file.string() + "." + std::to_string(getpid()) + "-" +
         std::to_string(SteadyClock::now().time_since_epoch().count());
}

// Only root can keep another owner; for others the file becomes theirs.
bool TakeOver(int file, const struct stat& former) {
  static_cast<void>(fchown(file, former.st_uid, former.st_gid) == 0);
  return fchmod(file, former.st_mode & 07777) == 0;
}

bool Write(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return false;
    }
  }
  return fsync(file) == 0;
}

}  // namespace

LockedFile::LockedFile(fs::path file) : file_(FollowLinks(std::move(file))) {
  const fs::path folder = file_.parent_path();
  std::error_code failure;  // shows when the folder is opened
  fs::create_directories(folder, failure);
  folder_ = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder_ < 0) Fail(file_);
  if (!Lock(folder_)) {
    close(folder_);
    Fail(file_, "is being saved by another program");
  }
}

LockedFile::~LockedFile() {
  close(folder_);
}

void LockedFile::Replace(std::string_view bytes) const {
  struct stat former = {};
  const bool exists = stat(file_.c_str(), &former) == 0;
  if (exists && (!S_ISREG(former.st_mode) || access(file_.c_str(), W_OK) != 0)) Fail(file_);

  const std::string beside = NameBeside(file_);
  const int descriptor = open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (descriptor < 0) Fail(file_);
  const bool complete = (!exists || TakeOver(descriptor, former)) && Write(descriptor, bytes);
  if (close(descriptor) != 0 || !complete || rename(beside.c_str(), file_.c_str()) != 0) {
    unlink(beside.c_str());
    Fail(file_);
  }
  fsync(folder_);  // for the rename; the new file is in place even if this fails
}

}  // namespace foundation
