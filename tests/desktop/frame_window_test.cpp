// The frame as a user sees it: strip, buttons, menu, sheets over sheets, dialogs.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "controls/cell_editor.h"
#include "controls/furniture.h"
#include "desktop/desktop_fixture.h"
#include "desktop/layouts.h"
#include "laboratory/tests.h"

namespace terravane {
namespace {

QColor StripColour(DesktopFixture& running)
{
    return running.Widget<QLabel>("mdiBack", "StatusBar1")->palette().color(QPalette::Window);
}

bool TestsCanBeOpened(DesktopFixture& running)
{
    const auto buttons = running.Widget<QToolBar>("mdiBack", "tbrLab")->findChildren<QToolButton*>();
    return std::ranges::all_of(buttons, [](const QToolButton* button) {
        return button->isHidden() || !button->menu() || button->isEnabled();
    });
}

TEST(FrameWindow, BeginsRedWithoutATestToOpen)
{
    DesktopFixture running;
    EXPECT_EQ(StripColour(running), QColor(255, 0, 0));
    EXPECT_FALSE(TestsCanBeOpened(running));
    EXPECT_EQ(running.Window("mdiBack")->windowTitle(),
              "Terravane Program : Version 1.0 -  [Materials for Road Construction]");
}

TEST(FrameWindow, BeforeAProjectIsOpenItOffersNewAndOpenAndTheRecentFile)
{
    DesktopFixture running;
    const auto shown = [&running](const char* name) {
        auto* part = running.Widget("mdiBack", name);
        return part && part->isVisible();
    };
    EXPECT_TRUE(shown("start_mnuOpen"));
    EXPECT_FALSE(shown("start_mnuRecent")) << "There is none yet.";
    running.surroundings.files.push_back(running.PathOf("road.mdb"));
    running.Widget<QPushButton>("mdiBack", "start_mnuNew")->click();
    ASSERT_TRUE(running.program.Loaded("frmProject"));
    EXPECT_TRUE(shown("start_mnuRecent"));
    running.FormNamed("frmProject").Get<CommandButton>("cmdOK").Press();
    EXPECT_FALSE(shown("startPage")) << "Now the tests are what comes next.";
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
    EXPECT_EQ(banner->text(), "การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน   Modified Compaction Test");
    EXPECT_EQ(banner->palette().color(QPalette::Window), QColor(128, 0, 128)) << "Crushed rock is purple.";
}

// A sheet fills the frame: the title on the screen is the frame's own and nothing else.
TEST(FrameWindow, KeepsItsTitleWhenASheetFillsIt)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    ASSERT_TRUE(running.Window("frmCompaction")->isMaximized());
    EXPECT_EQ(running.Window("mdiBack")->windowTitle(),
              "Terravane Program : Version 1.0 -  [Materials for Road Construction]");
    EXPECT_EQ(running.Window("frmCompaction")->windowTitle(), "Compaction Test");
}

TEST(FrameWindow, EnterAcceptsGeneralDataFromEachOfItsBoxes)
{
    DesktopFixture running;
    running.surroundings.files = {running.PathOf("road.mdb")};
    running.PressMenu("mnuNew");
    auto* location = running.Widget<QLineEdit>("frmProject", "txtLocation");
    location->setFocus();
    QTest::keyClick(location, Qt::Key_Return);
    EXPECT_FALSE(running.program.Loaded("frmProject"));
}

TEST(FrameWindow, TheFileMenuHasNoEmptyLine)
{
    DesktopFixture running;
    const auto shown = [&running](const char* entry) {
        return running.Window("mdiBack")->findChild<QAction*>(entry)->isVisible();
    };
    EXPECT_TRUE(shown("mnuOpen"));
    EXPECT_FALSE(shown("mnuRecent")) << "No file was opened yet.";
    running.MakeProject();
    EXPECT_TRUE(shown("mnuRecent"));
}

TEST(FrameWindow, EscapeClosesGeneralDataOnlyWhileNothingIsTyped)
{
    DesktopFixture running;
    running.surroundings.files = {running.PathOf("road.mdb"), running.PathOf("lane.mdb")};
    running.PressMenu("mnuNew");
    auto* number = running.Widget<QLineEdit>("frmProject", "txtID");
    QTest::keyClicks(number, "R-17");
    QTest::keyClick(number, Qt::Key_Escape);
    ASSERT_TRUE(running.program.Loaded("frmProject")) << "Four headings are not lost by one key.";
    EXPECT_EQ(number->text(), "R-17");
    number->clear();
    running.FormNamed("frmProject").Get<TextBox>("txtID").Type("");
    QTest::keyClick(number, Qt::Key_Escape);
    EXPECT_FALSE(running.program.Loaded("frmProject"));
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

std::set<std::string> SetOf(const std::vector<std::string>& names)
{
    return {names.begin(), names.end()};
}

TEST(Layouts, EveryVisibleControlHasAPlace)
{
    DesktopFixture running;
    running.MakeProject();
    // Bars stand around the layout, editors over their grids; timers and hidden pictures are not seen.
    for (const laboratory::Description* test : laboratory::Tests()) {
        running.OpenSheet(std::string(test->menu).append("1"));
        const Form& form = *running.program.ShownForms().back().form;
        const std::string& name = form.Name();
        const auto places = SetOf(PlacedControls(LayoutOf(name)));
        for (const Control* control : form.Controls()) {
            const bool isFurniture = dynamic_cast<const Toolbar*>(control) || dynamic_cast<const StatusBar*>(control) ||
                                     dynamic_cast<const Timer*>(control) || dynamic_cast<const Image*>(control) ||
                                     dynamic_cast<const CellEditor*>(control);
            if (isFurniture || !control->Visible()) continue;
            EXPECT_TRUE(places.contains(control->Name())) << name << " shows no " << control->Name() << ".";
        }
    }
}

/// The pages of the tabs in a layout; none where it has no tabs.
std::vector<Place> PagesOf(const Place& place)
{
    if (place.kind == Place::Kind::Tabs) return place.parts;
    for (const Place& part : place.parts) {
        if (auto pages = PagesOf(part); !pages.empty()) return pages;
    }
    return {};
}

// Scripts have no window: the sheets themselves say what stands on a tab that is disabled.
TEST(Layouts, WhatStandsOnADisabledTabIsOutOfReach)
{
    DesktopFixture running;
    running.MakeProject();
    for (const laboratory::Description* test : laboratory::Tests()) {
        running.OpenSheet(std::string(test->menu).append("1"));
        const Form& form = *running.program.ShownForms().back().form;
        const auto& tabs = form.Get<TabControl>("SSTData");
        const auto pages = PagesOf(LayoutOf(form.Name()));
        std::set<std::string> shut;
        for (int tab = 0; tab < tabs.Count(); ++tab) {
            if (!tabs.TabEnabled(tab)) shut.merge(SetOf(PlacedControls(pages.at(static_cast<std::size_t>(tab)))));
        }
        for (const Control* control : form.Controls()) {
            EXPECT_EQ(!tabs.Reaches(*control), shut.contains(control->Name()))
                << form.Name() << " and its window disagree on " << control->Name() << ".";
        }
    }
}

TEST(Pointer, IsAHandOverTheCommandsThatTakeIt)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    const auto shape = [&](const char* form, const char* control) {
        return running.Widget(form, control)->cursor().shape();
    };
    for (const char* command : {"cmdCal", "cmdView", "cmdOMC"})
        EXPECT_EQ(shape("frmCompaction", command), Qt::PointingHandCursor) << command;
    EXPECT_EQ(shape("mdiBack", "tblMenu"), Qt::PointingHandCursor);
    EXPECT_EQ(running.Widget("mdiBack", "tblMenu")->findChild<QToolButton*>()->cursor().shape(),
              Qt::PointingHandCursor);
    EXPECT_EQ(shape("frmCompaction", "Command5"), Qt::ArrowCursor);
    running.FormNamed("frmCompaction").Get<CommandButton>("cmdView").Press();
    EXPECT_EQ(shape("frmPreview", "Toolbar1"), Qt::PointingHandCursor);
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
