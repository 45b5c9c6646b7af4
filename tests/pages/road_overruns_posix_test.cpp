// On the printed pages of an ordinary job every text fits; of an odd one it is told which do not.
#include <fstream>

#include <gtest/gtest.h>

#include "drawing/overruns.h"
#include "reports/print_report.h"
#include "source_folder.h"
#include "support/road_project.h"

namespace terravane {
namespace {

using namespace support;

/// Types a job's sheets again, and tells of the pages of each before it is closed.
std::string ToldOfRoad(const std::vector<std::string>& typedToo)
{
    RoadProject road(kSourceFolder);
    std::string told;
    for (const auto& script : RoadScripts(kSourceFolder)) {
        if (script.stem() == "00_project") continue;
        std::ifstream lines(script);
        for (std::string line; std::getline(lines, line);) {
            if (line == "close") {
                for (const std::string& typed : typedToo) road.Do(typed);
                for (const Overrun& overrun : OverrunsOf(PagesOfReport(road.OfProgram())))
                    told +=
                        script.stem().string() + ", page " + std::to_string(overrun.page) + ": " + Told(overrun) + "\n";
            }
            road.Do(line);
        }
    }
    return told;
}

TEST(RoadOverruns, OfAnOrdinaryJobNothingOverruns)
{
    EXPECT_EQ(ToldOfRoad({}), "");
}

TEST(RoadOverruns, LongParticularsAreTold)
{
    const std::string told = ToldOfRoad({"set txtProject " + std::string(120, 'M')});
    for (const char* script :
         {"01_soil_atterberg", "04_soil_standard_compaction", "06_soil_cbr", "14_rock_field_density"})
        EXPECT_NE(told.find(std::string(script) + ", page 2: “MMMM"), std::string::npos) << told;
}

}  // namespace
}  // namespace terravane
