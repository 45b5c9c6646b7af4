// Grids in which typed and calculated columns alternate: the editor stands over typed cells only.
#include <gtest/gtest.h>

#include "controls/cell_editor.h"
#include "controls/form.h"

namespace terravane {
namespace {

struct PlainBoundary : EventBoundary {
    void Run(std::string_view, const std::function<void()>& handler) override { handler(); }
};

/// Three rows of five columns; columns 1 and 3 are worked out.
struct CalculatedCells : testing::Test {
    PlainBoundary boundary;
    Form form{boundary, "frmGrid", "Grid"};
    TextGrid grid{form, "MSHGrid", 3, 5};
    CellEditor editor{form, "txtData", grid, [] { return CellRange{0, 2, 0, 4}; }};

    CalculatedCells()
    {
        for (int row = 0; row < 3; ++row)
            for (const int column : {1, 3}) grid.MarkCalculated(row, column);
    }

    std::string After(int row, int column, Key key)
    {
        editor.OpenAt(row, column);
        editor.PressKey(key);
        return std::to_string(grid.Row()) + "," + std::to_string(grid.Column());
    }
};

TEST_F(CalculatedCells, CannotBeOpened)
{
    EXPECT_FALSE(editor.OpenAt(1, 1));
    EXPECT_FALSE(editor.Visible());
    EXPECT_TRUE(editor.OpenAt(1, 2));
}

TEST_F(CalculatedCells, AreSteppedOver)
{
    EXPECT_EQ(After(0, 0, Key::Right), "0,2");
    EXPECT_EQ(After(0, 2, Key::Tab), "0,4");
    EXPECT_EQ(After(0, 4, Key::Left), "0,2");
    EXPECT_EQ(After(0, 4, Key::Right), "1,0");
    EXPECT_EQ(After(2, 0, Key::Enter), "0,2") << "The whole calculated column is passed.";
    EXPECT_EQ(After(0, 2, Key::Down), "1,2");
}

TEST_F(CalculatedCells, AtTheEndOfTheWayKeepTheEditorWhereItIs)
{
    for (int row = 0; row < 3; ++row) grid.MarkCalculated(row, 4);
    EXPECT_EQ(After(2, 2, Key::Right), "2,2");
    EXPECT_EQ(After(2, 2, Key::Enter), "2,2");
    EXPECT_TRUE(editor.Visible());
}

TEST_F(CalculatedCells, ADisabledGridTakesNoPress)
{
    int presses = 0;
    grid.MouseDown = [&](MouseButton, int, int) { ++presses; };
    grid.SetEnabled(false);
    grid.PressMouse(MouseButton::Left, 1, 2);
    EXPECT_EQ(presses, 0);
    grid.SetEnabled(true);
    grid.PressMouse(MouseButton::Left, 1, 2);
    EXPECT_EQ(presses, 1);
}

}  // namespace
}  // namespace terravane
