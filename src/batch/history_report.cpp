#include "batch/history_report.h"

#include <algorithm>
#include <array>
#include <cctype>

#include <nlohmann/json.hpp>

#include "batch/csv_line.h"
#include "journal/history.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {

namespace {

using ListJson = nlohmann::ordered_json;

constexpr std::array<std::string_view, 4> kKindWords{"begun", "changed", "found", "mended"};

/// The fields of one line of the list, by their names: one row serves the three formats.
using Fields = std::vector<std::pair<std::string, std::string>>;

void AddPlace(Fields& fields, const StoredPlace& place)
{
    const PlaceWords words = WordsOf(place);
    fields.emplace_back("test", words.test);
    fields.emplace_back("material", words.material);
    fields.emplace_back("cell", words.cell);
    fields.emplace_back("words", words.words);
}

Fields FieldsOf(const HistoryLine& line)
{
    Fields fields{{"at", line.at}, {"login", line.login}, {"version", line.version}};
    fields.emplace_back("kind", kKindWords[static_cast<std::size_t>(line.kind)]);
    if (line.IsChange())
        AddPlace(fields, line.place);
    else
        fields.insert(fields.end(), {{"test", ""}, {"material", ""}, {"cell", ""}, {"words", line.from}});
    fields.emplace_back("before", line.before);
    fields.emplace_back("after", line.now);
    return fields;
}

Fields FieldsOf(const TextDifference& difference)
{
    Fields fields;
    AddPlace(fields, difference.place);
    fields.emplace_back("before", difference.before);
    fields.emplace_back("after", difference.after);
    return fields;
}

void WriteCsv(std::ostream& out, const std::vector<Fields>& rows, const Fields& head)
{
    std::vector<std::string> names;
    for (const auto& [name, text] : head) names.push_back(name);
    out << CsvLine(names);
    for (const Fields& row : rows) {
        std::vector<std::string> texts;
        for (const auto& [name, text] : row) texts.push_back(text);
        out << CsvLine(texts);
    }
}

void WriteJson(std::ostream& out, const std::vector<Fields>& rows)
{
    ListJson list = ListJson::array();
    for (const Fields& row : rows) {
        ListJson object;
        for (const auto& [name, text] : row) object[name] = text;
        list.push_back(std::move(object));
    }
    out << list.dump(1, ' ', false, ListJson::error_handler_t::replace) << '\n';
}

std::string ShownChange(const std::string& words, const std::string& before, const std::string& after)
{
    return Printable(words) + ": \"" + Printable(before) + "\" > \"" + Printable(after) + "\"";
}

void WriteText(std::ostream& out, const HistoryLine& line)
{
    std::string at = line.at;
    std::ranges::replace(at, 'T', ' ');
    out << Printable(at) << "  " << Printable(line.login) << "  ";
    if (line.kind == LineKind::Begun)
        out << (line.from.empty() ? "the history begins" : "made as a copy of " + Printable(line.from));
    if (line.kind == LineKind::Mended) out << "a line before this one was torn";
    if (line.kind == LineKind::Found) out << "found changed: ";
    if (line.IsChange())
        out << SheetWords(WordsOf(line.place)) << ": " << ShownChange(WordsOf(line.place).words, line.before, line.now);
    out << '\n';
}

void WriteText(std::ostream& out, const std::vector<TextDifference>& differences)
{
    std::string sheet;
    for (const TextDifference& difference : differences) {
        const PlaceWords words = WordsOf(difference.place);
        if (const std::string of = SheetWords(words); of != sheet) out << (sheet = of) << '\n';
        out << "  " << ShownChange(words.words, difference.before, difference.after) << '\n';
    }
}

template <class Rows>
std::vector<Fields> AllFields(const Rows& rows)
{
    std::vector<Fields> all;
    for (const auto& row : rows) all.push_back(FieldsOf(row));
    return all;
}

ReadHistory KnownHistory(const FileSystem& files, const std::string& project)
{
    const std::string path = HistoryPath(project);
    if (!files.Exists(path)) throw RuntimeError(error::kFileNotFound, "There is no history '" + Printable(path) + "'.");
    return LoadHistory(files, project);
}

/// How many lines a state asks for: a number, or all up to the end of a day, minute or second.
std::size_t LinesUpTo(const std::vector<HistoryLine>& lines, const std::string& state)
{
    const bool isNumber = std::ranges::all_of(state, [](unsigned char digit) { return std::isdigit(digit) != 0; });
    if (isNumber && state.size() < 10 && std::stoul(state) <= lines.size()) return std::stoul(state);
    const auto later =
        std::ranges::find_if(lines, [&](const HistoryLine& line) { return line.at.substr(0, state.size()) > state; });
    return static_cast<std::size_t>(later - lines.begin());
}

FileTexts TextsOfState(const FileSystem& files, const std::string& state)
{
    const auto mark = state.rfind('@');
    if (files.Exists(state) || mark == std::string::npos) return TextsOf(files.Read(state));
    const auto lines = KnownHistory(files, state.substr(0, mark)).lines;
    const std::string moment = state.substr(mark + 1);
    const std::size_t count = moment.empty() ? 0 : LinesUpTo(lines, moment);
    if (count == 0)
        throw RuntimeError(error::kInvalidProcedureCall, "'" + Printable(state) + "' is before its history begins.");
    return StateAfter(lines, count);
}

}  // namespace

int ListHistory(const FileSystem& files, const std::string& project, ListFormat format, std::ostream& out,
                std::ostream& complaints)
{
    const ReadHistory history = KnownHistory(files, project);
    if (format == ListFormat::Csv) WriteCsv(out, AllFields(history.lines), FieldsOf(HistoryLine{}));
    if (format == ListFormat::JsonLines) WriteJson(out, AllFields(history.lines));
    for (const HistoryLine& line : history.lines)
        if (format == ListFormat::Text) WriteText(out, line);
    for (const std::string& fault : history.faults) complaints << fault << '\n';
    if (history.isTorn) complaints << "The last line is torn; the next Save mends it.\n";
    return history.faults.empty() ? 0 : 1;
}

int ListDifferences(const FileSystem& files, const std::string& before, const std::string& after, ListFormat format,
                    std::ostream& out)
{
    const auto differences = Differences(TextsOfState(files, before), TextsOfState(files, after));
    if (format == ListFormat::Csv) WriteCsv(out, AllFields(differences), FieldsOf(TextDifference{}));
    if (format == ListFormat::JsonLines) WriteJson(out, AllFields(differences));
    if (format == ListFormat::Text) WriteText(out, differences);
    return 0;
}

}  // namespace terravane
