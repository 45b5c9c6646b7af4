#include "batch/project_work.h"

#include <gtest/gtest.h>

#include "batch/pressing.h"
#include "batch_bench.h"
#include "journal/sha256.h"

namespace terravane {
namespace {

using support::BatchBench;

struct Job : BatchBench {
    Job() { PutCompaction(*this, "STDSOIL", support::kTopAt200); }
};

std::vector<std::string> PathsOf(const ProjectAnswer& answer)
{
    std::vector<std::string> paths;
    for (const Output& output : answer.entry.outputs) paths.push_back(output.path);
    return paths;
}

TEST(ProjectWork, PrintsTheTestsThatHaveReadings)
{
    Job job;
    PutDensity(job, "", "");
    const auto answer = job.Work();
    EXPECT_EQ(answer.failure, "");
    EXPECT_EQ(PathsOf(answer),
              (std::vector<std::string>{"/out/TRVN_road_std_soil.pdf", "/out/TRVN_road_den_soil.pdf"}));
    for (const Output& output : answer.entry.outputs) {
        const Bytes content = job.disk.Content(output.path);
        EXPECT_EQ(output.pages, 2U) << "cover and report of " << output.path;
        EXPECT_EQ(output.bytes, content.size());
        EXPECT_EQ(output.sha256, Sha256(content));
    }
}

TEST(ProjectWork, ProjectsWithoutReadingsGiveNoFile)
{
    BatchBench bench;
    const auto answer = bench.Work();
    EXPECT_EQ(answer.failure, "");
    EXPECT_TRUE(answer.entry.outputs.empty());
}

TEST(ProjectWork, OneFileHoldsAllAndTheResultsPage)
{
    Job job;
    job.options.isOneFile = job.options.wantsSummary = true;
    const auto answer = job.Work();
    EXPECT_EQ(PathsOf(answer), std::vector<std::string>{"/out/TRVN_road.pdf"});
    EXPECT_EQ(answer.entry.outputs.at(0).pages, 3U);
}

TEST(ProjectWork, ThePdfsAreTheSameBytesEachTime)
{
    Job first, second;
    EXPECT_EQ(first.Work().entry.outputs, second.Work().entry.outputs);
}

TEST(ProjectWork, TheProjectItselfStaysAsItWas)
{
    Job job;
    const Bytes before = job.disk.Content(job.project.path);
    job.Work();
    EXPECT_EQ(job.disk.Content(job.project.path), before);
}

// The commands go to the private copy: its results stand in the rows though nothing is posted.
TEST(ProjectWork, RowsTellWhatTheCommandsGive)
{
    Job job;
    job.options.csv = "results.csv";
    const auto rows = job.Work().csvRows;
    EXPECT_EQ(rows,
              "/jobs/TRVN_road.mdb,soil,1,,,,,,,,,,10.0,2.00,,,,,\n"
              "/jobs/TRVN_road.mdb,crush,2,,,,,,,,,,,,,,,,\n");
}

TEST(ProjectWork, AsSavedPressesNothing)
{
    Job job;
    job.options.isAsSaved = true;
    job.options.csv = "results.csv";
    const auto answer = job.Work();
    EXPECT_EQ(answer.entry.outputs.size(), 1U);
    EXPECT_EQ(answer.csvRows.find("2.00"), std::string::npos);
}

TEST(ProjectWork, PostWritesTheResultsAndNothingElse)
{
    Job job;
    PutDensity(job, "", "");
    job.options.posts = true;
    EXPECT_EQ(job.Work().failure, "");
    EXPECT_EQ(job.Stored("SUMMARY", "sum_mddS"), "2.00");
    EXPECT_EQ(job.Stored("SUMMARY", "sum_omcS"), "10.0");
    EXPECT_EQ(job.Stored("SUMMARY", "sum_compaction"), " 100");
    EXPECT_EQ(job.Stored("STDSOIL", "std_mdd", 6), "2.00");
    EXPECT_EQ(job.Stored("DENSOIL", "den_mdd", 1), "2.00");
    EXPECT_EQ(job.Stored("STDSOIL", "std_date"), "   ");
    EXPECT_EQ(job.Stored("STDSOIL", "std_wcanw"), "118");
    EXPECT_EQ(job.Stored("STDSOIL", "std_can"), "   ");
}

TEST(ProjectWork, PostMendsWhatACheckTells)
{
    Job job;
    PutDensity(job, "1.90", " 95");
    job.options.posts = true;
    job.Work();
    job.options.posts = false;
    EXPECT_EQ(job.Stale(), std::vector<std::string>());
}

TEST(ProjectWork, PostLeavesWhatCannotBeWorkedOut)
{
    Job job;
    PutPeak(job, "10.0", "2.00");
    job.PutAll("STDSOIL", "std_height", "0");
    job.options.posts = true;
    const auto answer = job.Work();
    EXPECT_EQ(answer.failure, "Standard Compaction, soil: Calculate: Division by zero");
    EXPECT_EQ(answer.entry.outputs.size(), 1U) << "the sheet is printed as it stands";
    EXPECT_EQ(job.Stored("SUMMARY", "sum_mddS"), "2.00");
    EXPECT_EQ(job.Stored("STDSOIL", "std_mdd"), "2.00");
}

TEST(ProjectWork, ANamedTestIsPrintedAloneButTakesItsResultsFromOthers)
{
    Job job;
    PutDensity(job, "", "");
    job.options.tests = {"den"};
    job.options.csv = "results.csv";
    const auto answer = job.Work();
    EXPECT_EQ(PathsOf(answer), std::vector<std::string>{"/out/TRVN_road_den_soil.pdf"});
    EXPECT_NE(answer.csvRows.find(",100\n"), std::string::npos) << "its MDD is that of the compaction";
}

// Field density takes the compaction's MDD, and that the specific gravity for its air-void line.
TEST(ProjectWork, WhatATestNeedsIsWorkedThroughAllItsSources)
{
    BatchOptions options;
    options.tests = {"den"};
    for (const char* needed : {"den", "std", "mod", "spc"})
        EXPECT_TRUE(IsNeeded(options, *laboratory::FindTest(needed))) << needed;
    for (const char* other : {"att", "sie", "cbr"})
        EXPECT_FALSE(IsNeeded(options, *laboratory::FindTest(other))) << other;
    options.isAsSaved = true;
    EXPECT_FALSE(IsNeeded(options, *laboratory::FindTest("std"))) << "nothing is worked out anew";
}

TEST(ProjectWork, ADamagedProjectFailsWithItsReason)
{
    BatchBench bench;
    bench.options.json = "all.json";
    bench.disk.Put(bench.project.path, "no database");
    const auto answer = bench.Work();
    EXPECT_NE(answer.failure, "");
    EXPECT_NE(answer.json.find("\"failure\""), std::string::npos);
    bench.disk.TakeAway(bench.project.path);
    EXPECT_EQ(bench.Work().failure, "Could not find file '/jobs/TRVN_road.mdb'.");
}

// The third write of a run with two outputs is the second output's.
TEST(ProjectWork, AFullDiskFailsTheProjectAndLeavesNoHalfFile)
{
    Job job;
    PutDensity(job, "", "");
    job.disk.FailAtStep(5, error::kDiskFull);
    const auto answer = job.Work();
    EXPECT_NE(answer.failure, "");
    EXPECT_TRUE(job.disk.Exists("/out/TRVN_road_std_soil.pdf"));
    EXPECT_FALSE(job.disk.Exists("/out/TRVN_road_den_soil.pdf"));
}

struct Finished : Job {
    JournalEntry earlier;
    Finished()
    {
        options.resumes = true;
        earlier = Work().entry;
    }
    bool IsDoneAgain() { return !Work(earlier).wasThere; }
};

TEST(Resume, AFinishedProjectIsLeftOut)
{
    Finished job;
    const int before = job.disk.Steps();
    const auto answer = job.Work(job.earlier);
    EXPECT_TRUE(answer.wasThere);
    EXPECT_EQ(answer.entry.outputs, job.earlier.outputs);
    EXPECT_EQ(job.disk.Steps(), before) << "nothing is written";
}

TEST(Resume, ItsRowsStandInTheTablesAllTheSame)
{
    Finished job;
    job.options.csv = "results.csv";
    EXPECT_NE(job.Work(job.earlier).csvRows.find("10.0,2.00"), std::string::npos);
}

TEST(Resume, AChangedProjectIsDoneAgain)
{
    Finished job;
    job.Put("STDSOIL", "std_soil", 1, "Sample 2");
    EXPECT_TRUE(job.IsDoneAgain());
}

TEST(Resume, AMissingOrChangedOutputIsDoneAgain)
{
    Finished job;
    job.disk.TakeAway("/out/TRVN_road_std_soil.pdf");
    EXPECT_TRUE(job.IsDoneAgain());
    job.disk.Put("/out/TRVN_road_std_soil.pdf", "cut");
    EXPECT_TRUE(job.IsDoneAgain());
}

TEST(Resume, OtherOptionsBrandAndDateAreDoneAgain)
{
    Finished options, brand, date;
    options.options.given.curve = "optFit";
    EXPECT_TRUE(options.IsDoneAgain());
    brand.brand.digest = "another";
    EXPECT_TRUE(brand.IsDoneAgain());
    date.options.today = MakeMoment(2026, 12, 1, 12);
    EXPECT_FALSE(date.IsDoneAgain()) << "a run broken off before midnight goes on after it";
    date.options.isTodayGiven = true;
    EXPECT_TRUE(date.IsDoneAgain());
}

TEST(Resume, ACheckIsMadeAllTheSame)
{
    Finished job;
    job.Put("SUMMARY", "sum_Gs", 1, "2.70");
    job.earlier = job.Work().entry;
    job.options.checks = true;
    EXPECT_EQ(job.Work(job.earlier).stale.size(), 1U);
}

TEST(Resume, APostedProjectIsLeftOut)
{
    Job job;
    job.options.resumes = job.options.posts = true;
    const auto earlier = job.Work().entry;
    EXPECT_TRUE(job.Work(earlier).wasThere);
}

TEST(ProjectAnswer, GoesThroughItsTextUnchanged)
{
    ProjectAnswer answer;
    answer.failure = "a path of no text: \xff";
    answer.entry = {"c", "m", "2026-11-21", {{"/out/ถนน.pdf", 2, 3, "s"}}};
    answer.stale = {"one", "two"};
    answer.csvRows = "a,b\n";
    answer.json = "{}";
    const auto read = ReadAnswer(ToText(answer));
    EXPECT_EQ(read.failure, answer.failure);
    EXPECT_EQ(read.entry.outputs, answer.entry.outputs);
    EXPECT_EQ(read.stale, answer.stale);
    EXPECT_EQ(read.csvRows, answer.csvRows);
    EXPECT_EQ(read.json, answer.json);
}

}  // namespace
}  // namespace terravane
