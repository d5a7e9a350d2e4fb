// Why the program could not do what it was asked for.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace cli {

inline constexpr std::string_view kProgram = "durvela-cli";

enum class Status { Done = 0, Impossible = 1, InvalidArguments = 2 };  // exit status

class Failure : public std::runtime_error {
 public:
  Failure(Status status, const std::string& message)
      : std::runtime_error(message), status_(status) {}

  Status ExitStatus() const { return status_; }

 private:
  Status status_;
};

// For a terminal: control characters become blanks, so that a text stays on its line and cannot
// change the terminal.
std::string OneLine(std::string_view text);

// "durvela-cli: " and the message on one line.
std::string ErrorLine(std::string_view message);

}  // namespace cli
