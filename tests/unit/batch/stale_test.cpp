#include "batch/stale.h"

#include <gtest/gtest.h>

#include "batch_bench.h"

namespace terravane {
namespace {

using support::BatchBench;
using Sentences = std::vector<std::string>;

/// A job as it should be: MDD 2.00 posted, saved and taken over by the field density test.
struct StaleJob : BatchBench {
    StaleJob()
    {
        PutCompaction(*this, "STDSOIL", support::kTopAt200);
        PutPeak(*this, "10.0", "2.00");
        PutDensity(*this, "2.00", " 100");
    }
};

TEST(Stale, NothingInAJobWhoseResultsFollow)
{
    EXPECT_EQ(StaleJob().Stale(), Sentences());
}

TEST(Stale, NothingInANewProject)
{
    EXPECT_EQ(BatchBench().Stale(), Sentences());
}

// The trap: a compaction trial weighed again, plotted and saved, after the field density test took the old MDD.
TEST(Stale, ADensityTestThatTookTheMddOfBeforeIsTold)
{
    StaleJob job;
    PutCompaction(job, "STDSOIL", support::kTopAt250);
    PutPeak(job, "10.0", "2.50");
    EXPECT_EQ(job.Stale(),
              (Sentences{"soil: DENSOIL den_mdd 2.00 in row 1: the standard compaction's MDD is 2.50 now",
                         "soil: SUMMARY sum_compaction 100: the readings of the field density test and what it takes "
                         "from other tests give 80 now"}));
}

// The sheet forgets its result when it is opened again, so a Save without a new plot leaves the store without one.
TEST(Stale, ACompactionSavedWithoutANewPlotIsTold)
{
    StaleJob job;
    PutCompaction(job, "STDSOIL", support::kTopAt250);
    job.PutAll("STDSOIL", "std_mdd", "");
    job.PutAll("STDSOIL", "std_omc", "");
    const auto stale = job.Stale();
    ASSERT_EQ(stale.size(), 3U);
    EXPECT_EQ(stale[0], "soil: SUMMARY sum_mddS 2.00: the readings of the standard compaction give 2.50 now");
    EXPECT_EQ(stale[1], "soil: DENSOIL den_mdd 2.00 in row 1: the standard compaction's MDD is 2.50 now");
}

TEST(Stale, TheTestsOwnSavedResultIsToldToo)
{
    StaleJob job;
    job.PutAll("STDSOIL", "std_mdd", "1.99");
    EXPECT_EQ(job.Stale(),
              Sentences{"soil: STDSOIL std_mdd 1.99: the readings of the standard compaction give 2.00 now"});
}

TEST(Stale, APostedResultWithoutReadingsIsTold)
{
    BatchBench bench;
    bench.Put("SUMMARY", "sum_Gs", 2, "2.70");
    EXPECT_EQ(bench.Stale(), Sentences{"crushed rock: SUMMARY sum_Gs 2.70: the specific gravity test gives no such "
                                       "result now: it has no saved readings"});
}

// A mold without a height has no volume.
TEST(Stale, APostedResultWhoseReadingsFailIsToldWithTheFailure)
{
    StaleJob job;
    job.PutAll("STDSOIL", "std_height", "0");
    const auto stale = job.Stale();
    ASSERT_FALSE(stale.empty());
    EXPECT_EQ(stale[0],
              "soil: STDSOIL std_omc 10.0: the standard compaction gives no such result now (Calculate: Division by "
              "zero)");
}

TEST(Stale, ABlankIsNeverStale)
{
    StaleJob job;
    job.Put("SUMMARY", "sum_mddS", 1, "   ");
    job.Put("SUMMARY", "sum_compaction", 1, "");
    EXPECT_EQ(job.Stale(), Sentences());
}

// Four points at 8, 10, 12 and 14 % with 1.60, 2.00, 2.00, 1.60 g/cm³. The cubic through them is the parabola 2.05 -
// 0.05 (x - 11)², so the fit tops at 2.05. The natural spline has the second derivative -0.12 at both inner points, so
// it tops at 2.00 + 0.12 * 2² / 8 = 2.06.
struct FourPoints : BatchBench {
    FourPoints() { PutCompaction(*this, "STDSOIL", {{8, 1730}, {10, 2200}, {12, 2240}, {14, 1820}}); }
};

TEST(Stale, AResultOfEitherCurveFollows)
{
    for (const char* mdd : {"2.05", "2.06"}) {
        FourPoints job;
        PutPeak(job, "11.0", mdd);
        EXPECT_EQ(job.Stale(), Sentences()) << mdd;
    }
}

TEST(Stale, ACurveNamedByOptionIsTheOnlyOneThatCounts)
{
    FourPoints job;
    PutPeak(job, "11.0", "2.05");
    job.options.given.curve = "optInt";
    const auto stale = job.Stale();
    ASSERT_EQ(stale.size(), 2U);
    EXPECT_EQ(stale[0], "soil: STDSOIL std_mdd 2.05: the readings of the standard compaction give 2.06 now");
}

TEST(Stale, AResultOfNeitherCurveIsComparedWithTheSheetsOwn)
{
    FourPoints job;
    PutPeak(job, "11.0", "2.04");
    const auto stale = job.Stale();
    ASSERT_EQ(stale.size(), 2U);
    EXPECT_EQ(stale[1], "soil: SUMMARY sum_mddS 2.04: the readings of the standard compaction give 2.06 now");
}

// A gravity and limits may be typed where the tests that give them were not made.
TEST(Stale, WhatWasTypedForWantOfATestIsNotStale)
{
    StaleJob job;
    job.PutAll("STDSOIL", "std_gs", "2.70");
    job.PutAll("SIESOIL", "sie_LL", "25");
    job.Put("SIESOIL", "sie_mss", 1, "400");
    EXPECT_EQ(job.Stale(), Sentences());
}

TEST(Stale, ATypedResultOfATestWithoutReadingsIsNotStale)
{
    BatchBench bench;
    bench.PutAll("SPCSOIL", "spc_gs", "2.70");
    EXPECT_EQ(bench.Stale(), Sentences());
}

TEST(Stale, RowsOfOneTextAreToldTogether)
{
    StaleJob job;
    for (const int row : {1, 3}) job.Put("DENSOIL", "den_mdd", row, "1.90");
    EXPECT_EQ(job.Stale().at(0), "soil: DENSOIL den_mdd 1.90 in rows 1, 3: the standard compaction's MDD is 2.00 now");
}

TEST(Stale, AnMddOfATestWithoutOneIsTold)
{
    BatchBench bench;
    PutDensity(bench, "2.00", " 100");
    const auto stale = bench.Stale();
    ASSERT_EQ(stale.size(), 2U);
    EXPECT_EQ(
        stale[0],
        "soil: DENSOIL den_mdd 2.00 in row 1: the standard compaction gives no MDD now: it has no saved readings");
}

TEST(SaysTheSame, NumbersByValueAndTextsWithoutTheirBlanks)
{
    EXPECT_TRUE(SaysTheSame(" 40", "40.0"));
    EXPECT_TRUE(SaysTheSame("SC ", " SC"));
    EXPECT_FALSE(SaysTheSame("2.10", "2.14"));
    EXPECT_FALSE(SaysTheSame("", "0"));
}

}  // namespace
}  // namespace terravane
