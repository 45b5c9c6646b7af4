/// What every test sheet shares: the general data block, the bars, the tabs, Calculate and Print Preview, and
/// the way its texts come from the project file and go back to it. A sheet adds its own controls and its
/// method.
#pragma once

#include <algorithm>
#include <array>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "controls/cell_editor.h"
#include "controls/choice_controls.h"
#include "controls/form.h"
#include "controls/furniture.h"
#include "controls/picture_box.h"
#include "controls/text_controls.h"
#include "laboratory/description.h"
#include "laboratory/general_data.h"
#include "program/program.h"
#include "store/schema.h"
#include "store/statements.h"

namespace terravane {

/// The texts that a test's table held in its first row when they were asked for.
struct StoredResults {
    const TableSchema& table;
    jet::Recordset records;

    /// Of the column with that suffix.
    std::string operator[](std::string_view suffix) const { return records.Fields(table.ColumnName(suffix)); }
};

/// The commands' colours: at rest, under the mouse.
inline constexpr Colour kCommandColour{255, 192, 128};
inline constexpr Colour kCommandHover{255, 224, 192};

/// The way that Enter takes through the fields outside the grids, for the sheets without fields of their own between.
inline constexpr std::array<std::string_view, 7> kHeadBlockWay{"txtClient", "txtID",   "txtProject", "txtLocation",
                                                               "txtSoil",   "cboTest", "cboCheck"};

/// The panels of stbDes that change while the sheet is open.
inline constexpr std::size_t kNoticePanel = 2, kClockPanel = 3;

struct TestSheet : Form {
    /// described  a constant of the program
    TestSheet(Program& program, const laboratory::Sheet& described);

    Program& program;
    const laboratory::Sheet& described;

    Frame fraGeneral{*this, "fraGeneral", "General Data"};
    TextBox txtClient{*this, laboratory::kClient};
    TextBox txtID{*this, laboratory::kTaskNumber};
    TextBox txtProject{*this, laboratory::kProjectName};
    TextBox txtLocation{*this, laboratory::kLocation};
    TextBox txtSoil{*this, laboratory::kSample};
    ComboBox cboTest{*this, laboratory::kTester};
    ComboBox cboCheck{*this, laboratory::kChecker};
    DatePicker DTPDate{*this, laboratory::kTestDate, {.GotFocus = HidesEditors()}};
    TextBox txtLabName{*this, "txtLabName"};  // the banner: the test's Thai and English names in two lines

    Toolbar tblMenu{*this,
                    "tblMenu",
                    {{.caption = "Save File", .toolTip = "Save File", .enabled = false, .icon = Icon::Save},
                     {.caption = "Exit Screen", .toolTip = "Exit Screen", .icon = Icon::Close}},
                    {.ButtonClick = [this](int number) { tblMenu_ButtonClick(number); }}};
    TabControl SSTData;
    CommandButton cmdCal{*this,
                         "cmdCal",
                         "Calculate",
                         {.Click = [this] { cmdCal_Click(); },
                          .MouseMove = [this] { cmdCal.SetBackColor(kCommandHover); },
                          .MouseLeave = [this] { Form_MouseMove(); }}};
    CommandButton cmdView{*this,
                          "cmdView",
                          "Print Preview",
                          {.Click = [this] { cmdView_Click(); },
                           .MouseMove = [this] { cmdView.SetBackColor(kCommandHover); },
                           .MouseLeave = [this] { Form_MouseMove(); }}};
    StatusBar stbDes{*this, "stbDes", 3};  // the project's path, what a command has to tell, the time
    Timer Timer1{*this, "Timer1", std::chrono::milliseconds(1000), {.Ticked = [this] { Timer1_Timer(); }}};
    Image imgMouse{*this, "imgMouse"};  // holds the hand cursor of the commands

    /// Boxes that are described and that no member declares, date of today, name lists of the brand store; a sheet
    /// builds its grids where its members stand. It
    /// must not ask for the current test and material: they are still the last sheet's.
    void Form_Load() override;

    virtual void cmdCal_Click() = 0;
    virtual void cmdView_Click();
    virtual void tblMenu_ButtonClick(int number);
    virtual void SSTData_Click(int previousTab);
    void Timer1_Timer();

    void RestoreCommandColours();
    void TellSaved() const;
    /// The mouse over the sheet itself.
    void Form_MouseMove() { RestoreCommandColours(); }

    /// Chooses the option that is stored so; of a sheet that was saved without a choice none.
    virtual void LoadChoice(std::string_view stored);

  protected:
    /// Chains fields for Enter, each to the next, and hides the cell editors where one of them gets the focus.
    void ChainFocus(std::span<const std::string_view> way);
    /// Asks whether the readings of `what`, a row or a column in the technician's words, shall go.
    bool AsksToErase(std::string_view what) const;
    /// Posts results of the current material into the summary. An empty one that takes the place of a value is told.
    void Post(const std::vector<PostedText>& results);
    /// A sentence that asks nothing of the user, in the status line and among the notices, in place of the one before;
    /// an empty one takes it away.
    void Tell(std::string sentence);
    /// What Save stored with a test of the current material.
    StoredResults ResultsOf(Test test) const;
    /// What Val reads in a box that the sheet is described with: for one that no member declares.
    double Number(const laboratory::Box& box) const;

    /// For fields outside the grids, where they get the focus.
    Handler HidesEditors()
    {
        return [this] { HideEditors(*this); };
    }

  private:
    void MakeOtherBoxes();

    std::deque<TextBox> otherBoxes_;  // described; their texts are kept and printed, no event of theirs is handled
};

/// Fills the open sheet from HEAD and the table of the current test and material.
/// Throws the store's error where file or table is missing, 13 where a stored date is none; what was filled
/// stays.
void LoadTestSheet(TestSheet& sheet);

/// Save: the headings, then one statement a row. A statement that fails leaves the earlier ones standing, in
/// the file too; the sheet keeps what was typed.
void SaveTestSheet(const TestSheet& sheet);

/// What Save writes of these columns alone, the headings and all other columns untouched.
/// suffixes  of the columns, behind the table's prefix; one that the sheet does not hold is passed over
void SaveColumns(const TestSheet& sheet, std::span<const std::string_view> suffixes);

/// The persons of the brand store whose position is "Tester" go into one list, those with "Checker" into the
/// other.
void FillNameLists(Program& program, ComboBox& testerBox, ComboBox& checkerBox);

}  // namespace terravane
