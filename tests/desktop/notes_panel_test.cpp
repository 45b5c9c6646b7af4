// The checker's notes in the window: listed at the right, marked on their cells.
#include "desktop/notes_panel.h"

#include <QAction>
#include <QDockWidget>
#include <QListWidget>
#include <QMenu>

#include <gtest/gtest.h>

#include "controls/text_grid.h"
#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"

namespace terravane {
namespace {

struct NotesFixture : DesktopFixture {
    NotesFixture()
    {
        MakeProject();
        OpenSheet("mnuStd1");
        QCoreApplication::processEvents();
    }
    Form& Sheet() const { return FormNamed("frmCompaction"); }
    QDockWidget& Panel() const { return *Window("mdiBack")->findChild<QDockWidget*>("notes"); }
    QListWidget& List() const { return *Panel().findChild<QListWidget*>(); }
    GridView& Grid() const
    {
        for (GridView* grid : Window("frmCompaction")->findChildren<GridView*>())
            if (grid->Grid().Name() == "MSHWt") return *grid;
        throw std::logic_error("no grid");
    }
    /// Dry soil that is heavier than wet soil, in the second can.
    void PutSwappedCan()
    {
        auto& grid = Sheet().Get<TextGrid>("MSHWt");
        grid(2, 2) = "40.00";
        grid(3, 2) = "42.00";
        Sheet().RunEvent("frmCompaction.txtData1_KeyPress", [] {});
        QCoreApplication::processEvents();
    }
};

TEST(NotesPanelTest, ListsTheNotesAndCountsThemInItsTitle)
{
    NotesFixture running;
    EXPECT_EQ(running.Panel().windowTitle(), "Notes (0)");
    EXPECT_FALSE(running.Panel().isVisible()) << "Closed until somebody opens it.";
    running.PutSwappedCan();
    EXPECT_EQ(running.Panel().windowTitle(), "Notes (1)");
    ASSERT_EQ(running.List().count(), 1);
    EXPECT_EQ(running.List().item(0)->text(),
              "impossible: Trial 2: the can with dry soil, 42 g, is not lighter than with wet soil, 40 g.");
}

TEST(NotesPanelTest, OpensFromTheViewMenuBesideTheHistory)
{
    NotesFixture running;
    running.PutSwappedCan();
    QAction* action = running.Panel().toggleViewAction();
    EXPECT_TRUE(running.Window("mdiBack")->findChild<QMenu*>("view")->actions().contains(action));
    action->trigger();
    EXPECT_TRUE(running.Panel().isVisible());
}

TEST(NotesPanelTest, ANoteLeadsToItsCell)
{
    NotesFixture running;
    running.PutSwappedCan();
    running.Panel().toggleViewAction()->trigger();
    running.List().setCurrentRow(0);
    emit running.List().itemActivated(running.List().item(0));
    QCoreApplication::processEvents();
    const auto& grid = running.Sheet().Get<TextGrid>("MSHWt");
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.Column(), 2);
}

TEST(NotesPanelTest, TheCellBearsAMarkInItsCorner)
{
    NotesFixture running;
    GridView& grid = running.Grid();
    const QRect cell = grid.visualRect(grid.model()->index(3, 2));
    const auto corner = [&] { return grid.viewport()->grab().toImage().pixelColor(cell.topRight() + QPoint(-2, 2)); };
    const QColor before = corner();
    running.PutSwappedCan();
    EXPECT_NE(corner(), before);
    EXPECT_EQ(corner(), grid.palette().color(QPalette::Highlight));
    running.Sheet().Get<TextGrid>("MSHWt")(3, 2) = "39.00";
    running.Sheet().RunEvent("frmCompaction.txtData1_KeyPress", [] {});
    QCoreApplication::processEvents();
    EXPECT_EQ(corner(), before) << "What is mended is not marked any more.";
}

}  // namespace
}  // namespace terravane
