#include "TerminalPassword/TerminalPassword.h"

#include <csignal>
#include <cstdio>
#include <memory>

#include <termios.h>

namespace terminal {

namespace {

struct Close
{
    void operator()(FILE* file) const { std::fclose(file); }
};

constexpr char kInterrupt = 3; // Ctrl-C

/// Keeps what is typed from the screen while it lives. Ctrl-C ends the line meanwhile, and signals wait, so
/// that nothing leaves the terminal so.
class CHiddenTyping
{
public:
    explicit CHiddenTyping(int terminal) : m_terminal(terminal)
    {
        sigset_t interrupts;
        sigemptyset(&interrupts);
        for (int signal : {SIGINT, SIGTERM, SIGHUP, SIGTSTP, SIGQUIT})
            sigaddset(&interrupts, signal);
        sigprocmask(SIG_BLOCK, &interrupts, &m_signals);
        m_known = tcgetattr(terminal, &m_before) == 0;
        termios hidden = m_before;
        hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO | ISIG);
        hidden.c_cc[VEOL] = kInterrupt;
        if (m_known)
            tcsetattr(terminal, TCSAFLUSH, &hidden);
    }
    ~CHiddenTyping()
    {
        if (m_known)
            tcsetattr(m_terminal, TCSAFLUSH, &m_before);
        sigprocmask(SIG_SETMASK, &m_signals, nullptr);
    }
    CHiddenTyping(const CHiddenTyping&) = delete;
    CHiddenTyping& operator=(const CHiddenTyping&) = delete;

private:
    int m_terminal;
    bool m_known = false;
    termios m_before{};
    sigset_t m_signals{};
};

std::optional<std::string> ReadLine(FILE* terminal)
{
    std::string line;
    for (int c = std::fgetc(terminal); c != '\n' && c != '\r'; c = std::fgetc(terminal)) {
        if (c == EOF || c == kInterrupt)
            return std::nullopt;
        line += static_cast<char>(c);
    }
    return line;
}

} // namespace

std::optional<std::string> AskPassword(const std::string& prompt)
{
    const std::unique_ptr<FILE, Close> terminal(std::fopen("/dev/tty", "r+"));
    if (!terminal)
        return std::nullopt;
    std::setbuf(terminal.get(), nullptr);
    std::fputs(prompt.c_str(), terminal.get());
    std::optional<std::string> password;
    {
        const CHiddenTyping hidden(fileno(terminal.get()));
        password = ReadLine(terminal.get());
    }
    std::fputc('\n', terminal.get());
    return password;
}

} // namespace terminal
