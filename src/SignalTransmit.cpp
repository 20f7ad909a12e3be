#include "SignalTransmit.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "Protocol/JSONStruct/LPC/LPCCommonJSONStruct.h"
#include "Protocol/JSONStruct/LPC/UserJSONStruct.h"
#include "Protocol/JSONStruct/LPC/WndJSONStruct.h"
#include "Protocol/JSONStruct/LoggableText.h"
#include "WndIdManager.h"
#include "logical/Communication/LPCClientPackage.h"
#include "logical/Communication/LPCNames.h"
#include "logical/System/CurrentUser.h"
#include "ui/Public/OpenPopups.h"

#include <array>

namespace video {

namespace {

using lpcclient::LPCCallBackData;
using protocol::LoggableText;

/// A method of the framework with the signal that carries it and the slot that does the work.
struct MethodRow
{
    const char* method;
    void (CSignalTransmit::*signal)(const LPCCallBackData&);
    void (CSignalTransmit::*slot)(const LPCCallBackData&);
};

using T = CSignalTransmit;

constexpr std::array<MethodRow, 15> kMethods = {{
    {"getWndHandle", &T::SignalGetWnd, &T::OnSignalGetWnd},
    {"showMenuWnd", &T::SingnalShowMenuWnd, &T::OnSingnalShowMenuWnd},
    {"widgetOperation", &T::SignalWidgetOperation, &T::OnSignalWidgetOperation},
    {"systemConfigPageChanged", &T::SignalSystemConfigPageChanged, &T::OnSignalSystemConfigPageChanged},
    {"systemConfigPageSave", &T::SignalSystemConfigPageSaved, &T::OnSignalSystemConfigPageSaved},
    {"showWnd", &T::SignalShowWnd, &T::OnSignalShowWnd},
    {"operateDownload", &T::SignalDownloadOperate, &T::OnSignalDownloadOperate},
    {"componentStateNotify", &T::SignalNotifyMainViewState, &T::OnSignalSetMainViewStateProgress},
    {"joystickKeyboardCtrl", &T::SignalJoystickKeyboardCtrl, &T::OnSignalJoystickKeyboardCtrl},
    {"joystickKeyboard3DPtzCtrl", &T::SignalJoystickKeyboard3DPtzCtrl, &T::OnSignalJoystickKeyboard3DPtzCtrl},
    {"getAuxiliaryScreenApp", &T::signalGetAuxiliaryScreenApp, &T::onGetAuxiliaryScreenApp},
    {"appTabRemoved", &T::signalCloseWnd, &T::onCloseWnd},
    {"switchUserStopWorking", &T::signalSwitchUserStopWorking, &T::onSwitchUserStopWorking},
    {"switchUserUpdateFrame", &T::signalSwitchUserUpdateFrame, &T::onSwitchUserUpdateFrame},
    {"frameworkMove", &T::signalFrameworkWindowMove, &T::onsignalFrameworkWindowMove},
}};

/// A method that carries nothing.
struct PlainMethodRow
{
    const char* method;
    void (CSignalTransmit::*signal)();
};

constexpr std::array<PlainMethodRow, 4> kPlainMethods = {{
    {lpc::kClientDisconnectedMethod, &T::SignalQuit},
    {"componentUninit", &T::SignalQuit},
    {"tabSwitch", &T::SignalTabSwitch},
    {"stopVideoVoiceTalk", &T::SignalStopVoiceTalk},
}};

/// A further live view that the framework can put on an auxiliary screen.
struct AuxiliaryScreenRow
{
    const char* view;
    const char* application;
};

constexpr std::array<AuxiliaryScreenRow, 3> kAuxiliaryScreens = {{
    {"SecondLiveView", "MainView2"},
    {"ThirdLiveView", "MainView3"},
    {"FourthLiveView", "MainView4"},
}};
constexpr const char* kAuxiliaryIcon = "image/MainView_32x32.png";
constexpr const char* kAuxiliarySelectedIcon = "image/MainView_sel_32x32.png";

const AuxiliaryScreenRow* AuxiliaryScreenOf(const std::string& view)
{
    for (const AuxiliaryScreenRow& row : kAuxiliaryScreens)
        if (view == row.view)
            return &row;
    return nullptr;
}

/// For a slot whose page this edition does not have.
void LogNotServed(const char* method)
{
    BASE_LIMITED(Base::CFaultLimit, BASE_INFO, "[%s] is not served.", method);
}

void LogNotServed(const LPCCallBackData& data)
{
    LogNotServed(data.Header(kMethodHeader).c_str());
}

} // namespace

CSignalTransmit::CSignalTransmit(CWndIdManager& windows, CCurrentUser& user, ReplyMethod reply)
    : m_windows(windows), m_user(user), m_reply(std::move(reply))
{
    qRegisterMetaType<LPCCallBackData>("lpcclient::LPCCallBackData");
    ConnectAll();
}

CSignalTransmit& CSignalTransmit::Instance()
{
    static CSignalTransmit* const transmitter =
        new CSignalTransmit(CWndIdManager::Instance(), CCurrentUser::Instance(),
                            [](const LPCCallBackData& call, const protocol::ILPCData& payload) {
                                return CLPCClientPackage::Instance().ReplyMethod(call, payload);
                            });
    return *transmitter;
}

void CSignalTransmit::ConnectAll()
{
    for (const MethodRow& row : kMethods)
        connect(this, row.signal, this, row.slot);
    connect(this, &T::SignalTabSwitch, this, [] { CloseOpenPopups(); });
    connect(this, &T::SignalStopVoiceTalk, this, [] { LogNotServed("stopVideoVoiceTalk"); });
}

void CSignalTransmit::ServeMethods(CRouteTable& methods)
{
    for (const MethodRow& row : kMethods)
        methods.Bind(row.method, [this, row](const LPCCallBackData& data) { emit(this->*row.signal)(data); });
    for (const PlainMethodRow& row : kPlainMethods)
        methods.Bind(row.method, [this, row](const LPCCallBackData& data) {
            // The event holds its call, as those of the other signals do, so that only so many wait.
            QMetaObject::invokeMethod(this, [this, row, data] { emit(this->*row.signal)(); });
        });
}

void CSignalTransmit::OnWebsocketNotify(const LPCCallBackData& data)
{
    emit SignalWebsocketNotify(data);
}

void CSignalTransmit::OnAlarmMessage(const LPCCallBackData& data)
{
    emit SignalAlarmMessage(data);
}

void CSignalTransmit::OnSignalGetWnd(const LPCCallBackData& data)
{
    protocol::GetWndHandleRequestData request;
    protocol::LPCRequestData envelope(request);
    if (!envelope.Parse(data.body))
        return;
    BASE_LIMITED(Base::CCallLimit, BASE_INFO, "Get wnd id Name:[%s].", LoggableText(request.type).c_str());
    if (envelope.method != request.Key())
        return;
    int wid = 0;
    if (!m_windows.GetWID(request.type, wid)) {
        BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "%s", "Get wnd id Error.");
        return;
    }
    BASE_LIMITED(Base::CCallLimit, BASE_INFO, "Get wnd Success id:[%d].", wid);
    protocol::GetWndHandleResponseData response;
    response.wndId = wid;
    if (!m_windows.IsAvailable(request.type))
        response.available = false;
    m_reply(data, response);
}

void CSignalTransmit::OnSignalShowWnd(const LPCCallBackData& data)
{
    protocol::ShowWndRequestData request;
    protocol::LPCRequestData envelope(request);
    if (!envelope.Parse(data.body))
        return;
    if (m_windows.ShowWnd(request.type))
        BASE_LIMITED(Base::CCallLimit, BASE_INFO, "Show Wnd[%s] Success", request.type.c_str());
    else
        BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "There is no window [%s] to show.",
                     LoggableText(request.type).c_str());
}

void CSignalTransmit::onGetAuxiliaryScreenApp(const LPCCallBackData& data)
{
    protocol::GetAuxiliaryScreenAppRequestData request;
    protocol::LPCRequestData envelope(request);
    if (!envelope.Parse(data.body))
        return;
    const std::string view = LoggableText(request.type);
    BASE_LIMITED(Base::CCallLimit, BASE_INFO, "GetAuxiliaryScreenApp APP-[%s]", view.c_str());
    bool replied = false;
    if (const AuxiliaryScreenRow* screen = AuxiliaryScreenOf(request.type)) {
        protocol::GetAuxiliaryScreenAppResponseData response;
        response.type = screen->view;
        response.appName = screen->application;
        response.icon = kAuxiliaryIcon;
        response.selectedIcon = kAuxiliarySelectedIcon;
        BASE_LIMITED(Base::CCallLimit, BASE_INFO, "Return AuxiliaryScreenApp APP-[%s]", view.c_str());
        replied = m_reply(data, response);
    }
    if (replied)
        BASE_LIMITED(Base::CCallLimit, BASE_INFO, "Return AuxiliaryScreenApp finished! APP-[%s]",
                     view.c_str());
    else
        BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "Return AuxiliaryScreenApp fail!!! APP-[%s]",
                     view.c_str());
}

void CSignalTransmit::OnSignalSetMainViewStateProgress(const LPCCallBackData& data)
{
    protocol::MainViewState state;
    protocol::LPCRequestData envelope(state);
    if (envelope.Parse(data.body))
        LogNotServed(data);
}

void CSignalTransmit::OnSingnalShowMenuWnd(const LPCCallBackData& data)
{
    LogNotServed(data);
}

void CSignalTransmit::OnSignalWidgetOperation(const LPCCallBackData& data)
{
    LogNotServed(data);
}

void CSignalTransmit::OnSignalSystemConfigPageChanged(const LPCCallBackData& data)
{
    LogNotServed(data);
}

void CSignalTransmit::OnSignalSystemConfigPageSaved(const LPCCallBackData& data)
{
    LogNotServed(data);
}

void CSignalTransmit::OnSignalDownloadOperate(const LPCCallBackData& data)
{
    LogNotServed(data);
}

void CSignalTransmit::OnSignalJoystickKeyboardCtrl(const LPCCallBackData& data)
{
    LogNotServed(data);
}

void CSignalTransmit::OnSignalJoystickKeyboard3DPtzCtrl(const LPCCallBackData& data)
{
    LogNotServed(data);
}

void CSignalTransmit::onCloseWnd(const LPCCallBackData& data)
{
    protocol::AppTabRemovedData removed;
    protocol::LPCRequestData envelope(removed);
    if (!envelope.Parse(data.body))
        return;
    CloseOpenPopups();
    if (m_windows.HideWnd(removed.type))
        BASE_LIMITED(Base::CCallLimit, BASE_INFO, "Hide Wnd[%s] Success", removed.type.c_str());
    else
        BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "There is no window [%s] to hide.",
                     LoggableText(removed.type).c_str());
}

void CSignalTransmit::onSwitchUserStopWorking(const LPCCallBackData& data)
{
    protocol::SwitchUserStopWorkingData leaving;
    protocol::LPCRequestData envelope(leaving);
    if (!envelope.Parse(data.body))
        return;
    BASE_LIMITED(Base::CCallLimit, BASE_INFO, "The user [%s] leaves: the pages stop working.",
                 LoggableText(leaving.userName).c_str());
    CloseModalDialogs();
    for (CComponentPage* page : m_windows.Pages())
        page->StopWorking();
}

void CSignalTransmit::onSwitchUserUpdateFrame(const LPCCallBackData& data)
{
    protocol::SwitchUserUpdateFrameData coming;
    protocol::LPCRequestData envelope(coming);
    if (!envelope.Parse(data.body))
        return;
    BASE_LIMITED(Base::CCallLimit, BASE_INFO, "The user is [%s] now, with %zu permissions.",
                 LoggableText(coming.userName).c_str(), coming.permissions.size());
    const User user{coming.userName, coming.permissions};
    m_user.Set(user);
    for (CComponentPage* page : m_windows.Pages())
        page->UpdateUser(user);
}

// Comes many times a second while a window is dragged: no log line. Where the pages are on the screen, the
// framework's side of the embedding tells each of them.
void CSignalTransmit::onsignalFrameworkWindowMove(const LPCCallBackData&)
{
    CloseOpenPopups();
}

} // namespace video
