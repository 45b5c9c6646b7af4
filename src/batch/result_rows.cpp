#include "batch/result_rows.h"

#include <initializer_list>

#include "batch/csv_line.h"
#include "batch/entry_json.h"
#include "batch/journal.h"
#include "store/schema.h"

namespace terravane {

namespace {

/// The row of a table by column names.
Json Row(const ProjectTexts& texts, const TableSchema& table, int row)
{
    Json object = Json::object();
    for (const ColumnSchema& column : table.columns) {
        const std::string name = table.ColumnName(column.suffix);
        object[name] = texts.Trimmed(table.name, name, row);
    }
    return object;
}

Json Rows(const ProjectTexts& texts, const TableSchema& table)
{
    Json rows = Json::array();
    for (int row = 1; row <= table.rows; ++row) rows.push_back(Row(texts, table, row));
    return rows;
}

Json StaleObject(const StaleResult& stale)
{
    return {{"table", stale.table},   {"column", stale.column},   {"rows", stale.rows},
            {"stands", stale.stands}, {"follows", stale.follows}, {"why", stale.why}};
}

std::vector<std::string> TroublesOf(const laboratory::Description& test, Material material,
                                    const std::vector<TestOutcome>& outcomes)
{
    for (const TestOutcome& outcome : outcomes)
        if (outcome.test == &test && outcome.material == material) return outcome.troubles;
    return {};
}

Json MaterialObject(const ProjectTexts& texts, const laboratory::MaterialDescription& material,
                    const std::vector<TestOutcome>& outcomes, const std::vector<StaleResult>& stale)
{
    Json tests = Json::object(), found = Json::array();
    for (const laboratory::Description* test : laboratory::TestsInWorkOrder()) {
        if (!HasReadings(texts, *test, material.material)) continue;
        Json object{{"table", TableName(*test, material.material)},
                    {"rows", Rows(texts, TableOf(test->test, material.material))}};
        if (const auto troubles = TroublesOf(*test, material.material, outcomes); !troubles.empty())
            object["troubles"] = troubles;
        tests[std::string(test->key)] = std::move(object);
    }
    for (const StaleResult& one : stale)
        if (one.material == material.material) found.push_back(StaleObject(one));
    Json object{{"results", Row(texts, SummaryTable(), material.summaryRow)}, {"tests", std::move(tests)}};
    if (!found.empty()) object["stale"] = std::move(found);
    return object;
}

std::string OneLine(const Json& json)
{
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

std::string CsvHead()
{
    std::vector<std::string> fields{"project", "material"};
    for (const ColumnSchema& column : SummaryTable().columns)
        fields.push_back(SummaryTable().ColumnName(column.suffix));
    return CsvLine(fields);
}

std::string CsvRows(const std::string& project, const ProjectTexts& texts, const BatchOptions& options)
{
    std::string rows;
    for (const laboratory::MaterialDescription& material : laboratory::kMaterials) {
        if (!options.WantsMaterial(material.key)) continue;
        std::vector<std::string> fields{project, std::string(material.key)};
        for (const ColumnSchema& column : SummaryTable().columns) {
            fields.push_back(
                texts.Trimmed(SummaryTable().name, SummaryTable().ColumnName(column.suffix), material.summaryRow));
        }
        rows += CsvLine(fields);
    }
    return rows;
}

std::string JsonObject(const std::string& project, const ProjectTexts& texts, const BatchOptions& options,
                       const std::vector<TestOutcome>& outcomes, const std::vector<StaleResult>& stale)
{
    Json object{{"project", project}, {"headings", Row(texts, ProjectTables().front(), 1)}};
    for (const laboratory::MaterialDescription& material : laboratory::kMaterials) {
        if (!options.WantsMaterial(material.key)) continue;
        object[std::string(material.key)] = MaterialObject(texts, material, outcomes, stale);
    }
    return OneLine(object);
}

std::string JsonFailure(const std::string& project, const std::string& failure)
{
    return OneLine({{"project", project}, {"failure", failure}});
}

std::string NotesHead()
{
    return CsvLine({"project", "material", "test", "note", "level", "place", "text", "source"});
}

std::string NoteRows(const std::string& project, const TestOutcome& outcome, const std::vector<notes::SaidNote>& said)
{
    std::string rows;
    for (const auto& [note, place] : said) {
        rows += CsvLine({project, std::string(laboratory::Describe(outcome.material).key),
                         std::string(outcome.test->key), std::string(note.key), std::string(notes::Words(note.level)),
                         place, note.sentence, std::string(note.source)});
    }
    return rows;
}

std::string ManifestHead()
{
    return CsvLine({"output", "pages", "bytes", "sha256", "project"});
}

std::string ManifestRows(const std::string& project, const JournalEntry& entry)
{
    std::string rows;
    for (const Output& output : entry.outputs) {
        rows +=
            CsvLine({output.path, std::to_string(output.pages), std::to_string(output.bytes), output.sha256, project});
    }
    return rows;
}

}  // namespace terravane
