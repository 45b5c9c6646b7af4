// Curves answer: values under the mouse, a closer look, copies; and a page of tabs that waits says for what.
#include "desktop/plot_view.h"

#include <QClipboard>
#include <QMouseEvent>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"

namespace terravane {
namespace {

struct CompactionCurve : DesktopFixture {
    CompactionCurve()
    {
        MakeProject();
        OpenSheet("mnuStd1");
        FillCompaction();
        FormNamed("frmCompaction").Get<CommandButton>("cmdCal").Press();
        FormNamed("frmCompaction").Get<TabControl>("SSTData").SetTab(1);
        QTest::qWait(20);
        view = static_cast<PlotView*>(Widget("frmCompaction", "picGraph"));
    }

    void Draw()
    {
        FormNamed("frmCompaction").Get<CommandButton>("cmdOMC").Press();
        QTest::qWait(20);
    }
    PictureBox& Plot() const { return FormNamed("frmCompaction").Get<PictureBox>("picGraph"); }

    /// The pixel of the view that stands on a spot of the plot, in twips.
    QPointF Pixel(double x, double y) const
    {
        const PictureBox& frame = FormNamed("frmCompaction").Get<PictureBox>("picgraph1");
        const double scale = std::min(view->width() / frame.Width, view->height() / frame.Height);
        const bool inside = Plot().Container == &frame;
        const double left = Plot().Left - (inside ? 0 : frame.Left), top = Plot().Top - (inside ? 0 : frame.Top);
        return {(view->width() - frame.Width * scale) / 2 + (left + x) * scale,
                (view->height() - frame.Height * scale) / 2 + (top + y) * scale};
    }

    PlotView* view;
};

TEST(PlotViewTest, ACurveThatWaitsSaysForWhichCommandAndTellsNoValues)
{
    CompactionCurve running;
    EXPECT_FALSE(running.Plot().Axes);
    EXPECT_EQ(running.view->accessibleDescription(), "Compaction Curve draws the curve here");
    EXPECT_EQ(running.view->ValuesAt(running.view->rect().center()), "");
}

// The lower edge is the lowest density, 1.78 g/cm³ less 0.01; the left one the whole percent below the driest trial,
// 6.68: 6 %.
TEST(PlotViewTest, TheCrossHairTellsTheValuesOfItsPlace)
{
    CompactionCurve running;
    running.Draw();
    ASSERT_TRUE(running.Plot().Axes);
    EXPECT_NEAR(running.Plot().Axes->across.ValueAt(0), 6, 1e-9);
    const QString values = running.view->ValuesAt(running.Pixel(10, running.Plot().Height - 10));
    EXPECT_TRUE(values.startsWith("Water Content , %: 6.0")) << values.toStdString();
    EXPECT_TRUE(values.contains("\nDry Density , g/cm^3: 1.")) << values.toStdString();
}

TEST(PlotViewTest, CtrlAndTheWheelLookCloserAndADoubleClickShowsTheWhole)
{
    CompactionCurve running;
    running.Draw();
    const QPointF spot = running.Pixel(1000, 1000);
    const QString before = running.view->ValuesAt(spot);
    QWheelEvent closer(spot, running.view->mapToGlobal(spot), {}, {0, 120}, Qt::NoButton, Qt::ControlModifier,
                       Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(running.view, &closer);
    EXPECT_GT(running.view->Zoom(), 1);
    EXPECT_EQ(running.view->ValuesAt(spot).left(22), before.left(22)) << "What lies under the mouse stays there.";
    QTest::mouseDClick(running.view, Qt::LeftButton);
    EXPECT_EQ(running.view->Zoom(), 1);
}

TEST(PlotViewTest, ACurveIsCopiedAsPictureAndAsNumbers)
{
    CompactionCurve running;
    running.Draw();
    running.view->setFocus();
    QTest::keyClick(running.view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(QApplication::clipboard()->image().isNull());
    running.view->CopyNumbers();
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    EXPECT_EQ(lines.front(), "Water Content , %\tDry Density , g/cm^3");
    EXPECT_GT(lines.size(), 100) << "The curve's own points are copied.";
}

}  // namespace
}  // namespace terravane
