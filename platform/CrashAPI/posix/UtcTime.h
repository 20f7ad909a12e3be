#pragma once

#include "CrashAPI/posix/SafeText.h"

namespace crash {

/// A date and time of day of universal time.
struct UtcTime
{
    int year, month, day, hour, minute, second;
};

/// The present time. Safe in a signal handler, unlike the C library's conversion, which takes locks.
UtcTime Now();

/// Adds date and time of day with these separators.
void AddTime(SafeText& text, const UtcTime& time, const char* inDate, const char* between,
             const char* inTime);

} // namespace crash
