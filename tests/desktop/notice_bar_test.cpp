// What the program says without a box, seen and pressed in the frame.
#include "desktop/notice_bar.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"

namespace terravane {
namespace {

struct NoticeBarTest : testing::Test {
    DesktopFixture running;

    NoticeBarTest()
    {
        running.MakeProject();
        running.OpenSheet("mnuStd1");
    }

    NoticeBar& Bar() { return *static_cast<NoticeBar*>(running.Widget<QFrame>("mdiBack", "noticeBar")); }
    QPushButton* Button(const char* name)
    {
        for (auto* button : Bar().findChildren<QPushButton*>(name))
            if (button->isVisible()) return button;
        return nullptr;
    }
    void Press(const char* button)
    {
        QTest::mouseClick(running.Widget<QPushButton>("frmCompaction", button), Qt::LeftButton);
    }
};

TEST_F(NoticeBarTest, ASaveTellsThatItHappened)
{
    EXPECT_FALSE(Bar().isVisible());
    QTest::keyClick(running.Window("mdiBack"), Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(Bar().isVisible());
    EXPECT_EQ(Bar().Spoken().toStdString(), "Information: Saved at 12:00.");
    EXPECT_EQ(Button("noticeDetails"), nullptr);
}

// No box stands in the way; the button brings the technician to the box that is empty.
TEST_F(NoticeBarTest, AFailureNamesThePlaceAndLeadsThere)
{
    running.FillCompaction();
    running.FormNamed("frmCompaction").Get<TextBox>("txtHeight").Type("");
    Press("cmdCal");
    ASSERT_TRUE(Bar().isVisible());
    EXPECT_EQ(
        Bar().Spoken().toStdString(),
        "Failure: Calculate stopped: Division by zero, at Mass of Wet Soil in Mold, (g), trial 1. Nothing is typed "
        "in Ht. of Mold (cm).");
    running.FormNamed("frmCompaction").Get<TabControl>("SSTData").SetTab(1);
    QTest::mouseClick(Button("noticeLead"), Qt::LeftButton);
    EXPECT_EQ(running.Widget<QTabWidget>("frmCompaction", "SSTData")->currentIndex(), 0);
    EXPECT_TRUE(running.Widget("frmCompaction", "txtHeight")->hasFocus());
}

TEST_F(NoticeBarTest, ATextTooLongLeadsIntoItsCell)
{
    running.FormNamed("frmCompaction").Get<TextGrid>("MSHWt")(1, 3) = "123456";
    QTest::keyClick(running.Window("mdiBack"), Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(Bar().isVisible());
    EXPECT_EQ(Bar().Spoken().toStdString(),
              "Failure: Save File stopped: Moisture Can No., trial 3 is longer than the 5 characters that the project "
              "file keeps of it.");
    QTest::mouseClick(Button("noticeLead"), Qt::LeftButton);
    auto* grid = static_cast<GridView*>(running.Widget<QTableView>("frmCompaction", "MSHWt"));
    EXPECT_TRUE(grid->EditorBox()->hasFocus());
    EXPECT_EQ(grid->EditorBox()->text(), "123456");
}

TEST_F(NoticeBarTest, DetailsHaveNumberAndStatement)
{
    running.FormNamed("frmCompaction").Get<TextGrid>("MSHWt")(1, 3) = "123456";
    QTest::keyClick(running.Window("mdiBack"), Qt::Key_S, Qt::ControlModifier);
    QTest::mouseClick(Button("noticeDetails"), Qt::LeftButton);
    QWidget* leaf = QApplication::activePopupWidget();
    ASSERT_TRUE(leaf);
    const QString words = leaf->findChild<QLabel*>()->text();
    EXPECT_TRUE(words.contains("-2147217833")) << words.toStdString();
    EXPECT_TRUE(words.contains("UPDATE STDSOIL")) << words.toStdString();
    leaf->close();
}

TEST_F(NoticeBarTest, ItGoesByItsCrossAndWhenTheCommandIsThrough)
{
    running.FillCompaction();
    auto& height = running.FormNamed("frmCompaction").Get<TextBox>("txtHeight");
    height.Type("");
    Press("cmdCal");
    ASSERT_TRUE(Bar().isVisible());
    QTest::mouseClick(Bar().findChild<QToolButton*>("noticeClose"), Qt::LeftButton);
    EXPECT_FALSE(Bar().isVisible());
    Press("cmdCal");
    ASSERT_TRUE(Bar().isVisible());
    height.Type("11.562");
    Press("cmdCal");
    EXPECT_FALSE(Bar().isVisible()) << "What was mended is not told any more.";
}

TEST_F(NoticeBarTest, ANoticeMayBringAnActionOfItsOwn)
{
    bool taken = false;
    running.program.notices.Tell({.kind = NoticeKind::Attention,
                                  .sentence = "Texts of an earlier run wait.",
                                  .actions = {{"Take them", [&taken] { taken = true; }}}});
    ASSERT_TRUE(Button("noticeAction"));
    QTest::mouseClick(Button("noticeAction"), Qt::LeftButton);
    EXPECT_TRUE(taken);
    EXPECT_FALSE(Bar().isVisible());
}

// The hand is typing: the bar comes, no widget of the sheet moves and the focus stays.
TEST_F(NoticeBarTest, ItMovesNothingAndTakesNoFocus)
{
    auto* box = running.Widget<QLineEdit>("frmCompaction", "txtDia");
    box->setFocus();
    const QPoint before = box->mapToGlobal(QPoint(0, 0));
    running.program.notices.Tell({.kind = NoticeKind::Failure, .sentence = "Stopped."});
    QCoreApplication::processEvents();
    EXPECT_EQ(box->mapToGlobal(QPoint(0, 0)), before);
    EXPECT_TRUE(box->hasFocus());
}

}  // namespace
}  // namespace terravane
