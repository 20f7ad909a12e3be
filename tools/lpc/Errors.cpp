#include "lpc/Errors.h"

#include "LPC_Wire/Records.h"

namespace lpctool {

namespace {

constexpr struct
{
    int error;
    const char* text;
} kTexts[] = {
    {lpc::kNotInitialised, "not initialised"},
    {lpc::kInvalidArgument, "invalid argument"},
    {lpc::kCannotConnect, "there is no such server"},
    {lpc::kRefused, "the other side refused the connection"},
    {lpc::kNotConnected, "not connected"},
    {lpc::kConnectionLost, "the connection was lost"},
    {lpc::kTimedOut, "timed out"},
    {lpc::kTooLong, "the message is too long"},
    {lpc::kCannotListen, "another server has this name"},
    {lpc::kTryAgain, "the other side is not accepting, or a queue is full"},
};

} // namespace

std::string ErrorText(int error)
{
    std::string text = "failed";
    for (const auto& known : kTexts)
        if (known.error == error)
            text = known.text;
    return text + " (error " + std::to_string(error) + ")";
}

} // namespace lpctool
