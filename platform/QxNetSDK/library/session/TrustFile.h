#pragma once

#include <string>

namespace sdk {

/// The file of pinned certificates as one text, locked against other processes while this object lives; one
/// of them that holds it for a second is an error. It belongs to the user alone.
class CTrustFile
{
public:
    explicit CTrustFile(const std::string& path);
    ~CTrustFile();
    CTrustFile(const CTrustFile&) = delete;
    CTrustFile& operator=(const CTrustFile&) = delete;

    /// A missing file reads as empty. False with the system's number in Error.
    [[nodiscard]] bool Read(std::string& text);
    /// Replaces the file as a whole: after a crash it is the old or the new one.
    [[nodiscard]] bool Write(const std::string& text);

    int Error() const { return m_error; }

private:
    const std::string m_path;
    int m_error = 0;
    long long m_lock = -1;
};

} // namespace sdk
