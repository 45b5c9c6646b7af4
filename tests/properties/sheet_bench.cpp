#include "properties/sheet_bench.h"

#include <cstdlib>
#include <set>
#include <stdexcept>

#include "app/form_makers.h"
#include "app/mdiBack.h"
#include "jet/database.h"
#include "laboratory/general_data.h"
#include "sheets/sieve/sieve_table.h"
#include "store/new_stores.h"
#include "store/schema.h"

namespace terravane::support {

namespace {

constexpr std::string_view kProjectPath = "/lab/TRVN_road.mdb";
constexpr unsigned kSeedsInTheTestCommand = 1;
constexpr int kUnitsWithoutColumn = 10;
constexpr int kMostDifferences = 5;
constexpr std::string_view kGrowingList = "MSHPenetrate1";

/// Results that other tests left behind, for the sheets that fetch them.
constexpr std::array<std::string_view, 8> kEarlierResults{
    "UPDATE STDSOIL Set std_omc='12.3',std_mdd='1.95'",
    "UPDATE MODSOIL Set mod_omc='10.1',mod_mdd='2.08'",
    "UPDATE STDCRUSH Set std_omc='7.4',std_mdd='2.11'",
    "UPDATE MODCRUSH Set mod_omc='6.2',mod_mdd='2.23'",
    "UPDATE ATTSOIL Set att_LL='45.31',att_PL='22.70'",
    "UPDATE ATTCRUSH Set att_LL='25.10',att_PL='19.40'",
    "UPDATE SPCSOIL Set spc_gs='2.68'",
    "UPDATE SPCCRUSH Set spc_gs='2.71'",
};

/// A brand store and a project with those results, made once.
const MemoryFileSystem& Disk()
{
    static const MemoryFileSystem made = [] {
        MemoryFileSystem files;
        files.MakeFolders("/lab/BrandList/");
        WriteFirstContent(files, "/lab/BrandList/");
        CreateProjectFile(files, std::string(kProjectPath));
        jet::Connection project;
        project.Open(files, std::string(kProjectPath));
        for (const auto statement : kEarlierResults) project.Execute(std::string(statement));
        project.Flush();
        return files;
    }();
    return made;
}

/// All boxes of a sheet, those of the job first.
std::vector<laboratory::Box> BoxesOf(const laboratory::Sheet& sheet)
{
    std::vector<laboratory::Box> boxes(laboratory::kJobBoxes.begin(), laboratory::kJobBoxes.end());
    boxes.insert(boxes.end(), laboratory::kGeneralBoxes.begin(), laboratory::kGeneralBoxes.end());
    boxes.insert(boxes.end(), sheet.boxes.begin(), sheet.boxes.end());
    boxes.insert(boxes.end(), sheet.results.begin(), sheet.results.end());
    return boxes;
}

bool IsKeptAndTyped(const laboratory::Box& box)
{
    return !box.is.kept.empty() && box.is.isLoaded && !box.is.isWorkedOut;
}

/// Typed, and not read back from the file.
bool IsOfSession(const laboratory::Box& box)
{
    return box.is.like.IsGiven() && !IsKeptAndTyped(box);
}

/// What a careful hand types for a trial, from 0.
std::string Typed(const laboratory::Plausible& like, int trial, RandomReadings& hand)
{
    return hand.Number(like.low + trial * like.step, like.high + trial * like.step, like.decimals);
}

/// The last reading of the swelling has no row in the file: it is gone when the sheet is closed.
bool IsKept(const TextGrid& grid, int row)
{
    return grid.Name() != "MSHSwell" || row != cbr::swell::Last;
}

/// The cells that are typed through an editor.
template <class Act>
void ForEachTyped(TestSheet& sheet, Act act)
{
    for (Control* control : sheet.Controls()) {
        auto* editor = dynamic_cast<CellEditor*>(control);
        if (!editor) continue;
        const CellRange range = editor->Range();
        for (int row = range.firstRow; row <= range.lastRow; ++row) {
            for (int column = range.firstColumn; column <= range.lastColumn; ++column) {
                const bool isTyped = !editor->Grid().IsCalculated(row, column) && IsKept(editor->Grid(), row);
                if (isTyped) act(*editor, row, column);
            }
        }
    }
}

std::string CellName(std::string_view grid, int row, int column)
{
    return std::string(grid) + "(" + std::to_string(row) + "," + std::to_string(column) + ")";
}

/// What stands over the grids shows the cell that was opened last.
bool IsFloating(const Control& control)
{
    return dynamic_cast<const CellEditor*>(&control) || control.Name() == "dtpSwell";
}

void AddGrid(Texts& texts, const TextGrid& grid)
{
    texts[grid.Name() + " rows"] = std::to_string(grid.Rows());
    for (int row = 0; row < grid.Rows(); ++row)
        for (int column = 0; column < grid.Columns(); ++column)
            texts[CellName(grid.Name(), row, column)] = grid(row, column);
}

std::string StateOf(const Control& control)
{
    std::string state = control.Text();
    if (!control.Enabled()) state += " [disabled]";
    if (const auto* option = dynamic_cast<const OptionButton*>(&control)) state += option->Value() ? " [chosen]" : "";
    if (const auto* tick = dynamic_cast<const CheckBox*>(&control)) state += tick->Value() ? " [ticked]" : "";
    if (const auto* tabs = dynamic_cast<const TabControl*>(&control)) {
        for (int tab = 0; tab < tabs->Count(); ++tab) state += tabs->TabEnabled(tab) ? " [open]" : " [closed]";
    }
    if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
        for (std::size_t entry = 0; entry < list->List().size(); ++entry) state += list->Selected(entry) ? "x" : "-";
    }
    return state;
}

void PressControl(Form& form, std::string_view name)
{
    Control* control = form.Find(name);
    if (auto* button = dynamic_cast<CommandButton*>(control)) return button->Press();
    if (auto* option = dynamic_cast<OptionButton*>(control)) return option->Press();
    if (auto* tick = dynamic_cast<CheckBox*>(control)) return tick->SetValue(true);
    throw std::logic_error("nothing to press: " + std::string(name));
}

}  // namespace

std::vector<SheetCase> AllSheetCases()
{
    std::vector<SheetCase> cases;
    for (const auto& sheet : kSheetsUnderTest)
        for (const auto& material : kMaterialsUnderTest) cases.push_back({&sheet, &material});
    return cases;
}

std::string CaseName(const SheetCase& of)
{
    return std::string(of.sheet->name).append(of.material->name);
}

unsigned Seeds()
{
    const char* const asked = std::getenv("TERRAVANE_SEEDS");
    return asked ? static_cast<unsigned>(std::strtoul(asked, nullptr, 10)) : kSeedsInTheTestCommand;
}

std::string Differences(const Texts& before, const Texts& after)
{
    std::set<std::string> names;
    for (const Texts* texts : {&before, &after})
        for (const auto& [name, text] : *texts) names.insert(name);
    const auto shown = [](const Texts& texts, const std::string& name) {
        const auto found = texts.find(name);
        return found == texts.end() ? std::string("nothing") : '"' + found->second + '"';
    };
    std::string sentences;
    int told = 0;
    for (const auto& name : names) {
        const std::string was = shown(before, name), is = shown(after, name);
        if (was != is && told++ < kMostDifferences) sentences.append(name + " was " + was + " and is " + is + ". ");
    }
    return told <= kMostDifferences ? sentences : sentences + "In all " + std::to_string(told) + " places.";
}

SheetBench::SheetBench(const SheetCase& of) : case_(of), files_(Disk())
{
    Start();
}

void SheetBench::Start()
{
    program_ = std::make_unique<Program>(ask_, files_, "/lab");
    AddForms(*program_);
    program_->Run("Start", [this] { program_->Show(kFrameName); });
    auto& frame = program_->Get<mdiBack>(kFrameName);
    frame.OpenFile(std::string(kProjectPath));
    frame.tbrLab.PressItem(std::string(Table().Described().menu) + TheMaterial().menuDigit);
    sheet_ = &program_->Get<TestSheet>(Table().Described().sheet.form);
}

void SheetBench::Reopen()
{
    program_.reset();
    Start();
}

template <class Act>
bool SheetBench::Quietly(Act act)
{
    const std::size_t told = Told();
    act();
    return Told() == told;
}

Plan SheetBench::PlanOf(RandomReadings& hand) const
{
    Plan plan;
    for (const Names& group : Table().choices)
        if (const auto choice = hand.OneOf(group); !choice.empty()) plan.choices.push_back(choice);
    for (const laboratory::Box& box : BoxesOf(Table().Described().sheet))
        if (IsOfSession(box)) plan.session.emplace_back(box.control, BoxText(box.control, hand));
    if (!Table().fetches.empty() && hand.Chance(60)) plan.fetches.push_back(hand.OneOf(Table().fetches));
    return plan;
}

void SheetBench::Choose(const Plan& plan)
{
    for (const auto choice : plan.choices) PressControl(*sheet_, choice);
}

void SheetBench::Fetch(const Plan& plan)
{
    for (const auto& [box, text] : plan.session) TypeBox(box, text);
    for (const auto fetch : plan.fetches) PressControl(*sheet_, fetch);
}

bool SheetBench::CanPress(const SheetPress& command) const
{
    return sheet_->SSTData.TabEnabled(command.tab) && sheet_->Find(command.button)->Enabled();
}

bool SheetBench::Press(const SheetPress& command)
{
    return Quietly([&] {
        if (sheet_->SSTData.TabEnabled(command.tab)) sheet_->Get<CommandButton>(command.button).Press();
    });
}

void SheetBench::PressAll()
{
    for (const SheetPress& command : Table().commands) Press(command);
}

bool SheetBench::Save()
{
    return Quietly([this] { sheet_->tblMenu.Press(1); });
}

void SheetBench::Fill(RandomReadings& hand)
{
    ForEachBox([&](std::string_view box) { TypeBox(box, BoxText(box, hand)); });
    TypeDate(hand);
    if (sheet_->Find("lstSieve")) PrepareStack(hand);
    if (sheet_->Find("dtpSwell")) TypeSwellDates(hand);
    for (Control* control : sheet_->Controls())
        if (auto* editor = dynamic_cast<CellEditor*>(control)) TypeGrid(*editor, hand);
    DropWhatNoColumnTakes();
}

/// A box that is closed takes nothing from a hand.
void SheetBench::TypeBox(std::string_view box, const std::string& text)
{
    auto& typed = sheet_->Get<TextControl>(box);
    if (typed.Enabled()) typed.Type(text);
}

void SheetBench::ForEachBox(const std::function<void(std::string_view box)>& act) const
{
    for (const laboratory::Box& box : BoxesOf(Table().Described().sheet))
        if (IsKeptAndTyped(box) && box.control != "DTPDate") act(box.control);
}

void SheetBench::ScaleEntries(double factor)
{
    const auto scaled = [factor](std::string_view text) { return NumberText(RoundedToPlaces(Val(text) * factor, 2)); };
    ForEachBox([&](std::string_view box) {
        const std::string text = sheet_->Get<TextControl>(box).Text();
        if (Val(text) != 0) TypeBox(box, scaled(text));
    });
    ForEachTyped(*sheet_, [&](CellEditor& editor, int row, int column) {
        const std::string text = editor.Grid()(row, column).Text();
        if (Val(text) != 0) TypeCell(editor, row, column, scaled(text));
    });
}

void SheetBench::Clear()
{
    ForEachBox([this](std::string_view box) { TypeBox(box, ""); });
    if (auto* list = dynamic_cast<ListBox*>(sheet_->Find("lstSieve"))) {
        for (std::size_t entry = 0; entry < list->List().size(); ++entry) list->SetSelected(entry, false);
        PressControl(*sheet_, "cmdSieve");
    }
    if (sheet_->Find("MSHSwell")) {
        PressControl(*sheet_, "optSoak");  // without soaking the grid takes no press
        EraseRows("MSHSwell", cbr::swell::First, cbr::swell::Last);
    }
    if (sheet_->Find(kGrowingList)) EraseRows(kGrowingList, 0, sheet_->Get<TextGrid>(kGrowingList).Rows() - 1);
    ForEachTyped(*sheet_, [this](CellEditor& editor, int row, int column) { TypeCell(editor, row, column, ""); });
}

/// By the right button, from the last one up; the question is answered with yes.
void SheetBench::EraseRows(std::string_view grid, int from, int to)
{
    for (int row = to; row >= from; --row) sheet_->Get<TextGrid>(grid).PressMouse(MouseButton::Right, row, 1);
}

void SheetBench::TypeDate(RandomReadings& hand)
{
    const int day = 1 + hand.Pick(28), month = 1 + hand.Pick(12), year = 1950 + hand.Pick(150);
    sheet_->DTPDate.Type(ShortDate(MakeMoment(year, month, day)));
}

/// At most ten sieves, in most cases with a pan below them.
void SheetBench::PrepareStack(RandomReadings& hand)
{
    auto& list = sheet_->Get<ListBox>("lstSieve");
    const int sieves = hand.Pick(kMostSieves);
    for (int i = 0; i < sieves; ++i)
        list.SetSelected(static_cast<std::size_t>(hand.Pick(static_cast<int>(kSieves.size()) - 1)), true);
    list.SetSelected(kSieves.size() - 1, hand.Chance(70));
    PressControl(*sheet_, "cmdSieve");
}

void SheetBench::TypeSwellDates(RandomReadings& hand)
{
    auto& sheet = *sheet_;
    auto& grid = sheet.Get<TextGrid>("MSHSwell");
    const int last = cbr::swell::First + hand.Pick(cbr::swell::Last - cbr::swell::First);
    for (int row = cbr::swell::First; row <= last; ++row) {
        grid.PressMouse(MouseButton::Left, row, cbr::swell::Date);
        const int day = hand.Slips() ? 1 + hand.Pick(28) : row;
        auto& picker = sheet.Get<DatePicker>("dtpSwell");
        if (picker.Visible()) picker.Type(ShortDate(MakeMoment(2026, 3, day)));  // it isn't where nothing is soaked
    }
}

/// Trials stand side by side from the first on; a wild hand knows no order. A list of rows grows while it is typed and
/// ends at the first row without a text in its first column.
void SheetBench::TypeGrid(CellEditor& editor, RandomReadings& hand)
{
    TextGrid& grid = editor.Grid();
    const bool isList = grid.Name() == kGrowingList;
    const CellRange range = editor.Range();
    const bool goesDown = isList || grid.Name() == "MSHSwell" || grid.Name() == "MSHCalibration";
    const int most = isList     ? cbr::kMostPenetrations
                     : goesDown ? range.lastRow - range.firstRow + 1
                                : range.lastColumn - range.firstColumn + 1;
    const int trials = hand.Chance(60) ? most : hand.Pick(most + 1);
    for (int row = range.firstRow; row <= editor.Range().lastRow; ++row) {
        for (int column = range.firstColumn; column <= range.lastColumn; ++column) {
            if (grid.IsCalculated(row, column) || !IsKept(grid, row)) continue;
            const int trial = goesDown ? row - range.firstRow : column - range.firstColumn;
            if (trial >= trials && (isList || hand.Kind() != Hand::Wild)) continue;
            std::string text = CellText(grid, row, column, trial, hand);
            if (isList && column == 0 && Trim(text).empty()) text = "0.1";
            TypeCell(editor, row, column, text);
        }
    }
}

void SheetBench::TypeCell(CellEditor& editor, int row, int column, const std::string& text)
{
    editor.OpenAt(row, column);
    editor.Type(text);
    editor.PressKey(Key::Enter);
}

/// A mask makes some texts longer than they were typed.
void SheetBench::DropWhatNoColumnTakes()
{
    ForEachTyped(*sheet_, [this](CellEditor& editor, int row, int column) {
        const auto units = static_cast<std::size_t>(Units(editor.Grid().Name(), row, column));
        if (ToUtf16(editor.Grid()(row, column)).size() > units) TypeCell(editor, row, column, "1");
    });
}

std::string SheetBench::BoxText(std::string_view box, RandomReadings& hand) const
{
    const int units = Units(box, 0, 0);
    if (hand.Slips()) return hand.Slip(units);
    for (const laboratory::Box& of : BoxesOf(Table().Described().sheet))
        if (of.control == box && of.is.like.IsGiven()) return Typed(of.is.like, 0, hand);
    return hand.Word(units);
}

std::string SheetBench::CellText(const TextGrid& grid, int row, int column, int trial, RandomReadings& hand) const
{
    const int units = Units(grid.Name(), row, column);
    if (hand.Slips()) return hand.Slip(units);
    const laboratory::Grid& described = Table().Described().sheet.TheGrid(grid.Name());
    const laboratory::Plausible& like = described[described.IsAcross() ? row : column].is.like;
    return like.IsGiven() ? Typed(like, trial, hand) : hand.Word(units);
}

/// How many UTF-16 units the column of a box or cell takes.
int SheetBench::Units(std::string_view control, int row, int column) const
{
    using Kind = laboratory::KeptColumn::Kind;
    for (const laboratory::Box& box : laboratory::kJobBoxes)
        if (box.control == control) return box.is.length;
    for (const laboratory::KeptColumn& kept : laboratory::TableColumns(Table().Described().sheet)) {
        const bool isHere = kept.kind == Kind::Head || kept.line == (kept.kind == Kind::GridRow ? row : column);
        if (kept.control == control && isHere) return kept.length;
    }
    return kUnitsWithoutColumn;
}

Texts SheetBench::Entries() const
{
    Texts texts;
    const auto addBox = [&](std::string_view box) { texts[std::string(box)] = sheet_->Get<TextControl>(box).Text(); };
    ForEachBox(addBox);
    addBox("DTPDate");
    ForEachTyped(*sheet_, [&](const CellEditor& editor, int row, int column) {
        const std::string& text = editor.Grid()(row, column);
        const bool isFree = editor.Grid().Name() == kGrowingList && text.empty();  // its last row comes and goes
        if (!isFree) texts[CellName(editor.Grid().Name(), row, column)] = text;
    });
    if (const auto* swell = dynamic_cast<TextGrid*>(sheet_->Find("MSHSwell"))) {
        for (int row = cbr::swell::First; row < cbr::swell::Last; ++row)
            texts[CellName("MSHSwell", row, cbr::swell::Date)] = (*swell)(row, cbr::swell::Date);
    }
    return texts;
}

Texts SheetBench::Everything() const
{
    Texts texts = Stored("SUMMARY");
    for (const Control* control : sheet_->Controls()) {
        if (IsFloating(*control)) continue;
        if (const auto* grid = dynamic_cast<const TextGrid*>(control)) AddGrid(texts, *grid);
        texts[control->Name()] = StateOf(*control);
    }
    return texts;
}

std::vector<std::shared_ptr<const DisplayList>> SheetBench::Drawings() const
{
    std::vector<std::shared_ptr<const DisplayList>> drawings;
    for (const Control* control : sheet_->Controls())
        if (const auto* picture = dynamic_cast<const PictureBox*>(control)) drawings.push_back(picture->Image());
    return drawings;
}

Texts SheetBench::Stored(std::string_view table) const
{
    Texts texts;
    const jet::Rows rows = jet::Database::FromBytes(File()).ReadRows(std::string(table));
    for (std::size_t row = 0; row < rows.rows.size(); ++row) {
        for (std::size_t column = 0; column < rows.columns.size(); ++column) {
            const std::string name = std::string(table) + "(" + std::to_string(row) + "," + rows.columns[column] + ")";
            texts[name] = rows.rows[row][column].value_or("(null)");
        }
    }
    return texts;
}

Texts SheetBench::StoredReadings() const
{
    Texts texts;
    for (const TableSchema& table : ProjectTables())
        if (table.name != "SUMMARY") texts.merge(Stored(table.name));
    return texts;
}

Bytes SheetBench::File() const
{
    return files_.Content(std::string(kProjectPath));
}

void SheetBench::TakeFileAway()
{
    files_.TakeAway(std::string(kProjectPath));
}

void SheetBench::PutFileBack(const Bytes& content)
{
    files_.Put(std::string(kProjectPath), content);
}

std::string SheetBench::LastWord() const
{
    std::string word;
    if (!ask_.errors.empty()) word = ask_.errors.back().event + ": " + ask_.errors.back().description;
    if (!ask_.messages.empty()) word += " " + ask_.messages.back().text;
    return word;
}

}  // namespace terravane::support
