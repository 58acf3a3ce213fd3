#pragma once
// The system's date and time as the files write them. Both can be fixed, so that two runs give the
// same bytes.

#include <string>
#include <string_view>

/// "11-16-2026": month, day, year.
std::string DateText();

/// "08:05:59": hours, minutes, seconds.
std::string TimeText();

/// From now on DateText() and TimeText() give these texts; an empty one gives the real clock again.
void FixClock(std::string_view date, std::string_view time);
