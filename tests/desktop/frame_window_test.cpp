// The frame as a user sees it: strip, buttons, menu, sheets over sheets, dialogs.
#include <QAction>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "controls/cell_editor.h"
#include "desktop/desktop_fixture.h"
#include "desktop/layouts.h"

namespace terravane {
namespace {

QColor StripColour(DesktopFixture& running)
{
    return running.Widget<QLabel>("mdiBack", "StatusBar1")->palette().color(QPalette::Window);
}

bool TestsCanBeOpened(DesktopFixture& running)
{
    const auto buttons = running.Widget<QToolBar>("mdiBack", "tbrLab")->findChildren<QToolButton*>();
    return std::ranges::all_of(buttons,
                               [](const QToolButton* button) { return !button->menu() || button->isEnabled(); });
}

TEST(FrameWindow, BeginsRedWithoutATestToOpen)
{
    DesktopFixture running;
    EXPECT_EQ(StripColour(running), QColor(255, 0, 0));
    EXPECT_FALSE(TestsCanBeOpened(running));
    EXPECT_EQ(running.Window("mdiBack")->windowTitle(),
              "Terravane Program : Version 1.0 -  [Materials for Road Construction]");
}

TEST(FrameWindow, TurnsGreenWhenGeneralDataIsAccepted)
{
    DesktopFixture running;
    running.surroundings.files.push_back(running.PathOf("road.mdb"));
    running.PressMenu("mnuNew");
    EXPECT_EQ(StripColour(running), QColor(255, 0, 0)) << "A project that is being described is not yet chosen.";
    running.FormNamed("frmProject").Get<CommandButton>("cmdOK").Press();
    EXPECT_EQ(StripColour(running), QColor(50, 205, 50));
    EXPECT_TRUE(TestsCanBeOpened(running));
}

TEST(FrameWindow, ClosingGeneralDataLeavesStripAndButtonsAsTheyWere)
{
    DesktopFixture running;
    running.surroundings.files.push_back(running.PathOf("road.mdb"));
    running.PressMenu("mnuNew");
    running.Window("frmProject")->close();
    EXPECT_FALSE(running.program.Loaded("frmProject"));
    EXPECT_EQ(StripColour(running), QColor(255, 0, 0));
    EXPECT_EQ(running.Window("mdiBack")->findChild<QAction*>("mnuRecent")->text().toStdString(),
              running.PathOf("TRVN_road.mdb"));
}

TEST(FrameWindow, ASecondSheetTakesThePlaceOfTheFirst)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    running.OpenSheet("mnuMod2");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto* area = running.Window("mdiBack")->findChild<QMdiArea*>();
    EXPECT_EQ(area->subWindowList().size(), 1);
    const auto* banner = running.Widget<QLabel>("frmCompaction", "txtLabName");
    EXPECT_EQ(banner->text(), "การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน\nModified Compaction Test");
    EXPECT_EQ(banner->palette().color(QPalette::Window), QColor(128, 0, 128)) << "Crushed rock is purple.";
}

TEST(FrameWindow, ClosingItEndsTheProgramAndKeepsTheRecentFile)
{
    DesktopFixture running;
    running.MakeProject();
    running.Window("mdiBack")->close();
    EXPECT_TRUE(running.surroundings.ended);
    const Bytes recent = running.disk.Read(running.PathOf("FileRecent.txt"));
    EXPECT_EQ(std::string(recent.begin(), recent.end()), running.PathOf("TRVN_road.mdb") + "\r\n");
}

// The sheet's window belongs to the frame and is gone with it, while its form stays until the program has ended.
TEST(FrameWindow, ClosedOverAnOpenSheetTheProgramEndsQuietly)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    running.Window("mdiBack")->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(running.surroundings.ended);
    ASSERT_TRUE(running.program.Loaded("frmCompaction"));
    EXPECT_EQ(running.Window("frmCompaction"), nullptr) << "A window that is gone must not be closed once more.";
}

TEST(FrameWindow, TheGuideIsAskedForInTheBrandFolder)
{
    DesktopFixture running;
    running.PressMenu("mnuManual");
    EXPECT_TRUE(running.surroundings.opened.ends_with("BrandList/UserGuide.pdf")) << running.surroundings.opened;
}

TEST(Layouts, EveryVisibleControlHasAPlace)
{
    DesktopFixture running;
    running.MakeProject();
    // Bars stand around the layout, editors over their grids; timers and hidden pictures are not seen.
    for (const char* key : {"mnuStd1", "mnuAtt1", "mnuSpe1", "mnuSie1", "mnuCBR1"}) {
        running.OpenSheet(key);
        const Form& form = *running.program.ShownForms().back().form;
        const std::string& name = form.Name();
        const auto placed = PlacedControls(LayoutOf(name));
        const std::set<std::string> places(placed.begin(), placed.end());
        for (const Control* control : form.Controls()) {
            const bool isFurniture = dynamic_cast<const Toolbar*>(control) || dynamic_cast<const StatusBar*>(control) ||
                                     dynamic_cast<const Timer*>(control) || dynamic_cast<const Image*>(control) ||
                                     dynamic_cast<const CellEditor*>(control);
            if (isFurniture || !control->Visible()) continue;
            EXPECT_TRUE(places.contains(control->Name())) << name << " shows no " << control->Name() << ".";
        }
    }
}

TEST(Accessibility, EveryFieldSaysWhatItIs)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    for (const Control* control : running.FormNamed("frmCompaction").Controls()) {
        auto* widget = running.Widget("frmCompaction", control->Name());
        if (!widget) continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << control->Name();
    }
}

}  // namespace
}  // namespace terravane
