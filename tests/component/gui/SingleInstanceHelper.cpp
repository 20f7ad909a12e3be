#include "Base/Log.h"
#include "SingleApplication/SingleApplication.h"
#include "support/QtLeaks.h"

#include <cstdio>
#include <cstdlib>

namespace {

/// The next line of standard input has come, or its end.
void WaitForLine()
{
    for (int c = std::getchar(); c != '\n' && c != EOF; c = std::getchar()) {
    }
}

void Say(const char* word)
{
    std::puts(word);
    std::fflush(stdout);
}

} // namespace

/// Waits for a line, becomes an application, says "primary" or "second" and, as the primary one, runs until
/// the next line.
int main(int argc, char** argv)
{
    Base::SetLogObserver([](Base::LogLevel, const char*, const std::string& line) {
        std::fprintf(stderr, "%s\n", line.c_str());
    });
    WaitForLine();
    SingleApplication application(argc, argv, "Vantor.Test");
    if (!application.isPrimary()) {
        application.deleteInstanceData();
        Say("second");
        std::exit(0);
    }
    Say("primary");
    WaitForLine();
    return 7;
}
