// The tables of places, data/atlas/places/<country>.tsv.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

struct TablePlace {
  std::string name, state;
  double latitude = 0, longitude = 0;  // degrees, north and east positive
  std::string iso;                     // ISO 3166 code of its country
  std::string zone;                    // IANA name
  std::string population;              // "0" if unknown
};

// The places in the order of the table. An error that names the line for one that cannot be read,
// or has a name with a comma or beyond ASCII.
std::vector<TablePlace> ReadPlaces(const std::filesystem::path& table);

// Minutes of arc without a sign, as city files have them.
std::int32_t LatitudeMinutes(const TablePlace& place);
// A longitude of whole degrees would be read as so many minutes: it moves by one, towards the side
// on which the place lies.
std::int32_t LongitudeMinutes(const TablePlace& place);
