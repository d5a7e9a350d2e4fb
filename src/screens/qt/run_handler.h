// Handles errors that escape the forms' handlers.
#pragma once

#include <functional>
#include <string_view>

namespace screens::qt {

// Runs a handler of a form at the top of the event loop; `step` names its control or event. An
// error that escapes it ends the program with exit status 1, after a message box that names the
// failing file or, if there is none, the handler.
void RunHandler(std::string_view form, std::string_view step, const std::function<void()>& handler);

}  // namespace screens::qt
