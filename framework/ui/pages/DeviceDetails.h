#pragma once

#include "DeviceSessions/DeviceSessions.h"
#include "Protocol/JSONStruct/HTTP/DeviceJSONStruct.h"

#include <QFrame>

class QLabel;

namespace VantorGUIToolkit {
class CBadge;
class CBanner;
class CFormGrid;
} // namespace VantorGUIToolkit

namespace framework {

/// What there is to know of one device, and of the channel of it that is chosen. GUI thread.
class CDeviceDetails : public QFrame
{
    Q_OBJECT

public:
    explicit CDeviceDetails(QWidget* parent);

    /// channel: null when the device itself is chosen.
    void Show(const protocol::DeviceResponseData& device, const devices::DeviceStatus& status,
              const protocol::DeviceChannelInfo* channel);

signals:
    void TryNowRequested();

private:
    QLabel* AddRow(const QString& label, const char* name);
    void ShowInfo(const devices::DeviceStatus& status);
    void ShowChannel(const devices::DeviceStatus& status, const protocol::DeviceChannelInfo* channel);

    QLabel* m_icon;
    QLabel* m_title;
    VantorGUIToolkit::CBadge* m_state;
    VantorGUIToolkit::CBanner* m_problem;
    QLabel* m_channelTitle;
    VantorGUIToolkit::CBadge* m_channelState;
    VantorGUIToolkit::CFormGrid* m_form;
    QLabel* m_address;
    QLabel* m_user;
    QLabel* m_type;
    QLabel* m_model;
    QLabel* m_serial;
    QLabel* m_firmware;
    QLabel* m_channels;
    QLabel* m_contacts;
};

} // namespace framework
