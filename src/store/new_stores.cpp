#include "store/new_stores.h"

#include <algorithm>
#include <string_view>

#include "jet/connection.h"
#include "program/folders.h"
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

/// Another instance that is started at the same moment may come first.
template <typename Make>
void MakeUnlessThere(const FileSystem& files, const std::string& path, Make make)
{
    if (files.Exists(path)) return;
    try {
        make();
    } catch (const RuntimeError&) {
        if (!files.Exists(path)) throw;
    }
}

/// What every guide of ours has in it, as the document's own name.
constexpr std::string_view kGuideMark = "terravane-user-guide";

bool IsOurGuide(const Bytes& content)
{
    return !std::ranges::search(content, kGuideMark).empty();
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

std::string BrandStoreToOpen(const FileSystem& files, const std::string& brandFolder)
{
    return FindWithoutCase(files, brandFolder, "Logo.mdb");
}

std::string BrandStoreToCreate(const FileSystem& files, const std::string& brandFolder)
{
    return FindWithoutCase(files, brandFolder, "logo.mdb");
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
    const std::string database = BrandStoreToCreate(files, brandFolder);
    MakeUnlessThere(files, database, [&] { CreateBrandStore(files, database); });
    for (const BrandPicture& picture : FirstBrandPictures()) {
        const std::string path = brandFolder + std::string(picture.name);
        MakeUnlessThere(files, path, [&] { files.CreateWhole(path, picture.content); });
    }
}

void WriteGuide(FileSystem& files, const std::string& source, const std::string& brandFolder)
try {
    if (!files.Exists(source)) return;
    const std::string target = brandFolder + std::string(kGuideFile);
    const Bytes guide = files.Read(source);
    const bool isThere = files.Exists(target);
    const Bytes former = isThere ? files.Read(target) : Bytes();
    if (former == guide || (isThere && !IsOurGuide(former))) return;
    files.ReplaceWhole(target, guide);
} catch (const RuntimeError&) {
    // A folder that can't be written keeps the guide that it has.
}

}  // namespace terravane
