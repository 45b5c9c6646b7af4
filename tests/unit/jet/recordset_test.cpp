#include "jet/recordset.h"

#include <gtest/gtest.h>

#include "support/jet_files.h"

namespace terravane {
namespace {

using namespace support;
using jet::Recordset;

Recordset TwoRows()
{
    return Recordset({{"person_ID", "person_name"}, {{" 1", "สมชาย"}, {" 2", std::nullopt}}});
}

TEST(Recordset, GoesThroughItsRowsAndBackToTheFirst)
{
    Recordset rows = TwoRows();
    EXPECT_TRUE(rows.IsQuery());
    EXPECT_EQ(rows.RowCount(), 2U);
    EXPECT_EQ(rows.Fields("person_id"), " 1");
    rows.MoveNext();
    EXPECT_EQ(rows.Fields("PERSON_ID"), " 2");
    rows.MoveNext();
    EXPECT_TRUE(rows.Eof());
    rows.MoveFirst();
    EXPECT_FALSE(rows.Eof());
    EXPECT_EQ(rows.Fields("person_name"), "สมชาย");
}

TEST(Recordset, NullReadsAsEmptyAndIsToldApart)
{
    Recordset rows = TwoRows();
    EXPECT_FALSE(rows.IsNull("person_name"));
    rows.MoveNext();
    EXPECT_EQ(rows.Fields("person_name"), "");
    EXPECT_TRUE(rows.IsNull("person_name"));
}

TEST(Recordset, PastTheEndIsError3021)
{
    const Failure expected{3021,
                           "Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                           "requires a current record."};
    Recordset rows = TwoRows();
    rows.MoveNext();
    rows.MoveNext();
    EXPECT_EQ(FailureOf([&] { rows.MoveNext(); }), expected);
    EXPECT_EQ(FailureOf([&] { rows.Fields("person_ID"); }), expected);
    Recordset none({{"a"}, {}});
    EXPECT_TRUE(none.Eof());
    EXPECT_EQ(FailureOf([&] { none.MoveFirst(); }), expected);
}

TEST(Recordset, UnknownNameIsError3265)
{
    EXPECT_EQ(
        FailureOf([] { TwoRows().Fields("person"); }),
        (Failure{3265, "Item cannot be found in the collection corresponding to the requested name or ordinal."}));
}

TEST(Recordset, CopyWalksByItself)
{
    Recordset rows = TwoRows();
    Recordset copy = rows;
    copy.MoveNext();
    EXPECT_NE(copy.Fields("person_name"), rows.Fields("person_name"));
    rows = Recordset();
    EXPECT_EQ(copy.RowCount(), 2U) << "and keeps the rows when the other one is gone";
}

TEST(Recordset, ResultOfAnUpdateHasNoRows)
{
    const Recordset result = Recordset::Affected(6);
    EXPECT_FALSE(result.IsQuery());
    EXPECT_EQ(result.RowsAffected(), 6);
    EXPECT_TRUE(result.Eof());
    EXPECT_TRUE(result.ColumnNames().empty());
}

}  // namespace
}  // namespace terravane
