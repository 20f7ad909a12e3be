#pragma once

#include "logical/Local/DatabaseSession/BaseDBConn.h"
#include "logical/System/SystemConfig.h"
#include "store/StoreWorld.h"
#include "support/CapturedLog.h"
#include "support/TestDataRoot.h"

#include <future>
#include <mutex>
#include <string>
#include <vector>

/// What happened, in its order, as words. Any thread.
class Happenings
{
public:
    void Add(std::string word)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_words.push_back(std::move(word));
    }
    /// What happened since the last call, joined by blanks.
    std::string Take()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        std::string text;
        for (const std::string& word : m_words)
            text += (text.empty() ? "" : " ") + word;
        m_words.clear();
        return text;
    }

private:
    std::mutex m_mutex;
    std::vector<std::string> m_words;
};

class KeptFolders : public vantor::ILocalDataPath
{
public:
    vantor::SaveFolders Folders() const override { return m_folders; }
    void SetFolders(const vantor::SaveFolders& folders) override { m_folders = folders; }

private:
    vantor::SaveFolders m_folders{"/chosen/video", "/chosen/capture"};
};

class SettingsObserver : public vantor::IVideoSystemConfigObserver
{
public:
    explicit SettingsObserver(Happenings& happenings) : m_happenings(happenings) {}
    void OnVideoSystemConfigChanged(const Param& param) override
    {
        m_happenings.Add("type " + std::to_string(param.type));
    }

private:
    Happenings& m_happenings;
};

/// A database with the component's tables as the schema script makes them.
class SettingsDatabase
{
public:
    SettingsDatabase()
    {
        const std::string script = std::string(VANTOR_SOURCE_DIR) + "/maintain/VideoSystem/0001_create_tables.sql";
        store::Write(Path(), "", store::ReadAll(script));
    }

    std::string Path() const { return m_root.Path() + "VideoSystem"; }
    void Run(const std::string& script) { store::Write(Path(), "", script); }
    std::string Query(const std::string& sql) const { return store::Query(Path(), "", sql); }

private:
    TestDataRoot m_root;

public:
    video::CBaseDBConn connection{m_root.Path(), "VideoSystem"};
};

/// The settings in front of a real table. The loop is stopped by Told, so that its order can be compared.
struct SettingsWorld : SettingsDatabase
{
    Happenings happenings;
    KeptFolders folders;
    Base::CMessageLoop loop{"notify"};
    /// How many rows with the value the table held when the change was announced.
    std::string announcedQuery = "SELECT count(*) FROM VideoSystemConfigTable";
    video::CSystemConfig config{connection, folders, loop, {"/default/video", "/default/capture"}, [this] {
                                    happenings.Add("sent with rows " + Query(announcedQuery));
                                }};
    SettingsObserver observer{happenings};

    SettingsWorld()
    {
        config.Load();
        config.AddObserver(&observer);
    }

    /// Waits until what was posted before has been delivered.
    void Deliver()
    {
        std::promise<void> done;
        loop.PostTask([&] { done.set_value(); });
        ASSERT_EQ(done.get_future().wait_for(std::chrono::seconds(10)), std::future_status::ready);
    }
    std::string Happened()
    {
        Deliver();
        return happenings.Take();
    }
};
