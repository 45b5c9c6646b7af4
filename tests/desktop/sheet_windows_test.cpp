// Every sheet's window, worked with keys and mouse: the readings of the sheet's report script are typed into the cells
// and boxes on the screen, the buttons are clicked, and the results are those that the script gets without a window.
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>
#include <fstream>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"
#include "script/script_line.h"
#include "source_folder.h"

namespace terravane {
namespace {

struct CellResult {
    const char* grid;
    int row, column;
    const char* text;
};

/// results, cells  what stands in boxes and grids at the end: checked by hand in the sheet's own tests
struct SheetCase {
    const char* folder;
    const char* key;
    const char* form;
    std::vector<std::pair<const char*, const char*>> results;
    std::vector<CellResult> cells = {};
};

void PrintTo(const SheetCase& sheet, std::ostream* out)
{
    *out << sheet.form;
}

/// The hands of a technician on one sheet's window.
class Hands {
  public:
    Hands(DesktopFixture& running, const std::string& form) : running_(running), form_(form) {}

    void Do(const std::vector<std::string>& words)
    {
        const std::string& command = words.front();
        if (command == "type")
            return TypeCell(words[1], WholeNumber(words[2], "a row"), WholeNumber(words[3], "a column"), words[4]);
        if (command == "put") return PutCell(words);
        if (command == "set") return TypeBox(words[1], words[2]);
        if (command == "click") return Click(words[1]);
        if (command == "key") return QTest::keyClick(Front(words[1]), Qt::Key_Return);
        if (command == "select") return Select(words[1], words[2]);
        ADD_FAILURE() << "No hand does this yet: " << command;
    }

    /// The control's widget, with its tab in front.
    QWidget* Front(const std::string& control)
    {
        auto* widget = running_.Widget(form_, control);
        EXPECT_TRUE(widget) << control << " has no widget.";
        auto* tabs = running_.Widget<QTabWidget>(form_, "SSTData");
        for (int tab = 0; tab < tabs->count(); ++tab) {
            if (tabs->widget(tab)->isAncestorOf(widget) && tabs->isTabEnabled(tab)) tabs->setCurrentIndex(tab);
        }
        return widget;
    }

  private:
    void TypeCell(const std::string& grid, int row, int column, const std::string& text)
    {
        auto* view = static_cast<GridView*>(Front(grid));
        const QModelIndex cell = view->model()->index(row, column);
        view->scrollTo(cell);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(cell).center());
        ASSERT_TRUE(view->EditorBox()->isVisible()) << grid << " " << row << " " << column << " opens no editor.";
        QTest::keyClicks(view->EditorBox(), QString::fromStdString(text));
        QTest::keyClick(view->EditorBox(), Qt::Key_Return);
    }

    void PutCell(const std::vector<std::string>& words)
    {
        running_.FormNamed(form_).Get<TextGrid>(words[1])(WholeNumber(words[2], "a row"),
                                                          WholeNumber(words[3], "a column")) = words[4];
    }

    void TypeBox(const std::string& box, const std::string& text)
    {
        QWidget* widget = Front(box);
        auto* edit = qobject_cast<QLineEdit*>(widget);
        if (!edit) edit = widget->findChild<QLineEdit*>();
        edit->selectAll();
        QInputMethodEvent typed;  // as a Thai keyboard's layout hands it over; QTest's keys are Latin
        typed.setCommitString(QString::fromStdString(text));
        QApplication::sendEvent(edit, &typed);
    }

    void Click(const std::string& button)
    {
        QWidget* widget = Front(button);
        ASSERT_TRUE(widget->isEnabled()) << button << " can't be pressed.";
        QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(10, widget->height() / 2));
    }

    void Select(const std::string& list, const std::string& entry)
    {
        auto* view = static_cast<QListWidget*>(Front(list));
        const auto items = view->findItems(QString::fromStdString(entry), Qt::MatchExactly);
        ASSERT_FALSE(items.isEmpty()) << entry;
        view->scrollToItem(items.front());
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualItemRect(items.front()).center());
    }

    DesktopFixture& running_;
    std::string form_;
};

/// The script's lines from the opening of the sheet to its preview, without those that only look.
std::vector<std::vector<std::string>> StepsOf(const SheetCase& sheet)
{
    std::ifstream file(std::string(kSourceFolder) + "/tests/acceptance/" + sheet.folder + "/report.trv");
    EXPECT_TRUE(file.is_open());
    std::vector<std::vector<std::string>> steps;
    bool opened = false;
    for (std::string line; std::getline(file, line);) {
        const auto words = SplitLine(line);
        if (words.empty()) continue;
        if (words[0] == "click" && words[1] == "cmdView") break;
        const bool looks = words[0] == "get" || words[0] == "page" || words[0] == "answer" || words[0] == "dump";
        if (opened && !looks) steps.push_back(words);
        opened = opened || (words[0] == "menu" && words[1].starts_with(std::string(sheet.key).substr(0, 6)));
    }
    return steps;
}

class SheetWindows : public testing::TestWithParam<SheetCase> {};

INSTANTIATE_TEST_SUITE_P(
    Sheets, SheetWindows,
    testing::Values(SheetCase{"atterberg", "mnuAtt1", "frmAtterberg", {{"txtLL", "45.31"}, {"txtPL", "22.70"}}},
                    SheetCase{"specific", "mnuSpe1", "frmSpecific", {{"txtR", " 0.9995"}}},
                    SheetCase{"sieve", "mnuSie1", "frmSieve", {{"txtSuscs", "GW-GC"}, {"txtSaash", "A-1-a(0)"}}},
                    SheetCase{"cbr", "mnuCBR1", "frmCBR", {{"txtCBR", "6.1"}}},
                    SheetCase{"density",
                              "mnuDen1",
                              "frmDensity",
                              {{"txtPosition", "กม. 12+400 ซ้ายทาง"}},
                              {{"MSHSummary", 3, 1, "1.88"}, {"MSHSummary", 4, 6, "93.17"}}}));

/// A choice that renames a frame shows in its window.
/// The last row of a box's picture, its frame left out, that has ink.
int LowestInk(QLineEdit& box)
{
    constexpr int kFrame = 4, kFirstLetter = 30, kDark = 128;
    const QImage picture = box.grab().toImage();
    for (int y = picture.height() - kFrame; y > kFrame; --y) {
        for (int x = kFrame; x < kFirstLetter; ++x) {
            if (qGray(picture.pixel(x, y)) < kDark) return y;
        }
    }
    return 0;
}

// Neither letter goes below the line that it stands on.
TEST(TextBoxes, ThaiStandsOnTheLineOfLatin)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    auto* box = running.Widget<QLineEdit>("frmCompaction", "txtSoil");
    running.Widget("frmCompaction", "txtDia")->setFocus();  // a cursor in the box would count as ink
    box->setText("n");
    const int latin = LowestInk(*box);
    box->setText("\u0e01");
    EXPECT_EQ(LowestInk(*box), latin) << "The Thai letter stands higher or lower than the Latin one.";
}

TEST(DensityWindow, TheSummaryNamesTheChosenCompactionTest)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuDen1");
    auto* frame = running.Widget<QGroupBox>("frmDensity", "fraSummary");
    EXPECT_EQ(frame->title().toStdString(), "Summary");
    Hands(running, "frmDensity").Do({"click", "optMod"});
    EXPECT_EQ(frame->title().toStdString(), "Summary (Percent Compaction for Modified Compaction)");
}

TEST(CbrWindow, TheRingConstantHasItsUnitBehindIt)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuCBR1");
    const auto* box = running.Widget("frmCBR", "txtK");
    const auto labels = box->parentWidget()->findChildren<QLabel*>();
    const auto unit = std::ranges::find(labels, QString("lb/div"), &QLabel::text);
    ASSERT_NE(unit, labels.end());
    EXPECT_GE((*unit)->x(), box->geometry().right());
}

TEST_P(SheetWindows, FromTypedReadingsToResultsAndReport)
{
    const SheetCase& sheet = GetParam();
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet(sheet.key);
    Hands hands(running, sheet.form);
    for (const auto& step : StepsOf(sheet)) hands.Do(step);
    for (const auto& [box, text] : sheet.results) {
        EXPECT_EQ(running.FormNamed(sheet.form).Get<TextControl>(box).Text(), text) << box;
    }
    for (const auto& [grid, row, column, text] : sheet.cells) {
        EXPECT_EQ(running.FormNamed(sheet.form).Get<TextGrid>(grid)(row, column), text) << grid << " row " << row;
    }
    QTest::mouseClick(hands.Front("cmdView"), Qt::LeftButton);
    ASSERT_TRUE(running.program.Loaded("frmPreview")) << "Print Preview shows the report.";
    running.surroundings.printInto = running.PathOf("report.pdf");
    QTest::mouseClick(running.Widget<QToolButton>("frmPreview", "savePdf"), Qt::LeftButton);
    EXPECT_TRUE(running.disk.Exists(running.PathOf("report.pdf")));
    EXPECT_TRUE(running.surroundings.failures.empty()) << running.surroundings.failures.front().Description();
}

}  // namespace
}  // namespace terravane
