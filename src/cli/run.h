// The headless program.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "clocks/zone_clock.h"
#include "foundation/settings.h"

namespace cli {

// Does what the arguments after the program's name ask for, and returns the exit status. An error
// is one line in `errors`, and nothing in `output` unless the output itself failed. `now` decides
// what today is.
int Run(const std::vector<std::string>& arguments, foundation::Settings& settings,
        clocks::Instant now, std::ostream& output, std::ostream& errors);

}  // namespace cli
