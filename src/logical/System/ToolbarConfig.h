#pragma once

#include "Base/Noncopyable.h"
#include "Base/ObserverRegistry.h"
#include "VideoInterfaces/IToolbarConfig.h"
#include "logical/System/DatabaseSession/ToolbarSession.h"

#include <functional>

namespace video {

/// The component's one owner of the toolbar's layout. GUI thread, but for Load and the observers.
///
/// The settings page changes the layout that Working gives and calls Apply.
class CToolbarConfig : public vantor::IToolbarConfig, Base::CNoncopyable
{
public:
    /// As with CSystemConfig.
    CToolbarConfig(CBaseDBConn& connection, Base::CMessageLoop& notifications,
                   std::function<void()> announce);

    /// At start-up, before anybody else uses the object.
    void Load();

    vantor::ToolbarStruct& Working() { return m_working; }

    /// Tells the observers, saves and announces; nothing of it when the layout is the saved one. A database
    /// error has its line in the log and is not tried again.
    void Apply();

    /// Empties the table, which is the default layout, and announces. The observers are told when the layout
    /// changes by it.
    void RestoreDefaults();

    const vantor::ToolbarStruct& Layout() const override { return m_working; }
    bool AddObserver(vantor::IToolbarConfigObserver* observer) override { return m_observers.Add(observer); }
    bool RemoveObserver(vantor::IToolbarConfigObserver* observer) override
    {
        return m_observers.Remove(observer);
    }
    bool RemoveObserverUnchecked(vantor::IToolbarConfigObserver* observer) override
    {
        return m_observers.RemoveUnchecked(observer);
    }

private:
    ToolbarSession m_session;
    const std::function<void()> m_announce;
    vantor::ToolbarStruct m_working;
    vantor::ToolbarStruct m_saved;
    Base::CPostedObservers<vantor::IToolbarConfigObserver,
                           &vantor::IToolbarConfigObserver::OnToolbarConfigChanged>
        m_observers;
};

} // namespace video
