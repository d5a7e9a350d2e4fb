// What the dashboard costs in a process of its own.
#pragma once

#include <string_view>

namespace bench {

// Makes the toolkit's application at the first call. Not before: what it leaves in the vector
// registers slows plain arithmetic down to a fifth until some library call clears them, which a
// loop of charts alone does not make.
void NeedToolkit();

// The part of the child: its argument is the moment at which its parent made it, in seconds since
// the machine's start. It prints milliseconds to the first painted window, per cent of a processor
// while nobody touches it, and resident megabytes.
bool IsAlone(std::string_view argument);
int RunAlone(int argc, char** argv);

// The part of the parent: starts a child, and prints the three as lines of the table.
void PrintAlone();

}  // namespace bench
