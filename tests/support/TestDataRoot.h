#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

/// A fresh user data root of one test, with its own runtime folder for sockets and without a keyring; gone
/// when the test ends.
class TestDataRoot
{
public:
    TestDataRoot()
    {
        std::string name = (std::filesystem::temp_directory_path() / "vantor-test-XXXXXX").string();
        m_path = mkdtemp(name.data());
        setenv("VANTOR_USER_DATA", m_path.c_str(), 1);
        setenv("XDG_RUNTIME_DIR", m_path.c_str(), 1);
        setenv("VANTOR_KEYRING", "none", 1);
    }

    ~TestDataRoot()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    TestDataRoot(const TestDataRoot&) = delete;
    TestDataRoot& operator=(const TestDataRoot&) = delete;

    /// Ends in "/".
    std::string Path() const { return m_path + "/"; }

private:
    std::string m_path;
};
