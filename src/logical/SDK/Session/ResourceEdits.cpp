#include "logical/SDK/Session/ResourceEdits.h"

#include "UiDataController/Errors/ErrorInfoMgr.h"

namespace video {

namespace {

using UiDataController::ElementState;

ElementState StateOf(const devices::DeviceStatus& status)
{
    switch (status.state) {
    case devices::SessionState::Online:
        return ElementState::Online;
    case devices::SessionState::Connecting:
        return ElementState::Connecting;
    case devices::SessionState::Offline:
        break;
    }
    return status.error == QXNET_ERROR_VERSION ? ElementState::NotSupported : ElementState::Offline;
}

/// A number that a later device may give is no state that we could show.
ElementState StateOf(const devices::ChannelState& channel)
{
    switch (channel.state) {
    case QXNET_CHANNEL_ONLINE:
        return ElementState::Online;
    case QXNET_CHANNEL_RECORDING:
        return ElementState::Recording;
    case QXNET_CHANNEL_NOT_SUPPORTED:
        return ElementState::NotSupported;
    default:
        return ElementState::Offline;
    }
}

QString Problem(std::uint32_t error, std::uint32_t moduleError)
{
    return UiDataController::CErrorInfoMgr::GetErrorInfoByCode(static_cast<std::int32_t>(error),
                                                               static_cast<std::int32_t>(moduleError));
}

} // namespace

UiDataController::DeviceResource ResourceOf(const protocol::DeviceResponseData& device)
{
    return {QString::fromStdString(device.guid), QString::fromStdString(device.name),
            QString::fromStdString(device.address), device.typeCode, device.subType};
}

UiDataController::ChannelResource ResourceOf(const protocol::DeviceChannelInfo& channel)
{
    return {QString::fromStdString(channel.guid), QString::fromStdString(channel.deviceGuid),
            QString::fromStdString(channel.groupGuid), QString::fromStdString(channel.name),
            channel.channelNo};
}

void AppendEdits(const protocol::GroupInfo& group, UiDataController::ModelEdits& edits)
{
    const QString id = QString::fromStdString(group.guid);
    edits.push_back(UiDataController::GroupResource{id, QString::fromStdString(group.parentGuid),
                                                    QString::fromStdString(group.name)});
    if (group.channelGuids.empty())
        return;
    UiDataController::GroupMembers members{id, {}};
    for (const std::string& channel : group.channelGuids)
        members.channelIds.push_back(QString::fromStdString(channel));
    edits.push_back(std::move(members));
}

devices::DeviceAddress AddressOf(const protocol::DeviceResponseData& device)
{
    return {device.guid, device.address, device.port, device.userName, device.password, device.useTls};
}

UiDataController::DeviceHeard HeardOf(const devices::DeviceStatus& status)
{
    UiDataController::DeviceHeard heard;
    heard.deviceId = QString::fromStdString(status.id);
    heard.state = StateOf(status);
    if (status.state == devices::SessionState::Offline)
        heard.problem = Problem(status.error, status.moduleError);
    heard.typeCode = static_cast<int>(status.info.typeCode);
    heard.subType = static_cast<int>(status.info.subType);
    for (const devices::ChannelState& channel : status.channels)
        heard.channels.push_back({channel.number, StateOf(channel), QString::fromStdString(channel.name)});
    return heard;
}

UiDataController::DeviceHeard WithoutUser(const std::string& deviceId)
{
    UiDataController::DeviceHeard heard;
    heard.deviceId = QString::fromStdString(deviceId);
    heard.state = ElementState::Offline;
    heard.problem = Problem(QXNET_ERROR_PASSWORD, 0);
    return heard;
}

} // namespace video
