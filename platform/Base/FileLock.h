#pragma once

#include <string>

namespace Base {

/// Holds a file that only one program at a time can hold. The system ends the hold with the object or with
/// the process, however that ends; the file stays. Not for several threads.
class CFileLock
{
public:
    CFileLock() = default;
    ~CFileLock();
    CFileLock(const CFileLock&) = delete;
    CFileLock& operator=(const CFileLock&) = delete;

    enum class Result {
        Held,
        Busy,   ///< somebody else holds it
        Failed, ///< the system does not open the file
    };

    /// Takes the file, which is made when it is missing, without waiting. Once for an object.
    [[nodiscard]] Result Take(const std::string& path);

private:
    long long m_file = -1;
};

} // namespace Base
