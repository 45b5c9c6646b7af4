// The preferences as a user sees and types them: pictures in their proportions, editors over their cells, keys.
#include <QBuffer>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include <gtest/gtest.h>

#include "controls/picture_box.h"
#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"

namespace terravane {
namespace {

constexpr const char* kForm = "frmPreferences";
constexpr int kName = 1, kPosition = 2;

struct PreferencesDesk : DesktopFixture {
    void Open(const std::string& entry)
    {
        PressMenu(entry);
        Window(kForm)->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(Window(kForm)));
    }

    /// The widget that the keys go to when the window is the active one.
    bool HasFocus(const char* control) { return Window(kForm)->focusWidget() == Widget(kForm, control); }

    GridView* Grid() { return static_cast<GridView*>(Widget(kForm, "mshPerson")); }
    TextGrid& Persons() { return FormNamed(kForm).Get<TextGrid>("mshPerson"); }
    QRect CellRect(int row, int column) { return Grid()->visualRect(Grid()->model()->index(row, column)); }
    void ClickCell(int row, int column)
    {
        QTest::mouseClick(Grid()->viewport(), Qt::LeftButton, {}, CellRect(row, column).center());
    }
    void Click(const char* button) { QTest::mouseClick(Widget(kForm, button), Qt::LeftButton); }

    /// A picture file of one colour.
    std::string Paint(const char* name, QSize size, const char* format)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        EXPECT_TRUE(image.save(&buffer, format)) << format;
        return Keep(name, bytes);
    }
    std::string Keep(const char* name, const QByteArray& bytes)
    {
        disk.ReplaceWhole(PathOf(name), Bytes(bytes.begin(), bytes.end()));
        return PathOf(name);
    }
    void Choose(const char* button, const std::string& path)
    {
        surroundings.files.push_back(path);
        Click(button);
    }
};

TEST(PreferencesWindow, EachEntryOpensItsTabAndAllFitsAScreenOf720Lines)
{
    const char* entries[] = {"mnuLogoT", "mnuLogoC", "mnuOpr"};
    for (int tab = 0; tab < 3; ++tab) {
        PreferencesDesk running;
        running.Open(entries[tab]);
        EXPECT_EQ(running.Widget<QTabWidget>(kForm, "sstPreference")->currentIndex(), tab);
        EXPECT_EQ(running.Window(kForm)->windowTitle(), "Preferences");
        EXPECT_LE(running.Window(kForm)->width(), 1280);
        EXPECT_LE(running.Window(kForm)->height(), 680);
        EXPECT_TRUE(running.Window(kForm)->isModal());
    }
}

TEST(PreferencesWindow, AllFifteenPersonsAreSeenAtOnceAndNoCellIsCut)
{
    PreferencesDesk running;
    running.Open("mnuOpr");
    const QRect room = running.Grid()->viewport()->rect();
    for (int row = 0; row <= 15; ++row) {
        EXPECT_TRUE(room.contains(running.CellRect(row, kPosition).adjusted(0, 0, -1, -1))) << "row " << row;
    }
    EXPECT_GT(running.CellRect(1, kName).width(), running.CellRect(1, kPosition).width()) << "Names are longer.";
}

TEST(PreferencesWindow, PersonsAreTypedFromTheKeyboard)
{
    PreferencesDesk running;
    running.Open("mnuOpr");
    running.ClickCell(1, kName);
    QLineEdit* box = running.Grid()->EditorBox();
    ASSERT_TRUE(box->isVisible());
    EXPECT_EQ(box->geometry(), running.CellRect(1, kName)) << "The box stands exactly over its cell.";
    QTest::keyClicks(box, "Anong Jai");
    QTest::keyClick(box, Qt::Key_Return);
    QTest::keyClicks(box, "Boon Dee");
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(running.Persons()(1, kName), "Anong Jai");
    EXPECT_EQ(running.Persons()(2, kName), "Boon Dee");
    EXPECT_EQ(box->geometry(), running.CellRect(3, kName));
    QTest::keyClicks(box, "lost");
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(box->text(), "Boon Dee");
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_FALSE(box->isVisible());
    EXPECT_TRUE(running.program.Loaded(kForm)) << "Escape closes the editor and not the form.";
    EXPECT_TRUE(running.HasFocus("cmdPerson"));
    QTest::keyClick(running.Widget(kForm, "cmdPerson"), Qt::Key_Return);
    EXPECT_TRUE(running.surroundings.failures.empty());
    running.program.Unload(kForm);
    running.Open("mnuOpr");
    EXPECT_EQ(running.Persons()(2, kName), "Boon Dee");
    EXPECT_EQ(running.Persons()(3, kName), "   ");
}

TEST(PreferencesWindow, LettersAreCorrectedInsideTheBox)
{
    PreferencesDesk running;
    running.Open("mnuOpr");
    running.ClickCell(1, kName);
    QLineEdit* box = running.Grid()->EditorBox();
    QTest::keyClicks(box, "Anon Jai");
    for (int i = 0; i < 4; ++i) QTest::keyClick(box, Qt::Key_Left);
    QTest::keyClicks(box, "g");
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(running.Persons()(1, kName), "Anong Jai");
}

TEST(PreferencesWindow, PositionsAreChosenFromTheList)
{
    PreferencesDesk running;
    running.Open("mnuOpr");
    running.ClickCell(14, kName);
    running.ClickCell(14, kPosition);
    QComboBox* list = running.Grid()->EditorList();
    ASSERT_TRUE(list->isVisible());
    EXPECT_FALSE(running.Grid()->EditorBox()->isVisible());
    EXPECT_EQ(list->geometry(), running.CellRect(14, kPosition));
    EXPECT_EQ(running.Window(kForm)->focusWidget(), list);
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(list->currentText(), "Tester");
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(running.Persons()(14, kPosition), "Tester");
    EXPECT_EQ(list->geometry(), running.CellRect(15, kPosition));
    QTest::keyClicks(list, "Approver");
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(running.Persons()(15, kPosition), "Approver");
    EXPECT_EQ(list->geometry(), running.CellRect(1, kPosition)) << "From the last row to the first.";
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_FALSE(list->isVisible());
    EXPECT_TRUE(running.HasFocus("cmdPerson"));
}

TEST(PreferencesWindow, APressOnTheFrameHidesTheEditors)
{
    PreferencesDesk running;
    running.Open("mnuOpr");
    running.ClickCell(2, kName);
    QTest::mouseClick(running.Widget(kForm, "Frame7"), Qt::LeftButton, {}, QPoint(3, 30));
    EXPECT_FALSE(running.Grid()->EditorBox()->isVisible());
    EXPECT_TRUE(running.HasFocus("cmdPerson"));
}

TEST(PreferencesWindow, EnterInANameSetsOffNothing)
{
    PreferencesDesk running;
    running.Open("mnuLogoT");
    running.surroundings.files.push_back(running.PathOf("none.jpg"));
    auto* name = running.Widget<QLineEdit>(kForm, "txtIsName");
    QTest::mouseClick(name, Qt::LeftButton);
    QTest::keyClicks(name, "Institute of Roads");
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_EQ(running.surroundings.files.size(), 1U) << "No picture was asked for.";
    EXPECT_TRUE(running.program.Loaded(kForm));
    EXPECT_EQ(running.FormNamed(kForm).Get<TextBox>("txtIsName").Text(), "Institute of Roads")
        << "A name typed into a blank box begins without the blanks of a new store.";
}

// Twice as wide as high: the box is filled from side to side, and a quarter of it is ground above and below.
TEST(PreferencesWindow, PicturesOfEveryKindStandInTheirProportions)
{
    PreferencesDesk running;
    const std::string bitmap = running.Paint("wide.bmp", {200, 100}, "bmp");
    const std::string jpeg = running.Paint("wide.jpg", {200, 100}, "jpg");
    const std::string icon = running.Paint("wide.ico", {64, 32}, "ico");
    const auto gif = QByteArray::fromHex("47494638396102000100800000ff0000ff00002c0000000002000100000202440a003b");
    const std::string paths[] = {bitmap, jpeg, icon, running.Keep("wide.gif", gif)};
    for (const std::string& path : paths) {
        running.Open("mnuLogoC");
        running.Choose("cmdOpen2", path);
        ASSERT_TRUE(running.surroundings.failures.empty()) << path;
        QWidget* view = running.Widget(kForm, "picCover");
        const QImage shown = view->grab().toImage();
        const QColor middle = shown.pixelColor(shown.rect().center());
        EXPECT_GT(middle.red(), 200) << path;
        EXPECT_LT(middle.green(), 60) << path;
        const int side = std::min(shown.width(), shown.height()), top = (shown.height() - side) / 2;
        const QColor above = shown.pixelColor(shown.width() / 2, top + side / 8);
        EXPECT_GT(above.green(), 150) << path << " leaves the ground free above it.";
        running.program.Unload(kForm);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST(PreferencesWindow, ChangeLogoIsOfferedWhenAPictureIsChosen)
{
    PreferencesDesk running;
    const std::string path = running.Paint("logo.bmp", {20, 20}, "bmp");
    running.Open("mnuLogoT");
    EXPECT_FALSE(running.Widget(kForm, "cmdLogo1")->isEnabled());
    running.Choose("cmdOpen", path);
    EXPECT_TRUE(running.Widget(kForm, "cmdLogo1")->isEnabled());
    EXPECT_FALSE(running.Widget(kForm, "cmdLogo2")->isEnabled());
    EXPECT_EQ(running.Widget<QLineEdit>(kForm, "txtLogo")->text().toStdString(), path);
    EXPECT_TRUE(running.Widget<QLineEdit>(kForm, "txtLogo")->isReadOnly());
    running.Click("cmdLogo1");
    EXPECT_EQ(running.disk.Read(running.program.BrandFolder + "ins_logo.jpg"), running.disk.Read(path));
}

// 10 000 by 6000 pixels would be 240 MB decoded whole.
TEST(PreferencesWindow, APictureOfSixtyMegapixelsIsShown)
{
    PreferencesDesk running;
    std::string path;
    {
        QImage large(10000, 6000, QImage::Format_Grayscale8);
        large.fill(40);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        ASSERT_TRUE(large.save(&buffer, "jpg"));
        path = running.Keep("large.jpg", bytes);
    }
    running.Open("mnuLogoC");
    running.Choose("cmdOpen2", path);
    EXPECT_TRUE(running.surroundings.failures.empty());
    const QImage shown = running.Widget(kForm, "picCover")->grab().toImage();
    EXPECT_LT(shown.pixelColor(shown.rect().center()).lightness(), 80);
}

// The header is sound and what follows is not: the box is crossed out, and nothing else happens.
TEST(PreferencesWindow, APictureDamagedBehindItsHeaderIsCrossedOut)
{
    PreferencesDesk running;
    QByteArray png = QByteArray::fromHex("89504e470d0a1a0a0000000d4948445200000008000000080806000000");
    const std::string path = running.Keep("damaged.jpg", png + "nothing");
    running.Open("mnuLogoC");
    running.Choose("cmdOpen2", path);
    EXPECT_TRUE(running.surroundings.failures.empty());
    const QImage shown = running.Widget(kForm, "picCover")->grab().toImage();
    const QColor middle = shown.pixelColor(shown.rect().center());
    EXPECT_LT(middle.lightness(), 200) << "The lines cross here.";
    EXPECT_LT(middle.saturation(), 20);
    EXPECT_TRUE(running.program.Loaded(kForm));
}

TEST(PreferencesWindow, WhoIsSavedStandsInTheNextSheetsLists)
{
    PreferencesDesk running;
    running.Open("mnuOpr");
    const std::pair<const char*, const char*> people[] = {
        {"Anong Jai", "Tester"}, {"Boon Dee", "Checker"}, {"Chai Somsak", "Approver"}};
    int row = 0;
    for (const auto& [name, position] : people) {
        running.ClickCell(++row, kName);
        QTest::keyClicks(running.Grid()->EditorBox(), name);
        QTest::keyClick(running.Grid()->EditorBox(), Qt::Key_Return);
        running.ClickCell(row, kPosition);
        QTest::keyClicks(running.Grid()->EditorList(), position);
        QTest::keyClick(running.Grid()->EditorList(), Qt::Key_Return);
    }
    running.Click("cmdPerson");
    running.Click("cmdClose");
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    const auto* tester = running.Widget<QComboBox>("frmCompaction", "cboTest");
    const auto* checker = running.Widget<QComboBox>("frmCompaction", "cboCheck");
    ASSERT_EQ(tester->count(), 1);
    EXPECT_EQ(tester->itemText(0), "Anong Jai");
    ASSERT_EQ(checker->count(), 1);
    EXPECT_EQ(checker->itemText(0), "Boon Dee");
}

TEST(PreferencesWindow, EveryFieldSaysWhatItIs)
{
    PreferencesDesk running;
    running.Open("mnuLogoT");
    for (const Control* control : running.FormNamed(kForm).Controls()) {
        const auto* widget = running.Widget(kForm, control->Name());
        if (!widget) continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << control->Name();
    }
}

TEST(PreferencesWindow, EscapeClosesItWhileNothingIsTyped)
{
    PreferencesDesk running;
    running.Open("mnuLogoT");
    QTest::keyClick(running.Window(kForm), Qt::Key_Escape);
    EXPECT_FALSE(running.program.Loaded(kForm));
}

TEST(PreferencesWindow, EscapeTakesNoTypedNameAwayUntilItIsChanged)
{
    PreferencesDesk running;
    running.Open("mnuLogoT");
    QTest::keyClicks(running.Widget(kForm, "txtIsName"), "Road laboratory");
    QTest::keyClick(running.Window(kForm), Qt::Key_Escape);
    ASSERT_TRUE(running.program.Loaded(kForm));
    running.Click("cmdName1");
    QTest::keyClick(running.Window(kForm), Qt::Key_Escape);
    EXPECT_FALSE(running.program.Loaded(kForm)) << "The store has the name.";
}

TEST(PreferencesWindow, EscapeTakesNoTypedPersonAwayUntilTheyAreSaved)
{
    PreferencesDesk running;
    running.Open("mnuOpr");
    running.ClickCell(1, kName);
    QTest::keyClicks(running.Grid()->EditorBox(), "Somchai");
    QTest::keyClick(running.Window(kForm), Qt::Key_Escape);
    ASSERT_TRUE(running.program.Loaded(kForm)) << "A name that is being typed";
    QTest::keyClick(running.Grid()->EditorBox(), Qt::Key_Return);
    running.Click("cmdName1");
    QTest::keyClick(running.Window(kForm), Qt::Key_Escape);
    ASSERT_TRUE(running.program.Loaded(kForm)) << "The names were changed, the persons were not saved.";
    running.Click("cmdPerson");
    QTest::keyClick(running.Window(kForm), Qt::Key_Escape);
    EXPECT_FALSE(running.program.Loaded(kForm));
}

}  // namespace
}  // namespace terravane
