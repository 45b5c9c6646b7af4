// What a screen reader hears: every place by its caption, each cell by row, trial, text and kind, a curve by its
// result, and never a programmer's name.
#include <QAccessible>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableView>
#include <set>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"
#include "laboratory/tests.h"

namespace terravane {
namespace {

QString Heard(QWidget& widget)
{
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
    return spoken ? spoken->text(QAccessible::Name) : QString();
}

std::set<QString> NamesInCode(const Form& form)
{
    std::set<QString> names;
    for (const Control* control : form.Controls()) names.insert(QString::fromStdString(control->Name()));
    return names;
}

TEST(Eyes, EveryPlaceThatTakesTheFocusIsHeardByWordsOfTheSheet)
{
    DesktopFixture running;
    running.MakeProject();
    for (const laboratory::Description* test : laboratory::Tests()) {
        running.OpenSheet(std::string(test->menu) + "1");
        Form& form = *running.program.ShownForms().back().form;
        const auto inCode = NamesInCode(form);
        for (auto* widget : running.Window(form.Name())->findChildren<QWidget*>()) {
            const bool isOwn = widget->objectName().startsWith("qt_") || qobject_cast<QTabBar*>(widget);
            if (isOwn || widget->focusPolicy() == Qt::NoFocus || !form.Find(widget->objectName().toStdString()))
                continue;
            if (widget->property("isEditor").toBool()) continue;
            const QString heard = Heard(*widget);
            EXPECT_FALSE(heard.isEmpty()) << test->key << ": " << widget->objectName().toStdString();
            EXPECT_FALSE(inCode.contains(heard)) << test->key << " says \"" << heard.toStdString() << "\".";
        }
    }
}

/// Everything that is heard below a thing, and where by the names on the way.
void Listen(QAccessibleInterface& thing, const QString& way, const std::set<QString>& inCode, std::string& wrong)
{
    for (int i = 0; i < thing.childCount(); ++i) {
        QAccessibleInterface* part = thing.child(i);
        if (!part) continue;
        const QString name = part->text(QAccessible::Name), words = part->text(QAccessible::Description);
        for (const QString& heard : {name, words})
            if (inCode.contains(heard) || heard.startsWith("qt_")) wrong += (way + " / " + heard).toStdString() + "\n";
        if (!part->tableCellInterface()) Listen(*part, way + " / " + name, inCode, wrong);
    }
}

TEST(Eyes, NoNameOfProgrammersIsHeardInAnyWindow)
{
    DesktopFixture running;
    std::set<QString> inCode;
    const auto listenTo = [&](const std::string& form) {
        inCode.merge(NamesInCode(running.FormNamed(form)));
        inCode.insert(QString::fromStdString(form));
        std::string wrong;
        Listen(*QAccessible::queryAccessibleInterface(running.Window(form)), QString::fromStdString(form), inCode,
               wrong);
        EXPECT_EQ(wrong, "");
    };
    listenTo("mdiBack");
    running.MakeProject();
    for (const laboratory::Description* test : laboratory::Tests()) {
        running.OpenSheet(std::string(test->menu) + "1");
        Form& form = *running.program.ShownForms().back().form;
        auto& tabs = form.Get<TabControl>("SSTData");
        for (int tab = 0; tab < tabs.Count(); ++tab) {
            tabs.SetTabEnabled(tab, true);
            tabs.SetTab(tab);
            listenTo(form.Name());
        }
    }
    for (const auto& [entry, form] :
         {std::pair{"mnuSum", "frmSummary"}, {"mnuLogoT", "frmPreferences"}, {"mnuAbout", "frmAbout"}}) {
        running.PressMenu(entry);
        listenTo(form);
        running.program.Unload(form);
    }
}

TEST(Eyes, ATextThatAScreenReaderWritesIsTaken)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    Form& sheet = running.FormNamed("frmCompaction");
    for (const char* control : {"txtDia", "cboTest"}) {
        auto* view = running.Widget("frmCompaction", control);
        auto* box = qobject_cast<QLineEdit*>(view) ? view : view->findChild<QLineEdit*>();
        QAccessible::queryAccessibleInterface(box)->setText(QAccessible::Value, "10.16");
        EXPECT_EQ(sheet.Get<TextControl>(control).Text(), "10.16") << control;
    }
}

TEST(Eyes, ColumnsWithOneHeadAreHeardApart)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuCBR1");
    auto* grid = running.Widget<QTableView>("frmCBR", "MSHWater");
    QAccessibleTableInterface* table = QAccessible::queryAccessibleInterface(grid)->tableInterface();
    EXPECT_EQ(table->columnDescription(2).toStdString(), "Before Soaking 2");
    EXPECT_EQ(table->columnDescription(4).toStdString(), "After Soaking 1");
}

TEST(Eyes, ACellIsHeardByRowTrialTextAndKind)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    running.FillCompaction();
    auto* grid = static_cast<GridView*>(running.Widget<QTableView>("frmCompaction", "MSHWt"));
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(grid);
    ASSERT_TRUE(spoken && spoken->tableInterface());
    EXPECT_EQ(Heard(*grid).toStdString(), "Water Content Determination");
    QAccessibleTableInterface* table = spoken->tableInterface();
    EXPECT_EQ(table->rowCount(), 8);
    EXPECT_EQ(table->columnCount(), 7);
    const auto text = [table](int row, int column, QAccessible::Text which) {
        return table->cellAt(row, column)->text(which).toStdString();
    };
    EXPECT_EQ(text(2, 3, QAccessible::Name), "Mass of Can + Wet Soil, (g), trial 3: 39.79");
    EXPECT_EQ(text(2, 3, QAccessible::Description), "typed");
    EXPECT_EQ(text(7, 3, QAccessible::Name), "Water Content, (%), trial 3: empty");
    EXPECT_EQ(text(7, 3, QAccessible::Description), "worked out");
    EXPECT_EQ(table->rowDescription(2).toStdString(), "Mass of Can + Wet Soil, (g)");
    EXPECT_EQ(table->columnDescription(3).toStdString(), "trial 3");
    grid->Grid().PressMouse(MouseButton::Left, 2, 3);
    EXPECT_EQ(Heard(*grid->EditorBox()).toStdString(), "Mass of Can + Wet Soil, (g), trial 3");
}

TEST(Eyes, ACurveIsHeardByItsResult)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    running.FillCompaction();
    auto* plot = running.Widget("frmCompaction", "picGraph");
    EXPECT_EQ(plot->accessibleName().toStdString(), "Curve, no result yet");
    Form& sheet = running.FormNamed("frmCompaction");
    for (const char* command : {"cmdCal", "cmdOMC"}) {
        sheet.Get<CommandButton>(command).Press();
        sheet.Get<TabControl>("SSTData").SetTab(1);
    }
    EXPECT_EQ(plot->accessibleName().toStdString(), "Curve: OMC 11.2 %, MDD 2.01 g/cm^3");
}

TEST(Eyes, TheBannerTellsTestAndMaterialInWords)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuMod2");
    QCoreApplication::processEvents();
    EXPECT_TRUE(running.Widget("frmCompaction", "txtLabName")
                    ->accessibleName()
                    .endsWith("Modified Compaction Test, Crushed Rock"));
}

}  // namespace
}  // namespace terravane
