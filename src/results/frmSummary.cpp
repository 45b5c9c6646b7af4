#include "results/frmSummary.h"

#include "laboratory/tests.h"
#include "results/product_picture.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "store/statements.h"

namespace terravane {

namespace {

// Widths of the grid and of its first two columns, in twips; the values share the rest.
constexpr double kGridWidth = 9600;
constexpr double kTestWidth = 2200;
constexpr double kPropertyWidth = 1700;

constexpr char kMark = '*';

struct MaterialColumn {
    Material material;
    int column;
    std::string_view head;
};

constexpr std::array kMaterialColumns{
    MaterialColumn{Material::Soil, summary::kSoil, laboratory::kMaterials[0].caption},
    MaterialColumn{Material::Crush, summary::kCrush, laboratory::kMaterials[1].caption},
};

/// A way of testing that is marked behind its results.
/// choice, chosen   the column of the test's first row that tells it, and what stands there
/// firstRow, lastRow  of the grid
/// marksBlanks      whether a result that was never posted is marked, too
struct Remark {
    Test test;
    std::string_view choice, chosen;
    int firstRow, lastRow;
    bool marksBlanks;
};

constexpr std::array kRemarks{
    Remark{Test::SieSoil, "sie_pwash", "1", summary::RowOf("gravel"), summary::RowOf("finer"), false},  // a wet sieve
    Remark{Test::CBRSoil, "cbr_typ", "0", summary::RowOf("CBR"), summary::RowOf("CBR"), true},          // unsoaked
};

std::shared_ptr<const Picture> ProductLogo()
{
    const auto content = ProductPictures().front().content;
    return ReadPicture("imgLogo", Bytes(content.begin(), content.end()));
}

void Mark(TextGrid& grid, const Remark& remark, int column)
{
    for (int row = remark.firstRow; row <= remark.lastRow; ++row) {
        const auto cell = grid(row, column);
        if (remark.marksBlanks || !Trim(cell).empty()) grid(row, column) = cell.Text() + kMark;
    }
}

}  // namespace

frmSummary::frmSummary(Program& owner) : Form(owner, "frmSummary", "Overall Report"), program(owner)
{
    imgLogo.SetContent(ProductLogo());
}

void frmSummary::Form_Load()
{
    OpenRecentProject();
    ShowHeadings();
    ShowResults();
    MarkResults();
    LayOutGrid();
    ShowTitles();
}

/// The recent entry counts, also where no file was opened since the program started.
void frmSummary::OpenRecentProject() const
{
    program.CurrentProjectPath = program.Get<Form>("mdiBack").Get<MenuEntry>("mnuRecent").Caption();
    OpenProjectConnection(program);
}

void frmSummary::ShowHeadings()
{
    const jet::Recordset head = Query(program, program.ProjectConnection, SelectAll("HEAD"));
    txtProject.SetText(head.Fields("project_Name"));
    txtLocation.SetText(head.Fields("project_Location"));
    headings_ = {txtProject.Text(), txtLocation.Text()};
}

bool frmSummary::HoldsUnkeptTexts() const
{
    return headings_ != std::array{txtProject.Text(), txtLocation.Text()};
}

/// SUMMARY has a row a material, soil first.
void frmSummary::ShowResults()
{
    jet::Recordset results = Query(program, program.ProjectConnection, SelectAll(kSummaryTable));
    for (const auto& [material, column, head] : kMaterialColumns) {
        for (int row = summary::kHeadRows; row < summary::kRows; ++row) {
            const laboratory::Posted& result = *summary::LineOf(row).result;
            const std::string posted = results.Fields(SummaryTable().ColumnName(result.column));
            mshSum(row, column) = result.mask.empty() ? posted : Format(posted, result.mask);
        }
        results.MoveNext();
    }
}

void frmSummary::MarkResults()
{
    for (const Remark& remark : kRemarks) {
        for (const auto& [material, column, head] : kMaterialColumns) {
            const auto table = TableOf(remark.test, material).name;
            const jet::Recordset rows = Query(program, program.ProjectConnection, SelectAll(table));
            if (Trim(rows.Fields(remark.choice)) == remark.chosen) Mark(mshSum, remark, column);
        }
    }
}

void frmSummary::LayOutGrid()
{
    mshSum.SetHeadRows(summary::kHeadRows);
    mshSum.SetColumnWidth(summary::kTest, kTestWidth);
    mshSum.SetColumnWidth(summary::kProperty, kPropertyWidth);
    for (const auto& [material, column, head] : kMaterialColumns)
        mshSum.SetColumnWidth(column, (kGridWidth - kTestWidth - kPropertyWidth) / 2);
    mshSum.MergeCells = Merging::Free;
    mshSum.SetMergeRow(0);
    mshSum.SetMergeCol(summary::kTest);
    mshSum.SetMergeCol(summary::kProperty);
}

/// Equal neighbours stand as one cell.
void frmSummary::ShowTitles()
{
    for (int row = 0; row < summary::kHeadRows; ++row) {
        mshSum(row, summary::kTest) = "List of Testing";
        mshSum(row, summary::kProperty) = "Properties";
    }
    for (const auto& [material, column, head] : kMaterialColumns) {
        mshSum(0, column) = "Values";
        mshSum(1, column) = head;
    }
    for (int row = summary::kHeadRows; row < summary::kRows; ++row) {
        mshSum(row, summary::kTest) = summary::LineOf(row).group;
        mshSum(row, summary::kProperty) = summary::LineOf(row).result->property;
    }
}

void frmSummary::cmdPrint_Click() const
try {
    const auto target = program.Ask().AskPrinter();
    if (!target) return;
    DrawPage(program.printer);
    program.printer.SetTarget(*target, std::string(kSummaryTitle));
    program.printer.EndDoc();
} catch (const RuntimeError&) {
    program.printer.KillDoc();
}

}  // namespace terravane
