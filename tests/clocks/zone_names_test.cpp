// Names of zones from lists like the system's, and from the system's own.

#include "clocks/zone_names.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "clocks/zone_clock.h"
#include "support/app_folder.h"

namespace clocks {
namespace {

using Names = std::vector<std::string>;

struct ZoneNamesIn : testing::Test {
  ZoneNamesIn() {
    for (const char* zone :
         {"Asia/Kolkata", "Asia/Calcutta", "America/Indiana/Knox", "Etc/GMT+5", "GMT/BST", "EST"}) {
      folder.Write(zone, "TZif");
    }
  }
  support::AppFolderScope folder;
};

TEST_F(ZoneNamesIn, AListOfZonesAndLinksAreThoseThatHaveAFile) {
  folder.Write("zone.tab", "XX\t+0000+00000\tAsia/Kolkata\n");
  folder.Write("tzdata.zi",
               "# version 2025b\n"
               "R A 1916 o - Jun 14 23s 1 S\n"
               "Z Asia/Kolkata 5:53:28 - LMT 1854 Jun 28\n"
               "5:53:20 - GMT/BST 1870\n"
               "Z America/Indiana/Knox -5:46:30 - LMT 1883\n"
               "Z Asia/Ujjain 5 - LMT\n"
               "Z EST -5 - EST\n"
               "Z Etc/GMT+5 -5 - -05\n"
               "L Asia/Kolkata Asia/Calcutta\n"
               "L Asia/Kolkata Asia/Bombay\n");
  EXPECT_EQ(ZoneNames(folder.path),
            (Names{"America/Indiana/Knox", "Asia/Calcutta", "Asia/Kolkata", "UTC"}));
}

TEST_F(ZoneNamesIn, ATableOfCountriesServeWithoutThatList) {
  EXPECT_EQ(ZoneNames(folder.path), Names{"UTC"});
  folder.Write("zone.tab",
               "# code\tcoordinates\tAsia/Calcutta\n"
               "US\t+411745-0863730\tAmerica/Indiana/Knox\tCentral - IN (Starke)\n"
               "IN\t+2232+08822\tAsia/Kolkata\n");
  EXPECT_EQ(ZoneNames(folder.path), (Names{"America/Indiana/Knox", "Asia/Kolkata", "UTC"}));
}

TEST(ZoneNames, OfTheSystemAreZonesThatItKnows) {
  const Names names = ZoneNames();
  EXPECT_GT(names.size(), 400U);
  EXPECT_TRUE(std::ranges::is_sorted(names));
  for (const char* name : {"UTC", "Asia/Kolkata", "Europe/Oslo", "America/Indiana/Indianapolis"}) {
    EXPECT_TRUE(std::ranges::binary_search(names, name)) << name;
  }
  for (const auto& name : names) EXPECT_TRUE(ZoneClock::Named(name)) << name;
}

}  // namespace
}  // namespace clocks
