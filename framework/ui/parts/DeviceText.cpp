#include "framework/ui/parts/DeviceText.h"

#include "UiDataController/Errors/ErrorInfoMgr.h"
#include "framework/core/Resources.h"

#include <QCoreApplication>

#include <algorithm>

namespace framework {

namespace {

using VantorGUIToolkit::Tone;

struct TypeLook
{
    int typeCode;
    const char* text;
    const char* icon;
};

constexpr TypeLook kTypes[] = {
    {UnknownDevice, QT_TRANSLATE_NOOP("DeviceText", "Device"), "device"},
    {Encoder, QT_TRANSLATE_NOOP("DeviceText", "Encoder"), "device"},
    {Recorder, QT_TRANSLATE_NOOP("DeviceText", "Recorder"), "recorder"},
    {StorageServer, QT_TRANSLATE_NOOP("DeviceText", "Storage server"), "storage"},
};

const TypeLook& LookOf(int typeCode)
{
    const auto look = std::find_if(std::begin(kTypes), std::end(kTypes),
                                   [&](const auto& each) { return each.typeCode == typeCode; });
    return look == std::end(kTypes) ? kTypes[0] : *look;
}

QString Text(const char* key)
{
    return QCoreApplication::translate("DeviceText", key);
}

} // namespace

QString TextOf(devices::SessionState state)
{
    switch (state) {
    case devices::SessionState::Online:
        return Text(QT_TRANSLATE_NOOP("DeviceText", "Online"));
    case devices::SessionState::Offline:
        return Text(QT_TRANSLATE_NOOP("DeviceText", "Offline"));
    case devices::SessionState::Connecting:
        break;
    }
    return Text(QT_TRANSLATE_NOOP("DeviceText", "Connecting"));
}

Tone ToneOf(devices::SessionState state)
{
    switch (state) {
    case devices::SessionState::Online:
        return Tone::Ok;
    case devices::SessionState::Offline:
        return Tone::Error;
    case devices::SessionState::Connecting:
        break;
    }
    return Tone::Info;
}

QString ChannelStateText(int state)
{
    switch (state) {
    case QXNET_CHANNEL_ONLINE:
        return Text(QT_TRANSLATE_NOOP("DeviceText", "Online"));
    case QXNET_CHANNEL_RECORDING:
        return Text(QT_TRANSLATE_NOOP("DeviceText", "Recording"));
    case QXNET_CHANNEL_NOT_SUPPORTED:
        return Text(QT_TRANSLATE_NOOP("DeviceText", "Not supported by its device"));
    default:
        return Text(QT_TRANSLATE_NOOP("DeviceText", "Offline"));
    }
}

QString DeviceErrorText(std::uint32_t error, std::uint32_t moduleError)
{
    return error == 0 ? QString()
                      : UiDataController::CErrorInfoMgr::GetErrorInfoByCode(
                            static_cast<std::int32_t>(error), static_cast<std::int32_t>(moduleError));
}

bool IsOutOfReach(std::uint32_t error)
{
    return error >= QXNET_ERROR_RESOLVE && error <= QXNET_ERROR_CONNECTION_LOST;
}

QString DeviceTypeText(int typeCode)
{
    return Text(LookOf(typeCode).text);
}

QString DeviceTypeIcon(int typeCode)
{
    return LookOf(typeCode).icon;
}

QString AddressText(const std::string& address, int port)
{
    const QString host = QString::fromStdString(address);
    const QString form = host.contains(':') ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2");
    return form.arg(host).arg(port);
}

} // namespace framework
