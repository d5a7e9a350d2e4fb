// What a picker of a date or of a time of day shows, and how its user changes it. Each of these
// raises onChange if the moment or the refusal changes.
#pragma once

#include <string>
#include <string_view>

#include "forms/control.h"

namespace forms {

// "5/March/2011" or "06:05 PM".
std::string MomentText(const Control& picker);

void SetMoment(Control& picker, foundation::DateTime moment);

// Takes any text that is a date of the years 100 to 9999, or a time of day in hours and minutes.
// Any other leaves the moment as it is and sets the refusal, which the next moment clears.
void TypeMoment(Control& picker, std::string_view text);

// Steps one part of the text, counted from 0: day, month or year; hour, minute or half of the day.
// Days carry into months, and minutes into hours; a month too short for the day takes its last
// one. Dates stay within their years, times run through midnight.
void StepMoment(Control& picker, int part, int steps);

}  // namespace forms
