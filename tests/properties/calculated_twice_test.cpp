// A command pressed twice is a command pressed once: texts, pictures, posted results.
#include "properties/every_case.h"

namespace terravane::support {
namespace {

class CalculatedTwice : public EverySheet {};
INSTANTIATE_TEST_SUITE_P(Sheets, CalculatedTwice, AllCases(), NameOf);

TEST_P(CalculatedTwice, EachCommandGivesTheSameAgain)
{
    TryAll([](SheetBench& bench, RandomReadings& hand) {
        const Plan plan = bench.PlanOf(hand);
        bench.Choose(plan);
        bench.Fill(hand);
        bench.Fetch(plan);
        for (const SheetPress& command : bench.Table().commands) {
            const bool done = bench.Press(command);
            const Texts once = bench.Everything();
            const auto drawings = bench.Drawings();
            EXPECT_EQ(bench.Press(command), done) << command.button;
            EXPECT_EQ(Differences(once, bench.Everything()), "") << command.button;
            const auto again = bench.Drawings();
            for (std::size_t i = 0; i < drawings.size(); ++i)
                EXPECT_TRUE(*drawings[i] == *again[i]) << command.button << ", picture " << i;
        }
    });
}

TEST_P(CalculatedTwice, AllCommandsInTurnGiveTheSameAgain)
{
    TryAll([](SheetBench& bench, RandomReadings& hand) {
        const Plan plan = bench.PlanOf(hand);
        bench.Choose(plan);
        bench.Fill(hand);
        bench.Fetch(plan);
        bench.PressAll();
        const Texts once = bench.Everything();
        bench.PressAll();
        EXPECT_EQ(Differences(once, bench.Everything()), "");
    });
}

}  // namespace
}  // namespace terravane::support
