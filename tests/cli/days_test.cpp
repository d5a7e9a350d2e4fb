// The figures of the headless program, as JSON and as tables. Those of docs/cli.md are run as they
// stand there; that of Delhi in 2011 is from a table worked out independently.

#include <nlohmann/json.hpp>

#include "atlas/place_clock.h"
#include "cli/program.h"
#include "foundation/files.h"
#include "support/test.h"

namespace {

struct Days : testing::Test {
  // Of a command line that must succeed.
  std::string Output(const std::string& line) {
    const auto answer = program.Run(line);
    EXPECT_EQ(answer.status, 0) << line << answer.errors;
    errors = answer.errors;
    return answer.output;
  }

  // A value of a day, as JSON.
  std::string Json(const std::string& line, const std::string& path) {
    const auto day = nlohmann::ordered_json::parse(Output("day --json " + line));
    return day.at(nlohmann::ordered_json::json_pointer(path)).dump();
  }

  support::HeadlessProgram program;
  std::string errors;
};

TEST_F(Days, PrintWhatTheDocumentShows) {
  constexpr std::string_view kPrompt = "$ durvela-cli ";
  const std::string document = foundation::ReadFile(DOCUMENT);
  std::string shown, printed;
  bool inExample = false;
  for (std::string_view rest = document; !rest.empty();) {
    const std::string_view line = foundation::TakeLine(rest);
    if (line.starts_with("```")) {
      inExample = line == "```console";
    } else if (inExample) {
      shown.append(line).append("\n");
      if (!line.starts_with(kPrompt)) continue;
      const auto answer = program.Run(line.substr(kPrompt.size()));
      printed.append(line).append("\n").append(answer.errors + answer.output);
    }
  }
  EXPECT_EQ(printed, shown);
  EXPECT_NE(shown, "");
}

TEST_F(Days, HavePlaceDateAndSun) {
  ExpectRows(
      [&](auto line, auto path) { return Json(line, path); },
      Row("--place Springfield --state illinois", "/place/state", R"("Illinois")"),
      Row("--place Köln", "/place/zone", R"("Europe/Berlin")"),
      Row("--place Edison --country us", "/place",
          R"({"name":"Edison","state":"New Jersey","country":"USA","latitude":40.516667,)"
          R"("longitude":-74.416667,"zone":"America/New_York"})"),
      Row("--latitude -33.8567844 --longitude=151.2152967 --zone Australia/Sydney "
          "--name \"O'Brien ñ दिल्ली\t\xFF\"",
          "/place",
          "{\"name\":\"O'Brien ñ दिल्ली\\t\uFFFD\",\"state\":\"\",\"country\":\"\","
          "\"latitude\":-33.856784,\"longitude\":151.215297,\"zone\":\"Australia/Sydney\"}"),
      Row("--latitude -.0 --longitude +0 --zone UTC", "/place/latitude", "0.0"),
      // It is midnight in Greenwich.
      Row("--latitude 0 --longitude 0 --zone UTC", "/date", R"("2026-11-23")"),
      Row("--latitude 0 --longitude 0 --zone America/New_York", "/date", R"("2026-11-22")"),
      // By an ephemeris, in whole minutes; the clock goes back in the night.
      Row("--latitude 40.716667 --longitude -74 --zone America/New_York --date 2026-10-31", "/sun",
          R"({"state":"rises","rise":"2026-10-31T07:25:00-04:00",)"
          R"("set":"2026-10-31T17:53:00-04:00","nextRise":"2026-11-01T06:26:00-05:00"})"),
      Row("--place Tromsø --date 2026-12-21", "/sun",
          R"({"state":"polarNight","rise":null,"set":null,"nextRise":null})"),
      Row("--place Tromsø --date 2026-06-21", "/sun/state", R"("polarDay")"),
      // Rises, and stays up.
      Row("--place Tromsø --date 2026-05-18", "/sun/state", R"("rises")"),
      Row("--place Tromsø --date 2026-05-18", "/sun/set", "null"),
      Row("--place Tromsø --date 2026-05-18", "/periods", "[]"));
  EXPECT_EQ(errors, "");
}

TEST_F(Days, TheDefaultPlaceIsThatOfTheSettings) {
  const foundation::Setting saved[] = {{"country", "USA"}, {"city", "Edison(New Jersey)"},
                                       {"lat", "40.31N"},  {"long", "74.00W"},
                                       {"zone", "90.0W"},  {"zonetime", "+6"}};
  program.settings.SaveSettings("Durvela", foundation::kPlaceSection, saved);
  EXPECT_EQ(Json("", "/place/name") + Json("", "/place/state"), R"("Edison""New Jersey")");
  // Whole degrees, although old texts read them as minutes.
  EXPECT_EQ(Json("", "/place/longitude"), "-74.0");
  const std::string july = "--date 2026-07-01";
  const std::string rise = Json(july, "/sun/rise");  // 05:29:16 by NOAA's formulas
  const std::string byCountry = Json(july + " --clock country", "/sun/rise");
  EXPECT_EQ(rise.substr(0, 14) + rise.substr(20), R"("2026-07-01T05-04:00")");
  EXPECT_EQ(byCountry.substr(0, 14) + byCountry.substr(20), R"("2026-07-01T03-06:00")");
  // A zone that the user chose for a place counts, also if the place is asked for by name.
  atlas::SaveChosenZone(program.settings, {"USA", "Edison(New Jersey)", "40.31N", "74.25W", "+6"},
                        "Asia/Tokyo");
  EXPECT_EQ(Json(july, "/sun/rise"), rise);
  EXPECT_EQ(Json("--place Edison --country US", "/place/zone"), R"("Asia/Tokyo")");
}

TEST_F(Days, APlaceThatTheAtlasLacksKeepsItsNeighboursClock) {
  program.settings.SaveSetting("Durvela", foundation::kPlaceSection, "city", "Home");
  EXPECT_EQ(Json("", "/place/zone"), R"("Asia/Kolkata")");
  EXPECT_EQ(errors,
            "durvela-cli: no zone is known for Home, India; the nearest place's, "
            "Asia/Kolkata, is used\n");
}

TEST_F(Days, APlaceWithoutAnIndexKeepsItsCountrysClock) {
  program.settings.SaveSetting("Durvela", foundation::kPlaceSection, "country", "Atlantis");
  EXPECT_EQ(Json("--date 2011-01-01", "/sun/rise"), R"("2011-01-01T07:14:00+05:30")");
  EXPECT_EQ(Json("", "/place/zone"), "null");
  EXPECT_EQ(errors,
            "durvela-cli: no zone is known for Delhi, Atlantis; its country's clock is used\n");
}

TEST_F(Days, ARangeIsALineForEachDateThatThereIs) {
  const std::string apia = " --json --latitude -14 --longitude -172 --zone Pacific/Apia ";
  const auto day = [&](const std::string& date) { return Output("day --date " + date + apia); };
  const auto days = [&](const std::string& from, const std::string& to) {
    return Output("days --from " + from + " --to " + to + apia);
  };
  EXPECT_EQ(days("2024-02-28", "2024-03-01"),
            day("2024-02-28") + day("2024-02-29") + day("2024-03-01"));
  EXPECT_EQ(days("2011-12-29", "2011-12-31"), day("2011-12-29") + day("2011-12-31"));
  EXPECT_EQ(days("0100-01-01", "0100-01-01"), day("0100-01-01"));
  // In a year of five digits.
  EXPECT_EQ(Json("--date 9999-12-31" + apia, "/sun/nextRise"), "null");
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
