#include <QApplication>
#include <cstdio>
#include <string_view>

#include "foundation/version.h"
#include "screens/qt/application.h"
#include "screens/qt/run_handler.h"

namespace {

// Handles options that need no display, before the toolkit opens one.
bool HandleOption(std::string_view option) {
  if (option == "--version") {
    std::printf("%s %s\n", foundation::kProgramName, foundation::kVersion);
  } else if (option == "--help") {
    std::puts("Usage: durvela [--help | --version]\nOpens the almanac's dashboard.");
  } else {
    return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && HandleOption(argv[1])) return 0;
  screens::qt::LeaveThemeAside();
  QApplication application(argc, argv);
  screens::qt::DressApplication();
  screens::qt::Program program;
  screens::qt::RunHandler(program.dashboard.name, "Form_Load", [&] { program.Start(); });
  return QApplication::exec();
}
