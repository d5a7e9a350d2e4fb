// Runs the headless program with the atlas of the build and separate settings.
#pragma once

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/run.h"
#include "foundation/folders.h"
#include "foundation/settings_file.h"
#include "foundation/text.h"
#include "support/temporary_folder.h"

namespace support {

struct Answer {
  int status = 0;
  std::string output, errors;
};

class HeadlessProgram {
 public:
  HeadlessProgram() { foundation::SetAppFolder(BUILD_FOLDER); }

  // Blanks separate arguments, but not between quotation marks.
  Answer Run(std::string_view line) {
    std::vector<std::string> arguments;
    const auto quoted = foundation::Split(line, '"');
    for (std::size_t i = 0; i < quoted.size(); ++i) {
      for (const auto word : foundation::Split(quoted[i], i % 2 == 0 ? ' ' : '"')) {
        if (!word.empty() || i % 2 != 0) arguments.emplace_back(word);
      }
    }
    std::ostringstream output, errors;
    const int status = cli::Run(arguments, settings, now, output, errors);
    return {status, output.str(), errors.str()};
  }

  ConfigFolderScope config;
  foundation::SettingsFile settings;
  clocks::Instant now = std::chrono::sys_days(std::chrono::year(2026) / 11 / 23);
};

}  // namespace support
