// The format of project file and brand store, typed here a second time from the laboratory's list of columns.
#include "store/schema.h"

#include <gtest/gtest.h>

#include "runtime/memory_file_system.h"
#include "store/new_stores.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

using TestKind = terravane::Test;  // inside a test "Test" is the test

struct Listed {
    std::string name;
    int rows;
    std::string prefix, columns;  // each with its length
};

const std::string kCompaction =
    "ID:10 date:10 soil:20 test:50 check:50 height:10 dia:10 blow:10 layer:10 wt:10 can:5 wcanw:10 wcand:10 wcan:10 "
    "awc:5 wsm:10 wm:10 omc:10 mdd:10 gs:10";
const std::string kDensity =
    "ID:10 date:10 soil:20 pos:100 test:50 check:50 height:10 dia:10 imsjc:10 fmsjc:10 mem:10 mms:10 mmsp:10 mp:10 "
    "imsj:10 fmsj:10 mwsc:10 mdsc:10 mc:10 mdd:10 comp:10";
const std::string kSpecific =
    "ID:10 date:10 soil:20 test:50 check:50 temp1:10 fwater:10 temp2:10 swsoil:10 can:10 dscan:10 wcan:10 gs:10";
const std::string kAtterberg =
    "ID:10 date:10 soil:20 test:50 check:50 blows:10 wscan1:10 dscan1:10 wcan1:10 wscan2:10 dscan2:10 wcan2:10 LL:10 "
    "PL:10 PI:10 FI:10";
const std::string kSieve =
    "ID:10 date:10 soil:20 test:50 check:50 pwash:10 mos:10 maw:10 mlw:10 sn:15 so:10 ms:10 mss:10 LL:10 PL:10";
const std::string kCbr =
    "ID:10 date:10 soil:20 test:50 check:50 typ:10 mcan:10 wcanw:10 wcand:10 wcan:10 nb:15 dm:10 hs:10 wms:10 wm:10 "
    "sd:20 st:10 set:10 s1:10 s2:10 s3:10 k:10 sur:10 pen:10 read1:10 read2:10 read3:10";
const std::string kSummary =
    "ID:10 LL:10 PL:10 PI:10 gravel:10 sand:10 finer:10 USCS:20 AASHTO:20 Gs:10 omcS:10 mddS:10 omcM:10 mddM:10 "
    "CBR:10 swelling:10 compaction:10";

const std::vector<Listed> kProject{
    {"HEAD", 1, "project_", "client:100 name:100 location:150 number:10"},
    {"STDSOIL", 6, "std_", kCompaction},
    {"MODSOIL", 6, "mod_", kCompaction},
    {"DENSOIL", 6, "den_", kDensity},
    {"SPCSOIL", 7, "spc_", kSpecific},
    {"ATTSOIL", 5, "att_", kAtterberg},
    {"SIESOIL", 10, "sie_", kSieve},
    {"CBRSOIL", 20, "cbr_", kCbr},
    {"STDCRUSH", 6, "std_", kCompaction},
    {"MODCRUSH", 6, "mod_", kCompaction},
    {"DENCRUSH", 6, "den_", kDensity},
    {"CBRCRUSH", 20, "cbr_", kCbr},
    {"SPCCRUSH", 7, "spc_", kSpecific},
    {"ATTCRUSH", 5, "att_", kAtterberg},
    {"SIECRUSH", 10, "sie_", kSieve},
    {"SUMMARY", 2, "sum_", kSummary},
};

const std::vector<Listed> kBrand{
    {"LOGO", 1, "logo_", "ID:10 ins:100 dep:100 cov1:100 cov2:100 cov3:100"},
    {"PERSON", 15, "person_", "ID:10 name:100 position:50"},
};

std::string ColumnsOf(const TableSchema& table)
{
    std::string text;
    for (const ColumnSchema& column : table.columns) {
        text += (text.empty() ? "" : " ") + std::string(column.suffix) + ":" + std::to_string(column.length);
    }
    return text;
}

void ExpectSchema(std::span<const TableSchema> tables, const std::vector<Listed>& listed)
{
    ASSERT_EQ(tables.size(), listed.size());
    for (std::size_t i = 0; i < listed.size(); ++i) {
        EXPECT_EQ(tables[i].name, listed[i].name) << "Table " << i + 1 << " in the order of creation.";
        EXPECT_EQ(tables[i].rows, listed[i].rows) << listed[i].name;
        EXPECT_EQ(tables[i].prefix, listed[i].prefix) << listed[i].name;
        EXPECT_EQ(ColumnsOf(tables[i]), listed[i].columns) << listed[i].name;
        EXPECT_EQ(tables[i].keyed, listed[i].name != "HEAD") << listed[i].name;
    }
}

TEST(Schema, HasTheSixteenTablesOfAProject)
{
    ExpectSchema(ProjectTables(), kProject);
}

TEST(Schema, HasTheTwoTablesOfTheBrandStore)
{
    ExpectSchema(BrandTables(), kBrand);
}

TEST(Schema, GivesRowsTheirKeysWithALeadingBlank)
{
    EXPECT_EQ(RowKey(1), " 1");
    EXPECT_EQ(RowKey(10), " 10");
    EXPECT_EQ(RowKey(20), " 20");
}

TEST(Schema, FindsTheTableOfATestAndMaterial)
{
    struct Row {
        TestKind test;
        const char* soil;
        const char* crush;
    };
    for (const Row& row : {Row{TestKind::StdSoil, "STDSOIL", "STDCRUSH"}, Row{TestKind::ModSoil, "MODSOIL", "MODCRUSH"},
                           Row{TestKind::DenSoil, "DENSOIL", "DENCRUSH"}, Row{TestKind::SpcSoil, "SPCSOIL", "SPCCRUSH"},
                           Row{TestKind::AttSoil, "ATTSOIL", "ATTCRUSH"}, Row{TestKind::SieSoil, "SIESOIL", "SIECRUSH"},
                           Row{TestKind::CBRSoil, "CBRSOIL", "CBRCRUSH"}}) {
        EXPECT_EQ(TableOf(row.test, Material::Soil).name, row.soil);
        EXPECT_EQ(TableOf(row.test, Material::Crush).name, row.crush);
    }
}

TEST(Schema, HasNoTableBeforeASheetWasOpened)
{
    EXPECT_EQ(ErrorOf([] { TableOf(TestKind::None, Material::Soil); }), error::kInvalidProcedureCall);
    EXPECT_EQ(ErrorOf([] { TableOf(TestKind::StdSoil, Material::None); }), error::kInvalidProcedureCall);
}

TEST(Schema, NamesColumnsByTableAndSuffix)
{
    const TableSchema& table = TableOf(TestKind::ModSoil, Material::Crush);
    EXPECT_EQ(table.ColumnName("wcanw"), "mod_wcanw");
    EXPECT_EQ(table.KeyName(), "mod_ID");
}

}  // namespace
}  // namespace terravane
