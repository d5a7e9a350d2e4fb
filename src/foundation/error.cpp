#include "foundation/error.h"

namespace foundation {

const char* Error::what() const noexcept {
  if (!context_.empty()) return context_.c_str();
  switch (kind_) {
    case ErrorKind::InvalidCall:
      return "Invalid procedure call or argument";
    case ErrorKind::Overflow:
      return "Overflow";
    case ErrorKind::Subscript:
      return "Subscript out of range";
    case ErrorKind::DivisionByZero:
      return "Division by zero";
    case ErrorKind::TypeMismatch:
      return "Type mismatch";
    case ErrorKind::FileNotFound:
      return "File not found";
    case ErrorKind::FileAccess:
      return "Path/File access error";
    case ErrorKind::ObjectNotSet:
      return "Object variable not set";
    case ErrorKind::NoSuchMember:
      return "Object doesn't support this property or method";
    case ErrorKind::Cancelled:
      return "Cancel was selected";
  }
  return "Unknown error";
}

}  // namespace foundation
