// The recorded advances against the installed fonts, asked through Qt: one em at 2048 pixels, so that a pixel
// is a unit.
#include "drawing/font_advances.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QString>

#include <gtest/gtest.h>

#include "drawing/font_metrics.h"
#include "render/fonts.h"
#include "render/gui_application.h"

namespace terravane {
namespace {

struct Face {
    const char* family;
    bool bold, italic;
    const FaceAdvances& advances;
};

const Face kFaces[] = {
    {"Loma", false, false, kLoma},
    {"Loma", true, false, kLomaBold},
    {"Loma", false, true, kLoma},
    {"Loma", true, true, kLomaBold},
    {"Liberation Sans", false, false, kLiberationSans},
    {"Liberation Sans", true, false, kLiberationSansBold},
    {"Liberation Sans", false, true, kLiberationSansItalic},
    {"Liberation Sans", true, true, kLiberationSansBoldItalic},
    {"Liberation Serif", false, false, kLiberationSerif},
    {"Liberation Serif", true, false, kLiberationSerifBold},
    {"Liberation Serif", false, true, kLiberationSerifItalic},
    {"Liberation Serif", true, true, kLiberationSerifBoldItalic},
};

QFont OneEmFont(const Face& face)
{
    QFont font = FaceFor({"MS Sans Serif", 8.25, face.bold, face.italic}, face.family).font;
    font.setPixelSize(2048);
    return font;
}

class InstalledFace : public testing::TestWithParam<Face> {
  protected:
    void SetUp() override { EnsureGuiApplication(); }
};

TEST_P(InstalledFace, IsTheFamilyAndStyleItIsAskedFor)
{
    const QFontInfo info(OneEmFont(GetParam()));
    EXPECT_EQ(info.family().toStdString(), GetParam().family);
    EXPECT_EQ(info.bold(), GetParam().bold);
    EXPECT_EQ(info.italic(), GetParam().italic);
}

TEST_P(InstalledFace, HasTheRecordedAdvanceOfEveryCharacter)
{
    const QFontMetricsF metrics(OneEmFont(GetParam()));
    int checked = 0;
    for (const AdvanceBlock& block : kBlocks)
        for (char32_t character = block.first; character <= block.last; ++character) {
            const std::size_t place = *AdvancePlace(character);
            if (!GetParam().advances.Has(place)) continue;
            ++checked;
            EXPECT_NEAR(metrics.horizontalAdvance(QString::fromUcs4(&character, 1)),
                        GetParam().advances.advances[place], 0.5)
                << "U+" << std::hex << static_cast<unsigned>(character);
        }
    EXPECT_GT(checked, 300);
}

INSTANTIATE_TEST_SUITE_P(All, InstalledFace, testing::ValuesIn(kFaces), [](const auto& face) {
    std::string name = face.param.family;
    std::erase(name, ' ');
    return name + (face.param.bold ? "Bold" : "") + (face.param.italic ? "Italic" : "");
});

// Whole texts, shaped: marks over vowels, sara am taken apart, tall consonants, runs of two families.
TEST(DrawnText, IsAsWideAsMeasured)
{
    EnsureGuiApplication();
    RequireFonts();
    const std::string text = "การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน ที่ น้ำ ปู่ ผู้ ฝ้า ฟื้น กำ AVATo Wy. Te 12.50 ≥ µ";
    for (const char* name : {"DilleniaUPC", "Cordia New", "MS Sans Serif", "Times New Roman"})
        for (const bool bold : {false, true}) {
            const Font font{name, 16, bold, false};
            double drawn = 0;
            for (const FontRun& run : FontRuns(font, text)) {
                const QFontMetricsF metrics(FaceFor(font, run.family).font);
                const double width = metrics.horizontalAdvance(QString::fromStdU16String(run.text));
                EXPECT_NEAR(width, run.width, 0.0005 * run.width) << name << " in " << run.family;
                drawn += width;
            }
            EXPECT_NEAR(drawn, TextWidth(font, text), 2) << name;  // twips, of about 6000
        }
}

TEST(DrawnText, ComesToTheExactSizeWhereThePixelSizeIsRounded)
{
    EnsureGuiApplication();
    const FaceAtSize face = FaceFor({"DilleniaUPC", 10.3, false, false}, "Loma");  // 12 * 10.3 = 123.6
    EXPECT_EQ(face.font.pixelSize(), 124);
    EXPECT_DOUBLE_EQ(face.scale, 123.6 / 124);
}

TEST(RequireFonts, FindsTheInstalledOnes)
{
    EnsureGuiApplication();
    EXPECT_NO_THROW(RequireFonts());
}

}  // namespace
}  // namespace terravane
