// Every sheet and tab at three sizes: nothing is cut, nothing lies on another, and at 1280x720 below a title bar every
// row is in sight without a scroll bar.
#include <QAbstractButton>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>
#include <sstream>

#include <gtest/gtest.h>

#include "controls/visit_control.h"
#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"
#include "laboratory/tests.h"
#include "script/script_program.h"
#include "source_folder.h"
#include "support/road_project.h"

namespace terravane {
namespace {

constexpr QSize kSmall(1024, 680), kUsual(1280, 696), kLarge(1920, 1056);  // below a title bar of 24

/// What a user reads or types in; bars and frames are made of these.
bool IsPart(const QWidget& widget)
{
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLabel*>(&widget) ||
           qobject_cast<const QTableView*>(&widget) || qobject_cast<const QDateEdit*>(&widget);
}

/// Not made of other parts, and not one of a part's own.
std::vector<QWidget*> PartsOf(QWidget& page)
{
    std::vector<QWidget*> parts;
    for (auto* widget : page.findChildren<QWidget*>()) {
        if (!IsPart(*widget) || !widget->isVisibleTo(&page) || widget->size().isEmpty()) continue;
        bool isInner = false;
        for (QWidget* above = widget->parentWidget(); above && above != &page; above = above->parentWidget())
            isInner = isInner || IsPart(*above);
        if (!isInner) parts.push_back(widget);
    }
    return parts;
}

std::string NameOf(const QWidget& widget)
{
    const QString name = widget.accessibleName() + " (" + widget.objectName() + ")";
    return name.toStdString();
}

QRect PlaceIn(const QWidget& page, const QWidget& part)
{
    return {part.mapTo(&page, QPoint(0, 0)), part.size()};
}

void ExpectWhole(QWidget& page, const std::string& where)
{
    const auto parts = PartsOf(page);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const QRect place = PlaceIn(page, *parts[i]);
        EXPECT_TRUE(page.rect().contains(place)) << where << ": " << NameOf(*parts[i]) << " is cut by its window.";
        const QSize least = parts[i]->minimumSizeHint();
        EXPECT_GE(place.height(), std::min(least.height(), 20)) << where << ": " << NameOf(*parts[i]);
        if (!qobject_cast<QLabel*>(parts[i])) {
            EXPECT_GE(place.width(), least.width())
                << where << ": " << NameOf(*parts[i]) << " is narrower than its text.";
        }
        for (std::size_t j = i + 1; j < parts.size(); ++j)
            EXPECT_FALSE(place.intersects(PlaceIn(page, *parts[j])))
                << where << ": " << NameOf(*parts[i]) << " lies on " << NameOf(*parts[j]);
    }
}

void ExpectRowsInSight(QScrollArea& page, const std::string& where)
{
    EXPECT_EQ(page.verticalScrollBar()->maximum(), 0) << where << " scrolls down.";
    EXPECT_EQ(page.horizontalScrollBar()->maximum(), 0) << where << " scrolls across.";
    for (auto* grid : page.findChildren<QTableView*>())
        if (grid->isVisible() && grid->model() && grid->model()->rowCount() <= 12) {
            EXPECT_EQ(grid->verticalScrollBar()->maximum(), 0) << where << ": " << NameOf(*grid) << " hides rows.";
        }
}

void ExpectEqualRows(const QScrollArea& page, const std::string& where)
{
    int height = 0;
    for (auto* grid : page.findChildren<QTableView*>()) {
        const TextGrid& cells = static_cast<GridView*>(grid)->Grid();
        if (!grid->isVisible() || !grid->model() || cells.Rows() == cells.HeadRows()) continue;
        const int last = grid->model()->rowCount() - 1;
        if (height == 0) height = grid->rowHeight(last);
        EXPECT_EQ(grid->rowHeight(last), height) << where << ": " << NameOf(*grid) << " has rows of its own height.";
    }
}

class Room : public testing::TestWithParam<QSize> {};

INSTANTIATE_TEST_SUITE_P(Sizes, Room, testing::Values(kSmall, kUsual, kLarge));

TEST_P(Room, NoControlIsCutOrLiesOnAnother)
{
    DesktopFixture running;
    running.MakeProject();
    running.Window("mdiBack")->setFixedSize(GetParam());
    for (const laboratory::Description* test : laboratory::Tests()) {
        running.OpenSheet(std::string(test->menu) + "2");
        Form& form = *running.program.ShownForms().back().form;
        auto& tabs = form.Get<TabControl>("SSTData");
        auto* view = static_cast<QTabWidget*>(running.Widget(form.Name(), "SSTData"));
        for (int tab = 0; tab < tabs.Count(); ++tab) {
            tabs.SetTabEnabled(tab, true);
            tabs.SetTab(tab);
            QTest::qWait(20);
            auto& page = *static_cast<QScrollArea*>(view->currentWidget());
            const std::string where = std::string(test->key) + ", " + tabs.TabCaption(tab);
            ExpectWhole(*page.widget(), where);
            ExpectEqualRows(page, where);
            if (GetParam() != kSmall) ExpectRowsInSight(page, where);
        }
        ExpectWhole(*running.Widget<QWidget>(form.Name(), "fraGeneral"), std::string(test->key) + ", General Data");
    }
}

/// The pages of the sheet that is open, one by one.
void ExpectPagesWhole(DesktopFixture& running, const laboratory::Description& test, const std::string& state)
{
    Form& form = *running.program.ShownForms().back().form;
    auto& tabs = form.Get<TabControl>("SSTData");
    auto* view = static_cast<QTabWidget*>(running.Widget(form.Name(), "SSTData"));
    for (int tab = 0; tab < tabs.Count(); ++tab) {
        tabs.SetTabEnabled(tab, true);
        tabs.SetTab(tab);
        QTest::qWait(10);
        auto& page = *static_cast<QScrollArea*>(view->currentWidget());
        ExpectWhole(*page.widget(), std::string(test.key) + ", " + tabs.TabCaption(tab) + ", " + state);
    }
}

/// The sample's project, typed by its scripts and opened as a user opens a file.
void OpenSample(DesktopFixture& running)
{
    ScriptOptions options;
    for (const auto& script : support::RoadScripts(kSourceFolder)) options.files.push_back(script.string());
    const QString before = QDir::currentPath();
    QDir::setCurrent(running.home.path());
    std::istringstream nothing;
    std::ostringstream told;
    RunScripts(options, nothing, told, told);
    QDir::setCurrent(before);
    running.surroundings.files.push_back(running.PathOf("TRVN_road.mdb"));
    running.PressMenu("mnuOpen");
}

TEST_P(Room, NothingIsCutInASheetThatIsFilledWorkedOutOrFailed)
{
    DesktopFixture running;
    OpenSample(running);
    running.Window("mdiBack")->setFixedSize(GetParam());
    for (const laboratory::Description* test : laboratory::Tests()) {
        running.OpenSheet(std::string(test->menu) + "1");
        Form& form = *running.program.ShownForms().back().form;
        ExpectPagesWhole(running, *test, "filled");
        for (const std::string_view command : test->sheet.commands) form.Get<CommandButton>(command).Press();
        ExpectPagesWhole(running, *test, "worked out");
        running.program.notices.Tell({.kind = NoticeKind::Failure,
                                      .sentence = std::string(200, 'W'),
                                      .place = {form.Name(), "SSTData"},
                                      .subject = form.Name() + ".cmdCal_Click"});
        ExpectPagesWhole(running, *test, "failed");
    }
}

TEST(Room, TheListOfSievesShowsTwelveAndNoHalfRow)
{
    DesktopFixture running;
    running.MakeProject();
    running.Window("mdiBack")->setFixedSize(kUsual);
    running.OpenSheet("mnuSie1");
    QTest::qWait(20);
    const auto* list = running.Widget<QListWidget>("frmSieve", "lstSieve");
    EXPECT_EQ(list->viewport()->height() % list->sizeHintForRow(0), 0);
    EXPECT_GE(list->viewport()->height() / list->sizeHintForRow(0), 12);
}

TEST(Room, TheProjectAndTheMaterialAreAlwaysInSight)
{
    DesktopFixture running;
    auto* name = running.Widget<QLabel>("mdiBack", "projectName");
    EXPECT_EQ(name->text(), "No project");
    running.MakeProject();
    EXPECT_EQ(name->text(), "TRVN_road.mdb");
    running.OpenSheet("mnuMod2");
    EXPECT_EQ(running.Widget<QLabel>("frmCompaction", "material")->text(), "Crushed Rock");
}

TEST(Room, TheFrameStandsWhereItWasClosed)
{
    DesktopFixture running;
    running.Window("mdiBack")->setGeometry(40, 60, 1100, 700);
    running.Window("mdiBack")->close();
    running.program.Run("Start", [&running] { running.program.Show("mdiBack"); });
    EXPECT_EQ(running.Window("mdiBack")->size(), QSize(1100, 700));
}

}  // namespace
}  // namespace terravane
