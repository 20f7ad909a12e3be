#include "TerminalPassword/TerminalPassword.h"

#include <windows.h>

namespace terminal {

namespace {

class CConsole
{
public:
    explicit CConsole(const wchar_t* name)
        : m_handle(CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                               nullptr, OPEN_EXISTING, 0, nullptr))
    {}
    ~CConsole()
    {
        if (Usable())
            CloseHandle(m_handle);
    }
    CConsole(const CConsole&) = delete;
    CConsole& operator=(const CConsole&) = delete;

    bool Usable() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE Handle() const { return m_handle; }

private:
    HANDLE m_handle;
};

void Write(const CConsole& console, const std::string& text)
{
    DWORD written = 0;
    WriteConsoleA(console.Handle(), text.c_str(), static_cast<DWORD>(text.size()), &written, nullptr);
}

} // namespace

std::optional<std::string> AskPassword(const std::string& prompt)
{
    const CConsole input(L"CONIN$");
    const CConsole output(L"CONOUT$");
    DWORD before = 0;
    if (!input.Usable() || !output.Usable() || !GetConsoleMode(input.Handle(), &before))
        return std::nullopt;
    Write(output, prompt);
    SetConsoleMode(input.Handle(),
                   (before | ENABLE_LINE_INPUT | ENABLE_PROCESSED_INPUT) & ~ENABLE_ECHO_INPUT);
    char line[512];
    DWORD length = 0;
    const BOOL read = ReadConsoleA(input.Handle(), line, sizeof(line), &length, nullptr);
    SetConsoleMode(input.Handle(), before);
    Write(output, "\r\n");
    if (!read || length == 0)
        return std::nullopt;
    std::string password(line, length);
    SecureZeroMemory(line, sizeof(line));
    return password.substr(0, password.find_first_of("\r\n"));
}

} // namespace terminal
