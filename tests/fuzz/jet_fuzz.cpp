// Any bytes, opened as a database file: tables come out or a RuntimeError does; no crash, no hang, no read past the
// end. What opens survives its own save, also after a change, and a change that fails leaves every byte as it was.
#include <cstdlib>

#include "jet/database.h"
#include "support/same_tables.h"

namespace {

using namespace terravane;

void Check(bool holds)
{
    if (!holds) std::abort();
}

void CheckSave(const jet::Database& database)
{
    Check(support::SameTables(database, jet::Database::FromBytes(database.Content())));
}

/// All rows of a table take a text in their first column, of the length that `length` says.
void Change(jet::Database& database, const std::string& table, std::size_t length)
{
    const Bytes before = database.Content();
    try {
        const auto& columns = database.Table(table).columns;
        if (columns.empty()) return;
        database.Update({table, {{columns.front().name, std::string(length, 'x')}}, {}});
    } catch (const RuntimeError&) {
        Check(database.Content() == before);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
try {
    jet::Database opened = jet::Database::FromBytes({data, size});
    CheckSave(opened);
    for (const std::string& table : opened.TableNames()) {
        for (const std::size_t length : {5U, 250U}) Change(opened, table, length);
    }
    CheckSave(opened);
    return 0;
} catch (const RuntimeError&) {
    return 0;  // a clear refusal is a right answer
}
