#pragma once

#include "LPC_Client/LPC_Client.h"
#include "Protocol/JSONStruct/IJSONStruct.h"

#include <QMetaType>
#include <QObject>

#include <functional>
#include <string>

Q_DECLARE_METATYPE(lpcclient::LPCCallBackData)

namespace video {

class CCurrentUser;
class CRouteTable;
class CWndIdManager;

/// Brings method calls of the framework to the GUI thread.
///
/// It lives on the GUI thread. The handlers that it puts into the method table run on worker threads and only
/// emit a signal; the slot connected to it runs on the GUI thread, in the order of emission, with a copy of
/// the call.
class CSignalTransmit : public QObject
{
    Q_OBJECT

public:
    /// Answers a method call with a payload; see CLPCClientPackage::ReplyMethod.
    using ReplyMethod =
        std::function<bool(const lpcclient::LPCCallBackData& call, const protocol::ILPCData& payload)>;

    /// All must outlive this object. Registers the calls' meta-type and connects the signals.
    CSignalTransmit(CWndIdManager& windows, CCurrentUser& user, ReplyMethod reply);

    /// The process's transmitter, created by the first call, which must come from the GUI thread.
    static CSignalTransmit& Instance();

    /// Puts a row for every method that this object serves into the table.
    void ServeMethods(CRouteTable& methods);

    /// Entries for websocket notifications and alarm messages; any thread.
    void OnWebsocketNotify(const lpcclient::LPCCallBackData& data);
    void OnAlarmMessage(const lpcclient::LPCCallBackData& data);

signals:
    void SignalGetWnd(const lpcclient::LPCCallBackData& data);
    void SingnalShowMenuWnd(const lpcclient::LPCCallBackData& data);
    void SignalWidgetOperation(const lpcclient::LPCCallBackData& data);
    void SignalSystemConfigPageChanged(const lpcclient::LPCCallBackData& data);
    void SignalSystemConfigPageSaved(const lpcclient::LPCCallBackData& data);
    void SignalShowWnd(const lpcclient::LPCCallBackData& data);
    void SignalDownloadOperate(const lpcclient::LPCCallBackData& data);
    void SignalNotifyMainViewState(const lpcclient::LPCCallBackData& data);
    void SignalJoystickKeyboardCtrl(const lpcclient::LPCCallBackData& data);
    void SignalJoystickKeyboard3DPtzCtrl(const lpcclient::LPCCallBackData& data);
    void signalGetAuxiliaryScreenApp(const lpcclient::LPCCallBackData& data);
    void signalCloseWnd(const lpcclient::LPCCallBackData& data);
    void signalSwitchUserStopWorking(const lpcclient::LPCCallBackData& data);
    void signalSwitchUserUpdateFrame(const lpcclient::LPCCallBackData& data);
    void signalFrameworkWindowMove(const lpcclient::LPCCallBackData& data);

    /// The framework ended the component, or is gone.
    void SignalQuit();
    void SignalTabSwitch();
    void SignalStopVoiceTalk();

    void SignalWebsocketNotify(const lpcclient::LPCCallBackData& data);
    void SignalAlarmMessage(const lpcclient::LPCCallBackData& data);

public slots:
    void OnSignalGetWnd(const lpcclient::LPCCallBackData& data);
    void OnSingnalShowMenuWnd(const lpcclient::LPCCallBackData& data);
    void OnSignalWidgetOperation(const lpcclient::LPCCallBackData& data);
    void OnSignalSystemConfigPageChanged(const lpcclient::LPCCallBackData& data);
    void OnSignalSystemConfigPageSaved(const lpcclient::LPCCallBackData& data);
    void OnSignalShowWnd(const lpcclient::LPCCallBackData& data);
    void OnSignalDownloadOperate(const lpcclient::LPCCallBackData& data);
    void OnSignalSetMainViewStateProgress(const lpcclient::LPCCallBackData& data);
    void OnSignalJoystickKeyboardCtrl(const lpcclient::LPCCallBackData& data);
    void OnSignalJoystickKeyboard3DPtzCtrl(const lpcclient::LPCCallBackData& data);
    void onGetAuxiliaryScreenApp(const lpcclient::LPCCallBackData& data);
    void onCloseWnd(const lpcclient::LPCCallBackData& data);
    void onSwitchUserStopWorking(const lpcclient::LPCCallBackData& data);
    void onSwitchUserUpdateFrame(const lpcclient::LPCCallBackData& data);
    void onsignalFrameworkWindowMove(const lpcclient::LPCCallBackData& data);

private:
    void ConnectAll();

    CWndIdManager& m_windows;
    CCurrentUser& m_user;
    ReplyMethod m_reply;
};

} // namespace video
