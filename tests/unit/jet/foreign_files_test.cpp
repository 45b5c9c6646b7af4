// Files as other programs leave them, put together byte by byte: moved, deleted and compressed rows, columns added
// later, columns of other types, indexes, long values, pages that nobody knows.
#include <bit>

#include <gtest/gtest.h>

#include "jet/database.h"
#include "support/jet_files.h"
#include "support/same_tables.h"

namespace terravane {
namespace {

using namespace support;
using namespace jet;

/// Two columns of 250 characters; one row, so that its page 18 is there to be replaced.
CraftedFile TwoColumns()
{
    return CraftedFile({"CREATE TABLE T(k text(10),v text(250))", "insert into T (k,v) Values ('0','')"});
}

Bytes TwoTexts(std::u16string_view key, std::u16string_view value)
{
    return TextRow({Utf16(key), Utf16(value)});
}

int Change(Database& database, const std::string& statement)
{
    return database.Update(std::get<UpdateStatement>(ReadStatement(statement)));
}

using Texts = std::vector<std::string>;

// Page 18: row a, a pointer to page 19, a deleted row, a stale copy, row c. Page 19: row b, moved there, and row d.
CraftedFile MovedRows()
{
    CraftedFile file = TwoColumns();
    Bytes pointer = Pointer(19, 0);
    pointer.insert(pointer.end(), {0xAB, 0xCD, 0xEF});  // leftovers behind the pointer
    file.SetPage(kRows, DataPage(kDefinition, {{0, TwoTexts(u"a", u"first")},
                                               {kMovedRow, pointer},
                                               {kDeletedRow, {}},
                                               {kMovedTarget, TwoTexts(u"b", u"stale")},
                                               {kDeletedRow, TwoTexts(u"x", u"gone")},
                                               {0, TwoTexts(u"c", u"third")}}));
    file.AddPage(DataPage(kDefinition, {{kMovedTarget, TwoTexts(u"b", u"second")}, {0, TwoTexts(u"d", u"fourth")}}));
    return file;
}

TEST(ForeignFile, MovedRowCountsAtThePlaceOfItsPointer)
{
    const Database database = Database::FromBytes(MovedRows().bytes);
    EXPECT_EQ(ColumnOf(database, "T", 0), (Texts{"a", "b", "c", "d"}));
    EXPECT_EQ(ColumnOf(database, "T", 1), (Texts{"first", "second", "third", "fourth"}));
}

TEST(ForeignFile, ChangeLaysMovedRowsOutAfreshInTheirOrder)
{
    Database database = Database::FromBytes(MovedRows().bytes);
    EXPECT_EQ(Change(database, "UPDATE T Set v ='changed' Where k ='c'"), 1);
    EXPECT_EQ(ColumnOf(database, "T", 1), (Texts{"first", "second", "changed", "fourth"}));
    const Bytes rows = PageOf(database.Content(), 18);
    EXPECT_EQ(NumberAt(rows, 12, 2), 4U);
    for (std::size_t slot = 0; slot < 4; ++slot) EXPECT_EQ(NumberAt(rows, 14 + 2 * slot, 2) & 0xC000, 0U);
    const Bytes left = PageOf(database.Content(), 19);
    EXPECT_EQ(NumberAt(left, 12, 2), 1U);
    EXPECT_EQ(NumberAt(left, 14, 2), 0xC000U | 4096U);
}

TEST(ForeignFile, PointersThatLeadNowhereOrTwiceToOneRowAreDamage)
{
    const auto failure = [](const std::vector<CraftedSlot>& slots) {
        CraftedFile file = TwoColumns();
        file.SetPage(kRows, DataPage(kDefinition, slots));
        const Database database = Database::FromBytes(file.bytes);
        return FailureOf([&] { (void)database.ReadRows("T"); });
    };
    const Failure lost{-2147467259, "The database is damaged: a moved row can't be found."};
    EXPECT_EQ(failure({{kMovedRow, Pointer(18, 0)}}), lost);                               // to itself
    EXPECT_EQ(failure({{kMovedRow, Pointer(18, 1)}, {kMovedRow, Pointer(18, 0)}}), lost);  // in a circle
    EXPECT_EQ(failure({{kMovedRow, Pointer(18, 1)}, {kDeletedRow, {}}}), lost);
    EXPECT_EQ(failure({{kMovedRow, Pointer(18, 9)}}).number, -2147467259);   // no such slot
    EXPECT_EQ(failure({{kMovedRow, Pointer(900, 0)}}).number, -2147467259);  // no such page
    EXPECT_EQ(failure({{kMovedRow, Pointer(14, 0)}}).number, -2147467259);   // of another table
    EXPECT_EQ(failure({{kMovedRow, {1, 2}}}).number, -2147467259);           // no pointer at all
    EXPECT_EQ(failure({{kMovedRow, Pointer(18, 1)}, {kMovedTarget, TwoTexts(u"", u"")}, {kMovedRow, Pointer(18, 1)}}),
              (Failure{-2147467259, "The database is damaged: two moved rows lead to one place."}));
}

TEST(ForeignFile, CompressedTextsAreReadAndWrittenWhereTheColumnAllowsThem)
{
    CraftedFile file = TwoColumns();
    file.SetInDefinition(0x3F + 25 + 16, 1);  // the second column may be compressed
    file.SetPage(kRows, DataPage(kDefinition, {{0, TextRow({Utf16(u"a"), FromHex("fffe 666972 7374")})},
                                               {0, TextRow({Utf16(u"b"), FromHex("fffe 00 2104 3e04 00 2d30")})},
                                               {0, TextRow({Utf16(u"c"), Utf16(u"ดิน")})}}));
    Database database = Database::FromBytes(file.bytes);
    EXPECT_EQ(ColumnOf(database, "T", 1), (Texts{"first", "Со-0", "ดิน"}));
    Change(database, "UPDATE T Set k ='kkk', v ='soil' Where k ='c'");
    EXPECT_EQ(ColumnOf(database, "T", 1), (Texts{"first", "Со-0", "soil"}));
    // the third row: key plain, value compressed, the two rows above as they were
    const Bytes page = PageOf(database.Content(), 18);
    const Bytes expected = TextRow({Utf16(u"kkk"), FromHex("fffe 736f696c")});
    EXPECT_EQ(PartOf(page, NumberAt(page, 18, 2), expected.size()), expected);
    EXPECT_EQ(PartOf(page, NumberAt(page, 16, 2), kPage - NumberAt(page, 16, 2)),
              PartOf(file.bytes, 18 * kPage + NumberAt(page, 16, 2), kPage - NumberAt(page, 16, 2)));
}

TEST(ForeignFile, NullsAndRowsOfFewerColumnsReadAsNullAndTakeValues)
{
    CraftedFile file = TwoColumns();
    file.SetPage(kRows, DataPage(kDefinition, {{0, TextRow({Utf16(u"a"), std::nullopt})},
                                               {0, TextRow({Utf16(u"b")})},  // from before v was added
                                               {0, TextRow({std::nullopt, Bytes()})}}));
    Database database = Database::FromBytes(file.bytes);
    EXPECT_EQ(ColumnOf(database, "T", 0), (Texts{"a", "b", "(null)"}));
    EXPECT_EQ(ColumnOf(database, "T", 1), (Texts{"(null)", "(null)", ""}));
    EXPECT_EQ(Change(database, "UPDATE T Set v ='x' Where v =''"), 1) << "a null equals nothing";
    EXPECT_EQ(Change(database, "UPDATE T Set v ='new' Where k ='b'"), 1);
    EXPECT_EQ(ColumnOf(database, "T", 1), (Texts{"(null)", "new", "x"}));
}

// A map in its second form: entry 0 leads to a page of bits, entry 1, with the top bit set, is left over from a larger
// table and leads to a page that is none.
TEST(ForeignFile, LeftoverInAMapOfPagesLeadsNowhere)
{
    CraftedFile file = TwoColumns();
    Bytes bits = FromHex("05010000");
    bits.resize(kPage);
    bits[4 + kRows / 8] = 1U << kRows % 8;
    const std::uint32_t page = file.AddPage(bits);
    const std::size_t map = kMaps * kPage + kPage - 69;
    std::fill_n(file.bytes.begin() + static_cast<std::ptrdiff_t>(map), 69, std::uint8_t{0});
    file.bytes[map] = 1;
    PutNumber(file.bytes, map + 1, page, 4);
    PutNumber(file.bytes, map + 5, 0x80000000U | kRows, 4);
    EXPECT_EQ(ColumnOf(Database::FromBytes(file.bytes), "T", 0), Texts{"0"});
}

TEST(ForeignFile, PagesOfOthersAmongTheTablesAreSkippedAndKept)
{
    CraftedFile file = TwoColumns();
    Bytes freed = DataPage(kDefinition, {{0, TwoTexts(u"no", u"row")}});
    freed[0] = 0x08;
    file.AddPage(freed);
    file.AddPage(DataPage(99, {{0, TwoTexts(u"no", u"row")}}));
    file.AddPage(Bytes(kPage, 0));
    file.AddPage(DataPage(kDefinition, {{0, TwoTexts(u"last", u"row")}}));
    Database database = Database::FromBytes(file.bytes);
    EXPECT_EQ(ColumnOf(database, "T", 0), (Texts{"0", "last"}));
    Change(database, "UPDATE T Set v ='a longer text than before'");
    for (const std::size_t page : {19U, 20U, 21U}) {
        EXPECT_EQ(PageOf(database.Content(), page), PageOf(file.bytes, page)) << page;
    }
}

TEST(ForeignFile, PagesBehindTheEndOfTheFileAreDamage)
{
    CraftedFile file = TwoColumns();
    file.bytes.resize(18 * kPage);  // the rows are cut off
    const Database database = Database::FromBytes(file.bytes);
    EXPECT_EQ(FailureOf([&] { (void)database.ReadRows("T"); }),
              (Failure{-2147467259, "The database is damaged: a table has pages outside the file."}));
}

// --- columns of other types

struct OddColumn {
    std::uint8_t type;
    std::uint8_t flags;
    std::uint16_t number;
    std::uint16_t variableIndex;
    std::uint16_t offset;
    std::uint16_t size;
    std::u16string name;
};

void AppendNumber(Bytes& block, std::uint64_t value, std::size_t size)
{
    block.resize(block.size() + size);
    PutNumber(block, block.size() - size, value, size);
}

Bytes DefinitionHead(std::size_t columns, std::uint16_t variableColumns, bool indexed)
{
    Bytes block(0x3F, 0);
    PutNumber(block, 0, 0x0102, 2);
    block[0x28] = 'N';
    PutNumber(block, 0x29, columns, 2);
    PutNumber(block, 0x2B, variableColumns, 2);
    PutNumber(block, 0x2D, columns, 2);
    PutNumber(block, 0x2F, indexed ? 1 : 0, 4);
    PutNumber(block, 0x33, indexed ? 1 : 0, 4);
    PutNumber(block, 0x37, kMaps << 8 | 0, 4);
    PutNumber(block, 0x3B, kMaps << 8 | 1, 4);
    if (indexed) block.resize(block.size() + 12);
    return block;
}

void AppendColumn(Bytes& block, const OddColumn& column)
{
    AppendNumber(block, column.type, 1);
    AppendNumber(block, 1625, 4);
    AppendNumber(block, column.number, 2);
    AppendNumber(block, column.variableIndex, 2);
    AppendNumber(block, column.number, 2);
    AppendNumber(block, 0x0409, 4);
    AppendNumber(block, column.flags, 1);
    AppendNumber(block, 0, 5);
    AppendNumber(block, column.offset, 2);
    AppendNumber(block, column.size, 2);
}

void AppendName(Bytes& block, const OddColumn& column)
{
    AppendNumber(block, 2 * column.name.size(), 2);
    const Bytes name = Utf16(column.name);
    block.insert(block.end(), name.begin(), name.end());
}

/// An index named "I" on column 0.
void AppendIndex(Bytes& block)
{
    AppendNumber(block, 1923, 4);
    AppendNumber(block, 0, 2);
    AppendNumber(block, 1, 1);
    for (int unused = 1; unused < 10; ++unused) AppendNumber(block, 0x00FFFF, 3);
    block.resize(block.size() + 4 + 4 + 4 + 6);
    block.resize(block.size() + 28);  // the logical index
    AppendNumber(block, 2, 2);
    AppendNumber(block, 'I', 2);
}

/// A definition of any columns and at most one index on the first column, as another program writes it.
Bytes Definition(const std::vector<OddColumn>& columns, std::uint16_t variableColumns, bool indexed = false)
{
    Bytes block = DefinitionHead(columns.size(), variableColumns, indexed);
    for (const OddColumn& column : columns) AppendColumn(block, column);
    for (const OddColumn& column : columns) AppendName(block, column);
    if (indexed) AppendIndex(block);
    AppendNumber(block, 0xFFFF, 2);
    PutNumber(block, 8, block.size(), 4);
    block.resize(kPage);
    return block;
}

std::vector<OddColumn> OddColumns()
{
    return {
        {4, 0x03, 0, 0, 0, 4, u"whole"},   {1, 0x03, 1, 0, 0, 1, u"yes"},     {5, 0x03, 2, 0, 4, 8, u"money"},
        {7, 0x03, 3, 0, 12, 8, u"number"}, {8, 0x03, 4, 0, 20, 8, u"date"},   {10, 0x02, 5, 0, 0, 20, u"text"},
        {12, 0x02, 6, 1, 0, 0, u"memo"},   {15, 0x03, 7, 2, 28, 16, u"guid"}, {9, 0x02, 8, 2, 0, 10, u"binary"},
        {2, 0x03, 9, 3, 44, 1, u"byte"},   {3, 0x03, 10, 3, 45, 2, u"small"}, {6, 0x03, 11, 3, 47, 4, u"single"},
    };
}

/// A row of OddColumns with these 51 bytes of fixed columns and three variable values.
Bytes OddRow(const Bytes& fixed, const Bytes& text, const Bytes& memo, const Bytes& binary)
{
    Bytes row = FromHex("0c00");
    std::vector<std::size_t> starts;
    row.insert(row.end(), fixed.begin(), fixed.end());
    for (const Bytes& value : {text, memo, binary}) {
        starts.push_back(row.size());
        row.insert(row.end(), value.begin(), value.end());
    }
    starts.push_back(row.size());
    for (std::size_t i = starts.size(); i-- > 0;) {
        row.resize(row.size() + 2);
        PutNumber(row, row.size() - 2, starts[i], 2);
    }
    const Bytes tail = FromHex("0300 ff0f");
    row.insert(row.end(), tail.begin(), tail.end());
    return row;
}

// -5; true; 12.34 as 123400 ten-thousandths; 0.5; 2000-01-01 18:00 as 36526.75; a text; a memo of "memo" in the row;
// a GUID; two bytes; 200; -2; 1.5
Bytes OddValues(const Bytes& memo)
{
    Bytes fixed = FromHex("fbffffff 08e2010000000000 000000000000e03f");
    fixed.resize(28);
    PutNumber(fixed, 20, std::bit_cast<std::uint64_t>(36526.75), 8);
    const Bytes rest = FromHex("00112233445566778899aabbccddeeff c8 feff 0000c03f");
    fixed.insert(fixed.end(), rest.begin(), rest.end());
    return OddRow(fixed, Utf16(u"abc"), memo, FromHex("0aff"));
}

CraftedFile OddFile(const Bytes& memo)
{
    CraftedFile file = TwoColumns();
    file.SetPage(kDefinition, Definition(OddColumns(), 3));
    file.SetPage(kRows, DataPage(kDefinition, {{0, OddValues(memo)}}));
    return file;
}

Bytes MemoInRow(std::u16string_view text)
{
    Bytes bytes = FromHex("00000080 00000000 00000000");
    PutNumber(bytes, 0, 0x80000000U | 2 * text.size(), 4);
    const Bytes data = Utf16(text);
    bytes.insert(bytes.end(), data.begin(), data.end());
    return bytes;
}

Bytes MemoElsewhere(std::uint32_t head, std::uint32_t page, std::uint8_t slot)
{
    Bytes bytes(12);
    PutNumber(bytes, 0, head, 4);
    PutNumber(bytes, 4, page << 8 | slot, 4);
    return bytes;
}

TEST(ForeignFile, ValuesOfOtherTypesReadAsTexts)
{
    const Database database = Database::FromBytes(OddFile(MemoInRow(u"memo")).bytes);
    const std::vector<Value> expected{
        "-5",   "True", "12.34", "0.5", "01/01/2000 18:00:00", "abc", "memo", "{33221100-5544-7766-8899-AABBCCDDEEFF}",
        "0AFF", "200",  "-2",    "1.5"};
    EXPECT_EQ(database.ReadRows("T").rows.at(0), expected);
}

// -12.05 as -120500 ten-thousandths; of the day before 30 December 1899 a quarter has gone at -1.25.
TEST(ForeignFile, AmountsWithAZeroBehindThePointAndDaysBeforeTheFirstAreRead)
{
    Bytes row = OddValues(MemoInRow(u"memo"));
    PutNumber(row, 2 + 4, static_cast<std::uint64_t>(std::int64_t{-120500}), 8);
    PutNumber(row, 2 + 20, std::bit_cast<std::uint64_t>(-1.25), 8);
    CraftedFile file = OddFile(MemoInRow(u"memo"));
    file.SetPage(kRows, DataPage(kDefinition, {{0, row}}));
    const auto values = Database::FromBytes(file.bytes).ReadRows("T").rows.at(0);
    EXPECT_EQ(values.at(2), "-12.05");
    EXPECT_EQ(values.at(4), "29/12/1899 06:00:00");
}

TEST(ForeignFile, ChangeOfATextKeepsItsNeighboursBytes)
{
    CraftedFile file = OddFile(MemoInRow(u"memo"));
    Database database = Database::FromBytes(file.bytes);
    const std::vector<Value> before = database.ReadRows("T").rows.at(0);
    EXPECT_EQ(Change(database, "UPDATE T Set [text] ='longer one' Where whole ='-5'"), 1);
    std::vector<Value> expected = before;
    expected[5] = "longer one";
    EXPECT_EQ(database.ReadRows("T").rows.at(0), expected);
}

TEST(ForeignFile, ColumnsThatAreNoTextCantBeSet)
{
    Database database = Database::FromBytes(OddFile(MemoInRow(u"memo")).bytes);
    for (const char* column : {"whole", "yes", "memo", "guid"}) {
        EXPECT_EQ(FailureOf([&] { Change(database, std::string("UPDATE T Set ") + column + " ='1'"); }).number,
                  -2147217913)
            << column;
    }
}

TEST(ForeignFile, MemosAreReadFromOnePageOrSeveral)
{
    CraftedFile one = OddFile(MemoElsewhere(0x40000008, 19, 0));
    one.AddPage(DataPage(0x4C41564C, {{0, Utf16(u"memo")}}));
    EXPECT_EQ(ColumnOf(Database::FromBytes(one.bytes), "T", 6), Texts{"memo"});

    CraftedFile several = OddFile(MemoElsewhere(8, 19, 0));
    Bytes first = Pointer(19, 1);
    Bytes second = Pointer(0, 0);
    for (const std::uint8_t byte : Utf16(u"me")) first.push_back(byte);
    for (const std::uint8_t byte : Utf16(u"mo")) second.push_back(byte);
    several.AddPage(DataPage(0x4C41564C, {{0, first}, {0, second}}));
    EXPECT_EQ(ColumnOf(Database::FromBytes(several.bytes), "T", 6), Texts{"memo"});
}

TEST(ForeignFile, DamagedMemosAreRefused)
{
    const auto failure = [](const Bytes& memo, const std::vector<CraftedSlot>& pieces) {
        CraftedFile file = OddFile(memo);
        file.AddPage(DataPage(0x4C41564C, pieces));
        const Database database = Database::FromBytes(file.bytes);
        return FailureOf([&] { (void)database.ReadRows("T"); });
    };
    Bytes loop = Pointer(19, 0);
    loop.resize(8);
    EXPECT_EQ(failure(MemoElsewhere(0x00FFFFFF, 19, 0), {{0, loop}}),
              (Failure{-2147467259, "The database is damaged: a long value leads back into itself."}));
    EXPECT_EQ(failure(MemoElsewhere(0x40000009, 19, 0), {{0, Utf16(u"memo")}}),
              (Failure{-2147467259, "The database is damaged: a long value is cut short."}));
    EXPECT_EQ(failure(MemoElsewhere(0x40000008, 900, 0), {}).number, -2147467259);
    EXPECT_EQ(failure(FromHex("ffffff80 0000"), {}).number, -2147467259);
}

// --- a table with an index: addresses must stay

CraftedFile Indexed(const std::vector<CraftedSlot>& rows)
{
    CraftedFile file = TwoColumns();
    file.SetPage(kDefinition, Definition({{10, 0x02, 0, 0, 0, 20, u"k"}, {10, 0x02, 1, 1, 0, 510, u"v"}}, 2, true));
    file.SetPage(kRows, DataPage(kDefinition, rows));
    return file;
}

TEST(IndexedTable, RowThatOutgrowsItsPageMovesBehindAPointer)
{
    std::vector<CraftedSlot> rows;
    for (const char16_t key : {u'a', u'b', u'c', u'd', u'e', u'f', u'g', u'h'}) {
        rows.push_back({0, TwoTexts(std::u16string(1, key), std::u16string(240, u'x'))});  // 493 bytes each
    }
    Database database = Database::FromBytes(Indexed(rows).bytes);
    const std::string text(250, 'y');
    for (const char* key : {"a", "b", "c", "d", "e", "f", "g", "h"}) {
        EXPECT_EQ(Change(database, "UPDATE T Set v ='" + text + "' Where k ='" + key + "'"), 1);
    }
    EXPECT_EQ(ColumnOf(database, "T", 0), (Texts{"a", "b", "c", "d", "e", "f", "g", "h"}));
    EXPECT_EQ(ColumnOf(database, "T", 1), Texts(8, text));
    const Bytes page = PageOf(database.Content(), 18);
    EXPECT_EQ(NumberAt(page, 12, 2), 8U);
    int moved = 0;
    for (std::size_t slot = 0; slot < 8; ++slot) moved += (NumberAt(page, 14 + 2 * slot, 2) & 0xC000) == kMovedRow;
    EXPECT_GT(moved, 0);
    EXPECT_TRUE(SameTables(database, Database::FromBytes(database.Content())));
}

TEST(IndexedTable, MovedRowComesHomeWhenItFitsAgain)
{
    CraftedFile file = Indexed({{kMovedRow, Pointer(19, 0)}, {0, TwoTexts(u"b", u"x")}});
    file.AddPage(DataPage(kDefinition, {{kMovedTarget, TwoTexts(u"a", std::u16string(200, u'x'))}}));
    Database database = Database::FromBytes(file.bytes);
    Change(database, "UPDATE T Set v ='short' Where k ='a'");
    EXPECT_EQ(ColumnOf(database, "T", 1), (Texts{"short", "x"}));
    EXPECT_EQ(NumberAt(PageOf(database.Content(), 18), 14, 2) & 0xC000, 0U);
    EXPECT_EQ(NumberAt(PageOf(database.Content(), 19), 14, 2), 0xC000U | 4096U);
}

TEST(IndexedTable, KeysAndNewRowsAreRefused)
{
    Database database = Database::FromBytes(Indexed({{0, TwoTexts(u"a", u"x")}}).bytes);
    const Bytes before = database.Content();
    EXPECT_EQ(FailureOf([&] { Change(database, "UPDATE T Set v ='y', k ='b'"); }),
              (Failure{-2147467259, "The column 'k' has an index and can't be changed."}));
    EXPECT_EQ(FailureOf([&] {
                  database.Insert({"T", {{"v", "y"}}});
              }),
              (Failure{-2147467259, "The table 'T' has an index or counts its rows; none can be added."}));
    EXPECT_EQ(database.Content(), before);
}

// --- the catalog and the definition

TEST(ForeignFile, HiddenAndSystemTablesAreNotListed)
{
    Bytes bytes = NewFile({"CREATE TABLE SEEN(a text(5))", "CREATE TABLE HIDDEN(a text(5))"});
    // HIDDEN is the tenth row of the catalog; its flags are the last four of the 30 fixed bytes behind the count.
    const std::size_t row = 14 * kPage + NumberAt(bytes, 14 * kPage + 14 + 2 * 9, 2);
    PutNumber(bytes, row + 2 + 26, 2, 4);
    EXPECT_EQ(Database::FromBytes(bytes).TableNames(), Texts{"SEEN"});
}

TEST(ForeignFile, DamagedDefinitionsAreRefused)
{
    const auto refused = [](auto damage) {
        CraftedFile file = TwoColumns();
        Bytes page = PageOf(file.bytes, kDefinition);
        damage(page);
        file.SetPage(kDefinition, page);
        const Database database = Database::FromBytes(file.bytes);
        return FailureOf([&] { (void)database.ReadRows("T"); }).number == -2147467259;
    };
    EXPECT_TRUE(refused([](Bytes& page) { page[0] = 1; }));                  // no definition
    EXPECT_TRUE(refused([](Bytes& page) { PutNumber(page, 8, 62, 4); }));    // too short
    EXPECT_TRUE(refused([](Bytes& page) { PutNumber(page, 8, 5000, 4); }));  // longer than its pages
    EXPECT_TRUE(refused([](Bytes& page) {
        PutNumber(page, 4, kDefinition, 4);
        PutNumber(page, 8, 5000, 4);
    }));                                                                                  // a chain in a circle
    EXPECT_TRUE(refused([](Bytes& page) { PutNumber(page, 0x2D, 256, 2); }));             // columns
    EXPECT_TRUE(refused([](Bytes& page) { PutNumber(page, 0x33, 65, 4); }));              // indexes
    EXPECT_TRUE(refused([](Bytes& page) { PutNumber(page, 0x33, 0xFFFFFFFF, 4); }));      // indexes
    EXPECT_TRUE(refused([](Bytes& page) { PutNumber(page, 0x3F + 5, 2, 2); }));           // a column's number
    EXPECT_TRUE(refused([](Bytes& page) { PutNumber(page, 0x3F + 5, 1, 2); }));           // the other one's number
    EXPECT_TRUE(refused([](Bytes& page) { PutNumber(page, 0x3F + 7, 2, 2); }));           // its place in the row
    EXPECT_TRUE(refused([](Bytes& page) { PutNumber(page, 0x3F + 50, 0xFFF0, 2); }));     // a name's length
    EXPECT_TRUE(refused([](Bytes& page) { PutNumber(page, 0x37, 0, 4); }));               // no map
    EXPECT_TRUE(refused([](Bytes& page) { PutNumber(page, 0x37, kMaps << 8 | 7, 4); }));  // no such map
    EXPECT_FALSE(refused([](Bytes&) {}));
}

TEST(ForeignFile, DamagedDataPagesAndMapsAreRefused)
{
    const auto refused = [](std::uint32_t number, auto damage) {
        CraftedFile file = TwoColumns();
        Bytes page = PageOf(file.bytes, number);
        damage(page);
        file.SetPage(number, page);
        const Database database = Database::FromBytes(file.bytes);
        return FailureOf([&] { (void)database.ReadRows("T"); }).number == -2147467259;
    };
    EXPECT_TRUE(refused(kRows, [](Bytes& page) { PutNumber(page, 12, 256, 2); }));       // too many slots
    EXPECT_TRUE(refused(kRows, [](Bytes& page) { PutNumber(page, 12, 200, 2); }));       // slots without sense
    EXPECT_TRUE(refused(kRows, [](Bytes& page) { PutNumber(page, 14, 15, 2); }));        // a row over the directory
    EXPECT_TRUE(refused(kRows, [](Bytes& page) { PutNumber(page, 14, 0x1001, 2); }));    // a row behind the page
    EXPECT_TRUE(refused(kRows, [](Bytes& page) { PutNumber(page, 14, 0x2FE0, 2); }));    // an unknown flag
    EXPECT_TRUE(refused(kRows, [](Bytes& page) { PutNumber(page, 14, 4096, 2); }));      // a row of no bytes
    EXPECT_TRUE(refused(kMaps, [](Bytes& page) { page[kPage - 69] = 2; }));              // an unknown kind of map
    EXPECT_TRUE(refused(kMaps, [](Bytes& page) { page[kPage - 69 + 1] = 0xFF; }));       // a window far outside
    EXPECT_TRUE(refused(kMaps, [](Bytes& page) { PutNumber(page, 14, 4096 - 4, 2); }));  // a map of four bytes
    EXPECT_TRUE(refused(kMaps, [](Bytes& page) {
        page[kPage - 69] = 1;
        PutNumber(page, kPage - 68, kRows, 4);
    }));  // bits on a page of rows
}

}  // namespace
}  // namespace terravane
