#include "store/statements.h"

#include <algorithm>
#include <iterator>

#include "runtime/text.h"
#include "store/new_stores.h"

namespace terravane {

namespace {

std::string Quoted(std::string_view value)
{
    return "'" + std::string(value) + "'";
}

/// SUMMARY has a row a material, soil first.
int SummaryRow(const Program& program)
{
    return program.CurrentMaterial == Material::Crush ? 2 : 1;
}

}  // namespace

std::string SelectAll(std::string_view table)
{
    return "SELECT * from " + std::string(table) + "'";
}

std::string UpdateHead(std::string_view client, std::string_view project, std::string_view location,
                       std::string_view number)
{
    return "UPDATE HEAD Set Project_Client =" + Quoted(client) + ",  Project_Name =" + Quoted(project) +
           ",  Project_Location =" + Quoted(location) + ",  Project_Number = " + Quoted(number);
}

std::string UpdateRow(const TableSchema& table, const std::vector<Assignment>& assignments, int row)
{
    std::string statement = "UPDATE " + std::string(table.name) + " Set";
    std::string_view separator = " ";
    for (const Assignment& assignment : assignments) {
        statement.append(separator).append(assignment.column).append(" =").append(Quoted(assignment.value));
        separator = ",  ";
    }
    return statement + " Where " + table.KeyName() + " =" + Quoted(RowKey(row));
}

void OpenProjectConnection(Program& program)
{
    program.ProjectConnection.Open(program.Files(), program.CurrentProjectPath, program.ListenerOfSaves());
}

void OpenBrandConnection(Program& program)
{
    program.BrandConnection.Open(program.Files(), BrandStoreToOpen(program.Files(), program.BrandFolder));
}

jet::Recordset Query(Program& program, jet::Connection& connection, std::string statement)
{
    program.CurrentSql = std::move(statement);
    program.CurrentRecordset = connection.Execute(program.CurrentSql);
    return program.CurrentRecordset;
}

void Execute(Program& program, jet::Connection& connection, std::string statement)
{
    program.CurrentSql = std::move(statement);
    connection.Execute(program.CurrentSql);
}

std::string PostedValueEmptiedBy(Program& program, const std::vector<PostedText>& results)
{
    std::vector<PostedText> empty;
    std::ranges::copy_if(results, std::back_inserter(empty),
                         [](const PostedText& result) { return Trim(result.text).empty(); });
    if (empty.empty()) return {};
    OpenProjectConnection(program);
    auto posted = Query(program, program.ProjectConnection, SelectAll(SummaryTable().name));
    for (int row = 1; row < SummaryRow(program); ++row) posted.MoveNext();
    for (const auto& [column, text] : empty) {
        const auto value = Trim(posted.Fields(SummaryTable().ColumnName(column)));
        if (!value.empty()) return std::string(value);
    }
    return {};
}

void PostSummary(Program& program, const std::vector<PostedText>& results)
{
    OpenProjectConnection(program);
    std::vector<Assignment> assignments;
    for (const auto& [column, text] : results) assignments.push_back({SummaryTable().ColumnName(column), text});
    Execute(program, program.ProjectConnection, UpdateRow(SummaryTable(), assignments, SummaryRow(program)));
}

}  // namespace terravane
