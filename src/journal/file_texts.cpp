#include "journal/file_texts.h"

#include <algorithm>

#include "jet/database.h"
#include "laboratory/general_data.h"
#include "laboratory/tests.h"
#include "program/cell_words.h"
#include "runtime/text.h"
#include "store/schema.h"

namespace terravane {

namespace {

using laboratory::KeptColumn;
constexpr std::string_view kJob = "job", kResults = "results";

/// The place of a table among those of a project, the job's first; tables of others come last.
std::size_t OrderOf(std::string_view table)
{
    const auto tables = ProjectTables();
    const auto found = std::ranges::find(tables, table, &TableSchema::name);
    return static_cast<std::size_t>(found - tables.begin());
}

const laboratory::Description* TestOf(std::string_view table)
{
    const auto tests = laboratory::Tests();
    const auto found = std::ranges::find_if(tests, [table](const laboratory::Description* test) {
        return test->soil.name == table || test->crushedRock.name == table;
    });
    return found == tests.end() ? nullptr : *found;
}

const KeptColumn* FindColumn(const laboratory::Description& test, std::string_view column)
{
    if (!column.starts_with(test.prefix)) return nullptr;
    const auto columns = laboratory::TableColumns(test.sheet);
    const auto found = std::ranges::find(columns, column.substr(test.prefix.size()), &KeptColumn::suffix);
    return found == columns.end() ? nullptr : &*found;
}

std::string CaptionOf(const laboratory::Sheet& sheet, std::string_view control)
{
    for (const auto boxes : {std::span<const laboratory::Box>(laboratory::kGeneralBoxes), sheet.boxes, sheet.results})
        for (const laboratory::Box& box : boxes)
            if (box.control == control) return PlainWords(box.caption.empty() ? box.is.page : box.caption);
    return {};
}

std::string Numbered(std::string_view control, int row, int column)
{
    return std::string(control) + " " + std::to_string(row) + " " + std::to_string(column);
}

void NameCell(PlaceWords& words, const laboratory::Sheet& sheet, const KeptColumn& column, int row)
{
    const int trial = column.firstRecord + row - 1;
    const bool isAcross = column.kind == KeptColumn::Kind::GridRow;
    const laboratory::Grid& grid = sheet.TheGrid(column.control);
    words.cell = isAcross ? Numbered(column.control, column.line, trial) : Numbered(column.control, trial, column.line);
    words.words = PlainWords(grid[column.line].title) + ", trial " + std::to_string(trial - grid.firstTrial + 1);
}

void NameInSheet(PlaceWords& words, const laboratory::Sheet& sheet, const KeptColumn& column, int row)
{
    using enum KeptColumn::Kind;
    if (column.kind == Choice) {
        words.cell = words.words = "choice";
    } else if (column.kind == Head) {
        words.cell = column.control;
        words.words = CaptionOf(sheet, column.control);
    } else {
        NameCell(words, sheet, column, row);
    }
}

PlaceWords WordsOfTest(const laboratory::Description& test, Material material, const StoredPlace& place)
{
    PlaceWords words{std::string(test.key), std::string(laboratory::Describe(material).key)};
    if (const KeptColumn* column = FindColumn(test, place.column)) NameInSheet(words, test.sheet, *column, place.row);
    return words;
}

PlaceWords WordsOfJob(const StoredPlace& place)
{
    PlaceWords words{std::string(kJob)};
    const TableSchema& head = ProjectTables().front();
    for (const laboratory::Box& box : laboratory::kJobBoxes) {
        if (!SameName(head.ColumnName(box.is.kept), place.column)) continue;
        words.cell = box.control;
        words.words = box.caption;
    }
    return words;
}

PlaceWords WordsOfResult(const StoredPlace& place)
{
    PlaceWords words{std::string(kResults)};
    for (const auto& material : laboratory::kMaterials)
        if (material.summaryRow == place.row) words.material = material.key;
    for (const laboratory::Description* test : laboratory::Tests())
        for (const laboratory::Posted& posted : test->posts)
            if (SameName(SummaryTable().ColumnName(posted.column), place.column))
                words.words = PlainWords(posted.property) + " of " + std::string(test->names.sentence);
    words.cell = place.column;
    return words;
}

PlaceWords FindWords(const StoredPlace& place)
{
    if (place.table == ProjectTables().front().name) return WordsOfJob(place);
    if (place.table == kSummaryTable) return WordsOfResult(place);
    const laboratory::Description* test = TestOf(place.table);
    if (!test) return {};
    return WordsOfTest(*test, test->soil.name == place.table ? Material::Soil : Material::Crush, place);
}

/// How many of a column's rows say something of their own: what belongs to the whole test is saved into every row and
/// read from the first, and a key is no text of anybody's.
std::size_t RowsThatCount(std::string_view table, std::string_view column, std::size_t rows)
{
    using enum KeptColumn::Kind;
    const auto tables = ProjectTables();
    const auto schema = std::ranges::find(tables, table, &TableSchema::name);
    if (schema != tables.end() && schema->keyed && column == schema->KeyName()) return 0;
    const laboratory::Description* test = TestOf(table);
    const KeptColumn* kept = test ? FindColumn(*test, column) : nullptr;
    return kept && (kept->kind == Head || kept->kind == Choice) ? std::min<std::size_t>(rows, 1) : rows;
}

void TakeTable(FileTexts& texts, const jet::Database& database, const std::string& table)
{
    const jet::Rows rows = database.ReadRows(table);
    std::vector<std::size_t> counted;
    for (const std::string& column : rows.columns) counted.push_back(RowsThatCount(table, column, rows.rows.size()));
    for (std::size_t row = 0; row < rows.rows.size(); ++row) {
        for (std::size_t column = 0; column < rows.columns.size(); ++column) {
            const jet::Value& text = rows.rows[row][column];
            if (row >= counted[column] || !text || Trim(*text).empty()) continue;
            texts.emplace(StoredPlace{table, static_cast<int>(row) + 1, rows.columns[column]}, *text);
        }
    }
}

std::string StoredText(const FileTexts& texts, const StoredPlace& place)
{
    const auto found = texts.find(place);
    return found == texts.end() ? std::string() : found->second;
}

}  // namespace

FileTexts TextsOf(std::span<const std::uint8_t> project)
{
    const jet::Database database = jet::Database::FromBytes(project);
    FileTexts texts;
    for (const std::string& table : database.TableNames()) TakeTable(texts, database, table);
    return texts;
}

std::vector<TextDifference> Differences(const FileTexts& before, const FileTexts& after)
{
    std::vector<TextDifference> found;
    for (const auto& [place, text] : before) {
        const std::string now = StoredText(after, place);
        if (Trim(now) != Trim(text)) found.push_back({place, text, now});
    }
    for (const auto& [place, text] : after)
        if (!before.contains(place)) found.push_back({place, {}, text});
    const auto order = [](const TextDifference& of) { return std::pair(OrderOf(of.place.table), of.place); };
    std::ranges::sort(found, {}, order);
    return found;
}

PlaceWords WordsOf(const StoredPlace& place)
{
    PlaceWords words = FindWords(place);
    if (words.cell.empty()) words.cell = place.table + " " + std::to_string(place.row) + " " + place.column;
    if (words.words.empty()) words.words = words.cell;
    return words;
}

std::string SheetWords(const PlaceWords& words)
{
    const laboratory::Description* test = laboratory::FindTest(words.test);
    std::string sheet(test ? test->names.title : words.test == kJob ? "General data" : "Overall results");
    if (words.test.empty()) sheet = "Other tables";
    for (const auto& material : laboratory::kMaterials)
        if (material.key == words.material) sheet.append(", ").append(material.title);
    return sheet;
}

}  // namespace terravane
