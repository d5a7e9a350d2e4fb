#include "screens/qt/run_handler.h"

#include <cstdlib>
#include <exception>
#include <utility>

#include "foundation/error.h"
#include "screens/qt/qt_machine.h"

namespace screens::qt {
namespace {

// Timers go on below the box; an error of theirs is not told any more.
void EndWith(const char* description) {
  static bool ending = false;
  if (std::exchange(ending, true)) return;
  QtMessageBoxes().Show(description, foundation::MessageIcon::Critical,
                        foundation::MessageButtons::Ok, {});
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
