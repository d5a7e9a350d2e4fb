// The program's only error type: a number, a fixed English description and, if known, what failed.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace foundation {

enum class ErrorKind : int {
  InvalidCall = 5,  // an argument that the routine cannot handle
  Overflow = 6,     // a number too large for its type
  Subscript = 9,    // an index outside its array, or an array never filled
  DivisionByZero = 11,
  TypeMismatch = 13,  // a text that is not a valid number, date or time
  FileNotFound = 53,
  FileAccess = 75,
  ObjectNotSet = 91,
  NoSuchMember = 438,  // an object without that property or method
  Cancelled = 32755,   // by the user, in a dialog
};

class Error : public std::exception {
 public:
  explicit Error(ErrorKind kind, std::string context = {})
      : kind_(kind), context_(std::move(context)) {}

  ErrorKind Kind() const { return kind_; }
  int Number() const { return static_cast<int>(kind_); }

  // What failed, as a sentence without its full stop: "The file prv1.tmp cannot be read". Empty if
  // unknown.
  const std::string& Context() const { return context_; }

  // For the user: the context or, without one, the description of the kind, such as "Overflow".
  const char* what() const noexcept override;

 private:
  ErrorKind kind_;
  std::string context_;
};

}  // namespace foundation
