#include "Keyring/SystemKeyring.h"

#include "Base/Encrypt.h"
#include "Base/FileUtil.h"
#include "Base/Noncopyable.h"

#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <vector>

// The service is asked by a process of its own, "vantor-keyring" beside the program. So no other program
// loads the libraries that this takes or keeps their threads, and whatever a service does, the call ends in
// time.

namespace keyring::system {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kLimit{2000};
constexpr char kTooLate[] = "the keyring did not answer in time";
constexpr std::size_t kAnswerLimit = 4096;

/// The helper with one socket as its input and output; killed and gone with the object.
class Helper : Base::CNoncopyable
{
public:
    ~Helper()
    {
        if (m_process > 0) {
            ::kill(m_process, SIGKILL);
            while (::waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) {
            }
        }
        if (m_socket >= 0)
            ::close(m_socket);
    }

    bool Start(const std::vector<std::string>& arguments);
    bool Send(const std::string& text);
    /// All that it answers; nothing when that takes too long.
    std::optional<std::string> Receive();

private:
    bool Spawn(const std::vector<std::string>& arguments, int socket);
    bool WaitForMore() const;

    pid_t m_process = 0;
    int m_socket = -1;
    const Clock::time_point m_end = Clock::now() + kLimit;
};

bool Helper::Start(const std::vector<std::string>& arguments)
{
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return false;
    m_socket = ends[0];
    const bool started = Spawn(arguments, ends[1]);
    ::close(ends[1]);
    return started;
}

bool Helper::Spawn(const std::vector<std::string>& arguments, int socket)
{
    const std::string program = Base::FileUtil::GetCurExeDir() + "vantor-keyring";
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, socket, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&files, socket, STDOUT_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    const int result = ::posix_spawn(&m_process, program.c_str(), &files, &attributes, words.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    if (result != 0)
        m_process = 0;
    return result == 0;
}

// What is sent is smaller than a socket's buffer, so that this never waits.
bool Helper::Send(const std::string& text)
{
    const ssize_t sent = ::send(m_socket, text.data(), text.size(), MSG_NOSIGNAL);
    ::shutdown(m_socket, SHUT_WR);
    return sent == static_cast<ssize_t>(text.size());
}

bool Helper::WaitForMore() const
{
    for (;;) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(m_end - Clock::now());
        if (left.count() <= 0)
            return false;
        pollfd watched{m_socket, POLLIN, 0};
        const int ready = ::poll(&watched, 1, static_cast<int>(left.count()));
        if (ready > 0)
            return true;
        if (ready < 0 && errno != EINTR)
            return false;
    }
}

std::optional<std::string> Helper::Receive()
{
    std::string answer(kAnswerLimit, '\0'); // growing would leave parts of a secret behind
    std::size_t size = 0;
    while (size < answer.size() && WaitForMore()) {
        const ssize_t got = ::recv(m_socket, answer.data() + size, answer.size() - size, 0);
        if (got < 0 && errno != EINTR)
            break;
        if (got == 0) {
            answer.resize(size);
            return answer;
        }
        size += got > 0 ? static_cast<std::size_t>(got) : 0;
    }
    Base::Encrypt::Wipe(answer);
    return std::nullopt;
}

/// What the helper gives for the command. Its answer begins with "+" before the result, or "-" before the
/// reason.
std::optional<std::string> Ask(const std::vector<std::string>& arguments, const std::string& input,
                               std::string& why)
{
    Helper helper;
    if (!helper.Start(arguments)) {
        why = "the program vantor-keyring cannot be started";
        return std::nullopt;
    }
    auto answer = helper.Send(input) ? helper.Receive() : std::nullopt;
    if (answer && !answer->empty() && answer->front() == '+') {
        answer->erase(0, 1);
        return answer;
    }
    why = answer && answer->size() > 1 ? answer->substr(1) : kTooLate;
    return std::nullopt;
}

} // namespace

// The bus's own library would start one where there is none; see that it never comes to that.
bool IsThere()
{
    const char* address = std::getenv("DBUS_SESSION_BUS_ADDRESS");
    if (address && *address) {
        const std::string text(address);
        return text.rfind("autolaunch:", 0) != 0 && text.rfind("disabled:", 0) != 0;
    }
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    struct stat found = {};
    return runtime && *runtime && ::stat((std::string(runtime) + "/bus").c_str(), &found) == 0 &&
           S_ISSOCK(found.st_mode);
}

bool Store(const std::string& name, const std::string& label, const std::string& secret, std::string& why)
{
    return Ask({"store", name, label}, secret, why).has_value();
}

std::optional<std::string> Load(const std::string& name, std::string& why)
{
    return Ask({"load", name}, {}, why);
}

bool Remove(const std::string& name, std::string& why)
{
    return Ask({"remove", name}, {}, why).has_value();
}

} // namespace keyring::system
