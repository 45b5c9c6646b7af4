#include "jet/database.h"

#include <gtest/gtest.h>

#include "support/jet_files.h"
#include "support/same_tables.h"

namespace terravane {
namespace {

using namespace support;
using namespace jet;

const char* const kSoil = "CREATE TABLE STDSOIL(std_ID text(10),std_soil text(20),std_can text(5))";

/// Six seeded rows, as a new project file has them.
Database Soil()
{
    Database database = Database::New(kCreated);
    database.Create(std::get<CreateTableStatement>(ReadStatement(kSoil)));
    for (int row = 1; row <= 6; ++row) {
        database.Insert({"STDSOIL", {{"std_ID", " " + std::to_string(row)}, {"std_soil", "   "}, {"std_can", "   "}}});
    }
    return database;
}

int Update(Database& database, const std::string& statement)
{
    return database.Update(std::get<UpdateStatement>(ReadStatement(statement)));
}

std::vector<std::string> Repeated(std::size_t count, const std::string& text)
{
    return std::vector(count, text);
}

/// The n-th of many texts of one length, two bytes a character.
std::string Thai(std::size_t characters)
{
    std::string text;
    for (std::size_t i = 0; i < characters; ++i) text += "ด";
    return text;
}

TEST(Database, NewTableListsItsRowsInOrderOfInsertion)
{
    const Database database = Soil();
    EXPECT_EQ(database.TableNames(), std::vector<std::string>{"STDSOIL"});
    EXPECT_EQ(ColumnOf(database, "stdsoil", 0), (std::vector<std::string>{" 1", " 2", " 3", " 4", " 5", " 6"}));
    EXPECT_EQ(ColumnOf(database, "STDSOIL", 2), Repeated(6, "   "));
    EXPECT_EQ(database.ReadRows("STDSOIL").columns, (std::vector<std::string>{"std_ID", "std_soil", "std_can"}));
}

TEST(Database, SurvivesItsOwnBytes)
{
    const Database database = Soil();
    EXPECT_TRUE(SameTables(database, Database::FromBytes(database.Content())));
}

TEST(Database, UpdateChangesTheRowsOfItsConditionAlone)
{
    Database database = Soil();
    EXPECT_EQ(Update(database, "UPDATE StdSoil Set STD_Can ='A 1', std_soil ='ดินลูกรัง' Where STD_id =' 3'"), 1);
    EXPECT_EQ(ColumnOf(database, "STDSOIL", 2), (std::vector<std::string>{"   ", "   ", "A 1", "   ", "   ", "   "}));
    EXPECT_EQ(ColumnOf(database, "STDSOIL", 1)[2], "ดินลูกรัง");
}

TEST(Database, KeyWithoutItsBlankFindsNoRowAndThatIsNoError)
{
    Database database = Soil();
    EXPECT_EQ(Update(database, "UPDATE STDSOIL Set std_can ='x' Where std_ID ='3'"), 0);
    EXPECT_FALSE(database.Select({"STDSOIL", {}, {{"std_ID", " 3"}}}).rows.empty());
    EXPECT_EQ(ColumnOf(database, "STDSOIL", 2), Repeated(6, "   "));
}

TEST(Database, ConditionsCompareWithoutCaseAndAllMustHold)
{
    Database database = Soil();
    Update(database, "UPDATE STDSOIL Set std_can ='Abc' Where std_ID =' 2'");
    EXPECT_EQ(database.Select({"STDSOIL", {"std_ID"}, {{"std_can", "aBC"}}}).rows.size(), 1U);
    EXPECT_EQ(database.Select({"STDSOIL", {"std_ID"}, {{"std_can", "abc"}, {"std_ID", " 1"}}}).rows.size(), 0U);
}

TEST(Database, UpdateWithoutConditionChangesAllRows)
{
    Database database = Soil();
    EXPECT_EQ(Update(database, "UPDATE STDSOIL Set std_can =''"), 6);
    EXPECT_EQ(ColumnOf(database, "STDSOIL", 2), Repeated(6, ""));
}

TEST(Database, EmptyTextIsNotNullAndColumnsLeftOutAre)
{
    Database database = Soil();
    database.Insert({"STDSOIL", {{"std_ID", ""}}});
    const Rows rows = database.ReadRows("STDSOIL");
    EXPECT_EQ(rows.rows[6], (std::vector<Value>{"", std::nullopt, std::nullopt}));
}

TEST(Database, TextsCountUtf16UnitsUpToTheColumnsLength)
{
    Database database = Soil();
    Update(database, "UPDATE STDSOIL Set std_can ='12345', std_soil ='" + Thai(20) + "'");
    EXPECT_EQ(ColumnOf(database, "STDSOIL", 1), Repeated(6, Thai(20)));
    Update(database, "UPDATE STDSOIL Set std_can ='😀😀'");  // two units each
    EXPECT_EQ(ColumnOf(database, "STDSOIL", 2), Repeated(6, "😀😀"));
    EXPECT_EQ(FailureOf([&] { Update(database, "UPDATE STDSOIL Set std_can ='😀😀😀'"); }),
              (Failure{-2147217833, "The text of 'std_can' is 6 characters long; the column takes 5."}));
}

TEST(Database, TooLongATextChangesNothingOfItsStatement)
{
    Database database = Soil();
    const Bytes before = database.Content();
    EXPECT_EQ(FailureOf([&] { Update(database, "UPDATE STDSOIL Set std_soil ='x', std_can ='1234567'"); }),
              (Failure{-2147217833, "The text of 'std_can' is 7 characters long; the column takes 5."}));
    EXPECT_EQ(database.Content(), before);
}

TEST(Database, UnknownNamesAreTold)
{
    Database database = Soil();
    EXPECT_EQ(
        FailureOf([&] { Update(database, "UPDATE STDSOIL Set std_cans ='x'"); }),
        (Failure{-2147217904, "No value given for one or more required parameters: there is no column 'std_cans'."}));
    EXPECT_EQ(FailureOf([&] { Update(database, "UPDATE STDSOIL Set std_can ='x' Where id =' 1'"); }).number,
              -2147217904);
    EXPECT_EQ(FailureOf([&] { (void)database.Select({"STDSOIL", {"id"}, {}}); }).number, -2147217904);
    EXPECT_EQ(FailureOf([&] { (void)database.ReadRows("SOIL"); }),
              (Failure{-2147217865, "The database engine cannot find the input table or query 'SOIL'."}));
    EXPECT_EQ(FailureOf([&] { (void)database.ReadRows("MSysObjects"); }).number, -2147217865);
}

TEST(Database, ChangeTellsOfItselfOnlyWhereBytesDiffer)
{
    Database database = Database::FromBytes(Soil().Content());
    EXPECT_FALSE(database.HasChanges());
    Update(database, "UPDATE STDSOIL Set std_can ='   '");
    EXPECT_FALSE(database.HasChanges());
    Update(database, "UPDATE STDSOIL Set std_can ='    '");
    EXPECT_TRUE(database.HasChanges());
    database.MarkSaved();
    EXPECT_FALSE(database.HasChanges());
}

// Three columns of 250 Thai characters are 1500 bytes a row: twenty rows that lay on one page need ten.
TEST(Database, RowsThatOutgrowTheirPageKeepTheirOrderAndAreNotMoved)
{
    Database database = Database::New(kCreated);
    database.Create({{"CBR", {{"k", 10}, {"a", 250}, {"b", 250}, {"c", 250}}}});
    std::vector<std::string> keys;
    for (int row = 1; row <= 20; ++row) {
        keys.push_back(" " + std::to_string(row));
        database.Insert({"CBR", {{"k", keys.back()}, {"a", "   "}, {"b", "   "}, {"c", "   "}}});
    }
    const std::string text = Thai(250);
    for (const int row : {20, 3, 11, 1, 2, 4, 5, 6, 7, 8, 9, 10, 12, 13, 14, 15, 16, 17, 18, 19}) {
        Update(database, "UPDATE CBR Set a ='" + text + "', b ='" + text + "', c ='" + std::to_string(row) +
                             "' Where k =' " + std::to_string(row) + "'");
    }
    EXPECT_EQ(ColumnOf(database, "CBR", 0), keys);
    EXPECT_EQ(ColumnOf(database, "CBR", 1), Repeated(20, text));
    EXPECT_EQ(ColumnOf(database, "CBR", 3)[10], "11");
    const Bytes bytes = database.Content();
    for (std::size_t page = 18; page < bytes.size() / kPage; ++page) {
        const Bytes content = PageOf(bytes, page);
        ASSERT_EQ(NumberAt(content, 0, 2), 0x0101U);
        for (std::size_t slot = 0; slot < NumberAt(content, 12, 2); ++slot) {
            EXPECT_EQ(NumberAt(content, 14 + 2 * slot, 2) & 0xE000, 0U) << "page " << page << " slot " << slot;
        }
    }
    EXPECT_TRUE(SameTables(database, Database::FromBytes(bytes)));
}

TEST(Database, PagesLeftOverKeepOneDeletedSlot)
{
    Database database = Database::New(kCreated);
    database.Create({{"T", {{"a", 250}, {"b", 250}}}});
    for (int row = 0; row < 12; ++row) database.Insert({"T", {{"a", Thai(250)}, {"b", Thai(250)}}});  // 4 a page
    Bytes bytes = database.Content();
    ASSERT_EQ(bytes.size(), 21 * kPage);
    // A stale copy makes the next change lay all rows out afresh; they are short by then.
    Update(database, "UPDATE T Set a ='', b =''");
    bytes = database.Content();
    Bytes stale = PageOf(bytes, 20);
    stale[15] = static_cast<std::uint8_t>(stale[15] | 0x80);
    std::copy(stale.begin(), stale.end(), bytes.begin() + 20 * kPage);
    Database damaged = Database::FromBytes(bytes);
    const std::size_t rows = damaged.ReadRows("T").rows.size();
    EXPECT_EQ(Update(damaged, "UPDATE T Set a ='x'"), static_cast<int>(rows));
    bytes = damaged.Content();
    EXPECT_EQ(NumberAt(PageOf(bytes, 18), 12, 2), rows);
    EXPECT_EQ(NumberAt(PageOf(bytes, 20), 12, 2), 1U);
    EXPECT_EQ(NumberAt(PageOf(bytes, 20), 14, 2), 0xC000U | 4096U);
    EXPECT_EQ(Database::FromBytes(bytes).ReadRows("T").rows.size(), rows);
}

// A page takes one row of seven columns of 255 Thai characters. The owned map covers 512 pages in its first form and
// turns into references behind them; the map of free pages moves its window.
TEST(Database, TableOfThirteenHundredPagesKeepsAllRowsInOrder)
{
    Database database = Database::New(kCreated);
    NewTable table{"BIG", {}};
    InsertStatement insert{"BIG", {}};
    for (int c = 0; c < 7; ++c) {
        table.columns.push_back({"c" + std::to_string(c), 255});
        insert.values.push_back({"c" + std::to_string(c), Thai(255)});
    }
    database.Create({table});
    std::vector<std::string> keys;
    for (int row = 0; row < 1300; ++row) {
        keys.push_back(std::to_string(row));
        insert.values[0].text = keys.back();
        database.Insert(insert);
    }
    const Database reread = Database::FromBytes(database.Content());
    EXPECT_GT(database.Content().size(), 1300 * kPage);
    EXPECT_EQ(ColumnOf(reread, "BIG", 0), keys);
    const Bytes freeMap = PartOf(PageOf(database.Content(), 1), kPage - 69, 69);
    const std::size_t pages = database.Content().size() / kPage;
    const std::size_t first = NumberAt(freeMap, 1, 4);
    EXPECT_LE(first, pages - 1);
    EXPECT_EQ(freeMap[5 + (pages - 1 - first) / 8] >> (pages - 1 - first) % 8 & 1, 0) << "the last page counts as free";
    EXPECT_EQ(freeMap[5 + (pages - first) / 8] >> (pages - first) % 8 & 1, 1) << "the next page counts as used";
}

// 300 rows of 13 bytes would fit one page, whose slots are counted in a byte.
TEST(Database, TableOfManyShortRowsKeepsThemAll)
{
    Database database = Database::New(kCreated);
    database.Create(std::get<CreateTableStatement>(ReadStatement("CREATE TABLE T(k text(1))")));
    for (int row = 0; row < 300; ++row) database.Insert({"T", {{"k", row < 299 ? "a" : "z"}}});
    const auto rows = ColumnOf(Database::FromBytes(database.Content()), "T", 0);
    ASSERT_EQ(rows.size(), 300U);
    EXPECT_EQ(rows.back(), "z");
}

// 500 rows of a text of 255 characters: 500 times as a column they would be 74 MB, 100 times they are 15 MB.
TEST(Database, ResultThatWouldFillTheMemoryIsRefused)
{
    jet::Database database = jet::Database::New(kCreated);
    database.Create({{"NOTES", {{"note", 255}}}});
    for (int row = 0; row < 500; ++row) database.Insert({"NOTES", {{"note", std::string(255, 'x')}}});
    const auto select = [&](std::size_t columns) {
        return database.Select({"NOTES", std::vector<std::string>(columns, "note"), {}}).rows.size();
    };
    EXPECT_EQ(select(100), 500U);
    EXPECT_EQ(FailureOf([&] { select(500); }),
              (Failure{-2147467259, "The table 'NOTES' has more in it than the program can show."}));
}

TEST(Database, DefinitionOf255ColumnsTakesSeveralPages)
{
    Database database = Database::New(kCreated);
    NewTable table{"WIDE", {}};
    for (int c = 0; c < 255; ++c) table.columns.push_back({"a_rather_long_name_of_a_column_" + std::to_string(c), 1});
    database.Create({table});
    database.Insert({"WIDE", {{table.columns[254].name, "x"}}});
    const Database reread = Database::FromBytes(database.Content());
    EXPECT_EQ(reread.ReadRows("WIDE").columns.size(), 255U);
    EXPECT_EQ(reread.ReadRows("WIDE").columns[254], table.columns[254].name);
    EXPECT_EQ(reread.ReadRows("WIDE").rows.at(0)[254], "x");
    EXPECT_EQ(reread.ReadRows("WIDE").rows.at(0)[253], std::nullopt);
    table.columns.push_back({"one_too_many", 1});
    table.name = "WIDER";
    EXPECT_EQ(FailureOf([&] { database.Create({table}); }),
              (Failure{-2147217900, "Too many fields defined in table 'WIDER'."}));
}

TEST(Database, CreateRefusesWhatNoTableCanBe)
{
    Database database = Soil();
    const Bytes before = database.Content();
    const auto refusal = [&](const NewTable& table) {
        return FailureOf([&] { database.Create({table}); }).description;
    };
    EXPECT_EQ(refusal({"stdsoil", {{"a", 1}}}), "Table 'stdsoil' already exists.");
    EXPECT_EQ(refusal({"O'Brien", {{"a", 1}}}), "'O'Brien' is not a valid name.");
    EXPECT_EQ(refusal({"", {{"a", 1}}}), "'' is not a valid name.");
    EXPECT_EQ(refusal({std::string(65, 'T'), {{"a", 1}}}), "'" + std::string(65, 'T') + "' is not a valid name.");
    EXPECT_EQ(refusal({"T", {{"a.b", 1}}}), "'a.b' is not a valid name.");
    EXPECT_EQ(refusal({"T", {{" a", 1}}}), "' a' is not a valid name.");
    EXPECT_EQ(refusal({"T", {{"a", 0}}}), "Size of field 'a' is not between 1 and 255.");
    EXPECT_EQ(refusal({"T", {{"a", 256}}}), "Size of field 'a' is not between 1 and 255.");
    EXPECT_EQ(refusal({"T", {{"a", 1}, {"A", 1}}}), "Cannot define field 'A' more than once.");
    EXPECT_EQ(database.Content(), before);
    Database opened = Database::FromBytes(before);
    EXPECT_EQ(FailureOf([&] {
                  opened.Create({{"T", {{"a", 1}}}});
              }),
              (Failure{-2147467259, "Tables can be created in a new database only."}));
}

// An entry of the index of names takes about 45 bytes for such names; 3616 bytes hold some eighty.
TEST(Database, MoreTablesThanTheCatalogsIndexTakesAreRefused)
{
    Database database = Database::New(kCreated);
    const auto create = [&](int i) {
        database.Create({{"A_TABLE_WITH_A_RATHER_LONG_NAME_" + std::to_string(i), {{"a", 1}}}});
    };
    for (int i = 0; i < 60; ++i) create(i);
    EXPECT_EQ(Database::FromBytes(database.Content()).TableNames().size(), 60U);
    const Failure failure = FailureOf([&] {
        for (int i = 60; i < 200; ++i) create(i);
    });
    EXPECT_EQ(failure, (Failure{-2147467259, "The database has too many tables for one index page."}));
    EXPECT_TRUE(SameTables(database, Database::FromBytes(database.Content())));
}

TEST(Database, ChangeTouchesNothingButItsTable)
{
    const Bytes before = NewFile(SampleStatements());
    Database database = Database::FromBytes(before);
    Update(database, "UPDATE MODSOIL Set mod_c1 ='changed' Where mod_ID =' 4'");
    const Bytes after = database.Content();
    ASSERT_EQ(after.size(), before.size());
    std::vector<std::size_t> changed;
    for (std::size_t page = 0; page < before.size() / kPage; ++page) {
        if (PageOf(before, page) != PageOf(after, page)) changed.push_back(page);
    }
    EXPECT_EQ(changed, std::vector<std::size_t>{24});  // HEAD 16 to 18, STDSOIL 19 to 21, MODSOIL 22 to 24
}

TEST(SameTables, SeesARowAColumnAndANull)
{
    const Bytes two = NewFile({"CREATE TABLE T(a text(5))", "insert into T (a) Values ('x')"});
    const auto differs = [&](const std::vector<std::string>& statements) {
        return !SameTables(Database::FromBytes(two), Database::FromBytes(NewFile(statements)));
    };
    EXPECT_FALSE(differs({"CREATE TABLE T(a text(5))", "insert into T (a) Values ('x')"}));
    EXPECT_TRUE(differs({"CREATE TABLE T(a text(5))", "insert into T (a) Values ('y')"}));
    EXPECT_TRUE(differs({"CREATE TABLE T(b text(5))", "insert into T (b) Values ('x')"}));
    EXPECT_TRUE(differs({"CREATE TABLE U(a text(5))", "insert into U (a) Values ('x')"}));
    EXPECT_TRUE(differs({"CREATE TABLE T(a text(5))"}));
}

}  // namespace
}  // namespace terravane
