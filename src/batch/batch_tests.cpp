#include "batch/batch_tests.h"

#include <algorithm>
#include <array>

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"
#include "store/schema.h"

namespace terravane {

namespace {

using Names = std::string_view;

constexpr int kValueTab = 3;  // of frmCBR: open where the value comes from the curve of three moulds

bool IsBlank(const TestSheet& sheet, std::string_view box)
{
    return Trim(sheet.Get<TextControl>(box).Text()).empty();
}

void PressAtterberg(Presser& presser, const Choices&, const ProjectTexts&)
{
    presser.Press("cmdCal");
    presser.Press("cmdPlot");
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

void PressDensity(Presser& presser, const Choices&, const ProjectTexts&)
{
    presser.Press("cmdCal");
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
    for (std::size_t mould = 0; mould < kTicks.size(); ++mould) presser.Tick(kTicks[mould], choices.corrects[mould]);
    presser.Press("cmdLPen");
    if (!presser.Sheet().SSTData.TabEnabled(kValueTab)) return;
    presser.Set("cboCBR", choices.share);
    presser.Press("cmdCBR");
}

constexpr std::array<Names, 3> kAttReadings{"blows", "wscan1", "wscan2"};
constexpr std::array<Names, 4> kAttKeeps{"LL", "PL", "PI", "FI"};
constexpr std::array<Names, 4> kAttPosts{"sum_LL", "sum_PL", "sum_PI", "sum_swelling"};

constexpr std::array<Names, 2> kSieReadings{"mos", "mss"};
constexpr std::array<Names, 2> kSieKeeps{"LL", "PL"};
constexpr std::array<Names, 5> kSiePosts{"sum_gravel", "sum_sand", "sum_finer", "sum_USCS", "sum_AASHTO"};
constexpr std::array kSieTakes{TakenResult{"LL", "LL", "att", "LL", true}, TakenResult{"PL", "PL", "att", "PL", true}};
constexpr std::array<Names, 1> kSieNeeds{"att"};

constexpr std::array<Names, 4> kSpcReadings{"temp1", "fwater", "temp2", "swsoil"};
constexpr std::array<Names, 1> kSpcKeeps{"gs"};
constexpr std::array<Names, 1> kSpcPosts{"sum_Gs"};

constexpr std::array<Names, 4> kCompactionReadings{"wcanw", "wcand", "wsm", "wm"};
constexpr std::array<Names, 3> kCompactionKeeps{"omc", "mdd", "gs"};
constexpr std::array<Names, 2> kStdPosts{"sum_omcS", "sum_mddS"};
constexpr std::array<Names, 2> kModPosts{"sum_omcM", "sum_mddM"};
constexpr std::array<Names, 1> kCompactionNeeds{"spc"};
constexpr std::array kCompactionTakes{TakenResult{"gs", "Gs", "spc", "gs", true}};

constexpr std::array<Names, 4> kDenReadings{"imsjc", "mmsp", "imsj", "mwsc"};
constexpr std::array<Names, 1> kDenKeeps{"mdd"};
constexpr std::array<Names, 1> kDenPosts{"sum_compaction"};
constexpr std::array kDenTakes{TakenResult{"mdd", "MDD", "", "mdd", false}};
constexpr std::array<Names, 2> kCompactions{"std", "mod"};

constexpr std::array<Names, 5> kCbrReadings{"wcanw", "wms", "read1", "read2", "read3"};
constexpr std::array<Names, 1> kCbrPosts{"sum_CBR"};

constexpr std::span<const Names> kNone;
constexpr std::span<const TakenResult> kTakesNone;

constexpr std::array kTests{
    BatchTest{"att", Test::AttSoil, "mnuAtt", "the Atterberg limits test", "Atterberg Limits", kAttReadings, kAttKeeps,
              kAttPosts, kTakesNone, kNone, PressAtterberg},
    BatchTest{"sie", Test::SieSoil, "mnuSie", "the sieve analysis", "Sieve Analysis", kSieReadings, kSieKeeps,
              kSiePosts, kSieTakes, kSieNeeds, PressSieve},
    BatchTest{"spc", Test::SpcSoil, "mnuSpe", "the specific gravity test", "Specific Gravity", kSpcReadings, kSpcKeeps,
              kSpcPosts, kTakesNone, kNone, PressSpecific},
    BatchTest{"std", Test::StdSoil, "mnuStd", "the standard compaction", "Standard Compaction", kCompactionReadings,
              kCompactionKeeps, kStdPosts, kCompactionTakes, kCompactionNeeds, PressCompaction},
    BatchTest{"mod", Test::ModSoil, "mnuMod", "the modified compaction", "Modified Compaction", kCompactionReadings,
              kCompactionKeeps, kModPosts, kCompactionTakes, kCompactionNeeds, PressCompaction},
    BatchTest{"den", Test::DenSoil, "mnuDen", "the field density test", "Field Density", kDenReadings, kDenKeeps,
              kDenPosts, kDenTakes, kCompactions, PressDensity},
    BatchTest{"cbr", Test::CBRSoil, "mnuCBR", "the bearing ratio test", "California Bearing Ratio", kCbrReadings, kNone,
              kCbrPosts, kTakesNone, kCompactions, PressBearing},
};

constexpr std::array kMaterials{
    BatchMaterial{"soil", "soil", Material::Soil, '1', 1},
    BatchMaterial{"crush", "crushed rock", Material::Crush, '2', 2},
};

const TableSchema& Schema(const BatchTest& test, Material material)
{
    return TableOf(test.test, material);
}

}  // namespace

std::span<const BatchTest> BatchTests()
{
    return kTests;
}

std::span<const BatchMaterial> BatchMaterials()
{
    return kMaterials;
}

const BatchMaterial& RowOf(Material material)
{
    const auto found = std::ranges::find(kMaterials, material, &BatchMaterial::material);
    if (found == kMaterials.end()) throw RuntimeError(error::kInvalidProcedureCall);
    return *found;
}

const BatchTest* FindBatchTest(std::string_view key)
{
    const auto found = std::ranges::find(kTests, key, &BatchTest::key);
    return found == kTests.end() ? nullptr : &*found;
}

std::string TableName(const BatchTest& test, Material material)
{
    return std::string(Schema(test, material).name);
}

std::string ColumnName(const BatchTest& test, std::string_view suffix)
{
    return Schema(test, Material::Soil).ColumnName(suffix);
}

/// A reading of 0 is none, as on the sheets.
bool HasReadings(const ProjectTexts& texts, const BatchTest& test, Material material)
{
    const TableSchema& table = Schema(test, material);
    return std::ranges::any_of(test.readings, [&](std::string_view suffix) {
        for (int row = 1; row <= table.rows; ++row) {
            if (Val(texts.Text(table.name, table.ColumnName(suffix), row)) != 0) return true;
        }
        return false;
    });
}

const BatchTest* SourceOf(const TakenResult& taken, const ProjectTexts& texts, const BatchTest& test, Material material)
{
    if (!taken.from.empty()) return FindBatchTest(taken.from);
    const std::string chosen = texts.Trimmed(TableName(test, material), ColumnName(test, "comp"), 1);
    if (chosen == "Std") return FindBatchTest("std");
    return chosen == "Mod" ? FindBatchTest("mod") : nullptr;
}

}  // namespace terravane
