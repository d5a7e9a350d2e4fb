// Services of the machine, behind interfaces small enough to fake.
#pragma once

#include <chrono>
#include <string_view>

#include "foundation/calendar.h"

namespace foundation {

class Clock {
 public:
  virtual ~Clock() = default;
  virtual DateTime Now() const = 0;  // local time, whole seconds

  // The present moment itself, and how far the machine's clock was or will be from Universal Time
  // at one, east positive.
  virtual std::chrono::sys_seconds InstantNow() const = 0;
  virtual std::chrono::seconds OffsetAt(std::chrono::sys_seconds instant) const = 0;
};

enum class MessageIcon { None, Information, Question, Exclamation, Critical };
enum class MessageButtons { Ok, YesNo };
enum class MessageAnswer { Ok, Yes, No };

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  // Shows a modal box and waits. An empty title means the program's name. Closing a Yes/No box
  // without an answer returns No.
  virtual MessageAnswer Show(std::string_view text, MessageIcon icon,
                             MessageButtons buttons = MessageButtons::Ok,
                             std::string_view title = {}) = 0;
};

class Yielder {
 public:
  virtual ~Yielder() = default;
  // Runs pending events, including timers, before returning.
  virtual void Yield() = 0;
};

class RandomNumbers {
 public:
  virtual ~RandomNumbers() = default;
  virtual double Next() = 0;  // 0 to below 1
};

class Browser {
 public:
  virtual ~Browser() = default;
  virtual void Open(std::string_view address) = 0;
};

}  // namespace foundation
