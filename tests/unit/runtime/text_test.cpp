#include "runtime/text.h"

#include <gtest/gtest.h>

#include "unit/runtime/random_values.h"

namespace terravane {
namespace {

constexpr std::string_view kThai = "\u0E14\u0E34\u0E19";  // three characters of three bytes
constexpr std::string_view kBeyond =
    "a\U0001F6E3"
    "b";  // the middle one takes two units
const std::string kReplacement = "\uFFFD";

TEST(Trim, TakesBlanksOffBothEndsAndNothingElse)
{
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Trim("\t1 "), "\t1");
}

TEST(Text, CountsAndCutsCharactersNotBytes)
{
    EXPECT_EQ(CharacterCount(kThai), 3u);
    EXPECT_EQ(Left(kThai, 1), "\u0E14");
    EXPECT_EQ(SkipCharacters(kThai, 2), "\u0E19");
    EXPECT_EQ(Left("ab", 5), "ab");
    EXPECT_EQ(SkipCharacters("ab", 5), "");
    EXPECT_EQ(Left("ab", 0), "");
}

TEST(Text, CountsUnitsForTheStore)
{
    EXPECT_EQ(CharacterCount(kBeyond), 3u);
    EXPECT_EQ(ToUtf16(kBeyond).size(), 4u);
    EXPECT_EQ(ToUtf16(kBeyond),
              u"a\U0001F6E3"
              u"b");
    EXPECT_EQ(ToUtf8(u"a\U0001F6E3"
                     u"b"),
              kBeyond);
    EXPECT_EQ(ToUtf8(ToUtf16(kThai)), kThai);
}

TEST(Text, ReadsEachByteThatIsNoTextAsAReplacement)
{
    const std::string two = kReplacement + kReplacement;
    EXPECT_EQ(ToUtf8(ToUtf16("a\xFF"
                             "b")),
              "a" + kReplacement + "b");
    EXPECT_EQ(ToUtf8(ToUtf16("\xC0\x80")), two) << "a zero in too many bytes";
    EXPECT_EQ(ToUtf8(ToUtf16("\xE0\xB8")), two) << "cut off at the end";
    EXPECT_EQ(ToUtf8(ToUtf16("\xED\xA0\x80")), two + kReplacement) << "half of a pair";
    EXPECT_EQ(ToUtf8(ToUtf16("\xF4\x90\x80\x80")), two + two) << "beyond the last character";
    EXPECT_EQ(CharacterCount("\xFF\xFE"), 2u);
}

TEST(Text, ReadsAUnitWithoutItsPairAsAReplacement)
{
    EXPECT_EQ(ToUtf8(std::u16string{u'a', char16_t{0xD83D}}), "a" + kReplacement);
    EXPECT_EQ(ToUtf8(std::u16string{char16_t{0xDEE3}, u'b'}), kReplacement + "b");
    EXPECT_EQ(ToUtf8(std::u16string{char16_t{0xD83D}, u'b'}), kReplacement + "b");
}

TEST(Text, ShowsWhatNobodyMaySeeByItsCode)
{
    EXPECT_EQ(Printable("Road 7.mdb"), "Road 7.mdb");
    EXPECT_EQ(Printable("ถนนสาย ก 🛣 «é»"), "ถนนสาย ก 🛣 «é»");
    EXPECT_EQ(Printable("\x1b[31mred\a"), "\\x1b[31mred\\x07");
    EXPECT_EQ(Printable(std::string("one\ntwo\r\tthree\x7f\0", 16)), "one\\ntwo\\r\\tthree\\x7f\\x00");
    EXPECT_EQ(Printable("a\xff\xe0\xb8"), "a\\xff\\xe0\\xb8") << "bytes that are no text";
    EXPECT_EQ(Printable("\xef\xbf\xbd"), "\xef\xbf\xbd") << "the replacement character itself is a text";
    EXPECT_EQ(Printable("\u0085\u009f"), "\\u0085\\u009f");
    EXPECT_EQ(Printable("bdm.\u202e7 \u2066x\u2069 \u2028 \u200f"), "bdm.\\u202e7 \\u2066x\\u2069 \\u2028 \\u200f");
    EXPECT_EQ(Printable(Printable("\x1b\n")), Printable("\x1b\n"));
}

TEST(Text, TakesAnyBytes)
{
    RandomValues random(21);
    for (int round = 0; round < 50'000; ++round) {
        std::string text(random.Below(12), '\0');
        for (char& c : text) c = static_cast<char>(random.Bits());
        const auto cut = random.Below(14);
        ASSERT_EQ(std::string(Left(text, cut)) + std::string(SkipCharacters(text, cut)), text);
        ASSERT_EQ(ToUtf16(ToUtf8(ToUtf16(text))), ToUtf16(text));
    }
}

TEST(SameName, IgnoresTheCaseOfLettersAToZAlone)
{
    EXPECT_TRUE(SameName("Logo.mdb", "logo.MDB"));
    EXPECT_FALSE(SameName("Logo.mdb", "Logo.md"));
    EXPECT_FALSE(SameName("\u00C4", "\u00E4"));
    EXPECT_FALSE(SameName("[", "{"));
}

TEST(SameName, KnowsEveryLetterInBothCases)
{
    EXPECT_TRUE(SameName("abcdefghijklmnopqrstuvwxyz", "ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
    EXPECT_FALSE(SameName("`", "@")) << "the sign before the letters";
}

}  // namespace
}  // namespace terravane
