/// Calendar dates and the time of day, local, without a zone.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace terravane {

/// A moment to the second, in the local time of the machine (or of the script's fixed clock).
using Moment = std::chrono::local_seconds;

/// A moment from its calendar fields; error 5 where there is no such day.
Moment MakeMoment(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

/// The system's short date form, "21/11/2026": how stores and cells hold dates.
std::string ShortDate(Moment moment);

/// A moment under a mask of "dd", "mm", "mmmm", "yyyy", "hh", "nn" and "ss", all else copied: "dd mmmm yyyy",
/// "dd/mm/yyyy", "hh : mm : ss". "mm" after an "hh" is the minute. Months' names are English.
std::string Format(Moment moment, std::string_view mask);

/// Reads "21/11/2026" (day first), "2026-11-21" and "21 November 2026" (also "Nov"), one or two digits for day and
/// month, four for the year, outer blanks ignored. Error 13 "Type mismatch" for any other text and for a day that
/// does not exist.
Moment ParseDate(std::string_view text);

/// Hours between two moments, counted by the hours of the clock that begin in between: from 23:59 to 00:00 is 1.
long HoursBetween(Moment from, Moment to) noexcept;

}  // namespace terravane
