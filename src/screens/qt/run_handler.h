// Where the errors of forms' handlers end.
#pragma once

#include <functional>
#include <string_view>

namespace screens::qt {

// Runs one handler at the top of the event loop: of a form, by the name of its control or event. An
// error that leaves it ends the program with exit status 1, after a box that names the file that
// failed or, if there is none, the handler.
void RunHandler(std::string_view form, std::string_view step, const std::function<void()>& handler);

}  // namespace screens::qt
