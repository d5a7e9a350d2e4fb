// Where the errors of forms' handlers end.
#pragma once

#include <functional>

namespace screens::qt {

// Runs one handler at the top of the event loop. Whatever error comes out of it is told in one box
// and ends the program with exit status 1.
void RunHandler(const std::function<void()>& handler);

}  // namespace screens::qt
