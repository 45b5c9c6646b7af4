#include "batch/result_rows.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "batch_bench.h"

namespace terravane {
namespace {

TEST(CsvRows, TheHeadNamesEveryColumnOfSummary)
{
    EXPECT_EQ(CsvHead(),
              "project,material,sum_ID,sum_LL,sum_PL,sum_PI,sum_gravel,sum_sand,sum_finer,sum_USCS,sum_AASHTO,sum_Gs,"
              "sum_omcS,sum_mddS,sum_omcM,sum_mddM,sum_CBR,sum_swelling,sum_compaction\n");
}

TEST(CsvRows, AFieldWithACommaOrAQuoteIsQuoted)
{
    support::BatchBench bench;
    bench.Put("SUMMARY", "sum_USCS", 2, "SP-SM");
    bench.options.materials = {"crush"};
    EXPECT_EQ(CsvRows("/งาน, \"ปี\"/a.mdb", bench.Texts(), bench.options),
              "\"/งาน, \"\"ปี\"\"/a.mdb\",crush,2,,,,,,,SP-SM,,,,,,,,,\n");
}

TEST(JsonObject, HoldsResultsAndTheReadingsOfEveryTestThatHasSome)
{
    support::BatchBench bench;
    PutCompaction(bench, "STDSOIL", support::kTopAt200);
    bench.Put("SUMMARY", "sum_finer", 1, " 40");
    const auto json = nlohmann::json::parse(JsonObject("a.mdb", bench.Texts(), bench.options, {}, {}));
    EXPECT_EQ(json["project"], "a.mdb");
    EXPECT_EQ(json["soil"]["results"]["sum_finer"], "40");
    EXPECT_EQ(json["soil"]["tests"].size(), 1U);
    EXPECT_EQ(json["soil"]["tests"]["std"]["table"], "STDSOIL");
    EXPECT_EQ(json["soil"]["tests"]["std"]["rows"][1]["std_wcanw"], "120");
    EXPECT_TRUE(json["crush"]["tests"].empty());
}

TEST(JsonObject, APathThatIsNoTextDoesNotBreakTheLine)
{
    support::BatchBench bench;
    const auto line = JsonObject("a\xff\n.mdb", bench.Texts(), bench.options, {}, {});
    EXPECT_EQ(line.find('\n'), std::string::npos);
    EXPECT_TRUE(nlohmann::json::accept(line));
}

TEST(ManifestRows, AreALineAnOutput)
{
    const JournalEntry entry{"", "", "", {{"out/a.pdf", 2, 700, "abc"}, {"out/b,c.pdf", 3, 9, "def"}}};
    EXPECT_EQ(ManifestRows("a.mdb", entry), "out/a.pdf,2,700,abc,a.mdb\n\"out/b,c.pdf\",3,9,def,a.mdb\n");
}

}  // namespace
}  // namespace terravane
