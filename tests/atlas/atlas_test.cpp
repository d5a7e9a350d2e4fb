// City files through the atlas: loading, rewriting, and loads that come in between.

#include <gtest/gtest.h>

#include "atlas/clsAtlas.h"
#include "atlas/modEncDec.h"
#include "forms/item_list.h"
#include "foundation/files.h"
#include "support/app_folder.h"
#include "support/full_disk.h"
#include "support/machine_fakes.h"
#include "support/table.h"

namespace atlas {
namespace {

using support::Row;

const PlaceRecord kBombay = {"Bombay", "Mumbai", "Maharashtra", "18.58", "N", "72.50", "E"};
const PlaceRecord kAgra = {"Agra", "Agra", "Uttar Pradesh", "27.11", "N", "78.01", "E"};
const std::string kBombayLine = "Bombay,Mumbai,Maharashtra,India,18.58,N,72.50,E";
const std::string kDelhiLine = "New Delhi,Delhi,Delhi,India,28.40,N,77.13,E";
const std::string kAgraLine = "Agra,Agra,Uttar Pradesh,India,27.11,N,78.01,E";

std::string Scrambled(std::string_view line) {
  return EncodeText(foundation::ByteText(std::string(line)), kAtlasKey).Bytes();
}

class Atlas : public testing::Test {
 protected:
  void WriteCountry(const std::string& country, const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes += Scrambled(line) + "\r\n";
    folder_.Write("atlas/" + country + ".city", bytes);
  }

  // Of India, unscrambled, each behind a stroke.
  std::string Lines() const {
    const std::string bytes = foundation::ReadFile(folder_.path / "atlas" / "India.city");
    std::string lines;
    for (std::string_view rest = bytes; !rest.empty();) {
      const foundation::ByteText line{std::string(foundation::TakeLine(rest))};
      lines += "|" + DecodeText(line, kAtlasKey).Bytes();
    }
    return lines;
  }

  // What the list shows, with the numbers beside it.
  std::string Shown() const {
    std::string shown;
    for (int i = 0; i < list_.ListCount(); ++i) {
      shown += std::to_string(list_.ItemData(i)) + ":" + std::string(list_.List(i)) + "; ";
    }
    return shown;
  }

  support::AppFolderScope folder_;
  support::FakeYielder yielder_;
  forms::ItemList list_{true};
  clsAtlas atlas_{yielder_};
};

TEST_F(Atlas, ListsCountriesWithTheShorterNameFirst) {
  atlas_.LoadCountry(list_);
  EXPECT_EQ(list_.ListCount(), 0);
  for (auto country : {"Nigeria", "iran", "Niger", "Guinea-Bissau", "Guinea", "India", ""}) {
    WriteCountry(country, {});
  }
  folder_.Write("atlas/India.txt", "");
  folder_.Write("atlas/Folder.city/x", "");
  forms::ItemList countries{false};
  countries.AddItem("left over");
  atlas_.LoadCountry(countries);
  std::string names;
  for (int i = 0; i < countries.ListCount(); ++i) names += std::string(countries.List(i)) + "; ";
  EXPECT_EQ(names, "; Guinea; Guinea-Bissau; India; iran; Niger; Nigeria; ");
}

TEST_F(Atlas, LoadsRecordsIntoListsAndList) {
  WriteCountry("India", {kDelhiLine, kBombayLine, "a,b,c,d,1.00,N,2.00,E,more,still more"});
  atlas_.LoadCities("India", &list_);
  EXPECT_EQ(Shown(), "2:a, c, d; 1:Bombay, Maharashtra, India; 0:New Delhi, Delhi, India; ");
  EXPECT_EQ(yielder_.turns, 3);
  EXPECT_EQ(atlas_.getLength(), 3);
  EXPECT_EQ(atlas_.getPlace(2) + " " + atlas_.getCity(2) + " " + atlas_.getState(2),
            "Bombay Mumbai Maharashtra");
  EXPECT_EQ(atlas_.getCountry(2) + atlas_.getZone(2), "India");
  EXPECT_EQ(atlas_.getLat(2) + " " + atlas_.getLong(2), "18.58N 72.50E");
  EXPECT_EQ(atlas_.getLong(3), "2.00E,more,still more");
  EXPECT_EQ(atlas_.getPlace(0) + atlas_.getPlace(4) + atlas_.getPlace(-1), "");

  atlas_.LoadCities("Nowhere", &list_);
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(atlas_.getLength(), 0);
  atlas_.LoadCities("India", nullptr);
  EXPECT_EQ(atlas_.getLength(), 3);
}

TEST_F(Atlas, EndsALoadAtAnItemThatIsNoRecord) {
  const std::string delhi = Scrambled(kDelhiLine), agra = Scrambled(kAgraLine);
  const auto records = [&](const std::string& bytes) {
    folder_.Write("atlas/India.city", bytes);
    atlas_.LoadCities("India", nullptr);
    return atlas_.getLength();
  };
  const std::string quote = Scrambled("\xD3rissa,x,y,India,1.00,N,2.00,E");  // begins with one
  const std::string seven = Scrambled("seven,fields,and,no,more,than,that");
  const std::string comma = Scrambled("Q\xD5rto,x,y,India,1.00,N,2.00,E");
  ExpectRows(records, Row(delhi + "\r\n" + agra, 2), Row(delhi + "\r" + agra + "\n", 2),
             Row("  " + delhi + "\n  " + agra + "\r\n", 2), Row(delhi + "," + agra + "\r\n", 2),
             Row(delhi + ",\r\n" + agra + "\r\n", 1), Row(delhi + "\r\n\r\n" + agra + "\r\n", 1),
             Row(quote + "\r\n" + agra, 2), Row(delhi + "\r\n" + seven + "\r\n" + agra, 1),
             Row(delhi + "\r\n" + comma + "\r\n" + agra, 1), Row("", 0));
}

TEST_F(Atlas, EmptiesAListThatIsFull) {
  std::vector<std::string> lines(31800, kAgraLine);
  WriteCountry("India", lines);
  atlas_.LoadCities("India", &list_);
  EXPECT_EQ(list_.ListCount(), 31800);
  lines.push_back(kDelhiLine);
  WriteCountry("India", lines);
  atlas_.LoadCities("India", &list_);
  EXPECT_EQ(Shown(), "31800:New Delhi, Delhi, India; ");
  EXPECT_EQ(atlas_.getLength(), 31801);
}

TEST_F(Atlas, EditsEveryLineThatHoldsTheRecord) {
  WriteCountry("India", {kBombayLine, kDelhiLine, kBombayLine});
  atlas_.LoadCities("India", &list_);
  atlas_.EditPlace("India", kBombay, kAgra);
  EXPECT_EQ(atlas_.getPlace(1), "Bombay");  // until it is loaded again
  PlaceRecord otherCase = kAgra;
  otherCase.State = "uttar pradesh";
  atlas_.EditPlace("India", otherCase, kBombay);
  EXPECT_EQ(Lines(), "|" + kAgraLine + "|" + kDelhiLine + "|" + kAgraLine);
}

TEST_F(Atlas, CopiesTheLineBeforeOverADeletedOne) {
  WriteCountry("India", {kDelhiLine, kBombayLine, kAgraLine});
  atlas_.DeletePlace("India", kBombay);
  EXPECT_EQ(Lines(), "|" + kDelhiLine + "|" + kDelhiLine + "|" + kAgraLine);
  WriteCountry("India", {kBombayLine, kBombayLine, kAgraLine});
  atlas_.DeletePlace("India", kBombay);
  EXPECT_EQ(Lines(), "|||" + kAgraLine);
  atlas_.LoadCities("India", nullptr);
  EXPECT_EQ(atlas_.getLength(), 0);
}

TEST_F(Atlas, AppendsToAFileAndMakesOne) {
  folder_.Write("atlas/India.txt", "");  // the folder, no more
  atlas_.AddPlace("India", kBombay);
  PlaceRecord devanagari = kAgra;
  devanagari.City = "आगरा";
  atlas_.AddPlace("India", devanagari);  // not without loss
  PlaceRecord accented = kAgra;
  accented.City = "Évora";
  atlas_.AddPlace("India", accented);
  EXPECT_EQ(Lines(), "|" + kBombayLine + "|Agra,\xC9vora,Uttar Pradesh,India,27.11,N,78.01,E");
}

TEST_F(Atlas, StaysSilentWhereItCannotReadOrWrite) {
  atlas_.EditPlace("India", kBombay, kAgra);
  atlas_.DeletePlace("India", kBombay);
  atlas_.AddPlace("India", kBombay);  // there is no folder
  EXPECT_FALSE(std::filesystem::exists(folder_.path / "atlas"));
  WriteCountry("India", {kBombayLine});
  PlaceRecord endless = kAgra;
  endless.City = std::string(40000, 'x');
  atlas_.EditPlace("India", kBombay, endless);
  atlas_.AddPlace("../outside", kBombay);
  EXPECT_EQ(Lines(), "|" + kBombayLine);
  EXPECT_FALSE(std::filesystem::exists(folder_.path / "outside.city"));
}

TEST_F(Atlas, LosesLinesThatAFullDiskDoesNotTake) {
  WriteCountry("India", {kBombayLine, kDelhiLine});
  {
    const support::FullDiskScope full(kAgraLine.size() + 2);
    atlas_.EditPlace("India", kBombay, kAgra);
  }
  EXPECT_EQ(Lines(), "|" + kAgraLine);
}

TEST_F(Atlas, HoldsTheCountryChosenLast) {
  WriteCountry("India", {kDelhiLine, kBombayLine, kAgraLine});
  WriteCountry("Fiji", {"Nadi,Nadi,Western,Fiji,17.48,S,177.25,E"});
  // Chosen while the second record of India is in: India's load ends.
  yielder_.between = [&](int turn) {
    if (turn == 2) atlas_.LoadCities("Fiji", &list_);
  };
  atlas_.LoadCities("India", &list_);
  EXPECT_EQ(Shown(), "0:Nadi, Western, Fiji; ");
  EXPECT_EQ(atlas_.getLength(), 1);

  // And so does an edit that was still reading.
  yielder_.between = [&](int) { atlas_.LoadCities("Nowhere", &list_); };
  atlas_.EditPlace("India", kBombay, kAgra);
  EXPECT_EQ(Lines(), "|" + kDelhiLine + "|" + kBombayLine + "|" + kAgraLine);

  // What is added meanwhile is read too.
  yielder_.turns = 0;
  yielder_.between = [&](int turn) {
    if (turn == 1) atlas_.AddPlace("India", kBombay);
  };
  atlas_.EditPlace("India", kBombay, kAgra);
  EXPECT_EQ(Lines(), "|" + kDelhiLine + "|" + kAgraLine + "|" + kAgraLine + "|" + kAgraLine);
}

}  // namespace
}  // namespace atlas
