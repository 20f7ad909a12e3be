#pragma once

#include "UiDataController/Model/DeviceLogins.h"
#include "UiDataController/Model/Element.h"

namespace UiDataController {

/// Whose session the login accessor of a camera gives.
constexpr int kLoginOfDevice = 0;
constexpr int kLoginOfStorageServer = 1;

/// What is known of the device behind an element.
struct DeviceInfoRecord
{
    QID deviceId;
    int typeCode = 0; ///< kind of device, as the device SDK numbers it
    int subType = 0;
};

/// The storage server that records a camera.
struct LinkedStorageServer
{
    QID serverId; ///< empty: none
    QString name;
    QString address;
    QString diskGroupName;
    int diskGroup = -1; ///< from 0; -1: none chosen

    bool operator==(const LinkedStorageServer& other) const;
};

/// A camera channel of the logic model. Any thread; nothing here waits for a device. A camera that was
/// removed from the model meanwhile keeps the values that it had; its login is kNoDevice and it can't be
/// changed any more.
class ICamera
{
public:
    virtual ~ICamera() = default;

    virtual QID Id() const = 0;
    virtual QString DisplayName() const = 0;
    virtual DeviceInfoRecord DeviceInfo() const = 0;
    virtual ElementState DeviceStatus() const = 0;
    /// At the device, from 1.
    virtual int ChannelNumber() const = 0;

    /// The login handle at this moment. whose: kLoginOfDevice or kLoginOfStorageServer, which is kNoDevice
    /// when no server is linked.
    virtual std::int32_t Login(int whose) const = 0;

    virtual QID LinkedServerId() const = 0;
    /// Another server begins without the details of the former one. The setters here give false for a camera
    /// that was removed.
    [[nodiscard]] virtual bool SetLinkedServerId(const QID& serverId) = 0;
    virtual LinkedStorageServer LinkedServer() const = 0;
    [[nodiscard]] virtual bool SetLinkedServer(const LinkedStorageServer& server) = 0;

    /// The enable boxes of recording and of capture at the device, as the user last stored them.
    virtual bool IsDeviceRecordEnabled() const = 0;
    [[nodiscard]] virtual bool SetDeviceRecordEnabled(bool enabled) = 0;
    virtual bool IsCaptureEnabled() const = 0;
    [[nodiscard]] virtual bool SetCaptureEnabled(bool enabled) = 0;
};

/// A storage server of the logic model, under the rules of ICamera.
class ITask
{
public:
    virtual ~ITask() = default;

    virtual QID Id() const = 0;
    virtual QString DisplayName() const = 0;
    virtual QString Address() const = 0;
    virtual DeviceInfoRecord DeviceInfo() const = 0;
    virtual ElementState DeviceStatus() const = 0;
    virtual std::int32_t Login() const = 0;
};

} // namespace UiDataController
