// What is worked out from the descriptions: orders and columns. The tables themselves are written down a second time in
// the schema's test.
#include "laboratory/kept_columns.h"

#include <string>

#include <gtest/gtest.h>

#include "laboratory/tests.h"
#include "runtime/runtime_error.h"

namespace terravane::laboratory {
namespace {

std::string Suffixes(std::span<const KeptColumn> columns, int records = 0)
{
    std::string names;
    for (const KeptColumn& column : columns)
        if (records == 0 || column.records == records) names.append(names.empty() ? "" : " ").append(column.suffix);
    return names;
}

const KeptColumn& Column(terravane::Test test, std::string_view suffix)
{
    const auto columns = TableColumns(Describe(test).sheet);
    return *std::ranges::find(columns, suffix, &KeptColumn::suffix);
}

// The table has the position third, a statement names it behind the general data.
TEST(KeptColumns, StandWhereTheirPlaceSaysAndStatementsBeginWithTheGeneralData)
{
    const Sheet& sheet = Describe(terravane::Test::DenSoil).sheet;
    EXPECT_EQ(Suffixes(TableColumns(sheet)),
              "ID date soil pos test check height dia imsjc fmsjc mem mms mmsp mp imsj fmsj mwsc mdsc mc mdd comp");
    EXPECT_EQ(Suffixes(StatementColumns(sheet)),
              "date soil test check pos height dia imsjc fmsjc mem mms mmsp mp imsj fmsj mwsc mdsc mc mdd comp");
}

TEST(KeptColumns, OfGridsWithMoreOrFewerTrialsAreSavedApart)
{
    const auto gravity = StatementColumns(Describe(terravane::Test::SpcSoil).sheet);
    EXPECT_EQ(Suffixes(gravity, 7), "date soil test check temp1 fwater");
    EXPECT_EQ(Suffixes(gravity, 3), "temp2 swsoil can dscan wcan gs");
    const auto ratio = StatementColumns(Describe(terravane::Test::CBRSoil).sheet);
    EXPECT_EQ(Suffixes(ratio, 6),
              "date soil test check typ mcan wcanw wcand wcan nb dm hs wms wm sd st set s1 s2 s3 k sur");
    EXPECT_EQ(Suffixes(ratio, 20), "pen read1 read2 read3");
}

TEST(KeptColumns, KnowTheirPlaceOnTheSheet)
{
    using enum KeptColumn::Kind;
    const KeptColumn& mass = Column(terravane::Test::StdSoil, "wcanw");
    EXPECT_EQ(mass.kind, GridRow);
    EXPECT_EQ(mass.control, "MSHWt");
    EXPECT_EQ(mass.line, 2);
    const KeptColumn& sieve = Column(terravane::Test::SieSoil, "mss");
    EXPECT_EQ(sieve.kind, GridLine);
    EXPECT_EQ(sieve.line, 3);
    EXPECT_EQ(Column(terravane::Test::SieSoil, "pwash").kind, Choice);
    EXPECT_EQ(Column(terravane::Test::AttSoil, "soil").kind, Head);
}

// Two rows of the swelling's heads are kept with it: the grid's row 1 is the table's first, its readings begin in
// row 3. The penetrations begin in row 0.
TEST(KeptColumns, CountTheirRecordsFromWhereTheGridKeepsThem)
{
    const KeptColumn& dial = Column(terravane::Test::CBRSoil, "s1");
    EXPECT_EQ(dial.firstRecord, 1);
    EXPECT_EQ(dial.firstLoaded, 3);
    EXPECT_EQ(dial.records, 6);
    EXPECT_EQ(dial.lastLoaded, 7) << "the last reading";
    const KeptColumn& penetration = Column(terravane::Test::CBRSoil, "pen");
    EXPECT_EQ(penetration.firstRecord, 0);
    EXPECT_EQ(penetration.firstLoaded, 1);
    EXPECT_EQ(penetration.lastLoaded, 20);
    EXPECT_TRUE(penetration.isList);
    EXPECT_FALSE(dial.isList);
}

TEST(KeptColumns, OfResultsAreSavedAndNotReadBack)
{
    EXPECT_FALSE(Column(terravane::Test::StdSoil, "mdd").isLoaded);
    EXPECT_TRUE(Column(terravane::Test::StdSoil, "gs").isLoaded);
    EXPECT_TRUE(Column(terravane::Test::DenSoil, "mdd").isLoaded);
    EXPECT_FALSE(Column(terravane::Test::SieSoil, "LL").isLoaded);
}

TEST(Descriptions, AreFoundByTestAndByKey)
{
    EXPECT_EQ(Describe(terravane::Test::ModSoil).key, "mod");
    EXPECT_EQ(FindTest("cbr"), &Describe(terravane::Test::CBRSoil));
    EXPECT_EQ(FindTest("CBR"), nullptr);
    EXPECT_THROW(Describe(terravane::Test::None), RuntimeError);
    EXPECT_EQ(Describe(Material::Crush).summaryRow, 2);
    EXPECT_THROW(Describe(Material::None), RuntimeError);
}

TEST(Descriptions, StandInTheOrdersOfToolbarWorkAndClosing)
{
    const auto keys = [](auto tests) {
        std::string names;
        for (const Description* test : tests) names.append(names.empty() ? "" : " ").append(test->key);
        return names;
    };
    const auto forms = [](auto sheets) {
        std::string names;
        for (const Sheet* sheet : sheets) names.append(names.empty() ? "" : " ").append(sheet->form.substr(3));
        return names;
    };
    EXPECT_EQ(keys(Tests()), "att sie spc std mod cbr den");
    EXPECT_EQ(keys(TestsInWorkOrder()), "att sie spc std mod den cbr");
    EXPECT_EQ(forms(SheetsClosedBeforeFile()), "Atterberg CBR Compaction Density Sieve Specific");
    EXPECT_EQ(forms(SheetsClosedBeforeSheet()), "Density Compaction CBR Sieve Specific Atterberg");
}

// A grid whose typed lines have a worked out one between them: flask and water, from the calibration curve.
TEST(Grids, KnowWhichLinesAreTyped)
{
    const Grid& trials = Describe(terravane::Test::SpcSoil).sheet.TheGrid("MSHSpecific");
    EXPECT_EQ(trials.FirstTyped(), 1);
    EXPECT_EQ(trials.LastTyped(), 6);
    EXPECT_FALSE(trials.IsTyped(2));
    EXPECT_FALSE(trials.IsTyped(0)) << "a head";
    const Grid& molds = Describe(terravane::Test::CBRSoil).sheet.TheGrid("MSHCompaction");
    EXPECT_EQ(molds.FirstTyped(), 2) << "behind the two heads";
    EXPECT_EQ(molds.Rows(), 9);
    EXPECT_EQ(molds.Columns(), 7);
}

}  // namespace
}  // namespace terravane::laboratory
