#include "controls/list_cell_editor.h"

#include <gtest/gtest.h>

#include "controls/furniture.h"
#include "unit/controls/plain_form.h"

namespace terravane {
namespace {

struct ListForm : PlainForm {
    TextGrid grid{*this, "grid", 4, 3};
    CellEditor box{*this, "box", grid, [] { return CellRange{1, 3, 1, 1}; }};
    ListCellEditor list{*this, "list", grid, {1, 3, 2, 2}, {"Tester", "Checker"}};
    Frame frame{*this, "frame"};
};

TEST(ListCellEditor, BeginsHidden)
{
    EXPECT_FALSE(ListForm().list.Visible());
}

TEST(ListCellEditor, StandsOverItsCellWithTheCellsTextAndTheFocus)
{
    ListForm form;
    form.grid(3, 2) = "Checker";
    form.list.OpenAt(3, 2);
    EXPECT_EQ(form.grid.Row(), 3);
    EXPECT_EQ(form.grid.Column(), 2);
    EXPECT_EQ(form.list.Text(), "Checker");
    EXPECT_TRUE(form.list.Visible());
    EXPECT_TRUE(form.list.HasFocus());
    form.list.Hide();
    EXPECT_FALSE(form.list.Visible());
}

TEST(ListCellEditor, TakesATextThatItsListDoesNotHave)
{
    ListForm form;
    form.grid(1, 2) = "   ";
    form.list.OpenAt(1, 2);
    EXPECT_EQ(form.list.Text(), "   ");
    EXPECT_EQ(form.list.List(), (std::vector<std::string>{"Tester", "Checker"}));
}

TEST(ListCellEditor, HidesTheBoxThatStoodThereBefore)
{
    ListForm form;
    form.box.OpenAt(1, 1);
    form.list.OpenAt(1, 2);
    EXPECT_FALSE(form.box.Visible());
}

TEST(ListCellEditor, TellsItsViewsWhenOnlyTheCellIsAnother)
{
    ListForm form;
    form.list.OpenAt(1, 2);
    int shown = 0;
    const Subscription view = form.list.Show([&shown] { ++shown; });
    form.list.OpenAt(2, 2);
    EXPECT_GT(shown, 1) << "The view has to move the list, though its text is the same.";
}

TEST(Frame, RunsItsClickWhereItHasOne)
{
    ListForm form;
    int clicks = 0;
    form.frame.Press();
    form.frame.Click = [&clicks] { ++clicks; };
    form.frame.Press();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(form.events.back(), "frmPlain.frame_Click");
}

}  // namespace
}  // namespace terravane
