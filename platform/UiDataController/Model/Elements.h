#pragma once

#include "UiDataController/Model/Camera.h"

#include <mutex>
#include <string>

namespace UiDataController {

/// What a camera and a storage server have in common: their element as the model last had it, until it was
/// removed. Any thread.
class CModelElement
{
public:
    CModelElement(ElementInfo element, const IDeviceLogins& logins);

    void Update(const ElementInfo& element);
    /// From here on the logins are not asked any more.
    void Detach();

    ElementInfo Element() const;
    DeviceInfoRecord Device() const;
    /// Of any device; kNoDevice for an empty identifier.
    std::int32_t Session(const QID& deviceId) const;
    /// Of the element's own device, which is there even when nobody can log in to it.
    std::int32_t OwnSession() const;

protected:
    mutable std::mutex m_mutex; ///< of everything, those of the derived classes included
    bool m_isRemoved = false;

private:
    ElementInfo m_element;
    const IDeviceLogins& m_logins;
};

class CCamera final : public CModelElement, public ICamera
{
public:
    using CModelElement::CModelElement;

    QID Id() const override { return Element().id; }
    QString DisplayName() const override { return Element().name; }
    DeviceInfoRecord DeviceInfo() const override { return Device(); }
    ElementState DeviceStatus() const override { return Element().state; }
    int ChannelNumber() const override { return Element().number; }
    std::int32_t Login(int whose) const override;
    QID LinkedServerId() const override { return LinkedServer().serverId; }
    bool SetLinkedServerId(const QID& serverId) override;
    LinkedStorageServer LinkedServer() const override;
    bool SetLinkedServer(const LinkedStorageServer& server) override;
    bool IsDeviceRecordEnabled() const override { return Get(m_recordEnabled); }
    bool SetDeviceRecordEnabled(bool enabled) override { return Set(m_recordEnabled, enabled); }
    bool IsCaptureEnabled() const override { return Get(m_captureEnabled); }
    bool SetCaptureEnabled(bool enabled) override { return Set(m_captureEnabled, enabled); }

private:
    bool Get(const bool& flag) const;
    bool Set(bool& flag, bool value);

    LinkedStorageServer m_server;
    bool m_recordEnabled = false;
    bool m_captureEnabled = false;
};

class CTask final : public CModelElement, public ITask
{
public:
    CTask(ElementInfo element, const IDeviceLogins& logins, QString address);

    QID Id() const override { return Element().id; }
    QString DisplayName() const override { return Element().name; }
    QString Address() const override { return m_address; }
    DeviceInfoRecord DeviceInfo() const override { return Device(); }
    ElementState DeviceStatus() const override { return Element().state; }
    std::int32_t Login() const override { return OwnSession(); }

private:
    const QString m_address;
};

} // namespace UiDataController
