// The figures of the headless program, as JSON and as tables.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "atlas/place_clock.h"
#include "cli/program.h"

namespace {

using nlohmann::ordered_json;

struct Days : testing::Test {
  // Of a command line that must succeed.
  std::string Output(const std::string& line) {
    const auto answer = program.Run(line);
    EXPECT_EQ(answer.status, 0) << line << answer.errors;
    errors = answer.errors;
    return answer.output;
  }
  ordered_json Json(const std::string& line) {
    return ordered_json::parse(Output("day --json " + line));
  }
  ordered_json Place(const std::string& line) { return Json(line)["place"]; }

  support::HeadlessProgram program;
  std::string errors;
};

// Seconds of a moment's time of day.
int Seconds(const std::string& moment) {
  const auto field = [&](std::size_t at) { return std::stoi(moment.substr(at, 2)); };
  return field(11) * 3600 + field(14) * 60 + field(17);
}

// Times by an independent ephemeris; the solar series is within two minutes of them.
TEST_F(Days, AgreeWithAnEphemeris) {
  const struct {
    std::string place, date, rise, set;
  } rows[] = {{"Delhi --country IN", "2026-11-08", "06:38:12+05:30", "17:31:12+05:30"},
              {"\"New York City\"", "2026-10-24", "07:17:21-04:00", "18:02:35-04:00"},
              {"\"New York City\"", "2026-11-08", "06:34:45-05:00", "16:44:25-05:00"},
              {"London --country GB", "2026-10-24", "07:40:05+01:00", "17:48:52+01:00"},
              {"London --country GB", "2026-10-25", "06:41:49+00:00", "16:46:53+00:00"}};
  for (const auto& [place, date, rise, set] : rows) {
    const auto sun = Json("--place " + place + " --date " + date)["sun"];
    for (const auto& [key, time] : {std::pair("rise", rise), {"set", set}}) {
      const std::string moment = sun[key], expected = date + "T" + time;
      EXPECT_EQ(moment.substr(0, 11) + moment.substr(19),
                expected.substr(0, 11) + expected.substr(19));
      EXPECT_NEAR(Seconds(moment), Seconds(expected), 120) << place << " " << moment;
    }
  }
}

TEST_F(Days, TodayIsThePlacesDay) {  // at midnight of 23 November 2026 in Greenwich
  const auto today = [&](const std::string& zone) -> std::string {
    return Json("--latitude 0 --longitude 0 --zone " + zone)["date"];
  };
  EXPECT_EQ(today("America/New_York") + today("UTC"), "2026-11-222026-11-23");
  program.now -= std::chrono::seconds(1);
  EXPECT_EQ(today("UTC") + today("Asia/Kolkata"), "2026-11-222026-11-23");
}

TEST_F(Days, CoordinatesAreKeptToTheSixthDecimal) {
  EXPECT_EQ(Place("--latitude -33.8567844 --longitude=151.2152967 --zone Australia/Sydney "
                  "--name \"O'Brien ñ दिल्ली\t\xFF\"")
                .dump(),
            "{\"name\":\"O'Brien ñ दिल्ली\\t\uFFFD\",\"state\":\"\",\"country\":\"\","
            "\"latitude\":-33.856784,\"longitude\":151.215297,\"zone\":\"Australia/Sydney\"}");
  const auto origin = Place("--latitude -.0 --longitude +0 --zone UTC");
  EXPECT_EQ(origin["latitude"].dump() + origin["longitude"].dump(), "0.00.0");
}

TEST_F(Days, TheMostPopulousPlaceOfANameIsTaken) {
  EXPECT_EQ(Place("--place Springfield --state illinois")["state"], "Illinois");
  EXPECT_EQ(errors, "");
  EXPECT_EQ(Place("--place Köln")["zone"], "Europe/Berlin");
  EXPECT_EQ(Place("--place Edison --country us").dump(),
            R"({"name":"Edison","state":"New Jersey","country":"USA","latitude":40.516667,)"
            R"("longitude":-74.416667,"zone":"America/New_York"})");
}

TEST_F(Days, TheDefaultPlaceIsThatOfTheSettings) {
  const foundation::Setting saved[] = {{"country", "USA"}, {"city", "Edison(New Jersey)"},
                                       {"lat", "40.31N"},  {"long", "74.00W"},
                                       {"zone", "90.0W"},  {"zonetime", "+6"}};
  program.settings.SaveSettings("Durvela", foundation::kPlaceSection, saved);
  const auto place = Place("");
  EXPECT_EQ(place["name"], "Edison");
  EXPECT_EQ(place["state"], "New Jersey");
  EXPECT_EQ(place["longitude"], -74);  // whole degrees, although old texts read them as minutes
  const std::string july = "--date 2026-07-01";
  const std::string rise = Json(july)["sun"]["rise"];
  EXPECT_NEAR(Seconds(rise), Seconds("2026-07-01T05:29:16"), 120);  // by NOAA's formulas
  EXPECT_EQ(rise.substr(19), "-04:00");
  const std::string byCountry = Json(july + " --clock country")["sun"]["rise"];
  EXPECT_EQ(Seconds(rise) - Seconds(byCountry), 2 * 3600);
  // A zone that the user chose for a place counts, also if the place is asked for by name.
  atlas::SaveChosenZone(program.settings, {"USA", "Edison(New Jersey)", "40.31N", "74.25W", "+6"},
                        "Asia/Tokyo");
  EXPECT_EQ(Json(july)["sun"]["rise"], rise);
  EXPECT_EQ(Place("--place Edison --country US")["zone"], "Asia/Tokyo");
}

TEST_F(Days, APlaceWithoutAnIndexKeepsItsCountrysClock) {
  program.settings.SaveSetting("Durvela", foundation::kPlaceSection, "country", "Atlantis");
  const auto day = Json("--date 2011-01-01");
  EXPECT_EQ(day["place"]["zone"], nullptr);
  EXPECT_EQ(day["sun"]["rise"], "2011-01-01T07:14:00+05:30");
  EXPECT_EQ(errors,
            "durvela-cli: no zone is known for Delhi, Atlantis; its country's clock is used\n");
}

// Changes of clocks, a skipped midnight, a skipped date and offsets with seconds.
TEST_F(Days, MomentsHaveTheOffsetOfTheirClock) {
  const auto offsets = [&](const std::string& longitude, const std::string& zone,
                           const std::string& date) {
    const auto sun = Json("--latitude 10 --longitude " + longitude + " --zone " + zone +
                          " --date " + date)["sun"];
    std::string text;
    for (const char* key : {"rise", "set", "nextRise"}) {
      text += sun[key].get<std::string>().substr(19) + " ";
    }
    return text;
  };
  EXPECT_EQ(offsets("-74", "America/New_York", "2026-10-31"), "-04:00 -04:00 -05:00 ");
  EXPECT_EQ(offsets("-47", "America/Sao_Paulo", "2018-11-03"), "-03:00 -03:00 -02:00 ");
  EXPECT_EQ(offsets("-47", "America/Sao_Paulo", "2018-11-04"), "-02:00 -02:00 -02:00 ");
  EXPECT_EQ(offsets("5", "Europe/Amsterdam", "1930-06-01"), "+01:19 +01:19 +01:19 ");
  EXPECT_EQ(offsets("85", "Asia/Kathmandu", "1985-12-31"), "+05:30 +05:30 +05:45 ");
  EXPECT_EQ(offsets("-172", "Pacific/Apia", "2011-12-29"), "-10:00 -10:00 +14:00 ");
}

TEST_F(Days, WithoutASunThereAreNulls) {
  const auto at = [&](const std::string& date) {
    const auto day = Json("--place Tromsø --date " + date);
    return day["sun"].dump() + day["periods"].dump();
  };
  const std::string none = R"(,"rise":null,"set":null,"nextRise":null}[])";
  EXPECT_EQ(at("2026-06-21"), R"({"state":"polarDay")" + none);
  EXPECT_EQ(at("2026-12-21"), R"({"state":"polarNight")" + none);
  const auto rises = Json("--place Tromsø --date 2026-05-18");  // and stays up
  EXPECT_EQ(rises["sun"]["state"], "rises");
  EXPECT_TRUE(rises["sun"]["set"].is_null() && rises["periods"].empty());
}

TEST_F(Days, ARangeIsALineForEachDate) {
  const auto days = [&](const std::string& from, const std::string& to) {
    return Output("days --json --latitude -14 --longitude -172 --zone Pacific/Apia --from " + from +
                  " --to " + to);
  };
  const auto day = [&](const std::string& date) {
    return Output("day --json --latitude -14 --longitude -172 --zone Pacific/Apia --date " + date);
  };
  EXPECT_EQ(days("2024-02-28", "2024-03-01"),
            day("2024-02-28") + day("2024-02-29") + day("2024-03-01"));
  EXPECT_EQ(days("2011-12-29", "2011-12-31"), day("2011-12-29") + day("2011-12-31"));
  EXPECT_EQ(days("0100-01-01", "0100-01-01"), day("0100-01-01"));
  const auto last = ordered_json::parse(days("9999-12-31", "9999-12-31"));
  EXPECT_EQ(last["sun"]["nextRise"], nullptr);  // in a year of five digits
  EXPECT_EQ(last["periods"].size(), 3U);
}

TEST_F(Days, TablesSayWhatIsMissing) {
  EXPECT_EQ(Output("day --place Tromsø --date 2026-12-21 --clock country"),
            "Tromso, Troms og Finnmark, Norway\n"
            "Monday, 21 December 2026 (UTC+1, the country's clock)\n\n"
            "The sun does not rise\n"
            "Next sunrise  -\n");
  const std::string lima = Output("day --latitude -12.05 --longitude -77.05 --zone America/Lima");
  EXPECT_EQ(lima.substr(0, lima.find('\n')), "12.05 S, 77.05 W");
}

}  // namespace
