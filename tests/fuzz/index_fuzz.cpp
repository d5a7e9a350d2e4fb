// Any bytes at all as an index, its first two lines as the position asked for: a zone, or none.

#include "atlas/zone_index.h"
#include "fuzz/fuzz.h"
#include "support/app_folder.h"

void fuzz::Run(const std::string& bytes) {
  static const support::AppFolderScope folder;
  folder.Write("atlas/Somewhere.index", bytes);
  std::string_view rest = bytes;
  const std::string_view latitude = foundation::TakeLine(rest);
  const std::string_view longitude = foundation::TakeLine(rest);
  atlas::ZoneOfPlace("Somewhere", "Delhi(Delhi)", latitude, longitude);
  const auto zone = atlas::ZoneOfPlace("Somewhere", "Delhi(Delhi)", "28.39N", "77.14E");
  Require(!zone || bytes.find(zone->name) != bytes.npos);
}
