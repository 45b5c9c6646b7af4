// What stood on a sheet before has no part in its results: the same readings give the same texts on a fresh sheet and
// on one that was used.
//
// By design a sheet does keep some texts. What a command does not reach stays: the calculated cells of columns without
// readings, so the readings typed over here stand in the same cells; and every text behind a command that failed, so
// the comparison ends there. What a method keeps although its command succeeds is named in the table below.
#include <algorithm>
#include <array>

#include "properties/every_case.h"

namespace terravane::support {
namespace {

class EarlierReadings : public EverySheet {};
INSTANTIATE_TEST_SUITE_P(Sheets, EarlierReadings, AllCases(), NameOf);

/// Controls that a command leaves as they are where it finds nothing to write.
struct Keeper {
    std::string_view form;
    std::array<std::string_view, 8> controls;
};
constexpr std::array kKeepers{
    Keeper{"frmAtterberg", {"txtPI"}},  // where a limit reads zero
    // A diameter that the curve doesn't reach, what follows from it, and a group without a typical name.
    Keeper{"frmSieve", {"txtD60", "txtD30", "txtD10", "txtCu", "txtCc", "txtSuscs", "txtNuscs", "txtMtype"}},
};

bool IsKept(std::string_view form, std::string_view control)
{
    const auto keeper = std::ranges::find(kKeepers, form, &Keeper::form);
    return keeper != kKeepers.end() && std::ranges::find(keeper->controls, control) != keeper->controls.end();
}

/// What is seen on the sheet; what is posted of it has a property of its own.
Texts Seen(const SheetBench& bench)
{
    Texts texts = bench.Everything();
    std::erase_if(texts, [&](const auto& text) {
        return text.first.starts_with("SUMMARY(") || IsKept(bench.Table().Described().sheet.form, text.first);
    });
    return texts;
}

/// The stack's tenth row is never cleared: a sieve in it stays until another takes its place.
bool HasTenthSieve(const SheetBench& bench)
{
    const auto* stack = dynamic_cast<const TextGrid*>(bench.Sheet().Find("MSHSieve"));
    return stack && !Trim((*stack)(kMostSieves, sieve::Number)).empty();
}

/// Presses the commands on both sheets. Returns whether all of them succeeded, so that there are results to compare.
bool HaveTheSameResults(SheetBench& fresh, SheetBench& used)
{
    for (const SheetPress& command : fresh.Table().commands) {
        if (!fresh.CanPress(command)) return false;
        const bool done = fresh.Press(command);
        EXPECT_EQ(used.Press(command), done) << command.button << " " << used.LastWord();
        if (!done) return false;
    }
    EXPECT_EQ(Differences(Seen(fresh), Seen(used)), "");
    return true;
}

TEST_P(EarlierReadings, TypedOverLeaveNoTrace)
{
    int succeeded = 0;
    TryAll([&succeeded](SheetBench& fresh, RandomReadings& hand) {
        const Plan plan = fresh.PlanOf(hand), session{{}, plan.session, {}};  // an option that is chosen fetches once
        RandomReadings sameHand = hand, sameHandAgain = hand;
        fresh.Choose(plan);
        fresh.Fill(hand);
        fresh.Fetch(plan);

        SheetBench used(GetParam());
        used.Choose(plan);
        used.Fill(sameHand);
        used.ScaleEntries(1.07);
        used.Fetch(session);
        used.PressAll();
        used.Choose(plan);
        used.Fill(sameHandAgain);
        used.Fetch(plan);
        succeeded += HaveTheSameResults(fresh, used) ? 1 : 0;
    });
    EXPECT_GT(succeeded, 0) << "No sheet had results: the readings prove nothing.";
}

TEST_P(EarlierReadings, SavedAndLoadedLeaveNoTrace)
{
    int succeeded = 0;
    TryAll([&succeeded](SheetBench& fresh, RandomReadings& hand) {
        const Plan plan = fresh.PlanOf(hand), choices{plan.choices, plan.session, {}};
        RandomReadings otherHand(static_cast<unsigned>(hand.Pick(1 << 30)), hand.Kind()), sameHand = hand;
        fresh.Clear();
        fresh.Choose(plan);
        fresh.Fill(hand);
        fresh.Fetch(plan);

        SheetBench used(GetParam());
        used.Choose(choices);
        used.Fill(otherHand);
        ASSERT_TRUE(used.Save()) << used.LastWord();
        used.PressAll();
        used.Save();  // results may be longer than their columns: then the readings saved before stand
        used.Reopen();
        used.Clear();
        if (HasTenthSieve(used)) return;
        used.Choose(plan);
        used.Fill(sameHand);
        used.Fetch(plan);
        succeeded += HaveTheSameResults(fresh, used) ? 1 : 0;
    });
    EXPECT_GT(succeeded, 0) << "No sheet had results: the readings prove nothing.";
}

}  // namespace
}  // namespace terravane::support
