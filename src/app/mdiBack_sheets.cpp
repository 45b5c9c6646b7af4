// The opening of a test sheet: what the items of tbrLab stand for.
#include <algorithm>
#include <array>

#include "app/mdiBack.h"
#include "reports/all_reports.h"
#include "sheets/pattern/test_sheet.h"

namespace terravane {

namespace {

/// stem  of the two items' keys, "1" behind it for soil, "2" for crushed rock
struct TestItem {
    std::string_view stem;
    Test test;
    std::string_view thai;  // the banner's first line; the second is the report's title
};

constexpr std::array kTestItems{
    TestItem{"mnuStd", Test::StdSoil, "การทดสอบการบดอัดแบบมาตรฐาน"},
    TestItem{"mnuMod", Test::ModSoil, "การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน"},
    TestItem{"mnuDen", Test::DenSoil, "การทดสอบหาความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย"},
    TestItem{"mnuSpe", Test::SpcSoil, "การทดสอบหาความถ่วงจำเพาะของดิน"},
    TestItem{"mnuAtt", Test::AttSoil, "การทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก"},
    TestItem{"mnuSie", Test::SieSoil, "การทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน"},
    TestItem{"mnuCBR", Test::CBRSoil, "การทดสอบหาค่า ซี.บี.อาร์."},
};

struct MaterialItem {
    char digit;  // at the end of the key
    Material material;
    Colour banner;
};

constexpr std::array kMaterialItems{
    MaterialItem{'1', Material::Soil, kSoilColour},
    MaterialItem{'2', Material::Crush, kCrushedRockColour},
};

std::string BannerOf(const TestItem& item)
{
    return std::string(item.thai).append("\r\n").append(ReportOf(item.test).titles.english);
}

}  // namespace

void mdiBack::tbrLab_ButtonMenuClick(std::string_view key)
{
    UnloadSheetsOfTests();
    const auto item = std::ranges::find_if(kTestItems, [key](const TestItem& known) {
        return key.starts_with(known.stem) && key.size() == known.stem.size() + 1;
    });
    const auto kind =
        std::ranges::find_if(kMaterialItems, [key](const MaterialItem& known) { return key.ends_with(known.digit); });
    if (item == kTestItems.end() || kind == kMaterialItems.end()) return;

    program.Show(SheetNameOf(item->test));  // its load still sees the last sheet's test and material
    auto& sheet = program.Get<TestSheet>(SheetNameOf(item->test));
    sheet.Left = 0;
    sheet.Top = 0;
    sheet.txtLabName.SetText(BannerOf(*item));
    sheet.stbDes.SetPanel(1, "Database File is " + program.CurrentProjectPath);
    sheet.tblMenu.SetButtonEnabled(1, true);
    sheet.txtLabName.SetBackColor(kind->banner);
    program.CurrentTest = item->test;
    program.CurrentMaterial = kind->material;
    LoadTestSheet(sheet);
}

}  // namespace terravane
