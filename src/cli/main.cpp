// The headless program: the figures of the windows for scripts.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <iostream>

#include "cli/run.h"
#include "foundation/settings_file.h"

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);  // a closed pipe is a write that fails
  std::ios::sync_with_stdio(false);
  foundation::SettingsFile settings;
  const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
  return cli::Run({argv + std::min(argc, 1), argv + argc}, settings, now, std::cout, std::cerr);
}
