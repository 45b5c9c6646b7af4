#include "script/script_line.h"

#include <gtest/gtest.h>

namespace terravane {
namespace {

using List = std::vector<std::string>;

TEST(ScriptLine, WordsAreSeparatedByBlanks)
{
    EXPECT_EQ(SplitLine("set txtSoil 3"), (List{"set", "txtSoil", "3"}));
    EXPECT_EQ(SplitLine("  set\t txtSoil   3 \r"), (List{"set", "txtSoil", "3"}));
}

TEST(ScriptLine, EmptyLinesAndCommentsHaveNoWords)
{
    for (const std::string line : {"", "   ", "\r", "# menu mnuNew", "  \t# x"}) {
        EXPECT_EQ(SplitLine(line), List{}) << line;
    }
}

TEST(ScriptLine, HashInsideALineIsText)
{
    EXPECT_EQ(SplitLine("set txtID #7"), (List{"set", "txtID", "#7"}));
}

TEST(ScriptLine, QuotedTextKeepsItsBlanks)
{
    EXPECT_EQ(SplitLine(R"(set txtSoil "Sample  3 ")"), (List{"set", "txtSoil", "Sample  3 "}));
    EXPECT_EQ(SplitLine(R"(set txtSoil "" x)"), (List{"set", "txtSoil", "", "x"}));
    EXPECT_EQ(SplitLine(R"(set txtSoil "กรม ทางหลวง")"), (List{"set", "txtSoil", "กรม ทางหลวง"}));
}

TEST(ScriptLine, EscapesHoldInsideQuotesOnly)
{
    EXPECT_EQ(SplitLine(R"(echo "a\"b\\c\nd\te")"), (List{"echo", "a\"b\\c\nd\te"}));
    EXPECT_EQ(SplitLine(R"(echo a\nb)"), (List{"echo", R"(a\nb)"}));
    EXPECT_EQ(SplitLine(R"(echo a"b)"), (List{"echo", "a\"b"}));
}

TEST(ScriptLine, BrokenQuotesAreFaults)
{
    for (const std::string line : {R"(echo "abc)", R"(echo "abc\")", R"(echo "abc\)", R"(echo "a"b)", R"(echo "\x")"}) {
        EXPECT_THROW(SplitLine(line), LineFault) << line;
    }
}

TEST(ScriptLine, NumbersAreWholeWords)
{
    EXPECT_EQ(WholeNumber("12", "a row"), 12);
    EXPECT_EQ(WholeNumber("-1", "a row"), -1);
    for (const std::string word : {"", "1x", "1.0", "x", "99999999999"}) {
        EXPECT_THROW(WholeNumber(word, "a row"), LineFault) << word;
    }
}

}  // namespace
}  // namespace terravane
