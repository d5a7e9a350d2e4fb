// City files in the atlas: loading, rewriting, and loads that interrupt each other.

#include "atlas/clsAtlas.h"
#include "atlas/getCountryZone.h"
#include "atlas/scrambling.h"
#include "forms/item_list.h"
#include "foundation/files.h"
#include "support/app_folder.h"
#include "support/full_disk.h"
#include "support/machine_fakes.h"
#include "support/test.h"

namespace atlas {
namespace {

const PlaceRecord kBombay = {"Bombay", "Mumbai", "Maharashtra", "18.58", "N", "72.50", "E"};
const PlaceRecord kAgra = {"Agra", "Agra", "Uttar Pradesh", "27.11", "N", "78.01", "E"};
const std::string kBombayLine = "Bombay,Mumbai,Maharashtra,India,18.58,N,72.50,E";
const std::string kDelhiLine = "New Delhi,Delhi,Delhi,India,28.40,N,77.13,E";
const std::string kAgraLine = "Agra,Agra,Uttar Pradesh,India,27.11,N,78.01,E";

std::string Scrambled(const std::string& line) {
  return EncodeText(foundation::ByteText(line), kAtlasKey).Bytes();
}

std::string CityFile(const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += Scrambled(line) + "\r\n";
  return bytes;
}

// The list's entries with their item data.
std::string Shown(const forms::ItemList& list) {
  std::string shown;
  for (int i = 0; i < list.ListCount(); ++i) {
    shown += std::to_string(list.ItemData(i)) + ":" + std::string(list.List(i)) + "; ";
  }
  return shown;
}

class Atlas : public testing::Test {
 protected:
  void WriteIndia(const std::vector<std::string>& lines) {
    folder_.Write("atlas/India.city", CityFile(lines));
  }
  void ExpectIndia(const std::vector<std::string>& lines) {
    EXPECT_EQ(foundation::ReadFile(folder_.path / "atlas/India.city"), CityFile(lines));
  }

  support::AppFolderScope folder_;
  support::FakeYielder yielder_;
  forms::ItemList list_{true};
  clsAtlas atlas_{yielder_};
};

TEST_F(Atlas, ListsCountriesWithTheShorterNameFirst) {
  forms::ItemList countries{false};
  countries.AddItem("left over");
  atlas_.LoadCountry(countries);  // no such folder
  EXPECT_EQ(Shown(countries), "");
  for (const char* file : {"Nigeria.city", "iran.city", "Niger.city", "India.city", ".city",
                           "India.txt", "Folder.city/x"}) {
    folder_.Write(std::string("atlas/") + file, "");
  }
  atlas_.LoadCountry(countries);
  EXPECT_EQ(Shown(countries), "0:; 0:India; 0:iran; 0:Niger; 0:Nigeria; ");
}

TEST_F(Atlas, LoadsRecordsAndFillsTheList) {
  WriteIndia({kDelhiLine, kBombayLine, "a,b,c,d,1.00,N,2.00,E,more,still more"});
  atlas_.LoadCities("India", &list_);
  EXPECT_EQ(Shown(list_), "2:a, c, d; 1:Bombay, Maharashtra, India; 0:New Delhi, Delhi, India; ");
  EXPECT_EQ(yielder_.turns, 3);
  EXPECT_EQ(atlas_.getPlace(2) + " " + atlas_.getCity(2) + " " + atlas_.getState(2) + " " +
                atlas_.getCountry(2) + " " + atlas_.getLat(2) + " " + atlas_.getLong(2),
            "Bombay Mumbai Maharashtra India 18.58N 72.50E");
  EXPECT_EQ(atlas_.getLong(3), "2.00E,more,still more");
  EXPECT_EQ(atlas_.getPlace(0) + atlas_.getPlace(4), "");
  atlas_.LoadCities("Nowhere", &list_);
  EXPECT_EQ(Shown(list_) + atlas_.getPlace(1), "");
}

TEST_F(Atlas, StopsLoadingAtAnInvalidRecord) {
  const auto records = [&](const std::string& bytes) {
    folder_.Write("atlas/India.city", bytes);
    atlas_.LoadCities("India", nullptr);
    return atlas_.getLength();
  };
  const std::string delhi = Scrambled(kDelhiLine), agra = Scrambled(kAgraLine);
  const std::string seven = Scrambled("seven,fields,and,no,more,than,that");
  const std::string comma = Scrambled("Q\xD5rto,x,y,India,1.00,N,2.00,E");   // becomes one
  const std::string quote = Scrambled("\xD3rissa,x,y,India,1.00,N,2.00,E");  // begins with one
  ExpectRows(records, Row(delhi + "\r\n" + agra, 2), Row(delhi + "\r" + agra + "\n", 2),
             Row("  " + delhi + "\n  " + agra + "\r\n", 2), Row(delhi + "," + agra + "\r\n", 2),
             Row(quote + "\r\n" + agra, 2), Row(delhi + "\r\n\r\n" + agra + "\r\n", 1),
             Row(delhi + "\r\n" + seven + "\r\n" + agra, 1),
             Row(delhi + "\r\n" + comma + "\r\n" + agra, 1), Row("", 0));
}

TEST_F(Atlas, ClearsAFullList) {
  std::vector<std::string> lines(31800, kAgraLine);
  lines.push_back(kDelhiLine);
  WriteIndia(lines);
  atlas_.LoadCities("India", &list_);
  EXPECT_EQ(Shown(list_), "31800:New Delhi, Delhi, India; ");
}

TEST_F(Atlas, EditsEveryLineThatHoldsTheRecord) {
  WriteIndia({kBombayLine, kDelhiLine, kBombayLine});
  atlas_.EditPlace("India", kBombay, kAgra);
  PlaceRecord otherCase = kAgra;
  otherCase.State = "uttar pradesh";
  atlas_.EditPlace("India", otherCase, kBombay);
  ExpectIndia({kAgraLine, kDelhiLine, kAgraLine});
}

TEST_F(Atlas, ReplacesADeletedLineWithTheOneBefore) {
  WriteIndia({kDelhiLine, kBombayLine, kAgraLine});
  atlas_.DeletePlace("India", kBombay);
  ExpectIndia({kDelhiLine, kDelhiLine, kAgraLine});
  atlas_.DeletePlace("India", {"New Delhi", "Delhi", "Delhi", "28.40", "N", "77.13", "E"});
  ExpectIndia({"", "", kAgraLine});
}

TEST_F(Atlas, AppendsToAFileAndMakesOne) {
  folder_.Write("atlas/India.txt", "");  // the folder, no more
  atlas_.AddPlace("India", kBombay);
  PlaceRecord place = kAgra;
  place.City = "आगरा";
  atlas_.AddPlace("India", place);  // not without loss
  place.City = "Évora";
  atlas_.AddPlace("India", place);
  ExpectIndia({kBombayLine, "Agra,\xC9vora,Uttar Pradesh,India,27.11,N,78.01,E"});
}

TEST_F(Atlas, StaysSilentWhereItCannotReadOrWrite) {
  atlas_.EditPlace("India", kBombay, kAgra);
  atlas_.AddPlace("India", kBombay);  // there is no folder
  EXPECT_FALSE(std::filesystem::exists(folder_.path / "atlas"));
  folder_.Write("atlas/India.city", "");
  atlas_.AddPlace("../outside", kBombay);
  EXPECT_FALSE(std::filesystem::exists(folder_.path / "outside.city"));
}

TEST_F(Atlas, MakesTheFileBeforeARecordFails) {
  WriteIndia({kDelhiLine});
  PlaceRecord place = kAgra;
  place.State = std::string(32768, 'x');
  for (const char* country : {"India", "Nowhere"}) atlas_.AddPlace(country, place);
  ExpectIndia({kDelhiLine});
  EXPECT_EQ(foundation::ReadFile(folder_.path / "atlas/Nowhere.city"), "");
}

TEST_F(Atlas, LosesLinesThatDoNotFitOnTheDisk) {
  WriteIndia({kBombayLine, kDelhiLine});
  {
    const support::FullDiskScope full(kAgraLine.size() + 2);
    atlas_.EditPlace("India", kBombay, kAgra);
  }
  ExpectIndia({kAgraLine});
}

TEST_F(Atlas, EditsRecordsAddedMeanwhile) {
  WriteIndia({kDelhiLine, kBombayLine});
  yielder_.between = [&](int turn) {
    if (turn == 1) atlas_.AddPlace("India", kBombay);
  };
  atlas_.EditPlace("India", kBombay, kAgra);
  ExpectIndia({kDelhiLine, kAgraLine, kAgraLine});
  // A load, however, ends it.
  yielder_.between = [&](int) { atlas_.LoadCities("Nowhere", nullptr); };
  atlas_.EditPlace("India", kAgra, kBombay);
  ExpectIndia({kDelhiLine, kAgraLine, kAgraLine});
}

TEST(Scrambling, AddsTheKeyFromItsSecondCharacter) {
  // The key wraps around: its first character applies to the sixteenth byte.
  EXPECT_EQ(Scrambled("New Delhi,Delhi,"),
            "\x9D\xBC\xC5\x77\x93\xB7\xB8\xAC\xB6\x6D\x94\x9C\xA0\x99\x9E\x80");
}

TEST(CountryZone, ComesFromTheFirstMatchingRow) {
  ExpectRows(getCountryZone, Row("", "-5.30"), Row("iNDia", "-5.30"), Row("Nepal", "-5.45"),
             Row("Kirkistan", "-4.5"), Row("Surinam", "3"), Row("Croatia", "+1"),
             Row("Western Samoa", "0"), Row("Saint Vincent - Gr", "+4"), Row("Atlantis", ""),
             // Standard times of the time zone database.
             Row("Afghanistan", "-4.30"), Row("Argentina", "+3"), Row("China", "-8"),
             Row("England", "0"), Row("Fiji", "-12"), Row("France", "-1"), Row("Iran", "-3.30"),
             Row("South Africa", "-2"));
}

}  // namespace
}  // namespace atlas
