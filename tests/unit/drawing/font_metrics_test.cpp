#include "drawing/font_metrics.h"

#include <numeric>
#include <string>

#include <gtest/gtest.h>

#include "drawing/font_advances.h"

namespace terravane {
namespace {

/// Width in design units: at this size a twip is a unit.
double LomaUnits(std::string_view text)
{
    return TextWidth({"DilleniaUPC", 2048.0 / 12, false, false}, text);
}

double SansUnits(std::string_view text, bool bold = false, bool italic = false)
{
    return TextWidth({"MS Sans Serif", 2048.0 / 20, bold, italic}, text);
}

double SerifUnits(std::string_view text, bool bold = false, bool italic = false)
{
    return TextWidth({"Times New Roman", 2048.0 / 20, bold, italic}, text);
}

struct Width {
    const char* text;
    double units;
};

class LomaWidth : public testing::TestWithParam<Width> {};

TEST_P(LomaWidth, IsTheSumOfItsLetters)
{
    EXPECT_NEAR(LomaUnits(GetParam().text), GetParam().units, 1e-6);
}

INSTANTIATE_TEST_SUITE_P(Pages, LomaWidth,
                         testing::Values(Width{"n", 1139}, Width{"D", 1479}, Width{"0", 1139}, Width{".", 569},
                                         Width{" ", 690}, Width{"Project Name : ", 14476},
                                         Width{"Date of Test : ", 13346}, Width{"00000,00", 8542}, Width{"ที่ น้ำ", 4590},
                                         Width{"..................................................", 28450},
                                         Width{"AVATo Wy. Te", 13784}, Width{"", 0}));

// 1139 / 2048 of 12 twips a point at 16 points: 106.78125.
TEST(TextWidth, IsInTwipsAndNotRounded)
{
    EXPECT_DOUBLE_EQ(TextWidth({"DilleniaUPC", 16, false, false}, "n"), 106.78125);
    EXPECT_DOUBLE_EQ(TextWidth({"Cordia New", 16, false, false}, "n"), 106.78125);
}

TEST(TextWidth, CountsBlanksAtTheEnds)
{
    EXPECT_NEAR(LomaUnits("  n "), 690 + 690 + 1139 + 690, 1e-6);
}

// Thai marks stand over and under their consonant, which is as wide alone as with them.
TEST(TextWidth, GivesNoRoomToThaiMarks)
{
    EXPECT_NEAR(LomaUnits("ที่"), LomaUnits("ท"), 1e-9);
    EXPECT_NEAR(LomaUnits("ปู่ผู้ฟื้น"), LomaUnits("ปผฟน"), 1e-9);
    EXPECT_GT(LomaUnits("ท"), 1000);
}

TEST(TextWidth, DoesNotDependOnSlantInLoma)
{
    const std::string text = "Test of Soil การทดสอบ";
    EXPECT_EQ(TextWidth({"DilleniaUPC", 15, false, false}, text), TextWidth({"DilleniaUPC", 15, false, true}, text));
    EXPECT_EQ(TextWidth({"DilleniaUPC", 15, true, false}, text), TextWidth({"DilleniaUPC", 15, true, true}, text));
}

// Bold digits and dots are as wide as regular ones, so that columns stand whether bold or not.
TEST(TextWidth, OfFiguresIsTheSameInBoldLoma)
{
    EXPECT_EQ(TextWidth({"DilleniaUPC", 15, true, false}, "0123456789.,-+%() "),
              TextWidth({"DilleniaUPC", 15, false, false}, "0123456789.,-+%() "));
}

// The widths of the letters in the faces' own tables: 1139 of 2048 is the figures' width, 1024 in the serif
// family.
TEST(TextWidth, UsesEachFaceOfTheLatinFamilies)
{
    EXPECT_NEAR(SansUnits("0"), 1139, 1e-6);
    EXPECT_NEAR(SansUnits("i"), 455, 1e-6);
    EXPECT_NEAR(SansUnits("i", true), 569, 1e-6);
    EXPECT_NEAR(SansUnits("W"), 1933, 1e-6);
    EXPECT_NEAR(SansUnits("A", true, true), 1479, 1e-6);
    EXPECT_NEAR(SerifUnits("0"), 1024, 1e-6);
    EXPECT_NEAR(SerifUnits("A"), 1479, 1e-6);
    EXPECT_NEAR(SerifUnits("A", false, true), 1251, 1e-6);
    EXPECT_NEAR(SerifUnits("W", true), 2048, 1e-6);
    EXPECT_NEAR(SerifUnits("m", true, true), 1593, 1e-6);
}

// The Latin families have no Thai letters: those are Loma's, at the Latin letters' scale.
TEST(TextWidth, TakesThaiLettersFromLoma)
{
    EXPECT_NEAR(SansUnits("ที่"), LomaUnits("ที่"), 1e-6);
    EXPECT_NEAR(SerifUnits("0ท0"), 1024 + LomaUnits("ท") + 1024, 1e-6);
}

TEST(TextWidth, GivesAnUnknownCharacterItsBox)
{
    EXPECT_NEAR(LomaUnits("漢"), 1536, 1e-6);
    EXPECT_NEAR(LomaUnits("\U0001F600"), 1536, 1e-6);  // one character, two units of UTF-16
}

TEST(TextWidth, GivesInvisibleCharactersNoRoom)
{
    EXPECT_NEAR(LomaUnits("n\u200Bn"), 2 * 1139, 1e-6);
}

TEST(TextHeight, IsTheSameInEveryStyleOfAFont)
{
    for (const bool bold : {false, true})
        for (const bool italic : {false, true}) {
            EXPECT_DOUBLE_EQ(TextHeight({"DilleniaUPC", 13, bold, italic}), 339.3);
            EXPECT_DOUBLE_EQ(TextHeight({"DilleniaUPC", 28, bold, italic}), 730.8);
            EXPECT_DOUBLE_EQ(TextHeight({"Cordia New", 12, bold, italic}), 313.2);
            EXPECT_DOUBLE_EQ(TextHeight({"MS Sans Serif", 8.25, bold, italic}), 194.7);
            EXPECT_DOUBLE_EQ(TextHeight({"Times New Roman", 14, bold, italic}), 309.96);
        }
}

TEST(SubstituteFor, DisregardsCaseAndTakesUnknownNamesForTheStandardFont)
{
    EXPECT_EQ(SubstituteFor("dilleniaupc").family, "Loma");
    EXPECT_EQ(SubstituteFor("TIMES NEW ROMAN").family, "Liberation Serif");
    EXPECT_EQ(SubstituteFor("Wingdings").asked, "MS Sans Serif");
    EXPECT_EQ(SubstituteFor("").asked, "MS Sans Serif");
}

TEST(FontRuns, ChangeWhereTheFamilyChanges)
{
    const Font font{"MS Sans Serif", 10, false, false};
    const auto runs = FontRuns(font, "No. ที่ 5 ≥ α");
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[0].text, u"No. ");
    EXPECT_EQ(runs[0].family, "Liberation Sans");
    EXPECT_EQ(runs[1].text, u"ที่");
    EXPECT_EQ(runs[1].family, "Loma");
    EXPECT_EQ(runs[2].text, u" 5 ≥ α");
    EXPECT_EQ(runs[2].family, "Liberation Sans");
}

TEST(FontRuns, AddUpToTheTextsWidth)
{
    for (const char* name : {"DilleniaUPC", "MS Sans Serif", "Times New Roman"}) {
        const Font font{name, 12.5, true, false};
        const std::string text = "Sample α ที่ ≥ 12.5 漢 \U0001F600 end ";
        const auto runs = FontRuns(font, text);
        const double sum = std::accumulate(runs.begin(), runs.end(), 0.0,
                                           [](double width, const FontRun& run) { return width + run.width; });
        EXPECT_NEAR(sum, TextWidth(font, text), 1e-9) << name;
    }
}

TEST(FontRuns, OfAnEmptyTextAreNone)
{
    EXPECT_TRUE(FontRuns({}, "").empty());
}

TEST(AdvanceBlocks, FillTheTablesWithoutGapOrOverlap)
{
    std::size_t place = 0;
    char32_t behind = 0;
    for (const AdvanceBlock& block : kBlocks) {
        EXPECT_EQ(block.start, place);
        EXPECT_GE(block.first, behind);
        place += block.last - block.first + 1;
        behind = block.last + 1;
    }
    EXPECT_EQ(place, kMeasuredCharacters);
}

// Plain texts are measured by a shorter way, which relies on this.
TEST(AdvanceBlocks, BeginWithTheBlankAndHaveAllOfAsciiInEveryFace)
{
    EXPECT_EQ(AdvancePlace(U' '), 0u);
    for (const FaceAdvances* face : {&kLoma, &kLomaBold, &kLiberationSans, &kLiberationSansBold, &kLiberationSansItalic,
                                     &kLiberationSansBoldItalic, &kLiberationSerif, &kLiberationSerifBold,
                                     &kLiberationSerifItalic, &kLiberationSerifBoldItalic})
        for (char32_t character = U' '; character <= U'~'; ++character)
            EXPECT_TRUE(face->Has(*AdvancePlace(character))) << static_cast<unsigned>(character);
    EXPECT_EQ(AdvancePlace(U'\n'), std::nullopt);
    EXPECT_EQ(AdvancePlace(U'漢'), std::nullopt);
}

}  // namespace
}  // namespace terravane
