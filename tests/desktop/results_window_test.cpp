// The overall results as a user meets them: from the menu, by keyboard, with merged cells painted as one.
#include <QAction>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"
#include "desktop/layouts.h"

namespace terravane {
namespace {

struct ResultsWindow : ::testing::Test {
    DesktopFixture running;

    ResultsWindow() { running.MakeProject(); }

    QWidget* OpenFromMenu()
    {
        running.Window("mdiBack")->findChild<QAction*>("mnuSum")->trigger();
        QWidget* window = running.Window("frmSummary");
        (void)QTest::qWaitForWindowActive(window);
        return window;
    }

    GridView* Grid() const { return running.Widget<GridView>("frmSummary", "mshSum"); }
};

TEST_F(ResultsWindow, OpensFromTheMenuAboveTheFrame)
{
    QWidget* window = OpenFromMenu();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle(), "Overall Report");
    EXPECT_TRUE(window->isModal());
    EXPECT_EQ(running.Widget<QLineEdit>("frmSummary", "txtProject")->text(), "ถนนสาย ก-ข ตอน 1");
    EXPECT_TRUE(running.surroundings.failures.empty());
}

TEST_F(ResultsWindow, EveryVisibleControlHasAPlace)
{
    OpenFromMenu();
    for (const char* name : {"imgLogo", "txtProject", "txtLocation", "mshSum", "cmdPrint", "cmdClose"}) {
        const auto* view = running.Widget("frmSummary", name);
        ASSERT_NE(view, nullptr) << name;
        EXPECT_TRUE(view->isVisible()) << name;
        EXPECT_FALSE(view->accessibleName().isEmpty()) << name;
    }
}

TEST_F(ResultsWindow, MergedCellsArePaintedAsOne)
{
    OpenFromMenu();
    GridView* grid = Grid();
    EXPECT_EQ(grid->rowSpan(0, 0), 2) << "the head of the tests";
    EXPECT_EQ(grid->columnSpan(0, 2), 2) << "the head of the values";
    EXPECT_EQ(grid->rowSpan(2, 0), 4) << "the Atterberg limits";
    EXPECT_EQ(grid->rowSpan(6, 0), 3) << "the fractions";
    EXPECT_EQ(grid->rowSpan(11, 0), 1);
    EXPECT_EQ(grid->rowSpan(2, 2), 1) << "blank values stay apart";
    EXPECT_FALSE(grid->grab().isNull());
}

TEST_F(ResultsWindow, TheWholeTableIsSeenAtOnce)
{
    QWidget* window = OpenFromMenu();
    EXPECT_LE(window->height(), 690) << "on a screen of 720 lines, below the window's title";
    window->resize(window->sizeHint());
    QCoreApplication::processEvents();
    const GridView* grid = Grid();
    EXPECT_GE(grid->viewport()->height(), grid->rowViewportPosition(17) + grid->rowHeight(17));
    EXPECT_GE(grid->viewport()->width(), grid->columnViewportPosition(3) + grid->columnWidth(3));
}

TEST_F(ResultsWindow, AMergedCellTakesAPressAndNothingHappens)
{
    OpenFromMenu();
    GridView* grid = Grid();
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, QPoint(20, grid->rowViewportPosition(4)));
    QTest::mouseClick(grid->viewport(), Qt::RightButton, {}, QPoint(20, 5));
    QTest::keyClick(grid, Qt::Key_Down);
    EXPECT_TRUE(running.surroundings.failures.empty());
    EXPECT_NE(running.program.Loaded("frmSummary"), nullptr);
}

TEST_F(ResultsWindow, ClosesByItsButtonFromTheKeyboard)
{
    QWidget* window = OpenFromMenu();
    auto* close = running.Widget<QPushButton>("frmSummary", "cmdClose");
    for (int step = 0; step < 10 && !close->hasFocus(); ++step) QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(close->hasFocus()) << "The Tab key reaches Close.";
    QTest::keyClick(close, Qt::Key_Return);
    EXPECT_EQ(running.program.Loaded("frmSummary"), nullptr);
}

TEST_F(ResultsWindow, ClosesByEscape)
{
    QTest::keyClick(OpenFromMenu(), Qt::Key_Escape);
    EXPECT_EQ(running.program.Loaded("frmSummary"), nullptr);
    EXPECT_NE(OpenFromMenu(), nullptr) << "and opens again";
}

TEST_F(ResultsWindow, EscapeLeavesATypedProjectNameStanding)
{
    QWidget* window = OpenFromMenu();
    auto* project = running.Widget<QLineEdit>("frmSummary", "txtProject");
    QTest::keyClicks(project, "x");
    QTest::keyClick(window, Qt::Key_Escape);
    ASSERT_NE(running.program.Loaded("frmSummary"), nullptr);
    EXPECT_EQ(project->text(), "ถนนสาย ก-ข ตอน 1x");
    QTest::keyClick(project, Qt::Key_Backspace);
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_EQ(running.program.Loaded("frmSummary"), nullptr) << "What was typed is taken back.";
}

TEST_F(ResultsWindow, PrintsIntoTheChosenFile)
{
    OpenFromMenu();
    running.surroundings.printInto = running.PathOf("results.pdf");
    QTest::mouseClick(running.Widget<QPushButton>("frmSummary", "cmdPrint"), Qt::LeftButton);
    EXPECT_TRUE(running.disk.Exists(running.PathOf("results.pdf")));
    EXPECT_TRUE(running.surroundings.failures.empty());
}

TEST_F(ResultsWindow, StaysClosedForAVanishedProject)
{
    QFile::remove(QString::fromStdString(running.program.CurrentProjectPath));
    running.Window("mdiBack")->findChild<QAction*>("mnuSum")->trigger();
    EXPECT_EQ(running.program.Loaded("frmSummary"), nullptr);
    EXPECT_TRUE(running.surroundings.failures.empty());
    EXPECT_TRUE(running.surroundings.messages.empty());
}

}  // namespace
}  // namespace terravane
