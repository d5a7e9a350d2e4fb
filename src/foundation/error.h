// The one error type of the system: a number, a fixed English description and, where something can
// be named, what failed.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace foundation {

enum class ErrorKind : int {
  InvalidCall = 5,  // an argument outside what the routine can work on
  Overflow = 6,     // a number too large for its kind
  Subscript = 9,    // an index outside its array, or an array never filled
  DivisionByZero = 11,
  TypeMismatch = 13,  // a text that is not the number, date or time it should be
  FileNotFound = 53,
  FileAccess = 75,
  ObjectNotSet = 91,
  NoSuchMember = 438,  // an object that has no such property or operation
  Cancelled = 32755,   // a dialog, by the user
};

class Error : public std::exception {
 public:
  explicit Error(ErrorKind kind, std::string context = {})
      : kind_(kind), context_(std::move(context)) {}

  ErrorKind Kind() const { return kind_; }
  int Number() const { return static_cast<int>(kind_); }

  // What failed, a sentence without its full stop: "The file prv1.tmp cannot be read". Empty if
  // nothing can be named.
  const std::string& Context() const { return context_; }

  // For the user: the context or, without one, the description of the kind, such as "Overflow".
  const char* what() const noexcept override;

 private:
  ErrorKind kind_;
  std::string context_;
};

}  // namespace foundation
