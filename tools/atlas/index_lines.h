// The lines of an index file; src/atlas/index_file.h reads them.
#pragma once

#include <string>
#include <vector>

#include "tools/atlas/place_table.h"

// Without their ends. The positions are those of the city file.
std::vector<std::string> IndexLines(const std::vector<TablePlace>& places);
