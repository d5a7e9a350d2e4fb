// The examples of docs/cli.md run and print what it shows. That of Delhi in 2011 is from a table
// worked out independently.
#include <gtest/gtest.h>

#include "cli/program.h"
#include "foundation/files.h"
#include "foundation/text.h"

namespace {

TEST(CliDocument, ShowsWhatTheProgramPrints) {
  constexpr std::string_view kPrompt = "$ durvela-cli ";
  support::HeadlessProgram program;
  const std::string document = foundation::ReadFile(DOCUMENT);
  std::string_view rest = document;
  std::string command, printed;
  bool inExample = false;
  int examples = 0;
  const auto check = [&] {
    if (command.empty()) return;
    const auto answer = program.Run(command);
    EXPECT_EQ(answer.errors + answer.output, printed) << command;
    ++examples;
    command.clear();
    printed.clear();
  };
  while (!rest.empty()) {
    const std::string_view line = foundation::TakeLine(rest);
    if (line.starts_with("```") || line.starts_with(kPrompt)) check();
    if (line.starts_with("```")) {
      inExample = line == "```console";
    } else if (line.starts_with(kPrompt)) {
      command = line.substr(kPrompt.size());
    } else if (inExample) {
      printed.append(line).append("\n");
    }
  }
  EXPECT_EQ(examples, 5);
}

}  // namespace
