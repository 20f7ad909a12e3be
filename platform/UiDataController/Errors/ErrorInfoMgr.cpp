#include "UiDataController/Errors/ErrorInfoMgr.h"

#include "QxNetSDK/Errors.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace UiDataController {

namespace {

constexpr const char* kContext = "DeviceErrors";

/// The first number of pairs whose second one is a reason.
constexpr std::int32_t kDecidedHere = 4;

struct Row
{
    std::int32_t number;
    const char* text; ///< %1 stands for the number behind it
};

const Row kErrors[] = {
    {QXNET_ERROR_NONE, QT_TRANSLATE_NOOP("DeviceErrors", "No error has occurred.")},
    {QXNET_ERROR_NOT_INITIALISED,
     QT_TRANSLATE_NOOP("DeviceErrors", "Communication with devices has not been started.")},
    {QXNET_ERROR_ARGUMENT, QT_TRANSLATE_NOOP("DeviceErrors", "The request to the device is not valid.")},
    {QXNET_ERROR_HANDLE, QT_TRANSLATE_NOOP("DeviceErrors", "The login to the device has ended.")},
    {QXNET_ERROR_MEMORY, QT_TRANSLATE_NOOP("DeviceErrors", "There is not enough memory.")},
    {QXNET_ERROR_TOO_MANY_SESSIONS,
     QT_TRANSLATE_NOOP("DeviceErrors", "Too many devices are connected at the same time.")},
    {QXNET_ERROR_CLOSED,
     QT_TRANSLATE_NOOP("DeviceErrors", "The connection to the device was closed during the operation.")},
    {QXNET_ERROR_BUFFER_TOO_SMALL,
     QT_TRANSLATE_NOOP("DeviceErrors", "The device's answer is larger than expected (%1 bytes).")},
    {QXNET_ERROR_TRUST_FILE,
     QT_TRANSLATE_NOOP("DeviceErrors",
                       "The file of known device certificates cannot be read or written (system error %1).")},

    {QXNET_ERROR_RESOLVE,
     QT_TRANSLATE_NOOP("DeviceErrors", "The device's host name cannot be found. Check its address.")},
    {QXNET_ERROR_UNREACHABLE,
     QT_TRANSLATE_NOOP("DeviceErrors",
                       "The device cannot be reached. Check its address, its port and the network.")},
    {QXNET_ERROR_CONNECT_TIMEOUT,
     QT_TRANSLATE_NOOP("DeviceErrors", "Connecting to the device took too long. Check whether it is "
                                       "switched on and its address is right.")},
    {QXNET_ERROR_ANSWER_TIMEOUT, QT_TRANSLATE_NOOP("DeviceErrors", "The device did not answer in time.")},
    {QXNET_ERROR_CONNECTION_LOST,
     QT_TRANSLATE_NOOP("DeviceErrors", "The connection to the device was lost.")},
    {QXNET_ERROR_TLS,
     QT_TRANSLATE_NOOP("DeviceErrors", "A secure connection to the device cannot be established.")},
    {QXNET_ERROR_CERTIFICATE_CHANGED,
     QT_TRANSLATE_NOOP("DeviceErrors", "The device's certificate has changed. It was replaced, or another "
                                       "device answers at its address.")},

    {QXNET_ERROR_NOT_A_DEVICE,
     QT_TRANSLATE_NOOP("DeviceErrors",
                       "There is no supported device at this address. Check the address and the port.")},
    {QXNET_ERROR_VERSION,
     QT_TRANSLATE_NOOP("DeviceErrors",
                       "The device uses version %1 of the protocol, which is not supported.")},
    {QXNET_ERROR_TOO_LONG, QT_TRANSLATE_NOOP("DeviceErrors", "The device's answer is too long.")},
    {QXNET_ERROR_WRONG_SIZE,
     QT_TRANSLATE_NOOP("DeviceErrors", "The device's answer has an unexpected size (%1 bytes).")},
    {QXNET_ERROR_UNREADABLE, QT_TRANSLATE_NOOP("DeviceErrors", "The device's answer cannot be understood.")},

    {QXNET_ERROR_PASSWORD, QT_TRANSLATE_NOOP("DeviceErrors", "The user name or the password is wrong.")},
    {QXNET_ERROR_LOCKED,
     QT_TRANSLATE_NOOP("DeviceErrors",
                       "The device has locked the user after too many wrong passwords. Try again later.")},
    {QXNET_ERROR_PERMISSION,
     QT_TRANSLATE_NOOP("DeviceErrors", "The device does not allow this to the user.")},
    {QXNET_ERROR_DEVICE_FULL,
     QT_TRANSLATE_NOOP("DeviceErrors", "The device does not accept any more logins at the moment.")},

    {QXNET_ERROR_NOT_SUPPORTED,
     QT_TRANSLATE_NOOP("DeviceErrors", "The device does not support this function.")},
    {QXNET_ERROR_CHANNEL, QT_TRANSLATE_NOOP("DeviceErrors", "The device does not have this channel.")},
    {QXNET_ERROR_VALUE, QT_TRANSLATE_NOOP("DeviceErrors", "The device does not accept one of the values.")},
    {QXNET_ERROR_BUSY, QT_TRANSLATE_NOOP("DeviceErrors", "The device is busy. Try again later.")},
    {QXNET_ERROR_DEVICE,
     QT_TRANSLATE_NOOP("DeviceErrors", "The device reports an internal fault (module %1).")},
    {QXNET_ERROR_STORAGE, QT_TRANSLATE_NOOP("DeviceErrors", "The device cannot save the change.")},

    {QXNET_ERROR_NO_AUDIO_INPUT,
     QT_TRANSLATE_NOOP("DeviceErrors", "No microphone or other sound input can be used.")},
    {QXNET_ERROR_AUDIO_STARTED,
     QT_TRANSLATE_NOOP("DeviceErrors", "The sound input is already being captured.")},
    {QXNET_ERROR_AUDIO_ENCODING,
     QT_TRANSLATE_NOOP("DeviceErrors", "The device's audio encoding (number %1) is not supported.")},
    {QXNET_ERROR_AUDIO_BUSY,
     QT_TRANSLATE_NOOP("DeviceErrors", "Somebody else is speaking through this voice channel.")},
};

const Row kReasons[] = {
    {0, QT_TRANSLATE_NOOP("DeviceErrors", "The operation succeeded.")},
    {5, QT_TRANSLATE_NOOP("DeviceErrors", "The device's audio encoding is not supported for broadcasts.")},
};

template<std::size_t Count>
const char* TextOf(const Row (&rows)[Count], std::int32_t number)
{
    const auto found = std::find_if(std::begin(rows), std::end(rows),
                                    [number](const Row& row) { return row.number == number; });
    return found != std::end(rows) ? found->text : nullptr;
}

} // namespace

QString CErrorInfoMgr::GetErrorInfoByCode(std::int32_t error1, std::int32_t error2)
{
    const char* const text = error1 == kDecidedHere ? TextOf(kReasons, error2) : TextOf(kErrors, error1);
    if (!text)
        return QCoreApplication::translate(kContext, QT_TRANSLATE_NOOP("DeviceErrors", "Error %1 (%2)"))
            .arg(error1)
            .arg(error2);
    const QString sentence = QCoreApplication::translate(kContext, text);
    return sentence.contains("%1") ? sentence.arg(error2) : sentence;
}

} // namespace UiDataController
