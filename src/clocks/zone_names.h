// The names of the time zones that a user can choose from.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace clocks {

// IANA names of an area and a place, such as "Asia/Kolkata", in ASCII order, with former names
// such as "Asia/Calcutta"; and "UTC". Read from the list that comes with the system's zone files;
// a listed zone without its file is left out. Without a list there is "UTC" only.
std::vector<std::string> ZoneNames();
std::vector<std::string> ZoneNames(const std::filesystem::path& folder);

}  // namespace clocks
