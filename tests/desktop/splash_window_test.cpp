// The splash as a user sees it. Who gets the keyboard is a window manager's business: tests/screen.
#include <QImage>

#include <gtest/gtest.h>

#include "controls/furniture.h"
#include "desktop/desktop_fixture.h"

namespace terravane {
namespace {

struct SplashWindow : testing::Test {
    DesktopFixture running;
    QWidget* window = nullptr;

    SplashWindow()
    {
        running.program.Show("frmTitle");
        window = running.Window("frmTitle");
    }

    QImage Seen() const { return window->grab().toImage().convertToFormat(QImage::Format_RGB32); }
};

/// How many rows of a picture are, over most of a square's side, of one colour.
int RowsOf(const QImage& picture, QRgb colour)
{
    constexpr int kMostOfASide = 200;
    int rows = 0;
    for (int y = 0; y < picture.height(); ++y) {
        int pixels = 0;
        for (int x = 0; x < picture.width(); ++x) pixels += picture.pixel(x, y) == colour ? 1 : 0;
        rows += pixels > kMostOfASide ? 1 : 0;
    }
    return rows;
}

TEST_F(SplashWindow, HasFourLinesAroundItsPicture)
{
    const QRgb line = window->palette().color(QPalette::Dark).rgb();
    const QImage seen = Seen();
    EXPECT_EQ(RowsOf(seen, line), 2);
    EXPECT_EQ(RowsOf(seen.transformed(QTransform().rotate(90)), line), 2);
}

TEST_F(SplashWindow, ShowsItsPictureAsLongAsTheImageIsVisible)
{
    const QPoint inPicture(100, 200);
    const QRgb ground = window->palette().color(QPalette::Window).rgb();
    EXPECT_NE(Seen().pixel(inPicture), ground);
    running.FormNamed("frmTitle").Get<Image>("Image1").SetVisible(false);
    EXPECT_EQ(Seen().pixel(inPicture), ground);
}

TEST_F(SplashWindow, EndsAtAKeyAndGivesWayToTheFrame)
{
    QTest::keyClick(window, Qt::Key_A);
    EXPECT_FALSE(running.program.Loaded("frmTitle"));
    EXPECT_TRUE(running.Window("mdiBack")->isVisible());
}

}  // namespace
}  // namespace terravane
