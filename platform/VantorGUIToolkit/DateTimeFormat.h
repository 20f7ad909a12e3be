#pragma once

#include <QString>

namespace VantorGUIToolkit {

/// True for a date format that shows year (yyyy or yy), month (MM or M) and day (dd or d), each once, in any
/// order, with "-", "/", "." or a blank between them.
bool isDateFormat(const QString& format);

/// True for a time format of hour (HH, H, hh or h), minute (mm or m) and, if wanted, second (ss or s), in
/// this order with ":" or "." between them, and " AP" or " ap" after them exactly when the hour is hh or h.
bool isTimeFormat(const QString& format);

} // namespace VantorGUIToolkit
