// The text of date and time pickers, and how users change it. These functions raise onChange if the
// moment or the refusal changes.
#pragma once

#include <string>
#include <string_view>

#include "forms/control.h"

namespace forms {

// "5/March/2011" or "06:05 PM".
std::string MomentText(const Control& picker);

void SetMoment(Control& picker, foundation::DateTime moment);

// Accepts a date of the years 100 to 9999, or a time of day in hours and minutes. Any other text
// leaves the moment unchanged and sets the refusal, which the next valid moment clears.
void TypeMoment(Control& picker, std::string_view text);

// Steps one part of the text, counted from 0: day, month or year; hour, minute or AM/PM. Days carry
// into months, and minutes into hours; if the new month is too short, its last day is used. Dates
// stay within the years 100 to 9999; times wrap at midnight.
void StepMoment(Control& picker, int part, int steps);

}  // namespace forms
