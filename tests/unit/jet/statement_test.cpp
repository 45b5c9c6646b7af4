#include "jet/statement.h"

#include <gtest/gtest.h>

#include "support/jet_files.h"

namespace terravane {
namespace {

using namespace support;
using namespace jet;

template <typename T>
T Read(std::string_view text)
{
    return std::get<T>(ReadStatement(text));
}

std::string ErrorOf(std::string_view text)
{
    const Failure failure = FailureOf([&] { ReadStatement(text); });
    EXPECT_TRUE(failure.number == 0 || failure.number == -2147217900) << failure.number;
    return failure.description;
}

TEST(SelectStatement, StrayApostropheAtTheEndMeansNothing)
{
    for (const char* text :
         {"SELECT * from HEAD'", "SELECT * from HEAD", "select*FROM[HEAD]", " SELECT  *\tfrom HEAD' "}) {
        const auto select = Read<SelectStatement>(text);
        EXPECT_EQ(select.table, "HEAD") << text;
        EXPECT_TRUE(select.columns.empty() && select.where.empty()) << text;
    }
}

TEST(SelectStatement, TakesColumnsAndConditions)
{
    const auto select = Read<SelectStatement>("SELECT std_ID, [std can] FROM STDSOIL WHERE std_ID =' 1' AND b='x'");
    EXPECT_EQ(select.columns, (std::vector<std::string>{"std_ID", "std can"}));
    ASSERT_EQ(select.where.size(), 2U);
    EXPECT_EQ(select.where[0].column, "std_ID");
    EXPECT_EQ(select.where[0].text, " 1");
    EXPECT_EQ(select.where[1].text, "x");
}

TEST(UpdateStatement, BlanksBetweenPartsAreFree)
{
    const auto update = Read<UpdateStatement>(
        "UPDATE HEAD Set Project_Client ='a b',  Project_Name =' c ' , Project_Number = '' Where std_ID =' 10'");
    EXPECT_EQ(update.table, "HEAD");
    ASSERT_EQ(update.set.size(), 3U);
    EXPECT_EQ(update.set[0].column, "Project_Client");
    EXPECT_EQ(update.set[0].text, "a b");
    EXPECT_EQ(update.set[1].text, " c ");
    EXPECT_EQ(update.set[2].text, "");
    ASSERT_EQ(update.where.size(), 1U);
    EXPECT_EQ(update.where[0].text, " 10");
}

TEST(UpdateStatement, EmptyTextInFrontOfOthersStaysEmpty)
{
    const auto update = Read<UpdateStatement>("UPDATE T Set a ='', b ='x', c=''");
    ASSERT_EQ(update.set.size(), 3U);
    EXPECT_EQ(update.set[0].text, "");
    EXPECT_EQ(update.set[1].text, "x");
    EXPECT_EQ(update.set[2].text, "");
}

TEST(UpdateStatement, TwoApostrophesInsideATextAreOne)
{
    const auto update = Read<UpdateStatement>("UPDATE T Set a ='O''Brien', b ='''', c ='it''s'''");
    EXPECT_EQ(update.set[0].text, "O'Brien");
    EXPECT_EQ(update.set[1].text, "'");
    EXPECT_EQ(update.set[2].text, "it's'");
}

TEST(UpdateStatement, TextsKeepThaiCommasAndKeywords)
{
    const auto update = Read<UpdateStatement>("UPDATE T Set a ='ดินลูกรัง, where b', b =' and '");
    EXPECT_EQ(update.set[0].text, "ดินลูกรัง, where b");
    EXPECT_EQ(update.set[1].text, " and ");
}

TEST(CreateTableStatement, TakesNamesAndLengths)
{
    const auto create =
        Read<CreateTableStatement>("create table PERSON ( person_ID text(10), person_name TEXT ( 100 ) )");
    EXPECT_EQ(create.table.name, "PERSON");
    ASSERT_EQ(create.table.columns.size(), 2U);
    EXPECT_EQ(create.table.columns[0].length, 10U);
    EXPECT_EQ(create.table.columns[1].name, "person_name");
    EXPECT_EQ(create.table.columns[1].length, 100U);
}

TEST(InsertStatement, PairsColumnsAndTexts)
{
    const auto insert = Read<InsertStatement>("insert into STDSOIL (std_ID,std_date) Values (' 1','   ')");
    EXPECT_EQ(insert.table, "STDSOIL");
    ASSERT_EQ(insert.values.size(), 2U);
    EXPECT_EQ(insert.values[0].column, "std_ID");
    EXPECT_EQ(insert.values[0].text, " 1");
    EXPECT_EQ(insert.values[1].text, "   ");
}

TEST(StatementErrors, ApostropheInAValueIsAMissingOperator)
{
    EXPECT_EQ(ErrorOf("UPDATE HEAD Set Project_Client ='O'Brien',  Project_Name ='x'"),
              "Syntax error (missing operator) in query expression ''O'Brien''.");
    EXPECT_EQ(ErrorOf("insert into T (a) Values ('O'Brien')"),
              "Syntax error (missing operator) in query expression ''O'Brien''.");
    EXPECT_EQ(ErrorOf("UPDATE T Set a ='x' 5"), "Syntax error (missing operator) in query expression ''x' 5'.");
}

TEST(StatementErrors, TextWithoutItsEndIsQuotedToTheEnd)
{
    EXPECT_EQ(ErrorOf("UPDATE T Set a ='x' Where std_ID =' 1"), "Syntax error in string in query expression '' 1'.");
    EXPECT_EQ(ErrorOf("UPDATE T Set a ='Brien'' Where b"),
              "Syntax error in string in query expression ''Brien'' Where b'.");
}

TEST(StatementErrors, WhatCantBeReadIsQuoted)
{
    EXPECT_EQ(ErrorOf("UPDATE T Set a =5"), "Syntax error in UPDATE statement: '5'.");
    EXPECT_EQ(ErrorOf("UPDATE T Set a 'x'"), "Syntax error in UPDATE statement: ''x''.");
    EXPECT_EQ(ErrorOf("UPDATE T a ='x'"), "Syntax error in UPDATE statement: 'a ='x''.");
    EXPECT_EQ(ErrorOf("UPDATE T Set a ='x',"), "Syntax error in UPDATE statement: 'UPDATE T Set a ='x','.");
    EXPECT_EQ(ErrorOf("UPDATE T Set a ='x')"), "Syntax error in UPDATE statement: ')'.");
    EXPECT_EQ(ErrorOf("SELECT * from HEAD' WHERE a"), "Syntax error in SELECT statement: '' WHERE a'.");
    EXPECT_EQ(ErrorOf("SELECT * from HEAD''"), "Syntax error in SELECT statement: ''''.");
    EXPECT_EQ(ErrorOf("SELECT * from HEAD; DROP"), "Syntax error in SELECT statement: '; DROP'.");
    EXPECT_EQ(ErrorOf("SELECT a b from T"), "Syntax error in SELECT statement: 'b from T'.");
    EXPECT_EQ(ErrorOf("SELECT * from [HEAD"), "Syntax error in SELECT statement: '[HEAD'.");
    EXPECT_EQ(ErrorOf("CREATE TABLE T(a memo)"), "Syntax error in CREATE statement: 'memo)'.");
    EXPECT_EQ(ErrorOf("CREATE TABLE T(a text(1x))"), "Syntax error in CREATE statement: '1x))'.");
    EXPECT_EQ(ErrorOf("CREATE TABLE T(a text(99999999999999999999))"),
              "Syntax error in CREATE statement: '99999999999999999999))'.");
    EXPECT_EQ(ErrorOf("insert into T Values ('x')"), "Syntax error in INSERT statement: 'Values ('x')'.");
}

TEST(StatementErrors, OtherStatementsAreNamed)
{
    const std::string start = "Invalid SQL statement; expected 'SELECT', 'UPDATE', 'CREATE TABLE' or 'INSERT': '";
    EXPECT_EQ(ErrorOf("DELETE from HEAD"), start + "DELETE from HEAD'.");
    EXPECT_EQ(ErrorOf(""), start + "'.");
    EXPECT_EQ(ErrorOf("'UPDATE'"), start + "'UPDATE''.");
}

TEST(StatementErrors, ListsOfUnequalLengthAndColumnsSetTwice)
{
    EXPECT_EQ(ErrorOf("insert into T (a,b) Values ('x')"),
              "Number of query values and destination fields are not the same.");
    EXPECT_EQ(ErrorOf("UPDATE T Set a ='x', A ='y'"), "Duplicate output destination 'A'.");
}

}  // namespace
}  // namespace terravane
