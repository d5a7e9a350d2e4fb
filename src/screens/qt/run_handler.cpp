#include "screens/qt/run_handler.h"

#include <cstdlib>
#include <exception>
#include <string>
#include <utility>

#include "foundation/error.h"
#include "foundation/version.h"
#include "screens/qt/qt_machine.h"

namespace screens::qt {
namespace {

// Timers keep running behind the message box; their errors are ignored.
void EndWith(const std::string& reason) {
  static bool ending = false;
  if (std::exchange(ending, true)) return;
  QtMessageBoxes().Show(foundation::kProgramName + (" has to close: " + reason + "."),
                        foundation::MessageIcon::Critical, foundation::MessageButtons::Ok, {});
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

void RunHandler(std::string_view form, std::string_view step,
                const std::function<void()>& handler) {
  const auto inStep = [&](std::string_view failure) {
    return std::string(failure).append(" in ").append(form).append(".").append(step);
  };
  try {
    handler();
  } catch (const foundation::Error& error) {
    EndWith(error.Context().empty() ? inStep(error.what()) : error.Context());
  } catch (const std::exception&) {
    EndWith(inStep("Internal error"));
  }
}

}  // namespace screens::qt
