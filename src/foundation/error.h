// The one error type of the system: a number and a fixed English description.
#pragma once

#include <exception>

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
  explicit Error(ErrorKind kind) : kind_(kind) {}

  ErrorKind Kind() const { return kind_; }
  int Number() const { return static_cast<int>(kind_); }

  // What the user is told, such as "Overflow".
  const char* what() const noexcept override;

 private:
  ErrorKind kind_;
};

}  // namespace foundation
