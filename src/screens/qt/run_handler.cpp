#include "screens/qt/run_handler.h"

#include <QMessageBox>
#include <cstdlib>
#include <exception>
#include <utility>

#include "foundation/error.h"
#include "foundation/version.h"

namespace screens::qt {
namespace {

// Timers go on below the box; an error of theirs is not told any more.
void EndWith(const char* description) {
  static bool ending = false;
  if (std::exchange(ending, true)) return;
  QMessageBox::critical(nullptr, foundation::kProgramName, description);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

void RunHandler(const std::function<void()>& handler) {
  try {
    handler();
  } catch (const foundation::Error& error) {
    EndWith(error.what());
  } catch (const std::exception&) {
    EndWith("Internal error");
  }
}

}  // namespace screens::qt
