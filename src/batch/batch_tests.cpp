#include "batch/batch_tests.h"

#include <algorithm>
#include <array>

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"
#include "store/schema.h"

namespace terravane {

using laboratory::Description;

namespace {

constexpr int kValueTab = 3;  // of frmCBR: open where the value comes from the curve of three molds

bool IsBlank(const TestSheet& sheet, std::string_view box)
{
    return Trim(sheet.Get<TextControl>(box).Text()).empty();
}

/// Limits without an Atterberg test were typed, and the table keeps them though the sheet never reads them back.
void TypeSavedLimits(Presser& presser, const ProjectTexts& saved)
{
    const Material material = presser.Sheet().program.CurrentMaterial;
    const std::string table(TableOf(Test::SieSoil, material).name);
    for (const auto& [box, column] : {std::pair{"txtLL", "sie_LL"}, std::pair{"txtPL", "sie_PL"}}) {
        if (IsBlank(presser.Sheet(), box)) presser.Set(box, saved.Trimmed(table, column, 1));
    }
}

void PressSieve(Presser& presser, const Choices& choices, const ProjectTexts& saved)
{
    presser.Press("cmdCal");
    presser.Tick("chkSmooth", choices.isSmooth);
    presser.Press("cmdgraph");
    presser.Press("cmdAtt");
    TypeSavedLimits(presser, saved);
    presser.Press("cmdClass");
}

void PressSpecific(Presser& presser, const Choices& choices, const ProjectTexts&)
{
    presser.Choose(choices.calibration);
    presser.Press("cmdgraph");
    presser.Press("cmdCal");
}

/// A saved gravity tells that the air-void line was drawn: it is drawn again, with the gravity of now, or with the
/// saved one where no test gives any.
void TickAirVoidLine(Presser& presser, const ProjectTexts& saved)
{
    const Program& program = presser.Sheet().program;
    const TableSchema& table = TableOf(program.CurrentTest, program.CurrentMaterial);
    const std::string gravity = saved.Trimmed(table.name, table.ColumnName("gs"), 1);
    if (gravity.empty()) return;
    presser.Tick("chkSatLine", true);
    if (IsBlank(presser.Sheet(), "txtGs")) presser.Set("txtGs", gravity);
}

void PressCompaction(Presser& presser, const Choices& choices, const ProjectTexts& saved)
{
    presser.Choose(choices.curve);
    presser.Press("cmdCal");
    TickAirVoidLine(presser, saved);
    presser.Press("cmdOMC");
}

/// The compaction tests that a design value may refer to, the likeliest first: that of the field density test, the
/// modified one, the standard one.
std::vector<std::string_view> LikelyProctors(const Presser& presser, const ProjectTexts& saved)
{
    const TableSchema& table = TableOf(Test::DenSoil, presser.Sheet().program.CurrentMaterial);
    const bool isStandard = saved.Trimmed(table.name, table.ColumnName("comp"), 1) == "Std";
    return isStandard ? std::vector<std::string_view>{"optStd", "optMod"}
                      : std::vector<std::string_view>{"optMod", "optStd"};
}

/// The sheet chooses no compaction test by itself; one without a maximum density would leave the value out.
void ChooseProctor(Presser& presser, const Choices& choices, const ProjectTexts& saved)
{
    if (!choices.proctor.empty()) return presser.Choose(choices.proctor);
    for (const std::string_view proctor : LikelyProctors(presser, saved)) {
        presser.Choose(proctor);
        if (!IsBlank(presser.Sheet(), "txtMDD")) return;
    }
}

void PressBearing(Presser& presser, const Choices& choices, const ProjectTexts& saved)
{
    constexpr std::array kTicks{"chkMold1", "chkMold2", "chkMold3"};
    ChooseProctor(presser, choices, saved);
    presser.Press("cmdCal");
    for (std::size_t mold = 0; mold < kTicks.size(); ++mold) presser.Tick(kTicks[mold], choices.corrects[mold]);
    presser.Press("cmdLPen");
    if (!presser.Sheet().SSTData.TabEnabled(kValueTab)) return;
    presser.Set("cboCBR", choices.share);
    presser.Press("cmdCBR");
}

/// The tests on whose sheets something is chosen or typed between the commands; of each other one the commands of its
/// sheet are pressed in their order.
struct TestCommands {
    Test test;
    void (*press)(Presser& presser, const Choices& choices, const ProjectTexts& saved);
};
constexpr std::array kCommands{
    TestCommands{Test::SieSoil, PressSieve},      TestCommands{Test::SpcSoil, PressSpecific},
    TestCommands{Test::StdSoil, PressCompaction}, TestCommands{Test::ModSoil, PressCompaction},
    TestCommands{Test::CBRSoil, PressBearing},
};

const TableSchema& Schema(const Description& test, Material material)
{
    return TableOf(test.test, material);
}

}  // namespace

void PressCommands(const Description& test, Presser& presser, const Choices& choices, const ProjectTexts& saved)
{
    const auto commands = std::ranges::find(kCommands, test.test, &TestCommands::test);
    if (commands != kCommands.end()) return commands->press(presser, choices, saved);
    if (test.sheet.commands.empty()) throw RuntimeError(error::kInvalidProcedureCall, "No commands are known");
    for (const std::string_view command : test.sheet.commands) presser.Press(command);
}

std::string TableName(const Description& test, Material material)
{
    return std::string(Schema(test, material).name);
}

std::string ColumnName(const Description& test, std::string_view suffix)
{
    return Schema(test, Material::Soil).ColumnName(suffix);
}

std::vector<std::string_view> ResultColumns(const Description& test)
{
    std::vector<std::string_view> columns;
    for (const laboratory::KeptColumn& column : laboratory::TableColumns(test.sheet))
        if (column.isResult) columns.push_back(column.suffix);
    return columns;
}

/// A reading of 0 is none, as on the sheets.
bool HasReadings(const ProjectTexts& texts, const Description& test, Material material)
{
    const TableSchema& table = Schema(test, material);
    return std::ranges::any_of(laboratory::TableColumns(test.sheet), [&](const laboratory::KeptColumn& column) {
        for (int row = 1; column.isReading && row <= table.rows; ++row) {
            if (Val(texts.Text(table.name, table.ColumnName(column.suffix), row)) != 0) return true;
        }
        return false;
    });
}

const Description* SourceOf(const laboratory::Taken& taken, const ProjectTexts& texts, const Description& test,
                            Material material)
{
    if (taken.from != Test::None) return &laboratory::Describe(taken.from);
    const laboratory::Choice& choice = test.sheet.choice;
    const std::string chosen = texts.Trimmed(TableName(test, material), ColumnName(test, choice.is.kept), 1);
    if (chosen == "Std") return &laboratory::Describe(Test::StdSoil);
    return chosen == "Mod" ? &laboratory::Describe(Test::ModSoil) : nullptr;
}

}  // namespace terravane
