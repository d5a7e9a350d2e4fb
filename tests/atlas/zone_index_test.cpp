// The zone of a place by a small index: the place itself, its nearest neighbour, and broken files.
#include "atlas/zone_index.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/app_folder.h"
#include "support/table.h"

namespace atlas {
namespace {

using support::Row;

// With a column that the reader does not know.
const std::string kHead =
    "state\tNorth\tSouth\n"
    "zone\tEurope/Oslo\tEurope/Moscow\tPacific/Fiji\tPacific/Apia\tAsia/Kolkata\n"
    "\n"
    "place\tstate\tpeople\tlatitude\tlongitude\tzone\n";
const std::string kPlaces =
    "Kautokeino\t1\t9\t4200\t1200\t1\n"   // 70 N 20 E
    "Kem\t1\t9\t3960\t1500\t2\n"          // 66 N 25 E
    "Labasa\t2\t9\t-960\t10620\t3\n"      // 16 S 177 E
    "Apia\t2\t9\t-960\t-10770\t4\n"       // 16 S 179:30 W
    "Twin\t1\t9\t1704\t4633\t2\n"         // 28:24 N 77:13 E
    "Delhi\t1\t9\t1720\t4633\t5\n"        // 28:40 N 77:13 E
    "Twin (New)\t2\t9\t1720\t4633\t3\n"   // at the same spot
    "Zero Island\t2\t9\t0\t27\t4\n"       // 0:27 E
    "Whole Degrees\t2\t9\t0\t1619\t5\n";  // 26:59 E

struct ZoneIndex : testing::Test {
  // "Europe/Oslo", with "near " before a neighbour's, "" for none.
  std::string Zone(std::string_view city, std::string_view latitude,
                   std::string_view longitude) const {
    const auto zone = ZoneOfPlace("Norway", city, latitude, longitude);
    return zone ? (zone->exact ? "" : "near ") + zone->name : "";
  }
  void Write(std::string_view index) const { folder.Write("atlas/Norway.index", index); }

  support::AppFolderScope folder;
};

TEST_F(ZoneIndex, HasPlacesAndNearestNeighbours) {
  Write(kHead + kPlaces);
  ExpectRows(
      [&](auto... texts) { return Zone(texts...); },
      Row("Delhi(North)", "28.40N", "77.13E", "Asia/Kolkata"),
      Row("Twin (New)(South)", "28.40N", "77.13E", "Pacific/Fiji"),
      Row("Apia(South)", "16.00S", "179.30W", "Pacific/Apia"),
      Row("Delhi", "28.40N", "77.13E", "Asia/Kolkata"),
      Row("Delhi(South)", "28.40N", "77.13E", "near Asia/Kolkata"),
      Row("Delhi(North)", "28.39N", "77.14E", "Asia/Kolkata"),
      Row("Delhi", "28.45N", "77.13E", "Asia/Kolkata"),
      Row("Delhi", "28.46N", "77.13E", "near Asia/Kolkata"),
      Row("Delh", "28.40N", "77.13E", "near Asia/Kolkata"),
      Row("Delhi(North", "28.40N", "77.13E", "near Asia/Kolkata"),
      Row("Delhi(North)x", "28.40N", "77.13E", "near Asia/Kolkata"),
      // The namesake counts, though another place is nearer.
      Row("Twin (New)(South)", "28.38N", "77.13E", "Pacific/Fiji"),
      Row("Twin", "28.26N", "77.13E", "Europe/Moscow"),
      // Minutes are no decimals: 28:30 is nearer to 28:24 than to 28:40.
      Row("", "28.30N", "77.13E", "near Europe/Moscow"),
      Row("", "28.35N", "77.13E", "near Asia/Kolkata"),
      // Eight degrees of longitude at 70 north are 2.7 of arc, but four of latitude are four.
      Row("", "70.00N", "28.00E", "near Europe/Oslo"),
      Row("", "16.00S", "179.50E", "near Pacific/Apia"),  // over the date line
      Row("", "0.00N", "27.00E", "near Asia/Kolkata"),    // not 27 minutes
      Row("", "0.00S", "0.00W", "near Pacific/Apia"));
}

TEST_F(ZoneIndex, IsSilentAboutWhatItCannotRead) {
  const auto near = [&] { return Zone("", "28.40N", "77.13E"); };
  EXPECT_EQ(near(), "");  // no file
  Write(kHead + kPlaces);
  EXPECT_EQ(near(), "near Asia/Kolkata");
  EXPECT_FALSE(ZoneOfPlace("../atlas/Norway", "", "28.40N", "77.13E"));
  ExpectRows([&](auto... texts) { return Zone("", texts...); }, Row("", "", ""),
             Row("N", "77.13E", ""), Row("28.40", "77.13E", ""), Row("28.40N", "77.13N", ""),
             Row("-28.40N", "77.13E", ""), Row("28.40N", "far E", ""), Row("28.40N", "1E999E", ""));
  for (const std::string& broken :
       {std::string(), kHead, kHead.substr(0, 20), "\n" + kPlaces, kHead + "\n",
        kHead + "Delhi\t1\t9\t1720\t4633\t6\n", kHead + "Delhi\t1\t9\t1720\t4633\t0\n",
        kHead + "Delhi\t1\t9\t1720\t4633\tx\n", kHead + "Delhi\t1\t9\t1720\t4633\t5\t5\n",
        kHead + "Delhi\t1\t9\tx\t4633\t5\n", kHead + "Delhi\t1\t9\t1720\t4633\t5"}) {
    Write(broken);
    EXPECT_EQ(near(), "") << broken;
  }
  std::filesystem::remove(folder.path / "atlas/Norway.index");
  std::filesystem::create_directory(folder.path / "atlas/Norway.index");
  EXPECT_EQ(near(), "");
}

}  // namespace
}  // namespace atlas
