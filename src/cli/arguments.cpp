#include "cli/arguments.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <initializer_list>
#include <memory>
#include <utility>

#include "cli/argument_values.h"
#include "cli/failure.h"
#include "clocks/zone_clock.h"
#include "foundation/version.h"

namespace cli {
namespace {

// Texts as the user gave them. Numbers and dates are read later: the parser would read them by the
// locale.
struct Texts {
  std::string place, state, country, latitude, longitude, zone, name;
  std::string clock = "own", ayanamsa = "0", node = "mean", language = "en";
  std::string date, from, to;
  bool json = false;
};

// Without the parser's "Needs" and "Excludes", which would fill the column.
class HelpFormatter : public CLI::Formatter {
  std::string make_option_opts(const CLI::Option* option) const override {
    return option->get_expected() > 0 ? " " + option->get_type_name() : "";
  }
};

std::string VersionText() {
  return std::string(kProgram) + " " + foundation::kVersion;
}

void AddPlaceOptions(CLI::App& command, Texts& texts) {
  const std::string group = "Place (without any: the default place of the settings)";
  const auto add = [&](const char* option, std::string& text, const char* meaning,
                       const char* type) {
    return command.add_option(option, text, meaning)->group(group)->type_name(type);
  };
  auto* place = add("--place", texts.place, "A place of the atlas", "NAME");
  add("--state", texts.state, "Its state", "S")->needs(place);
  add("--country", texts.country, "Its country, by name or ISO 3166 code", "C")->needs(place);
  auto* latitude =
      add("--latitude", texts.latitude, "Any other place: degrees, north positive", "D");
  auto* longitude = add("--longitude", texts.longitude, "Degrees, east positive", "D");
  auto* zone = add("--zone", texts.zone, "Its IANA zone, such as Asia/Kolkata", "Z");
  latitude->needs(longitude)->needs(zone)->excludes(place);
  longitude->needs(latitude);
  zone->needs(latitude);
  add("--name", texts.name, "What to call it", "TEXT")->needs(latitude);
}

void AddCommonOptions(CLI::App& command, Texts& texts) {
  command.set_help_flag("--help", "Print this and exit");
  command.set_version_flag("--version", VersionText(), "Print the version and exit");
  AddPlaceOptions(command, texts);
  const auto add = [&](const char* option, std::string& text, const char* meaning,
                       const char* type) {
    command.add_option(option, text, meaning)->type_name(type);
  };
  add("--clock", texts.clock,
      "own, the place's (default), or country:\nits country's one zone, without daylight saving",
      "WHICH");
  add("--ayanamsa", texts.ayanamsa, "0 to 5 or 7; sun and periods are the same in all", "N");
  add("--node", texts.node, "mean or corrected; likewise", "WHICH");
  add("--language", texts.language, "en, the only one so far", "L");
  command.add_flag("--json", texts.json, "JSON, an object on a line, instead of a table");
}

void Require(bool valid, const std::string& message) {
  if (!valid) throw Failure(Status::InvalidArguments, message);
}

bool IsOneOf(std::string_view text, std::initializer_list<std::string_view> choices) {
  return std::ranges::find(choices, text) != choices.end();
}

PlaceRequest ReadPlace(const CLI::App& command, const Texts& texts) {
  PlaceRequest request = {.place = DefaultPlace{}, .countryClock = texts.clock == "country"};
  Require(IsOneOf(texts.clock, {"own", "country"}), "--clock is own or country");
  if (command.count("--place") > 0) {
    request.place = atlas::PlaceQuery{texts.place, texts.state, texts.country};
  } else if (command.count("--latitude") > 0) {
    Require(!request.countryClock, "--clock country needs a place of a country, not --latitude");
    request.place =
        Coordinates{ReadDegrees("--latitude", texts.latitude, 90),
                    ReadDegrees("--longitude", texts.longitude, 180), texts.zone, texts.name};
    Require(clocks::ZoneClock::Named(texts.zone).has_value(),
            "--zone " + texts.zone + " is no zone that this machine knows");
  }
  return request;
}

void CheckModes(const Texts& texts) {
  Require(IsOneOf(texts.ayanamsa, {"0", "1", "2", "3", "4", "5", "7"}),
          "--ayanamsa is 0 to 5 or 7");
  Require(IsOneOf(texts.node, {"mean", "corrected"}), "--node is mean or corrected");
  Require(texts.language == "en", "--language is en, the only one so far");
}

DaysRequest ReadDays(const CLI::App& command, const Texts& texts) {
  DaysRequest request = {.place = ReadPlace(command, texts), .json = texts.json};
  CheckModes(texts);
  request.oneDay = command.get_name() == "day";
  const auto read = [&](const char* option,
                        const std::string& text) -> std::optional<std::chrono::local_days> {
    if (command.get_option_no_throw(option) == nullptr || command.count(option) == 0) return {};
    return ReadDate(option, text);
  };
  request.from = request.oneDay ? read("--date", texts.date) : read("--from", texts.from);
  request.to = request.oneDay ? request.from : read("--to", texts.to);
  Require(request.from <= request.to, "--from is after --to");
  return request;
}

// The parser would name neither the unknown command nor those that there are.
void CheckCommand(const CLI::App& app, const std::vector<std::string>& arguments) {
  const std::string commands = "the commands are day and days";
  Require(!arguments.empty(), commands + "; --help prints more");
  const std::string& command = arguments.front();
  const auto isIt = [&](const CLI::App* known) { return known->get_name() == command; };
  Require(command.starts_with('-') || !app.get_subcommands(isIt).empty(),
          "there is no command " + command + "; " + commands);
}

}  // namespace

Request ReadArguments(std::vector<std::string> arguments) {
  CLI::App app("Sunrise, sunset and the inauspicious hours of the day.", std::string(kProgram));
  Texts texts;
  app.set_help_flag("--help", "Print this and exit");
  app.set_version_flag("--version", VersionText(), "Print the version and exit");
  app.require_subcommand(1);
  app.formatter(std::make_shared<HelpFormatter>());
  app.footer("The manual page durvela-cli(1) has examples.");

  const auto add = [](CLI::App* command, const char* option, std::string& text,
                      const char* meaning) {
    return command->add_option(option, text, meaning)->type_name("YYYY-MM-DD");
  };
  CLI::App* day = app.add_subcommand("day", "Sunrise, sunset and periods of a day");
  add(day, "--date", texts.date, "The day; without it today, by the place's clock");
  AddCommonOptions(*day, texts);
  CLI::App* days = app.add_subcommand("days", "The same of a range of days, a day on a line");
  add(days, "--from", texts.from, "The first day")->required();
  add(days, "--to", texts.to, "The last day")->required();
  AddCommonOptions(*days, texts);

  CheckCommand(app, arguments);
  try {
    std::ranges::reverse(arguments);  // as the parser wants them
    app.parse(std::move(arguments));
  } catch (const CLI::CallForHelp&) {
    return TextRequest{app.help()};
  } catch (const CLI::CallForVersion& version) {
    return TextRequest{version.what() + std::string("\n")};
  } catch (const CLI::ParseError& error) {
    throw Failure(Status::InvalidArguments, error.what());
  }
  return ReadDays(*app.get_subcommands().front(), texts);
}

}  // namespace cli
