// The format's published vectors, byte for byte.
#include <gtest/gtest.h>

#include "jet/header_page.h"
#include "jet/index_leaf.h"
#include "support/jet_files.h"

namespace terravane {
namespace {

using namespace support;

const char* const kHeadTable =
    "CREATE TABLE HEAD(project_client text(100),project_name text(100),project_location text(150),project_number "
    "text(10))";
const char* const kHeadRow =
    "insert into HEAD (project_client,project_name,project_location,project_number) Values ('   ','   ','   ','   ')";

// A database with the one table HEAD: definition 16, maps 17, rows 18.
Bytes HeadFile()
{
    return NewFile({kHeadTable, kHeadRow});
}

TEST(Header, MaskIsTheKnownStream)
{
    const auto mask = jet::HeaderMask();
    EXPECT_EQ(Bytes(mask.begin(), mask.begin() + 16), FromHex("b56f03626108c255eba96772433f009c"));
    EXPECT_EQ(Bytes(mask.end() - 8, mask.end()), FromHex("78160cede92d62d4"));
}

TEST(Header, MaskedPartOfAThaiFileIsTheKnownOne)
{
    EXPECT_EQ(PartOf(HeadFile(), 0x18, 0x80),
              FromHex("b56e03626009c255e9a96772403f009c7e9f90ff859a31c579baed30bcdfcc9d"
                      "63d9e4c31141fb8abc4e796fec37a2d09cfa39ca28e6ec228a60ab007b360ae6"
                      "dfb188601343303bb133cbf5795b6d217c2aafd07c991f1f98fdae3d55e99da1"
                      "82665f95f8d089248567c61f2744d2eecf65edff07c746a178160cede92d62d4"));
}

TEST(Header, UnmaskedPartHasSignatureVersionConstantsAndUserSlots)
{
    const Bytes file = HeadFile();
    EXPECT_EQ(PartOf(file, 0, 0x18), FromHex("00010000 5374616e64617264204a657420444200 01000000"));
    EXPECT_EQ(PartOf(file, 0x98, 8), FromHex("54060000 342e3000"));
    EXPECT_EQ(PartOf(file, 0xA0, 0xE00 - 0xA0), Bytes(0xE00 - 0xA0, 0));
    for (std::size_t at = 0xE00; at < kPage; at += 2) ASSERT_EQ(PartOf(file, at, 2), FromHex("0001")) << at;
}

TEST(TableDefinition, HeadIsTheKnownBlock)
{
    const Bytes expected = FromHex(
        "0201db0e000000001d0100005906000001000000000000000100000000000000"
        "00000000000000004e040004000400000000000000000000110000011100000a"
        "590600000000000000001e0400000200000000000000c8000a59060000010001"
        "0001001e0400000200000000000000c8000a590600000200020002001e040000"
        "02000000000000002c010a590600000300030003001e04000002000000000000"
        "0014001c00700072006f006a006500630074005f0063006c00690065006e0074"
        "001800700072006f006a006500630074005f006e0061006d0065002000700072"
        "006f006a006500630074005f006c006f0063006100740069006f006e001c0070"
        "0072006f006a006500630074005f006e0075006d00620065007200ffff");
    Bytes page = expected;
    page.resize(kPage);  // the rest of the page is zero
    EXPECT_EQ(PageOf(HeadFile(), 16), page);
}

TEST(DataPage, HeadsRowOfBlanksIsTheKnownOne)
{
    const Bytes page = PageOf(HeadFile(), 18);
    EXPECT_EQ(PartOf(page, 0, 14), FromHex("0101c90f10000000000000000100"));
    EXPECT_EQ(NumberAt(page, 14, 2), 0x0FD9U);
    EXPECT_EQ(PartOf(page, 0x0FD9, 39),
              FromHex("0400 200020002000 200020002000 200020002000 200020002000 1a00 1400 0e00 0800 0200 0400 0f"));
}

TEST(Catalog, RowOfHeadIsTheKnownOne)
{
    const Bytes page = PageOf(HeadFile(), 14);
    const Bytes expected = FromHex(
        "1100 10000000 0100000f 0100 00000000c0d5e140 00000000c0d5e140 00000000 4800450041004400 a633"
        "2a00 2a00 2a00 2a00 2a00 2a00 2a00 2a00 2a00 2a00 2800 2000 0b00 ff0000");
    ASSERT_EQ(NumberAt(page, 12, 2), 9U);  // eight objects of a new file, then HEAD in slot 8
    EXPECT_EQ(PartOf(page, NumberAt(page, 14 + 2 * 8, 2), expected.size()), expected);
}

TEST(Catalog, FirstRightOfHeadIsTheKnownOne)
{
    const Bytes page = PageOf(HeadFile(), 15);
    const Bytes expected = FromHex("0400 10000000 fffe0f00 a633 0c00 0a00 0100 07");
    ASSERT_EQ(NumberAt(page, 12, 2), 18U);  // sixteen rights of a new file, then two for HEAD
    EXPECT_EQ(PartOf(page, NumberAt(page, 14 + 2 * 16, 2), expected.size()), expected);
}

TEST(Catalog, LeafOfNamesHasTheKnownEntriesAndBits)
{
    const Bytes leaf = PageOf(HeadFile(), 7);
    EXPECT_EQ(PartOf(leaf, 0, 8), FromHex("0401 5f0d 02000000"));  // 3423 bytes free
    EXPECT_EQ(PartOf(leaf, 0x1B, 12), FromHex("000020000040000001000100"));
    std::size_t end = 0;
    for (const std::size_t length : {21U, 25U, 18U, 16U, 20U, 23U, 23U, 29U, 18U}) {
        end += length;
        EXPECT_TRUE(leaf[0x1B + end / 8] & 1 << end % 8) << end;
    }
    // Sorted by name below one parent, HEAD stands behind those of the Tables container that begin with a smaller
    // weight, and before MSys...; its bytes are the known ones.
    const Bytes head = FromHex("7f 8f000001 7f 57 51 4a 4f 01 00 00000e 08");
    EXPECT_NE(std::search(leaf.begin(), leaf.end(), head.begin(), head.end()), leaf.end());
}

TEST(Catalog, DefinitionsCountRowsAndKeys)
{
    const Bytes file = HeadFile();
    EXPECT_EQ(NumberAt(PageOf(file, 2), 0x10, 4), 9U);
    EXPECT_EQ(NumberAt(PageOf(file, 2), 0x3F + 4, 4), 9U);   // parent and name: all different
    EXPECT_EQ(NumberAt(PageOf(file, 2), 0x3F + 16, 4), 9U);  // ids: all different
    EXPECT_EQ(NumberAt(PageOf(file, 3), 0x10, 4), 18U);
    EXPECT_EQ(NumberAt(PageOf(file, 3), 0x3F + 4, 4), 9U);  // 2 to 5, three containers, MSysDb, HEAD
}

TEST(IndexKey, NumbersTurnTheirSign)
{
    Bytes key;
    jet::AppendKey(key, std::int32_t{-1});
    jet::AppendKey(key, std::int32_t{1});
    EXPECT_EQ(key, FromHex("7f 7fffffff 7f 80000001"));
}

TEST(IndexKey, SignsWeighOneByteOrTwo)
{
    Bytes key;
    jet::AppendKey(key, "a_9 ");
    EXPECT_EQ(key, FromHex("7f 4a 2b03 48 07 01 00"));
    EXPECT_FALSE(jet::CanBeKey("O'Brien"));
    EXPECT_FALSE(jet::CanBeKey("a-b"));
    EXPECT_FALSE(jet::CanBeKey("ดิน"));
}

TEST(IndexLeaf, EmptyOneHas3616BytesFree)
{
    const Bytes leaf = PageOf(HeadFile(), 10);  // of MSysQueries, which has no row
    EXPECT_EQ(NumberAt(leaf, 2, 2), 3616U);
    EXPECT_EQ(NumberAt(leaf, 4, 4), 4U);
}

TEST(NewFile, FreeMapHasNoPageInUse)
{
    const Bytes file = HeadFile();
    ASSERT_EQ(file.size(), 19 * kPage);
    const Bytes map = PartOf(PageOf(file, 1), kPage - 69, 69);
    EXPECT_EQ(PartOf(map, 0, 8), FromHex("00 00000000 0000f8"));  // 0 to 18 used, 19 on free
    EXPECT_EQ(PartOf(map, 8, 61), Bytes(61, 0xFF));
}

TEST(NewFile, SystemTablesHaveThirtyOneMaps)
{
    const Bytes page = PageOf(HeadFile(), 6);
    EXPECT_EQ(NumberAt(page, 12, 2), 31U);
    const auto map = [&](std::size_t slot) { return PartOf(page, kPage - 69 * (slot + 1), 69); };
    const auto onlyBit = [](std::size_t bit) {
        Bytes row(69, 0);
        row[5 + bit / 8] = static_cast<std::uint8_t>(1U << bit % 8);
        return row;
    };
    EXPECT_EQ(map(0), onlyBit(14));
    EXPECT_EQ(map(1), onlyBit(14));
    EXPECT_EQ(map(2), Bytes(69, 0));  // a column of long values
    EXPECT_EQ(map(16), onlyBit(7));   // ParentIdName
    EXPECT_EQ(map(17), onlyBit(8));   // Id
    EXPECT_EQ(map(18), onlyBit(15));  // MSysACEs
    EXPECT_EQ(map(20), onlyBit(9));   // ObjectId
    EXPECT_EQ(map(25), onlyBit(10));  // ObjectIdAttribute
    EXPECT_EQ(map(30), onlyBit(13));  // szReferencedObject
}

TEST(NewFile, SixteenTablesMakeSixtySixPages)
{
    EXPECT_EQ(NewFile(SampleStatements()).size(), 270336U);
}

}  // namespace
}  // namespace terravane
