// The format of project file and brand store, typed here a second time from the laboratory's list of columns; and which
// of them tell that a test was begun, and which hold results.
#include "store/schema.h"

#include <gtest/gtest.h>

#include "laboratory/tests.h"
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

/// What each test keeps beside its tables' names: the columns that tell readings, and those of results. A flag
/// forgotten in a description would make a test without readings of one that has some.
struct ListedTest {
    std::string key, soil, crushedRock, readings, results;
};
const std::vector<ListedTest> kTests{
    {"att", "ATTSOIL", "ATTCRUSH", "blows wscan1 wscan2", "LL PL PI FI"},
    {"sie", "SIESOIL", "SIECRUSH", "mos mss", "LL PL"},
    {"spc", "SPCSOIL", "SPCCRUSH", "temp1 fwater temp2 swsoil", "gs"},
    {"std", "STDSOIL", "STDCRUSH", "wcanw wcand wsm wm", "omc mdd gs"},
    {"mod", "MODSOIL", "MODCRUSH", "wcanw wcand wsm wm", "omc mdd gs"},
    {"cbr", "CBRSOIL", "CBRCRUSH", "wcanw wms read1 read2 read3", ""},
    {"den", "DENSOIL", "DENCRUSH", "imsjc mmsp imsj mwsc", "mdd"},
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

TEST(Schema, HasTheTablesOfAProject)
{
    ExpectSchema(ProjectTables(), kProject);
}

TEST(Schema, HasTheTablesOfTheBrandStore)
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
    ASSERT_EQ(laboratory::Tests().size(), kTests.size());
    for (const ListedTest& listed : kTests) {
        const TestKind test = laboratory::FindTest(listed.key)->test;
        EXPECT_EQ(TableOf(test, Material::Soil).name, listed.soil);
        EXPECT_EQ(TableOf(test, Material::Crush).name, listed.crushedRock);
    }
}

std::string Flagged(const laboratory::Description& test, bool laboratory::KeptColumn::*flag)
{
    std::string names;
    for (const laboratory::KeptColumn& column : laboratory::TableColumns(test.sheet))
        if (column.*flag) names.append(names.empty() ? "" : " ").append(column.suffix);
    return names;
}

TEST(Schema, KnowsReadingsAndResultsByTheirColumns)
{
    for (const ListedTest& listed : kTests) {
        const laboratory::Description& test = *laboratory::FindTest(listed.key);
        EXPECT_EQ(Flagged(test, &laboratory::KeptColumn::isReading), listed.readings) << listed.key;
        EXPECT_EQ(Flagged(test, &laboratory::KeptColumn::isResult), listed.results) << listed.key;
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
