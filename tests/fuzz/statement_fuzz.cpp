// Any text, read and executed as a statement: a result comes out or a RuntimeError does, and the database is one that
// opens again.
#include <cstdlib>
#include <string_view>

#include "jet/database.h"
#include "support/same_tables.h"

namespace {

using namespace terravane;

struct Execute {
    jet::Database& database;

    void operator()(const jet::SelectStatement& select) const { (void)database.Select(select); }
    void operator()(const jet::UpdateStatement& update) const { (void)database.Update(update); }
    void operator()(const jet::InsertStatement& insert) const { (void)database.Insert(insert); }
    void operator()(const jet::CreateTableStatement& create) const { database.Create(create); }
};

jet::Database Sample()
{
    constexpr double kCreated = 36526;  // 2000-01-01
    jet::Database database = jet::Database::New(kCreated);
    database.Create({{"HEAD", {{"a", 10}, {"b", 255}}}});
    database.Insert({"HEAD", {{"a", " 1"}, {"b", "   "}}});
    return database;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
try {
    static const jet::Database kSample = Sample();
    const jet::Statement statement = jet::ReadStatement({reinterpret_cast<const char*>(data), size});
    jet::Database database = kSample;
    std::visit(Execute{database}, statement);
    if (!support::SameTables(database, jet::Database::FromBytes(database.Content()))) std::abort();
    return 0;
} catch (const terravane::RuntimeError&) {
    return 0;
}
