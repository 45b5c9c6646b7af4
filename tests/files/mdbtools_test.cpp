// Our files in the hands of an independent reader, the programs of mdbtools: every table, column, row and text.
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/jet_files.h"

namespace terravane {
namespace {

using namespace support;
using Lines = std::vector<std::string>;

/// What a program prints, line by line; a program that is missing or fails fails the test.
Lines OutputOf(const std::string& command)
{
    std::FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
    if (pipe == nullptr) return {"no pipe"};
    Lines lines{""};
    for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) {
        if (c == '\n') {
            lines.emplace_back();
        } else {
            lines.back().push_back(static_cast<char>(c));
        }
    }
    const int status = pclose(pipe);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << command << ": " << lines.front();
    if (lines.back().empty()) lines.pop_back();
    return lines;
}

/// A file on the real disk, gone with the test.
class FileOnDisk {
  public:
    explicit FileOnDisk(const Bytes& bytes)
    {
        std::string path = (std::filesystem::temp_directory_path() / "terravane-XXXXXX").string();
        const int descriptor = mkstemp(path.data());
        EXPECT_GE(descriptor, 0);
        close(descriptor);
        path_ = path;
        std::ofstream(path_, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    ~FileOnDisk() { std::remove(path_.c_str()); }
    FileOnDisk(const FileOnDisk&) = delete;
    FileOnDisk& operator=(const FileOnDisk&) = delete;

    Lines Tables() const { return OutputOf("mdb-tables -1 " + path_); }
    Lines Rows(std::string_view table) const
    {
        return OutputOf("mdb-export -H -Q -0 '<null>' -d '|' " + path_ + " " + std::string(table));
    }
    Lines Run(const std::string& program, std::string_view argument = "") const
    {
        return OutputOf(program + " " + path_ + " " + std::string(argument));
    }

  private:
    std::string path_;
};

Lines ExpectedSeeds(const SampleTable& table)
{
    Lines rows;
    for (int row = 1; row <= table.rows; ++row) {
        std::string line = " " + std::to_string(row);
        for (int c = 0; c < table.columns; ++c) line += "|   ";
        rows.push_back(line);
    }
    return rows;
}

TEST(Mdbtools, TellsOurFilesFormat)
{
    EXPECT_EQ(FileOnDisk(NewFile(SampleStatements())).Run("mdb-ver"), Lines{"JET4"});
}

TEST(Mdbtools, ListsTheTablesInTheOrderOfCreation)
{
    Lines expected;
    for (const SampleTable& table : kSampleTables) expected.emplace_back(table.name);
    EXPECT_EQ(FileOnDisk(NewFile(SampleStatements())).Tables(), expected);
}

TEST(Mdbtools, ListsTheSystemTables)
{
    const FileOnDisk file(NewFile({"CREATE TABLE T(a text(5))"}));
    EXPECT_EQ(file.Run("mdb-tables -1 -S"),
              (Lines{"MSysObjects", "MSysACEs", "MSysQueries", "MSysRelationships", "T"}));
    EXPECT_EQ(file.Run("mdb-count", "MSysObjects"), Lines{"9"});
    EXPECT_EQ(file.Run("mdb-count", "MSysACEs"), Lines{"18"});
}

TEST(Mdbtools, CountsAndReadsEveryRowOfEveryTable)
{
    const FileOnDisk file(NewFile(SampleStatements()));
    for (const SampleTable& table : kSampleTables) {
        EXPECT_EQ(file.Run("mdb-count", table.name), Lines{std::to_string(table.rows)}) << table.name;
        EXPECT_EQ(file.Rows(table.name), ExpectedSeeds(table)) << table.name;
    }
}

TEST(Mdbtools, TellsEveryColumnAndItsLength)
{
    const FileOnDisk file(NewFile({"CREATE TABLE HEAD(project_client text(100),project_name text(5),x text(255))"}));
    Lines columns;
    for (const std::string& line : file.Run("mdb-schema")) {
        if (line.starts_with("\t[")) columns.push_back(line.substr(1, line.find_last_of(')') - 1));
    }
    ASSERT_EQ(columns.size(), 3U);
    EXPECT_TRUE(columns[0].starts_with("[project_client]") && columns[0].ends_with("Text (100"));
    EXPECT_TRUE(columns[1].starts_with("[project_name]") && columns[1].ends_with("Text (5"));
    EXPECT_TRUE(columns[2].starts_with("[x]") && columns[2].ends_with("Text (255"));
}

TEST(Mdbtools, ReadsThaiTextsAndTextsOfFullLength)
{
    std::string full;
    for (int i = 0; i < 255; ++i) full += "ก";
    const FileOnDisk file(NewFile(
        {"CREATE TABLE T(k text(10),v text(255))", "insert into T (k,v) Values (' 1','ดินลูกรัง ทางหลวงหมายเลข ๓๔')",
         "insert into T (k,v) Values (' 2','" + full + "')", "insert into T (k,v) Values ('ñ','O''Brien')"}));
    EXPECT_EQ(file.Rows("T"), (Lines{" 1|ดินลูกรัง ทางหลวงหมายเลข ๓๔", " 2|" + full, "ñ|O'Brien"}));
}

TEST(Mdbtools, ReadsASavedFileInItsOrder)
{
    MemoryFileSystem files;
    files.Put("p.mdb", NewFile(SampleStatements()));
    jet::Connection connection;
    connection.Open(files, "p.mdb");
    for (const std::string& statement : SampleSave()) connection.Execute(statement);
    connection.Flush();
    const FileOnDisk file(files.Content("p.mdb"));
    EXPECT_EQ(file.Rows("HEAD"), Lines{" 1|A client|A project|   "});
    const Lines rows = file.Rows("STDSOIL");
    ASSERT_EQ(rows.size(), 6U);
    for (std::size_t row = 1; row <= 6; ++row) {
        std::string expected = " " + std::to_string(row);
        for (std::size_t c = 1; c <= 19; ++c) expected += "|" + std::to_string(1000 + 10 * row + c);
        EXPECT_EQ(rows[row - 1], expected);
    }
    EXPECT_EQ(file.Rows("MODSOIL"), ExpectedSeeds(kSampleTables[2]));
}

// Twenty rows of two lines' length outgrow their page again and again; moved rows would be listed out of order.
TEST(Mdbtools, ReadsRowsThatOutgrewTheirPageInTheirOrder)
{
    MemoryFileSystem files;
    files.Put("p.mdb", NewFile(SampleStatements()));
    jet::Connection connection;
    connection.Open(files, "p.mdb");
    std::string set;
    for (const int c : {2, 7, 12, 17, 22}) {
        std::string text;
        for (int i = 0; i < 50; ++i) text += "ห";
        set += (set.empty() ? "cbr_c" : ", cbr_c") + std::to_string(c) + " ='" + text + "'";
    }
    for (const int row : {20, 1, 10, 19, 2, 11, 18, 3, 12, 17, 4, 13, 16, 5, 14, 15, 6, 7, 8, 9}) {
        connection.Execute("UPDATE CBRSOIL Set " + set + " Where cbr_ID =' " + std::to_string(row) + "'");
    }
    connection.Flush();
    const Lines rows = FileOnDisk(files.Content("p.mdb")).Rows("CBRSOIL");
    ASSERT_EQ(rows.size(), 20U);
    for (std::size_t row = 1; row <= 20; ++row) {
        EXPECT_TRUE(rows[row - 1].starts_with(" " + std::to_string(row) + "|   |หหห")) << rows[row - 1];
    }
}

TEST(Mdbtools, ReadsATableThatShrankToFewerPages)
{
    CraftedFile crafted({"CREATE TABLE T(k text(10),v text(250))", "insert into T (k,v) Values ('a','')"});
    crafted.AddPage(DataPage(kDefinition, {{kMovedTarget, TextRow({Utf16(u"x"), Utf16(u"stale")})},
                                           {0, TextRow({Utf16(u"b"), Utf16(u"2")})}}));
    jet::Database database = jet::Database::FromBytes(crafted.bytes);
    database.Update({"T", {{"v", "new"}}, {}});
    EXPECT_EQ(FileOnDisk(database.Content()).Rows("T"), (Lines{"a|new", "b|new"}));
}

// The owned map changes its form at 512 pages, the free map moves its window.
TEST(Mdbtools, ReadsATableOfThirteenHundredPages)
{
    std::string columns = "k text(10)";
    for (int c = 0; c < 7; ++c) columns += ",c" + std::to_string(c) + " text(255)";
    jet::Database database = jet::Database::New(kCreated);
    database.Create(std::get<jet::CreateTableStatement>(jet::ReadStatement("CREATE TABLE BIG(" + columns + ")")));
    Lines keys;
    jet::InsertStatement insert{"BIG", {{"k", ""}}};
    for (int c = 0; c < 7; ++c) insert.values.push_back({"c" + std::to_string(c), std::string(250, 'x')});
    for (int row = 0; row < 1300; ++row) {
        keys.push_back(std::to_string(row));
        insert.values[0].text = keys.back();
        database.Insert(insert);
    }
    Lines rows = FileOnDisk(database.Content()).Rows("BIG");
    for (std::string& row : rows) row.resize(row.find('|'));
    EXPECT_EQ(rows, keys);
}

TEST(Mdbtools, ReadsATableWhoseDefinitionTakesSeveralPages)
{
    std::string columns;
    for (int c = 0; c < 255; ++c) {
        columns += (c == 0 ? "" : ",") + ("a_long_name_of_a_column_" + std::to_string(c)) + " text(1)";
    }
    const FileOnDisk file(NewFile({"CREATE TABLE WIDE(" + columns + ")",
                                   "insert into WIDE (a_long_name_of_a_column_0,a_long_name_of_a_column_254) Values "
                                   "('x','y')"}));
    const Lines rows = file.Rows("WIDE");
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_TRUE(rows[0].starts_with("x|<null>|")) << rows[0];
    EXPECT_TRUE(rows[0].ends_with("|<null>|y")) << rows[0];
}

}  // namespace
}  // namespace terravane
