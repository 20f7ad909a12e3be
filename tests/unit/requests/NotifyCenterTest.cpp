#include "ClientCommonLogical/NotifyCenterManager.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

namespace {

using clientcommon::CNotifyCenterManager;
using Texts = std::vector<std::string>;

CNotifyCenterManager::Notify NotifyOf(const std::string& type, const std::string& guid)
{
    auto notify = std::make_shared<protocol::WebSocketNotifyData>();
    notify->type = type;
    notify->guid = guid;
    return notify;
}

/// A centre on its own loop, and what its handlers saw. Stopping the loop waits for all deliveries.
class NotifyCenter : public ::testing::Test
{
protected:
    CNotifyCenterManager::Handler Seeing(const std::string& who)
    {
        return [this, who](const protocol::WebSocketNotifyData& notify) {
            seen.push_back(who + ":" + notify.guid);
        };
    }

    Base::CMessageLoop loop{"test"};
    CNotifyCenterManager center{loop};
    Texts seen; ///< written on the loop, read after its stop
    Base::details::CWeakPtrBase anchor;
};

TEST_F(NotifyCenter, DeliversInOrderOfArrivalAndRegistration)
{
    center.RegisterHandler("a", anchor.Ref(), Seeing("first"));
    center.RegisterHandler("b", anchor.Ref(), Seeing("other"));
    center.RegisterHandler("a", anchor.Ref(), Seeing("second"));
    for (const char* type : {"a", "b", "a"})
        center.addNotify(NotifyOf(type, type));
    loop.Stop();
    EXPECT_EQ(seen, (Texts{"first:a", "second:a", "other:b", "first:a", "second:a"}));
}

TEST_F(NotifyCenter, DeliversOnTheLoop)
{
    std::thread::id caller;
    center.RegisterHandler("a", anchor.Ref(), [&](const auto&) { caller = std::this_thread::get_id(); });
    center.addNotify(NotifyOf("a", "1"));
    loop.Stop();
    EXPECT_NE(caller, std::this_thread::get_id());
    EXPECT_NE(caller, std::thread::id());
}

TEST_F(NotifyCenter, LogsWhatNobodyHandles)
{
    center.RegisterHandler("a", anchor.Ref(), Seeing("first"));
    const CapturedLog log;
    center.addNotify(NotifyOf("A", "1"));
    center.addNotify(NotifyOf("", "2"));
    center.addNotify(nullptr);
    loop.Stop();
    EXPECT_TRUE(seen.empty());
    EXPECT_EQ(log.Messages(Base::LogLevel::Debug),
              (Texts{"Nobody handles the notification [A].", "Nobody handles the notification []."}));
}

TEST_F(NotifyCenter, LetsGoUncalledOfTheHandlerOfAnOwnerThatIsGone)
{
    const auto held = std::make_shared<int>(0);
    auto owner = std::make_unique<Base::details::CWeakPtrBase>();
    center.RegisterHandler("a", owner->Ref(), [this, held](const auto&) { seen.push_back("gone"); });
    center.RegisterHandler("a", anchor.Ref(), Seeing("here"));
    owner.reset();
    center.addNotify(NotifyOf("a", "1"));
    loop.Stop();
    EXPECT_EQ(seen, Texts{"here:1"});
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(NotifyCenter, AllowsChangesFromWithinAHandler)
{
    CNotifyCenterManager::HandlerId self = 0;
    CNotifyCenterManager::HandlerId next = 0;
    self = center.RegisterHandler("a", anchor.Ref(), [&](const auto& notify) {
        Seeing("self")(notify);
        center.UnregisterHandler(self);
        center.UnregisterHandler(next);
        center.RegisterHandler("a", anchor.Ref(), Seeing("added"));
    });
    next = center.RegisterHandler("a", anchor.Ref(), Seeing("next"));
    center.RegisterHandler("a", anchor.Ref(), Seeing("last"));
    center.addNotify(NotifyOf("a", "1"));
    center.addNotify(NotifyOf("a", "2"));
    loop.Stop();
    EXPECT_EQ(seen, (Texts{"self:1", "last:1", "last:2", "added:2"}));
}

TEST_F(NotifyCenter, GoesOnWithTheNextHandlerAfterOneThatThrows)
{
    center.RegisterHandler("a", anchor.Ref(), [](const auto&) { throw std::runtime_error("broken"); });
    center.RegisterHandler("a", anchor.Ref(), Seeing("next"));
    const CapturedLog log;
    center.addNotify(NotifyOf("a", "1"));
    loop.Stop();
    EXPECT_EQ(seen, Texts{"next:1"});
    EXPECT_EQ(log.Errors(), Texts{"A task failed: broken."});
}

TEST_F(NotifyCenter, LetsAHandlerDestroyItsOwner)
{
    auto owner = std::make_unique<Base::details::CWeakPtrBase>();
    center.RegisterHandler("a", owner->Ref(), [&](const auto& notify) {
        Seeing("owner")(notify);
        owner.reset();
    });
    center.addNotify(NotifyOf("a", "1"));
    center.addNotify(NotifyOf("a", "2"));
    loop.Stop();
    EXPECT_EQ(seen, Texts{"owner:1"});
}

TEST_F(NotifyCenter, TakesRegistrationsWhileItDelivers)
{
    std::thread registrar([&] {
        for (int round = 0; round < 200; ++round)
            center.UnregisterHandler(center.RegisterHandler("a", anchor.Ref(), [](const auto&) {}));
    });
    for (int round = 0; round < 200; ++round)
        center.addNotify(NotifyOf("b", "1"));
    registrar.join();
    center.RegisterHandler("a", anchor.Ref(), Seeing("last"));
    center.addNotify(NotifyOf("a", "1"));
    loop.Stop();
    EXPECT_EQ(seen, Texts{"last:1"});
}

} // namespace
