#include "jet/row.h"

#include <gtest/gtest.h>

#include "support/jet_files.h"

namespace terravane {
namespace {

using namespace support;
using namespace jet;

Column TextColumn(std::uint16_t number, std::uint16_t variableIndex)
{
    return {.name = "t" + std::to_string(number), .number = number, .variableIndex = variableIndex, .size = 20};
}

Column FixedColumn(ColumnType type, std::uint16_t number, std::uint16_t offset, std::uint16_t size)
{
    return {.name = "f" + std::to_string(number),
            .type = type,
            .number = number,
            .flags = 0x03,
            .fixedOffset = offset,
            .size = size};
}

// An int32 and a text, a boolean, a second text.
TableDefinition MixedTable()
{
    TableDefinition table;
    table.columnNumbers = 4;
    table.variableColumns = 2;
    table.columns = {FixedColumn(ColumnType::Int32, 0, 0, 4), TextColumn(1, 0),
                     FixedColumn(ColumnType::Boolean, 2, 0, 1), TextColumn(3, 1)};
    return table;
}

// 7 and "ab", true, null:       count  int32    text     end  starts     variable columns, mask 0111
const char* const kMixedRow = "0400 07000000 61006200 0a00 0a00 0600 0200 07";

Bytes BytesOf(const RowView& row, const Column& column)
{
    const auto bytes = row.BytesOf(column);
    return bytes ? Bytes(bytes->begin(), bytes->end()) : FromHex("dead");
}

TEST(Row, IsTakenApartAndBuiltAgainByteForByte)
{
    const TableDefinition table = MixedTable();
    const Bytes bytes = FromHex(kMixedRow);
    const RowView row = ReadRow(table, bytes);
    EXPECT_EQ(BytesOf(row, table.columns[0]), FromHex("07000000"));
    EXPECT_EQ(BytesOf(row, table.columns[1]), FromHex("61006200"));
    EXPECT_EQ(BytesOf(row, table.columns[2]), FromHex("01"));
    EXPECT_FALSE(row.BytesOf(table.columns[3]).has_value());
    EXPECT_EQ(RowParts(table, row).Build(), bytes);
}

TEST(Row, NewOneIsAllNull)
{
    const TableDefinition table = MixedTable();
    const Bytes bytes = RowParts(table).Build();
    EXPECT_EQ(bytes, FromHex("0400 00000000 0600 0600 0600 0200 00"));
    EXPECT_FALSE(ReadRow(table, bytes).BytesOf(table.columns[1]).has_value());
    EXPECT_EQ(BytesOf(ReadRow(table, bytes), table.columns[2]), FromHex("00"));  // a boolean is never null
}

TEST(Row, EmptyTextIsNoNull)
{
    const TableDefinition table = MixedTable();
    RowParts parts(table);
    parts.Set(table.columns[3], {});
    const Bytes bytes = parts.Build();
    EXPECT_EQ(bytes.back(), 0x08);
    EXPECT_EQ(BytesOf(ReadRow(table, bytes), table.columns[3]), Bytes());
}

TEST(Row, ChangedColumnLeavesTheOthersAlone)
{
    const TableDefinition table = MixedTable();
    RowParts parts(table, ReadRow(table, FromHex(kMixedRow)));
    parts.Set(table.columns[1], FromHex("78007900 7a00"));
    EXPECT_EQ(parts.Build(), FromHex("0400 07000000 780079007a00 0c00 0c00 0600 0200 07"));
}

TEST(Row, ThatKnowsFewerColumnsIsWidened)
{
    const TableDefinition table = MixedTable();
    const Bytes narrow = FromHex("0200 07000000 6100 0800 0600 0100 03");  // before the boolean and the second text
    const RowView row = ReadRow(table, narrow);
    EXPECT_FALSE(row.BytesOf(table.columns[3]).has_value());
    RowParts parts(table, row);
    parts.Set(table.columns[3], FromHex("6200"));
    EXPECT_EQ(parts.Build(), FromHex("0400 07000000 6100 6200 0a00 0800 0600 0200 0b"));
}

// Other writers leave ones in the rest of the mask's last byte.
TEST(Row, BitsBehindItsLastColumnMeanNothing)
{
    const TableDefinition table = MixedTable();
    const Bytes narrow = FromHex("0200 07000000 6100 0800 0600 0100 ff");
    const RowView row = ReadRow(table, narrow);
    EXPECT_EQ(BytesOf(row, table.columns[1]), FromHex("6100"));
    EXPECT_EQ(BytesOf(row, table.columns[2]), FromHex("00")) << "a boolean that was not there yet is false";
    EXPECT_FALSE(row.BytesOf(table.columns[3]).has_value());
}

TEST(Row, EightColumnsHaveOneByteOfMask)
{
    TableDefinition table;
    table.columnNumbers = 8;
    for (std::uint16_t number = 0; number < 8; ++number)
        table.columns.push_back(FixedColumn(ColumnType::Int16, number, static_cast<std::uint16_t>(2 * number), 2));
    const Bytes bytes = FromHex("0800 0100 0200 0300 0400 0500 0600 0700 0800 ff");
    EXPECT_EQ(BytesOf(ReadRow(table, bytes), table.columns[7]), FromHex("0800"));
    EXPECT_EQ(RowParts(table, ReadRow(table, bytes)).Build(), bytes);
}

TEST(Row, SlackBetweenValuesAndOffsetsIsSkipped)
{
    const TableDefinition table = MixedTable();
    const Bytes bytes = FromHex("0400 07000000 61006200 dddddddd 0a00 0a00 0600 0200 07");
    EXPECT_EQ(BytesOf(ReadRow(table, bytes), table.columns[1]), FromHex("61006200"));
}

TEST(Row, TableWithoutVariableColumnsHasNoOffsets)
{
    TableDefinition table;
    table.columnNumbers = 1;
    table.columns = {FixedColumn(ColumnType::Int16, 0, 0, 2)};
    const Bytes bytes = FromHex("0100 0500 01");
    EXPECT_EQ(BytesOf(ReadRow(table, bytes), table.columns[0]), FromHex("0500"));
    EXPECT_EQ(RowParts(table, ReadRow(table, bytes)).Build(), bytes);
}

TEST(Row, DamagedOnesAreRefused)
{
    const TableDefinition table = MixedTable();
    for (const char* bytes : {
             "",                                               // nothing
             "0000",                                           // no column
             "0500 07000000 0600 0600 0600 0200 00",           // more columns than the table
             "0400",                                           // no mask
             "0400 07",                                        // nothing but a mask
             "0400 07000000 61006200 0a00 0a00 0600 ff00 07",  // more offsets than bytes
             "0400 07000000 61006200 0a00 0600 0a00 0200 07",  // offsets falling
             "0400 07000000 61006200 ff00 0a00 0600 0200 07",  // end behind the row
             "0400 07000000 61006200 0a00 0a00 0100 0200 07",  // start inside the count
         }) {
        const Bytes row = FromHex(bytes);
        EXPECT_EQ(FailureOf([&] { ReadRow(table, row); }).number, -2147467259) << bytes;
    }
}

TEST(Row, FixedColumnOutsideTheRowIsRefused)
{
    const TableDefinition table = MixedTable();
    const Bytes row = FromHex("0400 0700 0400 0400 0400 0200 01");  // two bytes where the int32 is
    EXPECT_EQ(FailureOf([&] { (void)ReadRow(table, row).BytesOf(table.columns[0]); }).number, -2147467259);
}

TEST(Row, LongerThan4060BytesIsRefused)
{
    const TableDefinition table = MixedTable();
    RowParts parts(table);
    parts.Set(table.columns[1], Bytes(4060 - 15));  // 2 count, 4 int32, 2 end, 4 starts, 2 count, 1 mask
    EXPECT_EQ(parts.Build().size(), 4060U);
    parts.Set(table.columns[1], Bytes(4060 - 14));
    EXPECT_EQ(FailureOf([&] { (void)parts.Build(); }),
              (Failure{-2147467259, "The record is too large: 4061 bytes; a row takes 4060."}));
}

// The second value starts at 0x270a of a row of 21 bytes, the end of both is right again; then the first value does.
// Nothing behind the row may even be pointed at.
TEST(Row, ValueThatStartsOutsideTheRowIsDamage)
{
    const TableDefinition table = MixedTable();
    for (const char* const bytes :
         {"0400 07000000 61006200 0a00 0a27 0600 0200 07", "0400 07000000 61006200 0a00 0a00 0627 0200 07"}) {
        EXPECT_EQ(FailureOf([&] { ReadRow(table, FromHex(bytes)); }).description,
                  "The database is damaged: a row's values lie outside it.")
            << bytes;
    }
}

}  // namespace
}  // namespace terravane
