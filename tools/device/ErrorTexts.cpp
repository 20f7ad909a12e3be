#include "device/ErrorTexts.h"

#include "QxNetSDK/Errors.h"

#include "Base/StringUtil.h"

namespace devicetool {

namespace {

constexpr struct
{
    std::uint32_t error;
    const char* meaning;
} kMeanings[] = {
    {QXNET_ERROR_NOT_INITIALISED, "the library was not initialised"},
    {QXNET_ERROR_ARGUMENT, "a wrong argument"},
    {QXNET_ERROR_HANDLE, "the session does not exist or was ended"},
    {QXNET_ERROR_MEMORY, "not enough memory"},
    {QXNET_ERROR_TOO_MANY_SESSIONS, "too many sessions"},
    {QXNET_ERROR_CLOSED, "the session was ended meanwhile"},
    {QXNET_ERROR_BUFFER_TOO_SMALL, "the answer is longer than there is room"},
    {QXNET_ERROR_TRUST_FILE, "the file of certificates cannot be used"},
    {QXNET_ERROR_RESOLVE, "the host's name is not known"},
    {QXNET_ERROR_UNREACHABLE, "the host cannot be reached"},
    {QXNET_ERROR_CONNECT_TIMEOUT, "the host does not answer"},
    {QXNET_ERROR_ANSWER_TIMEOUT, "the device did not answer in time"},
    {QXNET_ERROR_CONNECTION_LOST, "the connection was lost"},
    {QXNET_ERROR_TLS, "no TLS could be agreed on with the device"},
    {QXNET_ERROR_CERTIFICATE_CHANGED, "the device shows another certificate than the first time"},
    {QXNET_ERROR_NOT_A_DEVICE, "what answers there is no device"},
    {QXNET_ERROR_VERSION, "the device speaks another version of the protocol"},
    {QXNET_ERROR_TOO_LONG, "the device's answer is too long"},
    {QXNET_ERROR_WRONG_SIZE, "the device's answer has the wrong size"},
    {QXNET_ERROR_UNREADABLE, "the device's answer cannot be read"},
    {QXNET_ERROR_PASSWORD, "user name or password wrong"},
    {QXNET_ERROR_LOCKED, "too many wrong passwords; the device refuses for a while"},
    {QXNET_ERROR_PERMISSION, "the user may not do this"},
    {QXNET_ERROR_DEVICE_FULL, "the device has no session left"},
    {QXNET_ERROR_NOT_SUPPORTED, "the device does not support this"},
    {QXNET_ERROR_CHANNEL, "the device has no such channel"},
    {QXNET_ERROR_VALUE, "the device does not take the value"},
    {QXNET_ERROR_BUSY, "the device is busy"},
    {QXNET_ERROR_DEVICE, "the device failed"},
    {QXNET_ERROR_STORAGE, "the device cannot keep the change"},
    {QXNET_ERROR_NO_AUDIO_INPUT, "there is no sound input"},
    {QXNET_ERROR_AUDIO_STARTED, "voice runs already"},
    {QXNET_ERROR_AUDIO_ENCODING, "the device takes voice in an encoding that is not known"},
    {QXNET_ERROR_AUDIO_BUSY, "somebody else speaks through that channel"},
};

} // namespace

const char* ErrorMeaning(std::uint32_t error)
{
    for (const auto& row : kMeanings)
        if (row.error == error)
            return row.meaning;
    return "an unknown error";
}

std::string ErrorText(const Failure& failure)
{
    std::string text =
        Base::StringUtil::Format("%s [%u]-[%u]", ErrorMeaning(failure.error), failure.error, failure.module);
    if (failure.own)
        text += Base::StringUtil::Format(", the device's own number %u", failure.own);
    return failure.detail.empty() ? text : text + ": " + failure.detail;
}

} // namespace devicetool
