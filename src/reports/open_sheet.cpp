#include "reports/open_sheet.h"

#include <algorithm>
#include <array>

namespace terravane {

namespace {

struct SheetOfTest {
    Test test;
    std::string_view sheet;
};

constexpr std::array kSheets{
    SheetOfTest{Test::StdSoil, "frmCompaction"}, SheetOfTest{Test::ModSoil, "frmCompaction"},
    SheetOfTest{Test::DenSoil, "frmDensity"},    SheetOfTest{Test::SpcSoil, "frmSpecific"},
    SheetOfTest{Test::AttSoil, "frmAtterberg"},  SheetOfTest{Test::SieSoil, "frmSieve"},
    SheetOfTest{Test::CBRSoil, "frmCBR"},
};

}  // namespace

std::string_view SheetNameOf(Test test)
{
    const auto row = std::ranges::find(kSheets, test, &SheetOfTest::test);
    if (row == kSheets.end()) throw RuntimeError(error::kInvalidProcedureCall, "No test has been opened");
    return row->sheet;
}

TestSheet& OpenSheet(const Program& program)
{
    return program.Get<TestSheet>(SheetNameOf(program.CurrentTest));
}

std::string TextOf(const TestSheet& sheet, std::string_view control)
{
    return sheet.Get<TextControl>(control).Text();
}

}  // namespace terravane
