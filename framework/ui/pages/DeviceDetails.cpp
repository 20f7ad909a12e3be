#include "framework/ui/pages/DeviceDetails.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/Badge.h"
#include "VantorGUIToolkit/Widgets/Banner.h"
#include "VantorGUIToolkit/Widgets/FormGrid.h"
#include "framework/ui/parts/DeviceText.h"

#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

#include <algorithm>

namespace framework {

using namespace VantorGUIToolkit;
using devices::SessionState;

namespace {

constexpr int kIconSize = Grid::Wide;

QString Number(std::size_t number)
{
    return QLocale().toString(static_cast<qulonglong>(number));
}

/// A text of the device, or a dash.
QString Or(const QString& text)
{
    return text.trimmed().isEmpty() ? QStringLiteral("–") : text;
}

Tone ToneOfChannel(int state)
{
    switch (state) {
    case QXNET_CHANNEL_ONLINE:
    case QXNET_CHANNEL_RECORDING:
        return Tone::Ok;
    case QXNET_CHANNEL_NOT_SUPPORTED:
        return Tone::Warn;
    default:
        return Tone::Error;
    }
}

std::size_t OnlineChannels(const devices::DeviceStatus& status)
{
    if (status.state != SessionState::Online)
        return 0;
    return static_cast<std::size_t>(
        std::count_if(status.channels.begin(), status.channels.end(),
                      [](const auto& channel) { return ToneOfChannel(channel.state) == Tone::Ok; }));
}

} // namespace

CDeviceDetails::CDeviceDetails(QWidget* parent)
    : QFrame(parent), m_icon(makeIconLabel("device", kIconSize, this)),
      m_title(makeLabel({}, TextRole::Heading, this)), m_state(new CBadge({}, Tone::Idle, this)),
      m_problem(new CBanner({}, Tone::Error, this)), m_channelTitle(makeLabel({}, TextRole::Plain, this)),
      m_channelState(new CBadge({}, Tone::Idle, this)), m_form(new CFormGrid(this))
{
    setObjectName("deviceDetails");
    setSurface(this, Surface::Card);
    m_title->setObjectName("deviceTitle");
    m_state->setObjectName("deviceState");
    m_problem->setObjectName("deviceProblem");
    m_channelState->setObjectName("channelState");
    m_problem->SetAction(tr("Try now"));
    connect(m_problem, &CBanner::SignalAction, this, &CDeviceDetails::TryNowRequested);
    alignToReading(m_title);
    alignToReading(m_channelTitle);
    auto* head = new QHBoxLayout;
    head->setSpacing(Grid::Small);
    head->addWidget(m_icon);
    head->addWidget(m_title, 1);
    head->addWidget(m_state);
    auto* channel = new QHBoxLayout;
    channel->setSpacing(Grid::Small);
    channel->addWidget(m_channelTitle, 1);
    channel->addWidget(m_channelState);
    m_address = AddRow(tr("Address"), "detailAddress");
    m_user = AddRow(tr("User"), "detailUser");
    m_type = AddRow(tr("Type"), "detailType");
    m_model = AddRow(tr("Model"), "detailModel");
    m_serial = AddRow(tr("Serial number"), "detailSerial");
    m_firmware = AddRow(tr("Firmware"), "detailFirmware");
    m_channels = AddRow(tr("Channels"), "detailChannels");
    m_contacts = AddRow(tr("Alarm inputs and outputs"), "detailContacts");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Grid::Wide, Grid::Wide, Grid::Wide, Grid::Wide);
    layout->setSpacing(Grid::Large);
    layout->addLayout(head);
    layout->addLayout(channel);
    layout->addWidget(m_problem);
    layout->addWidget(m_form);
    layout->addStretch();
}

QLabel* CDeviceDetails::AddRow(const QString& label, const char* name)
{
    QLabel* value = makeLabel({}, TextRole::Plain, this);
    value->setObjectName(name);
    value->setWordWrap(true);
    alignToReading(value);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_form->AddRow(label, value);
    return value;
}

void CDeviceDetails::Show(const protocol::DeviceResponseData& device, const devices::DeviceStatus& status,
                          const protocol::DeviceChannelInfo* channel)
{
    m_icon->setPixmap(icon(DeviceTypeIcon(device.typeCode)).pixmap(kIconSize, kIconSize));
    m_title->setText(QString::fromStdString(device.name));
    m_state->Set(TextOf(status.state), ToneOf(status.state));
    const bool isOffline = status.state == SessionState::Offline;
    if (isOffline)
        m_problem->Set(DeviceErrorText(status.error, status.moduleError), Tone::Error);
    m_problem->setVisible(isOffline);
    const QString address = AddressText(device.address, device.port);
    m_address->setText(device.useTls ? tr("%1, encrypted").arg(address) : address);
    m_user->setText(Or(QString::fromStdString(device.userName)));
    m_type->setText(device.typeCode == 0 ? Or({}) : DeviceTypeText(device.typeCode));
    ShowInfo(status);
    ShowChannel(status, channel);
}

void CDeviceDetails::ShowInfo(const devices::DeviceStatus& status)
{
    const QxNetDeviceInfo& info = status.info;
    const bool isKnown = info.size != 0;
    m_model->setText(Or(QString::fromUtf8(info.model)));
    m_serial->setText(Or(QString::fromUtf8(info.serial)));
    m_firmware->setText(Or(QString::fromUtf8(info.firmware)));
    m_channels->setText(
        isKnown ? tr("%1, online %2").arg(Number(status.channels.size()), Number(OnlineChannels(status)))
                : Or({}));
    m_contacts->setText(isKnown ? tr("%1 and %2").arg(Number(info.alarmInputs), Number(info.alarmOutputs))
                                : Or({}));
}

void CDeviceDetails::ShowChannel(const devices::DeviceStatus& status,
                                 const protocol::DeviceChannelInfo* channel)
{
    m_channelTitle->setVisible(channel != nullptr);
    m_channelState->setVisible(channel != nullptr);
    if (!channel)
        return;
    m_channelTitle->setText(
        tr("Channel %1: %2")
            .arg(QLocale().toString(channel->channelNo), QString::fromStdString(channel->name)));
    const auto place = static_cast<std::size_t>(channel->channelNo) - 1;
    if (status.state == SessionState::Connecting)
        return m_channelState->Set(TextOf(status.state), ToneOf(status.state));
    const bool isHeard = status.state == SessionState::Online && place < status.channels.size();
    const int state = isHeard ? status.channels[place].state : QXNET_CHANNEL_OFFLINE;
    m_channelState->Set(ChannelStateText(state), ToneOfChannel(state));
}

} // namespace framework
