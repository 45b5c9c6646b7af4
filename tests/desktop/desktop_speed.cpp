// How long the windows take, printed in milliseconds: a key in a grid to its repainted cell, Compaction Curve to its
// painted plot, a change of the zoom, and the way from nothing to the painted frame. Run it on a quiet machine.
#include <QComboBox>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <functional>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"

namespace {

using namespace terravane;

constexpr int kRuns = 15;

/// The median of several runs, each from the act to the painted window.
void Measure(const char* what, QWidget* window, const std::function<void()>& act)
{
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        QElapsedTimer time;
        time.start();
        act();
        QCoreApplication::processEvents();
        window->repaint();
        times.push_back(static_cast<double>(time.nsecsElapsed()) / 1e6);
    }
    std::ranges::sort(times);
    std::printf("%-28s median %7.2f  most %7.2f\n", what, times[kRuns / 2], times.back());
}

}  // namespace

int main(int argc, char** argv)
{
    QElapsedTimer time;
    time.start();
    QApplication application(argc, argv);
    DesktopFixture running;
    QWidget* frame = running.Window("mdiBack");
    frame->repaint();
    std::printf("%-28s once   %7.2f\n", "start to painted frame", static_cast<double>(time.nsecsElapsed()) / 1e6);

    running.MakeProject();
    running.OpenSheet("mnuStd1");
    running.FillCompaction();
    Form& sheet = running.FormNamed("frmCompaction");
    auto* grid = static_cast<GridView*>(running.Widget<QTableView>("frmCompaction", "MSHWt"));
    grid->Grid().PressMouse(MouseButton::Left, 2, 6);
    Measure("key in a cell", frame, [&] { QTest::keyClick(grid->EditorBox(), Qt::Key_7); });
    Measure("Enter in a cell", frame, [&] {
        grid->Grid().PressMouse(MouseButton::Left, 1, 6);
        QTest::keyClick(grid->EditorBox(), Qt::Key_Return);
    });
    sheet.Get<CommandButton>("cmdCal").Press();
    sheet.Get<TabControl>("SSTData").SetTab(1);
    Measure("Compaction Curve", frame, [&] { sheet.Get<CommandButton>("cmdOMC").Press(); });
    sheet.Get<CommandButton>("cmdView").Press();
    auto& scale = running.FormNamed("frmPreview").Get<ComboBox>("cboScale");
    std::size_t entry = 0;
    Measure("zoom", running.Window("frmPreview"), [&] { scale.Choose(entry++ % 3); });
    return 0;
}
