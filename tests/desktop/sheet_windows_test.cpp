// Every sheet's window, worked with keys and mouse: the readings of the sheet's report script are typed into the cells
// and boxes on the screen, the buttons are clicked, and the results are those that the script gets without a window.
#include <QAction>
#include <QDateEdit>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>
#include <cctype>
#include <fstream>

#include <gtest/gtest.h>

#include "controls/picture_box.h"
#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"
#include "laboratory/tests.h"
#include "script/script_line.h"
#include "source_folder.h"

namespace terravane {
namespace {

/// The folder of its scripts is called as the form is: "atterberg".
std::string FolderOf(const laboratory::Sheet& sheet)
{
    std::string name(sheet.form.substr(std::string_view("frm").size()));
    std::ranges::transform(name, name.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return std::string(kSourceFolder) + "/tests/acceptance/" + name + "/report";
}

std::vector<std::string> LinesOf(const std::string& path)
{
    std::ifstream file(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    return lines;
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
        if (command == "set" || command == "choose") return TypeBox(words[1], words[2]);
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

/// What a line of the script asks and the text that it is answered with.
struct Asked {
    std::vector<std::string> words;
    std::string text;
};

/// The script's lines from the opening of the sheet to its preview: what is done, and what is asked at the end.
/// menu  the item that opened the sheet
struct ReportScript {
    std::string menu;
    std::vector<std::vector<std::string>> steps;
    std::vector<Asked> asked;
};

/// {"get":"txtLL","text":"45.31"} and {"cell":"MSHSummary","row":3,"col":1,"text":"1.88"} tell a text.
bool IsTextAsked(const std::string& answer)
{
    return (answer.starts_with(R"({"get":)") || answer.starts_with(R"({"cell":)")) &&
           answer.find(R"("text":")") != std::string::npos;
}

std::string TextOf(const std::string& answer)
{
    constexpr std::string_view kBefore = R"("text":")", kBehind = R"("})";
    const auto from = answer.find(kBefore) + kBefore.size();
    return answer.substr(from, answer.size() - kBehind.size() - from);
}

/// The answers are those kept beside the script, in its order.
ReportScript ScriptOf(const laboratory::Sheet& sheet)
{
    const std::string path = FolderOf(sheet);
    auto answers = LinesOf(path + ".expected");
    std::erase_if(answers, [](const std::string& answer) { return !IsTextAsked(answer); });
    auto answer = answers.begin();
    ReportScript script;
    for (const std::string& line : LinesOf(path + ".trv")) {
        const auto words = SplitLine(line);
        if (words.empty()) continue;
        if (words[0] == "click" && words[1] == "cmdView") break;
        const bool isOpen = !script.menu.empty();
        const bool looks = words[0] == "page" || words[0] == "answer" || words[0] == "dump";
        if (words[0] == "get" && answer != answers.end()) script.asked.push_back({words, TextOf(*answer++)});
        if (words[0] == "menu" && words[1] != "mnuNew") script.menu = words[1];
        if (isOpen && words[0] != "get" && !looks) script.steps.push_back(words);
    }
    return script;
}

class SheetWindows : public testing::TestWithParam<const laboratory::Sheet*> {};

INSTANTIATE_TEST_SUITE_P(Sheets, SheetWindows, testing::ValuesIn(laboratory::SheetsClosedBeforeFile()),
                         [](const auto& sheet) { return std::string(sheet.param->form); });

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

TEST(SheetWindow, ADateStandsWithItsDayFirst)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    EXPECT_EQ(running.Widget<QDateEdit>("frmCompaction", "DTPDate")->text(), "21/11/2026");
}

TEST(SheetWindow, TheTimeStandsInTheStatusLineFromTheStart)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    const auto panels = running.Widget<QStatusBar>("frmCompaction", "stbDes")->findChildren<QLabel*>();
    EXPECT_EQ(panels.back()->text(), "12 : 00 : 00");
}

// The frame of the tick labels is painted up to its axis, 900 twips from its left, the plot over its whole.
TEST(CompactionWindow, TheCurveBeginsAtItsAxis)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    auto& view = *running.Widget("frmCompaction", "picGraph");
    auto& frame = running.FormNamed("frmCompaction").Get<PictureBox>("picgraph1");
    auto& plot = running.FormNamed("frmCompaction").Get<PictureBox>("picGraph");
    frame.FilledBox(0, 0, 900, frame.Height, {0, 0, 255});
    plot.Axes.emplace();  // a curve that waits for its readings is shown pale
    plot.FilledBox(0, 0, plot.Width, plot.Height, {255, 0, 0});
    const QImage seen = view.grab().toImage();
    const auto is = [&seen](int x, QRgb colour) { return seen.pixel(x, seen.height() / 2) == colour; };
    int axis = seen.width() - 1, curve = 0;  // the last column before the axis, the first of the plot
    while (axis > 0 && !is(axis, 0xFF0000FF)) --axis;
    while (curve < seen.width() && !is(curve, 0xFFFF0000)) ++curve;
    EXPECT_GT(axis, 0);
    EXPECT_GE(curve, axis);
    EXPECT_LE(curve - axis, 2) << "Smoothing leaves one column of both.";
}

/// A choice that renames a frame shows in its window.
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

TEST(DensityWindow, UndoneTheFirstChoiceLeavesNeitherTestChosen)
{
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuDen1");
    Hands(running, "frmDensity").Do({"click", "optMod"});
    const auto* choice = running.Widget<QRadioButton>("frmDensity", "optMod");
    ASSERT_TRUE(choice->isChecked());
    running.Window("mdiBack")->findChild<QAction*>("undo")->trigger();
    EXPECT_FALSE(choice->isChecked());
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
    const std::string form(GetParam()->form);
    const ReportScript script = ScriptOf(*GetParam());
    ASSERT_FALSE(script.asked.empty()) << "The script asks for no result before it prints.";
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet(script.menu);
    Hands hands(running, form);
    for (const auto& step : script.steps) hands.Do(step);
    const Form& sheet = running.FormNamed(form);
    for (const auto& [words, text] : script.asked) {
        const bool isCell = words.size() > 2;
        const std::string shown =
            isCell ? sheet.Get<TextGrid>(words[1])(WholeNumber(words[2], "a row"), WholeNumber(words[3], "a column"))
                   : sheet.Get<TextControl>(words[1]).Text();
        EXPECT_EQ(shown, text) << words[1];
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
