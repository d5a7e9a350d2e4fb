// Costs of the dashboard in its own process.
#pragma once

#include <string_view>

namespace bench {

// Creates the toolkit's application on the first call. Call it only when needed: what it leaves in
// the vector registers slows plain arithmetic to a fifth of its speed until some library call
// clears them, and a loop of charts makes no such call.
void NeedToolkit();

// The child process. The argument is the time at which the parent started it, in seconds since
// boot. Prints the milliseconds to the first painted window, per cent of a processor while idle,
// and resident megabytes.
bool IsChild(std::string_view argument);
int RunChild(int argc, char** argv);

// The parent: starts a child and prints its three figures as rows of the table.
void PrintChild();

}  // namespace bench
