// What the Edit menu and its keys do: undo and redo, blocks of cells, the history at the right, drafts that are
// offered.
#include <QAction>
#include <QClipboard>
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QRubberBand>
#include <QTableWidget>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"

namespace terravane {
namespace {

struct Edit : testing::Test {
    DesktopFixture running;

    Edit()
    {
        running.MakeProject();
        running.desktop->KeepDrafts(running.PathOf("Drafts/"));
        running.OpenSheet("mnuStd1");
        QCoreApplication::processEvents();
    }

    GridView* Grid() const { return static_cast<GridView*>(running.Widget<QTableView>("frmCompaction", "MSHWt")); }
    Form& Sheet() const { return running.FormNamed("frmCompaction"); }
    std::string Cell(int row, int column) const { return Sheet().Get<TextGrid>("MSHWt")(row, column).Text(); }
    static void Press(Qt::Key key, Qt::KeyboardModifiers with = {})
    {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : QApplication::activeWindow(), key, with);
        QCoreApplication::processEvents();
    }
    QPoint Middle(int row, int column) const
    {
        return Grid()->visualRect(Grid()->model()->index(row, column)).center();
    }
    void Click(int row, int column, Qt::KeyboardModifiers with = {}) const
    {
        QTest::mouseClick(Grid()->viewport(), Qt::LeftButton, with, Middle(row, column));
        QCoreApplication::processEvents();
    }
    void TypeInto(int row, int column, const char* text) const
    {
        Click(row, column);
        QTest::keyClicks(QApplication::focusWidget(), text);
        Press(Qt::Key_Return);
    }
    QAction* Action(const char* name) const { return running.Window("mdiBack")->findChild<QAction*>(name); }
};

TEST_F(Edit, CtrlZTakesBackWhatEnterTookAlsoFromWithinTheNextCell)
{
    TypeInto(2, 1, "85.3");
    ASSERT_EQ(Cell(2, 1), "85.30");
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(Cell(2, 1), "85.30");
    EXPECT_TRUE(Action("redo")->isEnabled());
    Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Cell(2, 1), "85.30");
}

TEST_F(Edit, CtrlZInACellThatIsBeingTypedIsTheBoxesOwn)
{
    TypeInto(2, 1, "85.3");
    QTest::keyClicks(QApplication::focusWidget(), "9");
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Cell(2, 1), "85.30");
}

TEST_F(Edit, ABlockPastedIntoTheOpenEditorGoesIntoCells)
{
    QApplication::clipboard()->setText("85.3\t86.5\n30\t31\n");
    Click(2, 1);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Cell(2, 1), "85.30");
    EXPECT_EQ(Cell(2, 2), "86.50");
    EXPECT_EQ(Cell(3, 2), "31.00");
    Action("undo")->trigger();
    EXPECT_NE(Cell(3, 2), "31.00");
}

TEST_F(Edit, ASingleTextPastedIntoTheOpenEditorStaysThere)
{
    QApplication::clipboard()->setText("85.3");
    Click(2, 1);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_NE(Cell(2, 1), "85.30");
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(2, 1), "85.30");
}

TEST_F(Edit, ABlockIsMarkedWithShiftAndTheMouseCopiedAndErased)
{
    QApplication::clipboard()->setText("1\t2\n3\t4\n");
    Click(2, 1);
    Press(Qt::Key_V, Qt::ControlModifier);
    Click(2, 1);
    Click(3, 2, Qt::ShiftModifier);
    auto* band = Grid()->viewport()->findChild<QRubberBand*>("block");
    ASSERT_TRUE(band && band->isVisible());
    EXPECT_TRUE(band->geometry().contains(Middle(3, 1)));
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "1.00\t2.00\n3.00\t4.00\n");
    Press(Qt::Key_Delete);
    EXPECT_EQ(Cell(3, 2), Cell(3, 3)) << "nothing, as the mask writes it";
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Cell(3, 2), "4.00");
}

TEST_F(Edit, ABlockIsMarkedWithShiftAndTheArrows)
{
    TypeInto(2, 1, "1");
    TypeInto(3, 1, "2");
    Click(2, 1);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "1.00\n2.00\n");
}

TEST_F(Edit, TheHistoryShowsWhatASaveChangedAndTheSheetAsItStood)
{
    auto* panel = running.Window("mdiBack")->findChild<QDockWidget*>("history");
    ASSERT_TRUE(panel);
    EXPECT_FALSE(panel->isVisible());
    TypeInto(2, 1, "85.3");
    Press(Qt::Key_S, Qt::ControlModifier);
    panel->show();
    QCoreApplication::processEvents();
    auto* list = panel->findChild<QTreeWidget*>();
    const auto found = list->findItems("Mass of Can + Wet Soil, (g), trial 1\n\"\" > \"85.30\"", Qt::MatchExactly, 0);
    ASSERT_EQ(found.size(), 1);
    list->setCurrentItem(found.front());
    panel->findChild<QPushButton*>()->click();
    auto* stood = running.Window("mdiBack")->findChild<QDialog*>("texts");
    ASSERT_TRUE(stood);
    EXPECT_GT(stood->findChild<QTableWidget*>()->rowCount(), 1);
}

TEST_F(Edit, ADraftIsOfferedInTheNoticeBarWithThreeAnswers)
{
    TypeInto(2, 1, "85.3");
    running.OpenSheet("mnuStd1");
    QCoreApplication::processEvents();
    EXPECT_NE(Cell(2, 1), "85.30");
    QStringList answers;
    QPushButton* takeBack = nullptr;
    for (auto* button : running.Widget<QFrame>("mdiBack", "noticeBar")->findChildren<QPushButton*>()) {
        if (!button->isVisible()) continue;
        answers << button->text().remove('&');
        if (answers.back() == "Take back") takeBack = button;
    }
    EXPECT_TRUE(answers.contains("Show") && answers.contains("Forget")) << answers.join(", ").toStdString();
    ASSERT_TRUE(takeBack);
    takeBack->click();
    EXPECT_EQ(Cell(2, 1), "85.30");
}

}  // namespace
}  // namespace terravane
