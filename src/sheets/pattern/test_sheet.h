/// What every test sheet shares: the general data block, the bars, the tabs, Calculate and Print Preview, and
/// the way its texts come from the project file and go back to it. A sheet adds its own controls and its
/// method.
#pragma once

#include <algorithm>
#include <array>
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
#include "program/program.h"
#include "store/schema.h"

namespace terravane {

/// Where a column of the test's table stands on the sheet.
///   Head      one text of the sheet; saved into every row, loaded from the first
///   GridRow   record i is the grid's column i; `line` is the grid's row
///   GridLine  record i is the grid's row i + rowShift; `line` is the grid's column
///   Choice    the stored text of the option that is chosen; saved into every row, taken up from the first when all
///             else is loaded
struct ColumnPlace {
    enum class Kind { Head, GridRow, GridLine, Choice };

    std::string_view suffix;   // of the column, behind the table's prefix
    std::string_view control;  // name of the text control or grid; of a choice none
    Kind kind = Kind::Head;
    int line = 0;
    bool loaded = true;  // results are saved only
    int rowShift = 0;
    int firstLoaded = 1;  // records before this one are the grid's titles: saved with it, kept when it is loaded
    int lastLoaded = 0;   // records behind the pass's own up to this one are loaded too, though never saved
};

/// The columns that are saved by one statement a record and loaded in one walk over the records.
/// records  how many, from the first row of the table; of a list the most that the table takes
/// list     the grid whose rows are the records, if it grows and shrinks with them: as many are saved as it has rows;
///          loading ends at the first record whose first column is blank, and leaves a row a record
struct TablePass {
    int records;
    std::span<const ColumnPlace> places;
    std::string_view list = {};
};

/// The columns of the general data, the first ones of every test's table, with a sheet's own places behind them.
template <std::size_t kOwn>
constexpr auto BehindGeneralData(const std::array<ColumnPlace, kOwn>& own)
{
    constexpr std::array kGeneral{ColumnPlace{"date", "DTPDate"}, ColumnPlace{"soil", "txtSoil"},
                                  ColumnPlace{"test", "cboTest"}, ColumnPlace{"check", "cboCheck"}};
    std::array<ColumnPlace, kGeneral.size() + kOwn> places{};
    std::ranges::copy(own, std::ranges::copy(kGeneral, places.begin()).out);
    return places;
}

/// An option button and the text that the table keeps where it is chosen.
struct StoredOption {
    std::string_view option, stored;
};

/// The texts that a test's table holds in its first row. They stay until the next query.
struct StoredResults {
    const TableSchema& table;
    const jet::Recordset& records;

    /// Of the column with that suffix.
    const std::string& operator[](std::string_view suffix) const { return records.Fields(table.ColumnName(suffix)); }
};

/// The way that Enter takes through the fields outside the grids, for the sheets without fields of their own between.
inline constexpr std::array<std::string_view, 7> kHeadBlockWay{"txtClient", "txtID",   "txtProject", "txtLocation",
                                                               "txtSoil",   "cboTest", "cboCheck"};

struct TestSheet : Form {
    TestSheet(Program& program, std::string name, std::string caption, std::vector<std::string> tabs);

    Program& program;

    Frame fraGeneral{*this, "fraGeneral", "General Data"};
    TextBox txtClient{*this, "txtClient", "Client Name"};
    TextBox txtID{*this, "txtID", "Task No."};
    TextBox txtProject{*this, "txtProject", "Project Name"};
    TextBox txtLocation{*this, "txtLocation", "Location"};
    TextBox txtSoil{*this, "txtSoil", "Sample"};
    ComboBox cboTest{*this, "cboTest", "Tested by"};
    ComboBox cboCheck{*this, "cboCheck", "Checked by"};
    DatePicker DTPDate{*this, "DTPDate", "Date of Test"};
    TextBox txtLabName{*this, "txtLabName"};  // the banner: the test's Thai and English names in two lines

    Toolbar tblMenu{
        *this, "tblMenu", {{"", "Save File", "Save File", {}, false}, {"", "Exit Screen", "Exit Screen", {}}}};
    TabControl SSTData;
    CommandButton cmdCal{*this, "cmdCal", "Calculate"};
    CommandButton cmdView{*this, "cmdView", "Print Preview"};
    StatusBar stbDes{*this, "stbDes", 2};  // the project's path; the time
    Timer Timer1{*this, "Timer1", std::chrono::milliseconds(1000)};
    Image imgMouse{*this, "imgMouse"};  // holds the hand cursor of the commands

    /// Date of today, name lists of the brand store; a sheet builds its grids where its members stand. It
    /// must not ask for the current test and material: they are still the last sheet's.
    void Form_Load() override;

    virtual void cmdCal_Click() = 0;
    void cmdView_Click();
    void tblMenu_ButtonClick(int number);
    void Timer1_Timer();

    /// The commands' colours: at rest, under the mouse.
    void RestoreCommandColours();
    /// The mouse over the sheet itself.
    void Form_MouseMove() { RestoreCommandColours(); }

    /// The table's columns on this sheet, pass by pass, in the table's order.
    virtual std::span<const TablePass> TablePasses() const = 0;
    /// Whether the lists (not the heads) lose the blanks at their ends when they are loaded.
    virtual bool TrimsLists() const { return false; }
    /// The options of the table's choice.
    virtual std::span<const StoredOption> StoredOptions() const { return {}; }
    /// Chooses the option that is stored so; of a sheet that was saved without a choice none.
    virtual void LoadChoice(std::string_view stored);

  protected:
    /// Chains fields for Enter, each to the next, and hides the cell editors where one of them gets the focus.
    void ChainFocus(std::span<const std::string_view> way);
    /// Asks whether the readings of `what`, a row or a column in the technician's words, shall go.
    bool AsksToErase(std::string_view what);
    /// What Save stored with a test of the current material.
    StoredResults ResultsOf(Test test);

  private:
    /// Runs `handler` for a press on the button, with the commands' hover colour.
    void Command(CommandButton& button, Handler handler);
};

/// Fills the open sheet from HEAD and the table of the current test and material.
/// Throws the store's error where file or table is missing, 13 where a stored date is none; what was filled
/// stays.
void LoadTestSheet(TestSheet& sheet);

/// Save: the headings, then one statement a row. A statement that fails leaves the earlier ones standing, in
/// the file too; the sheet keeps what was typed.
void SaveTestSheet(TestSheet& sheet);

/// The persons of the brand store whose position is "Tester" go into one list, those with "Checker" into the
/// other.
void FillNameLists(Program& program, ComboBox& testerBox, ComboBox& checkerBox);

inline constexpr Colour kCommandColour{255, 192, 128};
inline constexpr Colour kCommandHover{255, 224, 192};

}  // namespace terravane
