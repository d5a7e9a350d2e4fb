// What the headless program refuses, and how.

#include <algorithm>

#include "cli/program.h"
#include "support/test.h"

namespace {

struct Arguments : testing::Test {
  // Expects that each line is refused with this status, for a reason that holds this text.
  void ExpectRefusals(int status, const std::string& reason, const std::string& before,
                      const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
      SCOPED_TRACE(before + line);
      const auto [refused, output, errors] = program.Run(before + line);
      EXPECT_EQ(refused, status);
      EXPECT_EQ(output, "");
      EXPECT_TRUE(errors.starts_with("durvela-cli: ")) << errors;
      EXPECT_EQ(std::ranges::count(errors, '\n'), 1) << errors;
      EXPECT_NE(errors.find(reason), errors.npos) << errors;
    }
  }

  support::HeadlessProgram program;
};

TEST_F(Arguments, ThatAreInvalid) {
  ExpectRefusals(2, "commands are day and days", "", {"", "chart", "\"\""});
  ExpectRefusals(2, "", "", {"--", "--json", "-- day", "day days --from 2026-01-01"});
  ExpectRefusals(2, "--place", "day ",
                 {"--place", "--place Delhi --place Agra", "--state Delhi", "--country India",
                  "--place Delhi --latitude 1 --longitude 1 --zone UTC"});
  ExpectRefusals(2, "--latitude", "day ",
                 {"--name Home", "--zone UTC", "--longitude 1", "--latitude 1 --longitude 1",
                  "--latitude 1 --longitude 1 --zone UTC --clock country"});
  ExpectRefusals(2, "no number of degrees", "day --zone UTC --longitude 1 --latitude ",
                 {"91", "-90.001", "nan", "inf", "1e1", "0x1", "1,5", "1.5N", "\" 1\"", "--1", ".",
                  std::string(400, '9')});
  ExpectRefusals(2, "no number of degrees", "day --zone UTC --latitude 1 --longitude ", {"180.5"});
  ExpectRefusals(2, "no zone", "day --latitude 1 --longitude 1 --zone ",
                 {"Mars/Base", "\"\"", "localtime"});
  ExpectRefusals(2, "--date", "day --date ",
                 {"", "2026-02-30", "2026-2-3", "26-02-03", "2026-02-03T00:00", "-2026-02-03",
                  "99999999999999999999-01-01", "tomorrow"});
  ExpectRefusals(2, "--from", "days ", {"--to 2026-01-01", "--from 2026-01-02 --to 2026-01-01"});
  ExpectRefusals(2, "two lines", "days --from 2026-01-01 --to ", {"\"two\nlines\""});
  for (const std::string option : {"--clock theirs", "--ayanamsa 6", "--node true", "--language hi",
                                   "--json=maybe", "--bogus", "extra", "--from 2026-01-01"}) {
    ExpectRefusals(2, option.substr(0, option.find_first_of(" =")), "day ", {option});
  }
}

TEST_F(Arguments, ThatCannotBeMet) {
  ExpectRefusals(1, "the atlas has no place \"", "day --place ",
                 {"\"\"", "Delhi --country Atlantis", "Delhi --state Texas"});
  ExpectRefusals(1, "two lines  [31m", "day --place ", {"\"two\nlines \x1B[31m\""});
  ExpectRefusals(1, "years 100 to 9999", "day --date ", {"0099-12-31", "10000-01-01"});
  ExpectRefusals(1, "skips 2011-12-30", "day --date 2011-12-30 --place Apia --country WS", {""});
  program.settings.SaveSetting("Durvela", foundation::kPlaceSection, "lat", "north");
  ExpectRefusals(1, "default place has no position that can be read: north 77.13E\n", "day", {""});
}

TEST_F(Arguments, ThatPrintNoOrTheSameFigures) {
  for (const std::string command : {"", "day ", "days "}) {
    const auto help = program.Run(command + "--help");
    EXPECT_EQ(help.status, 0);
    const char* known = command.empty() ? "Usage: durvela-cli" : "--longitude D";
    EXPECT_NE(help.output.find(known), help.output.npos) << command;
    EXPECT_TRUE(program.Run(command + "--version").output.starts_with("durvela-cli 2."));
  }
  EXPECT_EQ(program.Run("day --ayanamsa 7 --node corrected --language en --clock own").output,
            program.Run("day").output);
}

}  // namespace
