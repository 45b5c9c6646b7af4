#include "store/new_stores.h"

#include "jet/connection.h"
#include "store/brand_pictures.h"
#include "store/schema.h"

namespace terravane {

namespace {

std::string CreateTable(const TableSchema& table)
{
    std::string statement = "CREATE TABLE " + std::string(table.name);
    char separator = '(';
    for (const ColumnSchema& column : table.columns) {
        statement += separator + table.ColumnName(column.suffix) + " text(" + std::to_string(column.length) + ")";
        separator = ',';
    }
    return statement + ")";
}

/// `key` is the text of the first column where the table has a key.
std::string InsertSeed(const TableSchema& table, const std::string& key)
{
    std::string columns, values;
    for (const ColumnSchema& column : table.columns) {
        const bool isKey = table.keyed && columns.empty();
        columns += (columns.empty() ? "" : ",") + table.ColumnName(column.suffix);
        values += (values.empty() ? "'" : ",'") + (isKey ? key : std::string(kSeed)) + "'";
    }
    return "insert into " + std::string(table.name) + " (" + columns + ") Values (" + values + ")";
}

/// Nothing reads this key. It is the row counter's value after the fifteen persons were walked, as it always
/// was.
std::string LogoKey()
{
    return RowKey(kPersons + 1);
}

}  // namespace

void CreateProjectFile(FileSystem& files, const std::string& path)
{
    jet::NewDatabase database(files, path);
    for (const TableSchema& table : ProjectTables()) {
        database.Execute(CreateTable(table));
        for (int row = 1; row <= table.rows; ++row) database.Execute(InsertSeed(table, RowKey(row)));
    }
    database.Close();
}

void CreateBrandStore(FileSystem& files, const std::string& path)
{
    jet::NewDatabase database(files, path);
    for (const TableSchema& table : BrandTables()) {
        database.Execute(CreateTable(table));
        for (int row = 1; row <= table.rows; ++row) {
            database.Execute(InsertSeed(table, table.rows == 1 ? LogoKey() : RowKey(row)));
        }
    }
    database.Close();
}

void WriteFirstContent(FileSystem& files, const std::string& brandFolder)
{
    if (!files.IsFolder(brandFolder)) files.MakeFolders(brandFolder);
    const std::string database = FindWithoutCase(files, brandFolder, "logo.mdb");
    if (!files.Exists(database)) CreateBrandStore(files, database);
    for (const BrandPicture& picture : FirstBrandPictures()) {
        const std::string path = brandFolder + std::string(picture.name);
        if (!files.Exists(path)) files.ReplaceWhole(path, picture.content);
    }
}

}  // namespace terravane
