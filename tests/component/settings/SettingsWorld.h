#pragma once

#include "component/store/RecordsWorld.h"
#include "logical/System/SystemConfig.h"

#include <atomic>
#include <future>
#include <mutex>

/// Settings on a real table, and what they tell others.
namespace settings {

struct Database
{
    TestDataRoot root;
    const std::string failure = store::BringUpToDate(root.Path());
    video::CBaseDBConn connection{root.Path(), "VideoSystem"};

    Database() { EXPECT_EQ(failure, ""); }

    std::string Ask(const std::string& sql) const
    {
        return store::Query(root.Path() + "VideoSystem", "", sql);
    }
    void Run(const std::string& sql) { EXPECT_TRUE(connection.Execute(sql)) << sql; }
    /// Makes every statement of the kind ("DELETE", "INSERT") on the table fail.
    void Refuse(const std::string& kind, const std::string& table)
    {
        Run("CREATE TRIGGER Refused BEFORE " + kind + " ON " + table +
            " BEGIN SELECT RAISE(ABORT, 'refused'); END");
    }
};

struct KeptFolders : vantor::ILocalDataPath
{
    vantor::SaveFolders Folders() const override { return folders; }
    void SetFolders(const vantor::SaveFolders& value) override { folders = value; }

    vantor::SaveFolders folders{"/chosen/video", "/chosen/capture"};
};

/// Notes the types of the notifications that it hears, joined by blanks.
template<typename Interface>
class Listener : public Interface
{
public:
    std::string heard; ///< after Deliver

protected:
    void Note(std::int32_t type) { heard += (heard.empty() ? "" : " ") + std::to_string(type); }
};

/// Waits until the loop has called the observers of what was posted before.
inline void Deliver(Base::CMessageLoop& loop)
{
    std::promise<void> done;
    loop.PostTask([&] { done.set_value(); });
    ASSERT_EQ(done.get_future().wait_for(std::chrono::seconds(10)), std::future_status::ready);
}

struct World : Database
{
    struct Observer : Listener<vantor::IVideoSystemConfigObserver>
    {
        void OnVideoSystemConfigChanged(const Param& param) override
        {
            Note(param.type);
            ++count;
        }
        std::atomic<int> count{0};
    };

    Observer observer; ///< outlives those who call it
    KeptFolders folders;
    Base::CMessageLoop loop{"notify"};
    std::atomic<int> sent{0};
    std::mutex lastSent;
    std::string scaleWhenSent; ///< what the table held when the change was announced
    video::CSystemConfig config{connection, folders, loop, {"/default/video", "/default/capture"}, [this] {
                                    const std::lock_guard<std::mutex> lock(lastSent);
                                    scaleWhenSent = Ask("SELECT DisplayScale FROM VideoSystemConfigTable");
                                    ++sent;
                                }};

    World()
    {
        config.Load();
        config.AddObserver(&observer);
    }
};

/// A value that the field takes and that is not its default.
template<typename M>
M OtherValue(const video::SettingField<M>& field)
{
    if constexpr (std::is_same_v<M, bool>)
        return !field.byDefault;
    else
        return field.byDefault == field.take[0].greatest ? field.take[0].least : field.take[0].greatest;
}

} // namespace settings
