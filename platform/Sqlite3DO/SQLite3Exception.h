#pragma once

#include <stdexcept>
#include <string>

namespace Sqlite3DO {

/// The engine's primary result codes that this library's callers meet.
enum ErrorCode {
    kErrorGeneral = 1,
    kErrorAbort = 4,
    kErrorBusy = 5,
    kErrorReadOnly = 8,
    kErrorCorrupt = 11,
    kErrorFull = 13,
    kErrorCantOpen = 14,
    kErrorTooBig = 18,
    kErrorConstraint = 19,
    kErrorMisuse = 21,
    kErrorAuth = 23,
    kErrorNotADatabase = 26,
};

/// How every call of this library fails: a primary result code of the engine and a text for the log. The text
/// never holds a key.
class CSQLite3Exception : public std::runtime_error
{
public:
    CSQLite3Exception(int code, const std::string& message) : std::runtime_error(message), m_code(code) {}

    int Code() const { return m_code; }

private:
    int m_code;
};

} // namespace Sqlite3DO
