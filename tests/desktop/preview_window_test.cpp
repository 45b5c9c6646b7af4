// The preview's window: zoom by list and wheel, scrolling, printing.
#include "desktop/preview_window.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"

namespace terravane {
namespace {

struct PreviewFixture : DesktopFixture {
    PreviewFixture()
    {
        MakeProject();
        OpenSheet("mnuStd1");
        FormNamed("frmCompaction").Get<CommandButton>("cmdView").Press();
        QCoreApplication::processEvents();
    }
    Form& Preview() { return FormNamed("frmPreview"); }
    PictureBox& Page() { return Preview().Get<PictureBox>("picPreview"); }
    /// The bar at the right of the page.
    QScrollBar& Down()
    {
        for (auto* bar : Window("frmPreview")->findChildren<QScrollBar*>(Qt::FindDirectChildrenOnly))
            if (bar->orientation() == Qt::Vertical) return *bar;
        throw std::logic_error("no scroll bar");
    }
};

// A4 is 11906 by 16838 twips; half of it 5953 by 8419.
TEST(PreviewWindow, ZoomTakesThePartOfThePage)
{
    PreviewFixture running;
    auto* scale = running.Widget<QComboBox>("frmPreview", "cboScale");
    EXPECT_EQ(scale->currentText(), "100%");
    emit scale->activated(0);
    EXPECT_EQ(scale->currentText(), "50%");
    EXPECT_EQ(running.Page().Width, 5953);
    EXPECT_EQ(running.Page().Height, 8419);
    const auto& viewport = running.Preview().Get<PictureBox>("Picture1");
    EXPECT_NEAR(running.Page().Left, (viewport.Width - 5953) / 2, 1) << "A page that fits stands in the middle.";
}

TEST(PreviewWindow, CtrlAndWheelWalkThroughTheThreeSteps)
{
    PreviewFixture running;
    PageView* page = nullptr;
    for (QWidget* child : running.Window("frmPreview")->findChildren<QWidget*>()) {
        if (auto* view = dynamic_cast<PageView*>(child)) page = view;
    }
    ASSERT_TRUE(page);
    const auto turn = [&](int delta) {
        QWheelEvent wheel({5, 5}, page->mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton, Qt::ControlModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(page, &wheel);
        return running.Preview().Get<ComboBox>("cboScale").Text();
    };
    EXPECT_EQ(turn(-120), "75%");
    EXPECT_EQ(turn(-120), "50%");
    EXPECT_EQ(turn(-120), "50%");
    EXPECT_EQ(turn(120), "75%");
}

TEST(PreviewWindow, NothingIsToldOfAPageOnWhichAllFits)
{
    PreviewFixture running;
    auto* status = running.Window("frmPreview")->findChild<QLabel*>("status");
    ASSERT_TRUE(status);
    EXPECT_EQ(status->text(), "");
    EXPECT_TRUE(status->isHidden());
}

TEST(PreviewWindow, ALongProjectNameIsToldInTheStatusLine)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    Form& sheet = running.FormNamed("frmCompaction");
    sheet.Get<TextBox>("txtProject")
        .SetText("Bypass Road of the Northern Province, Section Four, Lot 12, " +
                 std::string("from the river to the junction with the trunk road"));
    sheet.Get<CommandButton>("cmdView").Press();
    QCoreApplication::processEvents();
    auto* status = running.Window("frmPreview")->findChild<QLabel*>("status");
    ASSERT_TRUE(status);
    EXPECT_TRUE(status->isVisible());
    EXPECT_EQ(status->text().toStdString(), "“Bypass Road of the Northern Province, Se...” runs over “Date of Test”.");
}

TEST(PreviewWindow, ScrollingMovesThePageUp)
{
    PreviewFixture running;
    auto& bar = running.Preview().Get<ScrollBar>("VScroll1");
    ASSERT_GT(bar.Maximum(), 0) << "A page at full size is higher than the window.";
    bar.SetValue(1500);
    EXPECT_EQ(running.Page().Top, -1500);
}

TEST(PreviewWindow, APressBesideTheScrollBarsThumbTurnsMostOfAScreen)
{
    PreviewFixture running;
    QScrollBar& view = running.Down();
    view.triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(running.Page().Top, -std::min(3000, running.Preview().Get<ScrollBar>("VScroll1").Maximum()));
}

TEST(PreviewWindow, AScrollBarWithNothingToScrollIsGrey)
{
    PreviewFixture running;
    auto& bar = running.Preview().Get<ScrollBar>("VScroll1");
    const QScrollBar& view = running.Down();
    EXPECT_TRUE(view.isEnabled());
    bar.SetMaximum(0);
    EXPECT_FALSE(view.isEnabled());
}

TEST(PreviewWindow, SaveAsPdfAsksForAFileAlsoWhereThereIsAPrinter)
{
    PreviewFixture running;
    running.Preview().Get<Toolbar>("Toolbar1").Press(1);
    EXPECT_FALSE(running.surroundings.isForFile);
    running.Window("frmPreview")->findChild<QToolButton*>("savePdf")->click();
    EXPECT_TRUE(running.surroundings.isForFile);
}

TEST(PreviewWindow, ACancelledPrintDialogPrintsNothing)
{
    PreviewFixture running;
    running.Preview().Get<Toolbar>("Toolbar1").Press(1);
    EXPECT_TRUE(running.surroundings.failures.empty());
    EXPECT_TRUE(running.program.Loaded("frmPreview"));
}

TEST(PreviewWindow, CloseGoesBackToTheSheet)
{
    PreviewFixture running;
    running.Preview().Get<Toolbar>("Toolbar1").Press(2);
    EXPECT_FALSE(running.program.Loaded("frmPreview"));
    EXPECT_TRUE(running.program.Loaded("frmCompaction"));
}

}  // namespace
}  // namespace terravane
