// The opening of a test sheet: what the items of tbrLab stand for.
#include <algorithm>
#include <array>

#include "app/mdiBack.h"
#include "laboratory/tests.h"
#include "sheets/pattern/test_sheet.h"

namespace terravane {

namespace {

/// The banner's colour tells the material.
struct MaterialColour {
    Material material;
    Colour banner;
};

constexpr std::array kMaterialColours{
    MaterialColour{Material::Soil, kSoilColour},
    MaterialColour{Material::Crush, kCrushedRockColour},
};

std::string BannerOf(const laboratory::Description& test)
{
    return std::string(test.names.banner).append("\r\n").append(test.names.english);
}

/// The test whose menu key is the beginning of an item's key, a material's digit behind it.
const laboratory::Description* TestOf(std::string_view key)
{
    const auto found = std::ranges::find_if(laboratory::Tests(), [key](const laboratory::Description* test) {
        return key.starts_with(test->menu) && key.size() == test->menu.size() + 1;
    });
    return found == laboratory::Tests().end() ? nullptr : *found;
}

}  // namespace

void mdiBack::tbrLab_ButtonMenuClick(std::string_view key)
{
    UnloadSheetsOfTests();
    const laboratory::Description* const test = TestOf(key);
    const auto material = std::ranges::find_if(laboratory::kMaterials,
                                               [key](const auto& known) { return key.ends_with(known.menuDigit); });
    if (!test || material == laboratory::kMaterials.end()) return;

    program.Show(test->sheet.form);  // its load still sees the last sheet's test and material
    auto& sheet = program.Get<TestSheet>(test->sheet.form);
    sheet.Left = 0;
    sheet.Top = 0;
    sheet.txtLabName.SetText(BannerOf(*test));
    sheet.stbDes.SetPanel(1, "Database File is " + program.CurrentProjectPath);
    sheet.tblMenu.SetButtonEnabled(1, true);
    sheet.txtLabName.SetBackColor(
        std::ranges::find(kMaterialColours, material->material, &MaterialColour::material)->banner);
    program.CurrentTest = test->test;
    program.CurrentMaterial = material->material;
    LoadTestSheet(sheet);
}

}  // namespace terravane
