// Random keys, clicks and menu entries with a fixed seed: whatever a hand slips on, the program stands and the project
// file stays a whole one.
#include <QAbstractButton>
#include <QElapsedTimer>
#include <QLineEdit>
#include <random>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "store/schema.h"
#include "store/statements.h"

namespace terravane {
namespace {

constexpr int kMilliseconds = 6000;

class Monkey {
  public:
    explicit Monkey(DesktopFixture& running) : running_(running) {}

    void Act()
    {
        switch (Pick(6)) {
            case 0:
                return PressMenu();
            case 1:
                return OpenSheet();
            case 2:
                return PressButton();
            case 3:
                return ClickSomewhere();
            default:
                return PressKey();
        }
    }

  private:
    int Pick(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

    void PressMenu()
    {
        static constexpr const char* kEntries[] = {"mnuNew", "mnuOpen", "mnuAs", "mnuTo", "mnuRecent", "mnuAbout"};
        const std::string path = running_.PathOf("monkey" + std::to_string(Pick(4)) + ".mdb");
        if (Pick(2)) running_.surroundings.files.push_back(path);
        running_.PressMenu(kEntries[Pick(6)]);
    }

    void OpenSheet()
    {
        static constexpr const char* kSheets[] = {"mnuStd1", "mnuStd2", "mnuMod1", "mnuMod2"};
        running_.FormNamed("mdiBack").Get<Toolbar>("tbrLab").PressItem(kSheets[Pick(4)]);
    }

    template <class T>
    T* AnyOf()
    {
        const auto& shown = running_.program.ShownForms();
        const auto all = running_.desktop->WindowOf(*shown.back().form)->findChildren<T*>();
        return all.isEmpty() ? nullptr : all[Pick(static_cast<int>(all.size()))];
    }

    void PressButton()
    {
        if (auto* button = AnyOf<QAbstractButton>(); button && button->isVisible()) {
            if (button->objectName().startsWith("qt_")) return;  // spin and drop-down parts of the platform
            if (!button->inherits("QToolButton")) button->click();
        }
    }

    void ClickSomewhere()
    {
        auto* widget = AnyOf<QWidget>();
        if (!widget || !widget->isVisible() || widget->inherits("QComboBox") || widget->inherits("QToolButton")) return;
        if (widget->inherits("QDateEdit") || widget->inherits("QMdiSubWindow")) return;  // open menus of their own
        const QPoint at(Pick(std::max(1, widget->width())), Pick(std::max(1, widget->height())));
        QTest::mouseClick(widget, Pick(5) ? Qt::LeftButton : Qt::RightButton, {}, at);
    }

    void PressKey()
    {
        static constexpr int kKeys[] = {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Up,  Qt::Key_Down,
                                        Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Tab, Qt::Key_Slash};
        auto* edit = AnyOf<QLineEdit>();
        if (!edit || !edit->isVisible()) return;
        if (Pick(3) == 0) return QTest::keyClick(edit, static_cast<Qt::Key>(kKeys[Pick(8)]));
        QTest::keyClicks(edit, QString::number(Pick(100000) / 100.0));
    }

    DesktopFixture& running_;
    std::mt19937 random_{20261121};
};

TEST(Monkey, LeavesTheProgramStandingAndTheFileWhole)
{
    DesktopFixture running;
    running.MakeProject();
    Monkey monkey(running);
    QElapsedTimer time;
    time.start();
    int acts = 0;
    while (time.elapsed() < kMilliseconds) {
        monkey.Act();
        QCoreApplication::processEvents();
        ++acts;
    }
    EXPECT_GT(acts, 50);
    jet::Connection project;
    project.Open(running.disk, running.PathOf("TRVN_road.mdb"));
    for (const TableSchema& table : ProjectTables()) {
        EXPECT_EQ(project.Execute(SelectAll(table.name)).RowCount(), static_cast<std::size_t>(table.rows))
            << table.name;
    }
}

}  // namespace
}  // namespace terravane
