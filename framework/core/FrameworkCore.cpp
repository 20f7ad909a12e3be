#include "framework/core/FrameworkCore.h"

#include "Protocol/JSONStruct/LPC/WndJSONStruct.h"
#include "framework/core/FrameworkParts.h"

namespace framework {

namespace {

/// Routes that the component serves.
constexpr const char* kLocalFile = "/vantor/v1/internal/video/locaFile";
constexpr const char* kVideoFileNotify = "/vantor/v1/internal/video/videoFileNotify";
constexpr const char* kLocalFileQuery = "/vantor/v1/internal/video/localFileQuery";

} // namespace

const char* NameOf(ComponentState state)
{
    switch (state) {
    case ComponentState::Stopped:
        return "stopped";
    case ComponentState::Starting:
        return "starting";
    case ComponentState::Ready:
        return "ready";
    case ComponentState::Waiting:
        return "waiting";
    case ComponentState::GivenUp:
        return "given up";
    }
    return "";
}

CFrameworkCore::CFrameworkCore(IFrameworkEvents& events, FrameworkOptions options)
    : m_parts(std::make_unique<FrameworkParts>(events, std::move(options)))
{}

CFrameworkCore::~CFrameworkCore()
{
    Stop();
}

bool CFrameworkCore::Start(std::string& error)
{
    return m_parts->Start(error);
}

void CFrameworkCore::StartComponent()
{
    m_parts->Supervise(&CSupervisor::Start);
}

void CFrameworkCore::StopComponent()
{
    m_parts->Supervise(&CSupervisor::Stop);
}

void CFrameworkCore::RestartComponent()
{
    m_parts->Supervise(&CSupervisor::Restart);
}

void CFrameworkCore::Stop()
{
    m_parts->Stop();
}

ComponentState CFrameworkCore::State() const
{
    return m_parts->state;
}

void CFrameworkCore::GetWndHandle(const std::string& name, WindowAnswer onAnswer)
{
    m_parts->GetWndHandle(name, std::move(onAnswer));
}

void CFrameworkCore::ShowWnd(const std::string& name)
{
    protocol::ShowWndRequestData show;
    show.type = name;
    m_parts->link.Notify(show);
}

void CFrameworkCore::TabRemoved(const std::string& name)
{
    protocol::AppTabRemovedData removed;
    removed.type = name;
    m_parts->link.Notify(removed);
}

void CFrameworkCore::TabSwitched(const std::string& name)
{
    protocol::TabSwitchData tab;
    tab.type = name;
    m_parts->link.Notify(tab);
}

void CFrameworkCore::WindowMoved(int x, int y)
{
    protocol::FrameworkMoveData move;
    move.x = x;
    move.y = y;
    m_parts->loop.Post([parts = m_parts.get(), move] { parts->moves.Put(move); });
}

void CFrameworkCore::QueryLocalFiles(const protocol::LocalFileQuery& query,
                                     OnAsked<protocol::LocalFileQueryResult> onAnswer)
{
    m_parts->AskComponent(kLocalFileQuery, query, std::move(onAnswer));
}

void CFrameworkCore::ResolveLocalFile(const protocol::LocalFile& file,
                                      OnAsked<protocol::LocalFileResult> onAnswer)
{
    m_parts->AskComponent(kLocalFile, file, std::move(onAnswer));
}

void CFrameworkCore::ReportLocalFile(const protocol::LocalFileNotify& file,
                                     OnAsked<protocol::FileNotifyResult> onAnswer)
{
    m_parts->AskComponent(kVideoFileNotify, file, std::move(onAnswer));
}

bool CFrameworkCore::SwitchUser(const std::string& name, const std::string& password)
{
    return m_parts->SwitchUser(name, password);
}

void CFrameworkCore::RaiseAlarm(const std::string& deviceGuid, const std::string& text)
{
    m_parts->RaiseAlarm(deviceGuid, text);
}

CResources& CFrameworkCore::Resources()
{
    return *m_parts->resources;
}

CDeviceLinks& CFrameworkCore::Devices()
{
    return *m_parts->devices;
}

CUsers& CFrameworkCore::Users()
{
    return *m_parts->users;
}

CFrameworkSettings& CFrameworkCore::Settings()
{
    return *m_parts->settings;
}

CJournal& CFrameworkCore::Operations()
{
    return *m_parts->operations;
}

CJournal& CFrameworkCore::Notices()
{
    return *m_parts->notices;
}

} // namespace framework
