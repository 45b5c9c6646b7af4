// Opens a project file, reads its sixteen tables and prints them as the export tool of mdbtools prints one: a line of
// column names, a line a row, texts in quotes but for empty ones. Nothing else is compared by bench/peers/run than
// reading.
#include <cstdio>
#include <string>
#include <string_view>

#include "jet/database.h"
#include "runtime/file_system.h"
#include "runtime/runtime_error.h"
#include "store/schema.h"

namespace {

using namespace terravane;

void AppendQuoted(std::string& out, std::string_view text)
{
    out += '"';
    for (const char character : text) {
        if (character == '"') out += '"';
        out += character;
    }
    out += '"';
}

void AppendTable(std::string& out, const jet::Rows& table)
{
    for (std::size_t column = 0; column < table.columns.size(); ++column)
        out.append(column == 0 ? "" : ",").append(table.columns[column]);
    out += '\n';
    for (const auto& row : table.rows) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (column > 0) out += ',';
            if (row[column] && !row[column]->empty()) AppendQuoted(out, *row[column]);
        }
        out += '\n';
    }
}

}  // namespace

int main(int argc, char** argv)
try {
    if (argc != 2) {
        std::fputs("terravane-export-tables PROJECT.mdb\n", stderr);
        return 2;
    }
    const DiskFileSystem files;
    const auto database = jet::Database::FromBytes(files.Read(argv[1]));
    std::string out;
    for (const TableSchema& table : ProjectTables()) AppendTable(out, database.ReadRows(table.name));
    std::fwrite(out.data(), 1, out.size(), stdout);
    return 0;
} catch (const RuntimeError& failure) {
    std::fprintf(stderr, "terravane-export-tables: %s\n", failure.Description().c_str());
    return 1;
}
