// Two grids and their editors as the compaction sheet has them: readings in rows 1 to 4 of six columns below a row of
// heads, and rows 0 to 2 of a grid without one.
#include "controls/cell_editor.h"

#include <gtest/gtest.h>

#include "controls/text_controls.h"
#include "runtime/runtime_error.h"
#include "unit/controls/plain_form.h"

namespace terravane {
namespace {

struct EditorForm : PlainForm {
    TextGrid MSHWt{*this, "MSHWt", 8, 7};
    TextGrid MSHDensity{*this, "MSHDensity", 7, 7};
    CellEditor txtData{*this, "txtData", MSHWt,
                       [] {
                           return CellRange{1, 4, 1, 6};
                       },
                       [](int row, int, std::string text) { return row == 1 ? text : "<" + text + ">"; }};
    CellEditor txtData1{*this, "txtData1", MSHDensity, [] { return CellRange{0, 2, 1, 6}; }};
    TextBox txtSoil{*this, "txtSoil"};
};

struct Step {
    Key key;
    int row, column;      // where the editor stands
    int toRow, toColumn;  // where the key takes it
};

void ExpectSteps(CellEditor& editor, const std::vector<Step>& steps)
{
    for (const Step& step : steps) {
        ASSERT_TRUE(editor.OpenAt(step.row, step.column));
        EXPECT_TRUE(editor.PressKey(step.key)) << "The editor keeps its keys to itself.";
        EXPECT_TRUE(editor.Grid().Row() == step.toRow && editor.Grid().Column() == step.toColumn)
            << "Key " << static_cast<int>(step.key) << " from (" << step.row << ", " << step.column << ") went to ("
            << editor.Grid().Row() << ", " << editor.Grid().Column() << ") in place of (" << step.toRow << ", "
            << step.toColumn << ").";
        EXPECT_TRUE(editor.Visible());
    }
}

TEST(CellEditor, WalksTheReadingsByItsKeys)
{
    EditorForm form;
    ExpectSteps(form.txtData, {
                                  {Key::Enter, 1, 1, 2, 1},  // down the column
                                  {Key::Enter, 4, 1, 1, 2},  // from its end to the top of the next
                                  {Key::Enter, 4, 6, 4, 6},  // stays at the last cell
                                  {Key::Up, 2, 3, 1, 3},
                                  {Key::Up, 1, 3, 1, 3},
                                  {Key::Down, 3, 3, 4, 3},
                                  {Key::Down, 4, 3, 4, 3},
                                  {Key::Left, 2, 2, 2, 1},
                                  {Key::Left, 2, 1, 2, 1},
                                  {Key::Right, 2, 5, 2, 6},
                                  {Key::Right, 2, 6, 3, 1},  // on to the next row
                                  {Key::Right, 4, 6, 4, 6},  // not past the last editable row
                                  {Key::Right, 4, 5, 4, 6},
                                  {Key::Tab, 1, 5, 1, 6},
                                  {Key::Tab, 1, 6, 2, 1},
                                  {Key::Tab, 4, 6, 4, 6},
                              });
}

TEST(CellEditor, WalksAGridWithoutHeadsByItsKeys)
{
    EditorForm form;
    ExpectSteps(form.txtData1, {
                                   {Key::Enter, 0, 1, 1, 1},
                                   {Key::Enter, 2, 1, 0, 2},
                                   {Key::Enter, 2, 6, 2, 6},
                                   {Key::Up, 1, 1, 0, 1},
                                   {Key::Up, 0, 1, 0, 1},
                                   {Key::Down, 1, 1, 2, 1},
                                   {Key::Down, 2, 1, 2, 1},
                                   {Key::Left, 0, 2, 0, 1},
                                   {Key::Left, 0, 1, 0, 1},
                                   {Key::Right, 0, 6, 1, 1},
                                   {Key::Right, 2, 6, 2, 6},
                                   {Key::Right, 2, 5, 2, 6},
                               });
}

TEST(CellEditor, CommitsOnEnterOnly)
{
    for (const Key key : {Key::Up, Key::Down, Key::Left, Key::Right, Key::Tab, Key::Esc}) {
        EditorForm form;
        form.txtData.OpenAt(2, 2);
        form.txtData.Type("12");
        form.txtData.PressKey(key);
        EXPECT_EQ(form.MSHWt(2, 2), "") << "Key " << static_cast<int>(key) << " must not commit.";
    }
    EditorForm form;
    form.txtData.OpenAt(2, 2);
    form.txtData.Type("  12 ");
    form.txtData.PressKey(Key::Enter);
    EXPECT_EQ(form.MSHWt(2, 2), "<12>") << "Trimmed, then by the cell's rule.";
}

TEST(CellEditor, CommitsTheTrimmedTextWhereTheGridHasNoRule)
{
    EditorForm form;
    form.txtData1.OpenAt(1, 1);
    form.txtData1.Type(" a b ");
    form.txtData1.PressKey(Key::Enter);
    EXPECT_EQ(form.MSHDensity(1, 1), "a b");
}

TEST(CellEditor, HasAGivenRuleForEachRow)
{
    EditorForm form;
    form.txtData.OpenAt(1, 1);
    form.txtData.Type(" A-1 ");
    form.txtData.PressKey(Key::Enter);
    EXPECT_EQ(form.MSHWt(1, 1), "A-1");
}

TEST(CellEditor, TakesTheNextCellsTextAfterAMove)
{
    EditorForm form;
    form.MSHWt(2, 1) = "5.00";
    form.txtData.OpenAt(1, 1);
    form.txtData.Type("A1");
    const int before = form.txtData.SelectAllRequests();
    form.txtData.PressKey(Key::Enter);
    EXPECT_EQ(form.txtData.Text(), "5.00");
    EXPECT_EQ(form.txtData.SelectAllRequests(), before + 1) << "After Enter the next text is selected whole.";
    form.txtData.PressKey(Key::Up);
    EXPECT_EQ(form.txtData.Text(), "A1");
    EXPECT_EQ(form.txtData.SelectAllRequests(), before + 1) << "After an arrow it is not.";
}

TEST(CellEditor, ShowsWhatTheCellMadeOfTheTextWhereItStays)
{
    EditorForm form;
    form.txtData.OpenAt(4, 6);
    form.txtData.Type("7");
    form.txtData.PressKey(Key::Enter);
    EXPECT_EQ(form.txtData.Text(), "<7>");
}

TEST(CellEditor, EscHidesBothAndKeepsTheCell)
{
    EditorForm form;
    form.MSHWt(1, 1) = "old";
    form.txtData1.SetVisible(true);
    form.txtData.OpenAt(1, 1);
    form.txtData1.SetVisible(true);
    form.txtData.Type("new");
    EXPECT_TRUE(form.txtData.PressKey(Key::Esc));
    EXPECT_FALSE(form.txtData.Visible());
    EXPECT_FALSE(form.txtData1.Visible());
    EXPECT_EQ(form.MSHWt(1, 1), "old");
    EXPECT_EQ(form.MSHWt.Row(), 1);
}

TEST(CellEditor, OnlyOneIsSeenAtATime)
{
    EditorForm form;
    EXPECT_FALSE(form.txtData.Visible()) << "No editor floats before a cell is entered.";
    form.txtData.OpenAt(1, 1);
    form.txtData1.OpenAt(0, 1);
    EXPECT_FALSE(form.txtData.Visible());
    EXPECT_TRUE(form.txtData1.Visible());
    EXPECT_TRUE(form.txtData1.HasFocus());
}

TEST(CellEditor, IsHiddenByAPressOutsideItsCells)
{
    EditorForm form;
    for (const auto& [row, column] : {std::pair{5, 1}, {7, 6}, {0, 3}, {2, 0}}) {
        form.txtData.OpenAt(1, 1);
        form.txtData.PressLeft(row, column);
        EXPECT_FALSE(form.txtData.Visible()) << "Row " << row << ", column " << column << " is not typed into.";
    }
    form.txtData.OpenAt(1, 1);
    form.txtData1.PressLeft(4, 1);
    EXPECT_FALSE(form.txtData.Visible()) << "A press on the other grid hides this grid's editor, wherever it falls.";
}

TEST(CellEditor, OpensByThePressWithItsTextSelected)
{
    EditorForm form;
    form.MSHWt(3, 4) = "55.13";
    const int before = form.txtData.SelectAllRequests();
    form.txtData.PressLeft(3, 4);
    EXPECT_EQ(form.txtData.Text(), "55.13");
    EXPECT_EQ(form.txtData.SelectAllRequests(), before + 1);
    EXPECT_EQ(form.MSHWt.Row(), 3);
    EXPECT_EQ(form.MSHWt.Column(), 4);
}

TEST(CellEditor, BelongsToItsGrid)
{
    EditorForm form;
    EXPECT_EQ(&form.txtData.Grid(), &form.MSHWt);
    EXPECT_EQ(&form.txtData1.Grid(), &form.MSHDensity);
}

TEST(CellEditor, FollowsAGridThatGrows)
{
    PlainForm form;
    TextGrid grid(form, "MSHPenetrate1", 2, 3);
    CellEditor editor(form, "txtData", grid, [&grid] { return CellRange{0, grid.Rows() - 1, 0, 2}; });
    EXPECT_FALSE(editor.OpenAt(2, 0));
    grid.AppendRow({"0.025"});
    EXPECT_TRUE(editor.OpenAt(2, 0));
    EXPECT_EQ(editor.Text(), "0.025");
}

TEST(CellEditor, FailsWithTheCommandThatWalked)
{
    PlainForm form;
    TextGrid grid(form, "MSHWt", 2, 2);
    CellEditor editor(
        form, "txtData", grid,
        [] {
            return CellRange{0, 1, 0, 1};
        },
        [](int, int, const std::string&) -> std::string { throw RuntimeError(error::kOverflow); });
    grid(0, 0) = "kept";
    editor.OpenAt(0, 0);
    editor.Type("x");
    EXPECT_THROW(editor.PressKey(Key::Enter), RuntimeError);
    EXPECT_EQ(grid(0, 0), "kept");
    EXPECT_EQ(form.events.back(), "frmPlain.txtData_KeyDown");
}

}  // namespace
}  // namespace terravane
