#include "Base/ObserverRegistry.h"
#include "support/WaitUntil.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <future>
#include <string>

namespace {

struct Observer
{
    struct Param
    {
        int type;
    };
    void Hear(const Param& param)
    {
        heard += std::to_string(param.type);
        if (onHear)
            onHear();
    }

    std::string heard;
    std::function<void()> onHear;
};

using Registry = Base::CObserverRegistry<Observer>;

void Notify(Registry& registry, int type)
{
    registry.Notify([type](Observer& observer) { observer.Hear({type}); });
}

TEST(ARegistry, CallsEachObserverOnceInOrderUntilItIsRemoved)
{
    Registry registry;
    std::string order;
    Observer first{"", [&] { order += "1"; }};
    Observer second{"", [&] { order += "2"; }};
    EXPECT_TRUE(registry.Add(&first) && registry.Add(&second) && registry.Add(&first));
    Notify(registry, 0);
    EXPECT_EQ(order, "12");
    EXPECT_TRUE(registry.Remove(&first));
    EXPECT_TRUE(registry.Remove(&first));
    EXPECT_TRUE(registry.Add(&first));
    Notify(registry, 0);
    EXPECT_EQ(order, "1221") << "removed and added again it is the last";
    EXPECT_FALSE(registry.Add(nullptr));
    EXPECT_FALSE(registry.Remove(nullptr));
    EXPECT_TRUE(registry.RemoveUnchecked(nullptr));
    Notify(registry, 0);
    EXPECT_EQ(order, "122121");
}

/// What the first of three observers does to the registry when it is called, and who is called by this
/// notification and by the next.
struct Row
{
    const char* name;
    std::function<void(Registry&, Observer (&)[4])> act;
    std::string called;
    std::string calledNext;
};

TEST(AnObserver, MayAddAndRemoveFromWithinANotification)
{
    const Row rows[] = {
        {"itself", [](auto& r, auto& o) { r.Remove(&o[0]); }, "012", "12"},
        {"a later one", [](auto& r, auto& o) { r.Remove(&o[1]); }, "02", "02"},
        {"all",
         [](auto& r, auto& o) {
             for (auto& each : o)
                 r.RemoveUnchecked(&each);
         },
         "0", ""},
        {"a new one", [](auto& r, auto& o) { r.Add(&o[3]); }, "012", "0123"},
        {"one again",
         [](auto& r, auto& o) {
             r.Remove(&o[1]);
             r.Add(&o[1]);
         },
         "02", "021"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Registry registry;
        Observer observers[4];
        std::string called;
        for (int i = 0; i < 3; ++i)
            registry.Add(&observers[i]);
        const auto notify = [&](bool acts) {
            called.clear();
            registry.Notify([&](Observer& observer) {
                called += std::to_string(&observer - observers);
                if (acts && &observer == observers)
                    row.act(registry, observers);
            });
            return called;
        };
        EXPECT_EQ(notify(true), row.called);
        EXPECT_EQ(notify(false), row.calledNext);
    }
}

/// One thread removes the second observer while the first is being called by another. Whether the second was
/// left out: else its turn came before the removal.
bool IsLeftOutOnceRemovalBegan()
{
    Registry registry;
    std::promise<void> inside;
    std::atomic<bool> left{false};
    Observer first{"", [&] {
                       inside.set_value();
                       std::this_thread::sleep_for(std::chrono::milliseconds(1));
                       left = true;
                   }};
    auto second = std::make_unique<Observer>();
    registry.Add(&first);
    registry.Add(second.get());
    auto notifying = std::async(std::launch::async, [&] { Notify(registry, 0); });
    inside.get_future().wait();
    registry.Remove(second.get());
    EXPECT_TRUE(left) << "removing waits for a callback that is running";
    const bool leftOut = second->heard.empty();
    second.reset();
    notifying.get();
    first.onHear = {};
    Notify(registry, 1);
    EXPECT_EQ(first.heard, "01");
    return leftOut;
}

TEST(AnObserver, MayBeDestroyedOnceItWasRemovedByAnotherThread)
{
    EXPECT_TRUE(WaitUntil(IsLeftOutOnceRemovalBegan));
}

using Posted = Base::CPostedObservers<Observer, &Observer::Hear>;

TEST(PostedNotifications, ComeInOrderUntilTheirOwnerGoesAlsoFromWithinOne)
{
    Base::CMessageLoop loop("notify");
    auto owner = std::make_unique<Posted>(loop);
    Observer first;
    Observer second;
    owner->Add(&first);
    owner->Add(&second);
    first.onHear = [&] {
        if (first.heard == "12")
            owner.reset();
    };
    std::promise<void> posted;
    loop.PostTask([&] { posted.get_future().wait(); });
    for (int type = 1; type <= 3; ++type)
        owner->Post({type});
    posted.set_value();
    loop.Stop();
    EXPECT_EQ(first.heard, "12");
    EXPECT_EQ(second.heard, "1");
    EXPECT_EQ(owner, nullptr);
}

} // namespace
