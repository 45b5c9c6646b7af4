// How long the windows take, printed in milliseconds: the way from nothing to the usable frame, a key in a grid to its
// repainted cell, a change of the zoom, and every command of every sheet to the painted window. Run it on a quiet
// machine; desktop_speed "CBR/open" measures the commands with that in their names alone.
#include <QAbstractEventDispatcher>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <sstream>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"
#include "script/commands.h"
#include "script/script_program.h"
#include "source_folder.h"
#include "support/road_project.h"
#include "support/sheet_commands.h"

namespace {

using namespace terravane;

constexpr int kRuns = 15;
constexpr double kMillisecond = 1e6;  // ns

/// Milliseconds.
struct Spent {
    double clock, work;
};

/// Until nothing is left to do, as a running loop of events would: windows that were closed are taken away, what
/// changed is painted, a new window whole.
void Settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
    }
}

/// From the act to the window, all of it painted, also what the act left as it was.
Spent Time(const std::function<void()>& act, const std::function<QWidget*()>& window)
{
    QElapsedTimer time;
    time.start();
    const std::clock_t worked = std::clock();
    act();
    window()->update();
    Settle();
    const auto work = static_cast<double>(std::clock() - worked) * 1000 / CLOCKS_PER_SEC;
    return {static_cast<double>(time.nsecsElapsed()) / kMillisecond, work};
}

void Print(const std::string& what, std::vector<Spent> times)
{
    const auto half = static_cast<std::ptrdiff_t>(times.size() / 2);
    const auto median = [&](double Spent::*of) {
        std::ranges::nth_element(times, times.begin() + half, {}, of);
        return times[static_cast<std::size_t>(half)].*of;
    };
    std::printf("%-56s clock %8.2f  work %8.2f\n", what.c_str(), median(&Spent::clock), median(&Spent::work));
}

void Measure(const std::string& what, QWidget* window, const std::function<void()>& act)
{
    std::vector<Spent> times;
    for (int run = 0; run < kRuns; ++run) times.push_back(Time(act, [window] { return window; }));
    Print(what, times);
}

/// The desktop driven by lines of a script; what they answer is thrown away.
class Hands {
  public:
    explicit Hands(DesktopFixture& running)
        : running_(running),
          writer_(told_),
          asked_(running.disk, writer_, {}),
          journal_(running.program),
          session_{running.program, asked_, writer_, journal_}
    {}

    void Do(std::string_view line) { RunCommand(session_, SplitLine(line)); }
    void Do(const std::vector<std::string_view>& lines)
    {
        for (const auto line : lines) Do(line);
        Settle();
    }

    /// The largest sheet, after the moment that a user needs to find its button; most letters are drawn for the first
    /// time.
    void MeasureFirstSheet()
    {
        constexpr int kMoment = 300;  // ms
        QTest::qWait(kMoment);
        Print("Windows/first sheet after the start",
              {Time([this] { Do("menu mnuCBR1"); }, [this] { return TopWindow(); })});
    }

    /// Where its name holds what was asked for.
    void Measure(const support::SheetCommand& command, const std::string& asked)
    {
        const std::string name = std::string(command.group).append("/").append(command.name);
        if (name.find(asked) == std::string::npos) return;
        Do(command.before);
        std::vector<Spent> times;
        for (int run = 0; run < kRuns; ++run) {
            times.push_back(Time([&] { Do(command.pressed); }, [this] { return TopWindow(); }));
            Do(command.after);
        }
        while (running_.program.Loaded("frmPreview")) Do("tool Toolbar1 mn3");
        Print(name, times);
    }

  private:
    QWidget* TopWindow() const { return running_.Window(running_.program.ShownForms().back().form->Name()); }

    DesktopFixture& running_;
    std::ostringstream told_;
    AnswerWriter writer_;
    ScriptSurroundings asked_;
    Journal journal_;
    Session session_;
};

/// The road project of the samples, typed by its scripts and opened as a user opens a file.
void OpenRoadProject(DesktopFixture& running)
{
    ScriptOptions options;
    for (const auto& script : support::RoadScripts(kSourceFolder)) options.files.push_back(script.string());
    QDir::setCurrent(running.home.path());
    std::istringstream nothing;
    std::ostringstream told;
    RunScripts(options, nothing, told, told);
    running.surroundings.files.push_back(running.PathOf("TRVN_road.mdb"));
    running.PressMenu("mnuOpen");
    QCoreApplication::processEvents();
}

void MeasureTyping(DesktopFixture& running)
{
    QWidget* frame = running.Window("mdiBack");
    running.OpenSheet("mnuStd1");
    auto* grid = static_cast<GridView*>(running.Widget<QTableView>("frmCompaction", "MSHWt"));
    grid->Grid().PressMouse(MouseButton::Left, 2, 6);
    Measure("Windows/key in a cell", frame, [&] { QTest::keyClick(grid->EditorBox(), Qt::Key_7); });
    Measure("Windows/Enter in a cell", frame, [&] {
        grid->Grid().PressMouse(MouseButton::Left, 1, 6);
        QTest::keyClick(grid->EditorBox(), Qt::Key_Return);
    });
    running.FormNamed("frmCompaction").Get<CommandButton>("cmdView").Press();
    auto& scale = running.FormNamed("frmPreview").Get<ComboBox>("cboScale");
    std::size_t entry = 0;
    Measure("Windows/zoom of the preview", running.Window("frmPreview"), [&] { scale.Choose(entry++ % 3); });
    running.program.Unload("frmPreview");
}

}  // namespace

int main(int argc, char** argv)
{
    QElapsedTimer time;
    time.start();
    QApplication application(argc, argv);
    DesktopFixture running;
    running.Window("mdiBack")->repaint();
    const auto worked = static_cast<double>(std::clock()) * 1000 / CLOCKS_PER_SEC;  // since the process began
    Print("Windows/start to usable frame", {{static_cast<double>(time.nsecsElapsed()) / kMillisecond, worked}});

    OpenRoadProject(running);
    Hands hands(running);
    if (argc == 1) {
        hands.MeasureFirstSheet();
        MeasureTyping(running);
    }
    for (const auto& command : support::kSheetCommands) hands.Measure(command, argc > 1 ? argv[1] : "");
    return 0;
}
