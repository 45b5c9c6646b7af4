// A technician's whole job with real keys and clicks on real windows.
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"

namespace terravane {
namespace {

void TypeInto(QWidget* widget, const QString& text)
{
    QTest::keyClicks(widget, text);
    QTest::keyClick(widget, Qt::Key_Return);
}

/// One column of a grid, typed from the top by keys alone.
void TypeColumn(QLineEdit* cell, const std::vector<const char*>& texts)
{
    for (const char* text : texts) TypeInto(cell, text);
}

GridView* GridOf(DesktopFixture& running, const char* name)
{
    return static_cast<GridView*>(running.Widget<QTableView>("frmCompaction", name));
}

TEST(KeyboardJob, FromANewProjectToAPrintedReport)
{
    DesktopFixture running;
    running.surroundings.files.push_back(running.PathOf("road.mdb"));
    running.Window("mdiBack")->findChild<QAction*>("mnuNew")->trigger();

    auto* task = running.Widget<QLineEdit>("frmProject", "txtID");
    ASSERT_TRUE(task) << "General Data has no box for the task number.";
    QTest::keyClicks(task, "12/2569");
    QTest::keyClicks(running.Widget<QLineEdit>("frmProject", "txtClient"), "Roads Office");
    QTest::mouseClick(running.Widget<QPushButton>("frmProject", "cmdOK"), Qt::LeftButton);
    EXPECT_FALSE(running.program.Loaded("frmProject")) << "Accept closes General Data.";

    running.OpenSheet("mnuStd1");
    ASSERT_TRUE(running.program.Loaded("frmCompaction"));
    EXPECT_EQ(running.Widget<QLineEdit>("frmCompaction", "txtClient")->text(), "Roads Office");
    for (const auto& [box, text] : {std::pair{"txtDia", "10.16"}, {"txtHeight", "11.562"}}) {
        auto* edit = running.Widget<QLineEdit>("frmCompaction", box);
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }

    auto* water = GridOf(running, "MSHWt");
    water->setFocus(Qt::TabFocusReason);  // as the Tab key enters the grid
    TypeColumn(water->EditorBox(),
               {"C1",     "31.61", "29.712", "1.282",  "C2",     "21.557", "20.04", "1.54",   "C3",     "39.793",
                "36.261", "1.0",   "C4",     "41.866", "37.619", "0.282",  "C5",    "49.359", "43.626", "1.288"});
    auto* density = GridOf(running, "MSHDensity");
    density->setFocus(Qt::TabFocusReason);
    TypeColumn(density->EditorBox(),
               {"", "3325", "1484.5", "", "3439.926", "/", "", "3541", "/", "", "3583.5", "/", "", "3534.5", "/"});
    QTest::mouseClick(running.Widget<QPushButton>("frmCompaction", "cmdCal"), Qt::LeftButton);
    // 31.61 - 29.71 = 1.90 g of water in 28.43 g of dry soil: 6.68 %.
    EXPECT_EQ(water->Grid()(7, 1).Text(), "6.68");
    EXPECT_EQ(density->Grid()(6, 4).Text(), "2.01");

    auto* tabs = running.Widget<QTabWidget>("frmCompaction", "SSTData");
    ASSERT_TRUE(tabs->isTabEnabled(1)) << "Calculate opens the curve's tab.";
    tabs->setCurrentIndex(1);
    QTest::mouseClick(running.Widget<QPushButton>("frmCompaction", "cmdOMC"), Qt::LeftButton);
    EXPECT_EQ(running.Widget<QLineEdit>("frmCompaction", "txtOMC")->text(), "11.2");
    EXPECT_EQ(running.Widget<QLineEdit>("frmCompaction", "txtDmax")->text(), "2.01");
    running.FormNamed("frmCompaction").Get<Toolbar>("tblMenu").Press(1);

    running.surroundings.printInto = running.PathOf("report.pdf");
    QTest::mouseClick(running.Widget<QPushButton>("frmCompaction", "cmdView"), Qt::LeftButton);
    QTest::mouseClick(running.Widget<QToolButton>("frmPreview", "savePdf"), Qt::LeftButton);
    QFile report(QString::fromStdString(running.PathOf("report.pdf")));
    ASSERT_TRUE(report.open(QIODevice::ReadOnly)) << "Save as PDF writes the report.";
    EXPECT_TRUE(report.read(5).startsWith("%PDF-"));
    EXPECT_TRUE(running.surroundings.failures.empty());
}

struct KeyCase {
    const char* what;
    Qt::Key key;
    int fromRow, fromColumn, toRow, toColumn;
};

void PrintTo(const KeyCase& key, std::ostream* out)
{
    *out << key.what;
}

class CellKeys : public testing::TestWithParam<KeyCase> {};

// The rows of the key table, on the weighings: rows 1 to 4, trials 1 to 6.
INSTANTIATE_TEST_SUITE_P(
    Weighings, CellKeys,
    testing::Values(
        KeyCase{"Enter goes down", Qt::Key_Return, 1, 2, 2, 2},
        KeyCase{"Enter at the bottom goes to the next trial", Qt::Key_Return, 4, 2, 1, 3},
        KeyCase{"Enter at the last cell stays", Qt::Key_Return, 4, 6, 4, 6}, KeyCase{"Up", Qt::Key_Up, 3, 2, 2, 2},
        KeyCase{"Up at the top stays", Qt::Key_Up, 1, 2, 1, 2}, KeyCase{"Down", Qt::Key_Down, 3, 2, 4, 2},
        KeyCase{"Down at the bottom stays", Qt::Key_Down, 4, 2, 4, 2}, KeyCase{"Left", Qt::Key_Left, 3, 2, 3, 1},
        KeyCase{"Left at the first trial stays", Qt::Key_Left, 3, 1, 3, 1}, KeyCase{"Right", Qt::Key_Right, 3, 2, 3, 3},
        KeyCase{"Right at the last trial goes to the next row", Qt::Key_Right, 3, 6, 4, 1},
        KeyCase{"Right at the last cell stays", Qt::Key_Right, 4, 6, 4, 6},
        KeyCase{"Tab walks as Right", Qt::Key_Tab, 2, 6, 3, 1}));

TEST_P(CellKeys, MoveTheEditor)
{
    const KeyCase& key = GetParam();
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    auto* view = GridOf(running, "MSHWt");
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(view->model()->index(key.fromRow, key.fromColumn)).center());
    ASSERT_TRUE(view->EditorBox()->isVisible());
    QTest::keyClick(view->EditorBox(), key.key);
    EXPECT_EQ(view->Grid().Row(), key.toRow);
    EXPECT_EQ(view->Grid().Column(), key.toColumn);
    EXPECT_EQ(view->EditorBox()->geometry(), view->visualRect(view->model()->index(key.toRow, key.toColumn)))
        << "The editor stands exactly over its cell.";
}

TEST(CellEditing, EscHidesTheEditorAndWritesNothing)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    auto* view = GridOf(running, "MSHWt");
    view->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(view->EditorBox(), "abc");
    QTest::keyClick(view->EditorBox(), Qt::Key_Escape);
    EXPECT_FALSE(view->EditorBox()->isVisible());
    EXPECT_EQ(view->Grid()(1, 1).Text(), "");
    EXPECT_TRUE(running.program.Loaded("frmCompaction")) << "Esc closes no sheet.";
}

TEST(CellEditing, RightPressAsksInThaiAndErasesTheTrialInBothGrids)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    running.FillCompaction();
    auto* view = GridOf(running, "MSHWt");
    const QPoint cell = view->visualRect(view->model()->index(2, 3)).center();
    running.surroundings.messageAnswers = {MessageAnswer::Cancel, MessageAnswer::Ok};
    QTest::mouseClick(view->viewport(), Qt::RightButton, {}, cell);
    EXPECT_EQ(view->Grid()(2, 3).Text(), "39.79") << "Cancel keeps the trial.";
    QTest::mouseClick(view->viewport(), Qt::RightButton, {}, cell);
    EXPECT_EQ(view->Grid()(2, 3).Text(), "");
    EXPECT_EQ(GridOf(running, "MSHDensity")->Grid()(2, 3).Text(), "");
    ASSERT_EQ(running.surroundings.messages.size(), 2U);
    EXPECT_EQ(running.surroundings.messages[0].title, "ยืนยันการลบ");
}

struct ChainCase {
    const char* from;
    const char* to;
};

class FocusChain : public testing::TestWithParam<ChainCase> {};

INSTANTIATE_TEST_SUITE_P(Compaction, FocusChain,
                         testing::Values(ChainCase{"txtClient", "txtID"}, ChainCase{"txtID", "txtProject"},
                                         ChainCase{"txtProject", "txtLocation"}, ChainCase{"txtLocation", "txtDia"},
                                         ChainCase{"txtDia", "txtHeight"}, ChainCase{"txtHeight", "txtSoil"},
                                         ChainCase{"txtSoil", "cboTest"}, ChainCase{"cboTest", "cboCheck"},
                                         ChainCase{"cboWt", "cboBlow"}, ChainCase{"cboBlow", "cboLayer"},
                                         ChainCase{"cboLayer", "txtProject"}));

TEST_P(FocusChain, EnterGoesOnWithTheTextSelected)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    running.Window("mdiBack")->activateWindow();
    auto* from = running.Widget("frmCompaction", GetParam().from);
    auto* to = running.Widget("frmCompaction", GetParam().to);
    from->setFocus();
    QTest::keyClick(from, Qt::Key_Return);
    EXPECT_TRUE(to->hasFocus() || to->isAncestorOf(QApplication::focusWidget()))
        << GetParam().to << " should have the focus.";
    EXPECT_EQ(running.FormNamed("frmCompaction").ActiveControl()->Name(), GetParam().to);
}

}  // namespace
}  // namespace terravane
