#include "controls/subscription.h"

#include <optional>

#include <gtest/gtest.h>

namespace terravane {
namespace {

TEST(Subscription, HearsEveryAnnouncementUntilItEnds)
{
    Announcement changes;
    int heard = 0;
    {
        const auto listening = changes.Listen([&] { ++heard; });
        changes.Announce();
        changes.Announce();
    }
    changes.Announce();
    EXPECT_EQ(heard, 2);
}

TEST(Subscription, TellsListenersInTheOrderTheyCame)
{
    Announcement changes;
    std::string order;
    const auto first = changes.Listen([&] { order += 'a'; });
    const auto second = changes.Listen([&] { order += 'b'; });
    changes.Announce();
    EXPECT_EQ(order, "ab");
}

// A window that closes itself because of a change takes its other bindings away in the midst of being told.
TEST(Subscription, MayEndWhileTheChangeIsBeingTold)
{
    Announcement changes;
    std::optional<Subscription> second;
    int heard = 0;
    const auto first = changes.Listen([&] { second.reset(); });
    second = changes.Listen([&] { ++heard; });
    changes.Announce();
    EXPECT_EQ(heard, 0) << "A listener that has ended is told nothing more.";
}

TEST(Subscription, MayEndItselfWhileItIsBeingTold)
{
    Announcement changes;
    std::optional<Subscription> own;
    int heard = 0;
    own = changes.Listen([&] {
        own.reset();
        ++heard;
    });
    changes.Announce();
    changes.Announce();
    EXPECT_EQ(heard, 1);
}

TEST(Subscription, MayBeginWhileTheChangeIsBeingTold)
{
    Announcement changes;
    std::vector<Subscription> later;
    int heard = 0;
    const auto first = changes.Listen([&] {
        if (later.empty()) later.push_back(changes.Listen([&] { ++heard; }));
    });
    changes.Announce();
    EXPECT_EQ(heard, 0) << "Who comes during an announcement hears the next one.";
    changes.Announce();
    EXPECT_EQ(heard, 1);
}

TEST(Subscription, OutlivesWhatItListenedTo)
{
    Subscription left;
    {
        Announcement changes;
        left = changes.Listen([] { FAIL() << "Nothing was announced."; });
    }
    left = Subscription();
}

TEST(Subscription, MovesWithItsOwner)
{
    Announcement changes;
    int heard = 0;
    auto first = changes.Listen([&] { ++heard; });
    const Subscription second = std::move(first);
    changes.Announce();
    EXPECT_EQ(heard, 1);
}

}  // namespace
}  // namespace terravane
