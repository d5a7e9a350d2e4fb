// Simulates a full disk.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace support {

// For its lifetime, no file can grow beyond `bytes`.
class FullDiskScope {
 public:
  explicit FullDiskScope(rlim_t bytes) : signalBefore_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDiskScope() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signalBefore_);
  }
  FullDiskScope(const FullDiskScope&) = delete;
  FullDiskScope& operator=(const FullDiskScope&) = delete;

 private:
  void (*signalBefore_)(int);
  rlimit before_ = {};
};

}  // namespace support
