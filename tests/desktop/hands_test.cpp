// Everything by the keyboard: keys of the shell, the way into grids and out of them, and how many keys a report takes.
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"
#include "program/next_command.h"

namespace terravane {
namespace {

/// Keys go where the focus is; those that type no text are counted.
class Keyboard {
  public:
    int controlKeys = 0;

    void Type(const QString& text)
    {
        QTest::keyClicks(Target(), text);
        QCoreApplication::processEvents();
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers with = {})
    {
        ++controlKeys;
        QTest::keyClick(Target(), key, with);
        QCoreApplication::processEvents();
    }
    /// A text and Enter behind it.
    void Enter(const QString& text = {})
    {
        Type(text);
        Press(Qt::Key_Return);
    }

  private:
    static QWidget* Target()
    {
        QWidget* focus = QApplication::focusWidget();
        return focus ? focus : QApplication::activeWindow();
    }
};

struct Hands : testing::Test {
    DesktopFixture running;
    Keyboard keys;

    Hands() { running.MakeProject(); }

    void Open(const char* key)
    {
        running.OpenSheet(key);
        QCoreApplication::processEvents();
    }
    GridView* Grid(const char* name) const
    {
        return static_cast<GridView*>(running.Widget<QTableView>("frmCompaction", name));
    }
    Form& Sheet() const { return running.FormNamed("frmCompaction"); }
    bool HasFocus(const char* control) const
    {
        auto* widget = running.Widget("frmCompaction", control);
        QWidget* focus = QApplication::focusWidget();
        return widget && (widget == focus || widget->isAncestorOf(focus));
    }
};

// Three weighings and a can number a trial, the molds, the boxes: 35 readings want 35 Enters, all else is 20 keys.
TEST_F(Hands, ACompactionReportTakesAtMost75ControlKeys)
{
    running.Window("mdiBack")->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(running.Window("mdiBack")));
    // The drop-down of the button waits for its answer.
    QTimer::singleShot(100, [this] {
        ASSERT_TRUE(QApplication::activePopupWidget()) << "Alt+T drops the test's materials down.";
        keys.controlKeys += 2;
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    });
    keys.Press(Qt::Key_T, Qt::AltModifier);
    ASSERT_TRUE(running.program.Loaded("frmCompaction")) << "Alt+T opens the standard compaction.";
    QTest::qWait(10);
    ASSERT_TRUE(HasFocus("txtSoil")) << "The sample is the first empty place.";
    keys.Enter("Infield mix");
    keys.Enter("A. Tester");
    keys.Type("B. Checker");
    keys.Press(Qt::Key_Tab);
    keys.Press(Qt::Key_Tab);
    ASSERT_TRUE(HasFocus("txtDia"));
    keys.Enter("10.16");
    keys.Type("11.562");
    keys.Press(Qt::Key_Tab);
    keys.Enter("2.5 kg");
    keys.Enter("25");
    keys.Type("3");
    keys.Press(Qt::Key_Tab);
    for (const char* text :
         {"C1",     "31.61", "29.712", "1.282",  "C2",     "21.557", "20.04", "1.54",   "C3",     "39.793",
          "36.261", "1.0",   "C4",     "41.866", "37.619", "0.282",  "C5",    "49.359", "43.626", "1.288"})
        keys.Enter(text);
    keys.Press(Qt::Key_Escape);
    keys.Press(Qt::Key_Tab);
    for (const char* text :
         {"", "3325", "1484.5", "", "3439.926", "/", "", "3541", "/", "", "3583.5", "/", "", "3534.5", "/"})
        keys.Enter(text);
    keys.Press(Qt::Key_F5);
    keys.Press(Qt::Key_F5);
    EXPECT_EQ(Sheet().Get<TextBox>("txtOMC").Text(), "11.2");
    EXPECT_EQ(Sheet().Get<TextBox>("txtDmax").Text(), "2.01");
    keys.Press(Qt::Key_S, Qt::ControlModifier);
    keys.Press(Qt::Key_P, Qt::ControlModifier);
    ASSERT_TRUE(running.program.Loaded("frmPreview"));
    running.surroundings.printInto = running.PathOf("report.pdf");
    QTest::keyClick(running.Window("frmPreview"), Qt::Key_S, Qt::ControlModifier);
    keys.controlKeys += 2;  // that key, and Enter under the name that the dialog proposes
    EXPECT_TRUE(running.disk.Exists(running.PathOf("report.pdf")));
    EXPECT_TRUE(running.surroundings.failures.empty());
    EXPECT_LE(keys.controlKeys, 75);
    std::printf("control keys of one compaction report: %d\n", keys.controlKeys);
}

TEST_F(Hands, TabBehindTheLastCellLeavesTheGridAndShiftTabComesBack)
{
    Open("mnuStd1");
    Grid("MSHWt")->Grid().PressMouse(MouseButton::Left, 4, 6);
    keys.Press(Qt::Key_Tab);
    EXPECT_FALSE(Grid("MSHWt")->EditorBox()->isVisible());
    EXPECT_TRUE(HasFocus("MSHDensity"));
    EXPECT_EQ(Grid("MSHDensity")->Grid().Row(), 0);
    keys.Press(Qt::Key_Backtab);
    EXPECT_TRUE(HasFocus("MSHWt"));
    EXPECT_EQ(Grid("MSHWt")->Grid().Row(), 4);
    EXPECT_EQ(Grid("MSHWt")->Grid().Column(), 6);
    keys.Press(Qt::Key_Backtab);
    EXPECT_EQ(Grid("MSHWt")->Grid().Column(), 5) << "Within the grid it goes back cell by cell.";
}

TEST_F(Hands, AfterEscADigitOrF2OrEnterOpensTheCell)
{
    Open("mnuStd1");
    GridView* grid = Grid("MSHWt");
    grid->Grid().PressMouse(MouseButton::Left, 2, 3);
    keys.Press(Qt::Key_Escape);
    ASSERT_TRUE(grid->hasFocus()) << "The grid shows its cell.";
    ASSERT_FALSE(grid->EditorBox()->isVisible());
    keys.Press(Qt::Key_Down);
    EXPECT_EQ(grid->Grid().Row(), 3);
    keys.Type("7");
    ASSERT_TRUE(grid->EditorBox()->isVisible());
    EXPECT_EQ(grid->EditorBox()->text(), "7");
    keys.Press(Qt::Key_Escape);
    keys.Press(Qt::Key_F2);
    EXPECT_TRUE(grid->EditorBox()->isVisible());
    keys.Press(Qt::Key_Escape);
    keys.Press(Qt::Key_Return);
    EXPECT_TRUE(grid->EditorBox()->isVisible());
}

TEST_F(Hands, ACellsBoxGoesWhenAnotherPlaceTakesTheFocus)
{
    Open("mnuStd1");
    GridView* grid = Grid("MSHWt");
    grid->Grid().PressMouse(MouseButton::Left, 2, 3);
    ASSERT_TRUE(grid->EditorBox()->isVisible());
    running.Widget("frmCompaction", "txtDia")->setFocus();
    EXPECT_FALSE(grid->EditorBox()->isVisible());
}

TEST_F(Hands, AKeyWithControlLeavesTheCellOpen)
{
    Open("mnuStd1");
    GridView* grid = Grid("MSHWt");
    grid->Grid().PressMouse(MouseButton::Left, 2, 3);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape}) {
        keys.Press(key, Qt::ControlModifier);
        EXPECT_EQ(grid->Grid().Row(), 2);
        EXPECT_TRUE(grid->EditorBox()->isVisible());
    }
    keys.Press(Qt::Key_Down);
    EXPECT_EQ(grid->Grid().Row(), 3);
}

TEST_F(Hands, EnterPressesTheButtonThatHasTheFocus)
{
    Open("mnuStd1");
    running.FillCompaction();
    running.Widget("frmCompaction", "cmdCal")->setFocus();
    keys.Press(Qt::Key_Return);
    EXPECT_EQ(Grid("MSHWt")->Grid()(7, 1).Text(), "6.68");
}

TEST_F(Hands, ControlPageKeysTurnTabsButNotToShutOnes)
{
    Open("mnuStd1");
    auto* tabs = running.Widget<QTabWidget>("frmCompaction", "SSTData");
    keys.Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), 0) << "The curve waits for Calculate.";
    Sheet().Get<TabControl>("SSTData").SetTabEnabled(1, true);
    keys.Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), 1);
    keys.Press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), 0);
}

TEST_F(Hands, ControlWClosesNothingThatHoldsUnsavedTexts)
{
    Open("mnuStd1");
    auto* box = running.Widget<QLineEdit>("frmCompaction", "txtDia");
    box->setFocus();
    keys.Type("10.16");
    keys.Press(Qt::Key_W, Qt::ControlModifier);
    ASSERT_TRUE(running.program.Loaded("frmCompaction"));
    ASSERT_TRUE(running.program.notices.Current()) << "It says why.";
    EXPECT_EQ(running.program.notices.Current()->kind, NoticeKind::Attention);
    keys.Press(Qt::Key_S, Qt::ControlModifier);
    keys.Press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(running.program.Loaded("frmCompaction"));
}

TEST_F(Hands, F10GoesToTheMenu)
{
    Open("mnuStd1");
    keys.Press(Qt::Key_F10);
    EXPECT_EQ(running.Window("mdiBack")->findChild<QMenuBar*>()->activeAction()->text(), "&File");
}

TEST_F(Hands, TheWheelTurnsNoBoxThatHasNoFocus)
{
    Open("mnuStd1");
    auto* blows = running.Widget<QComboBox>("frmCompaction", "cboBlow");
    Sheet().Get<ComboBox>("cboBlow").Choose(0);
    running.Widget("frmCompaction", "txtDia")->setFocus();
    QWheelEvent down(QPointF(5, 5), blows->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(blows, &down);
    EXPECT_EQ(Sheet().Get<ComboBox>("cboBlow").Text(), "25");
}

// One rule for all sheets: the order of the description, from the first that was not pressed since something was typed.
TEST_F(Hands, TheNextCommandFollowsTheMethod)
{
    Open("mnuCBR1");
    Form& sheet = running.FormNamed("frmCBR");
    NextCommand next(sheet);
    EXPECT_EQ(next.Find()->Name(), "cmdCal");
    next.Done(*sheet.Find("cmdCal"));
    EXPECT_EQ(next.Find(), nullptr) << "What comes then can't be pressed before Calculate has worked.";
    for (const char* later : {"cmdLPen", "cmdView", "cmdCBR"}) sheet.Get<CommandButton>(later).SetEnabled(true);
    EXPECT_EQ(next.Find()->Name(), "cmdLPen");
    next.Done(*sheet.Find("cmdLPen"));
    EXPECT_EQ(next.Find()->Name(), "cmdView") << "The value's tab is shut.";
    next.Typed(*sheet.Find("cboTest"));
    EXPECT_EQ(next.Find()->Name(), "cmdView") << "A tester's name changes no result.";
    next.Typed(*sheet.Find("txtK"));
    EXPECT_EQ(next.Find()->Name(), "cmdCal");
}

TEST_F(Hands, ACommandThatFailedStaysTheNext)
{
    Open("mnuStd1");
    running.FillCompaction();
    auto& height = Sheet().Get<TextBox>("txtHeight");
    height.Type("");
    keys.Press(Qt::Key_F5);
    EXPECT_TRUE(running.Widget<QPushButton>("frmCompaction", "cmdCal")->isDefault());
    height.Type("11.562");
    keys.Press(Qt::Key_F5);
    EXPECT_TRUE(running.Widget<QPushButton>("frmCompaction", "cmdOMC")->isDefault());
    EXPECT_FALSE(running.Widget<QPushButton>("frmCompaction", "cmdCal")->isDefault());
}

}  // namespace
}  // namespace terravane
