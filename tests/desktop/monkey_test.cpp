// Random keys, clicks, drags, menus and closed windows with a fixed seed, window by window: whatever a hand slips on,
// the program stands, every form that is shown has its window, and every project file stays a whole one.
//
//   TERRAVANE_MONKEY_SECONDS=600 TERRAVANE_MONKEY_SEED=17 build/bin/desktop_tests --gtest_filter='Monkey.*'
//
// plays on with one seed after the other for so many seconds.
#include "desktop/monkey.h"

#include <QDir>
#include <QElapsedTimer>
#include <cstdio>
#include <cstdlib>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "laboratory/tests.h"
#include "source_folder.h"
#include "store/schema.h"
#include "store/statements.h"
#include "support/every_sheet.h"
#include "support/road_project.h"

namespace terravane {
namespace {

constexpr unsigned kFirstSeed = 20261121;
constexpr int kActsAStop = 35;
constexpr std::string_view kRoad = "TRVN_road.mdb";

long Asked(const char* variable, long otherwise)
{
    const char* const text = std::getenv(variable);
    return text ? std::strtol(text, nullptr, 10) : otherwise;
}

/// A project with readings in every test.
const Bytes& RoadFile()
{
    static const Bytes file = [] {
        support::RoadProject road(kSourceFolder);
        Program& program = road.OfProgram();
        return program.Files().Read(program.CurrentProjectPath);
    }();
    return file;
}

/// A window and how a person gets there.
struct Stop {
    std::string form;
    std::function<void(MonkeyDesk&)> go;
};

std::vector<Stop> AllStops()
{
    std::vector<Stop> stops{{"frmTitle", [](MonkeyDesk&) {}}};
    for (const auto& [form, entry] : {std::pair{"frmProject", "mnuNew"}, std::pair{"frmSummary", "mnuSum"},
                                      std::pair{"frmAbout", "mnuAbout"}, std::pair{"frmPreferences", "mnuLogoT"},
                                      std::pair{"frmPreferences", "mnuLogoC"}, std::pair{"frmPreferences", "mnuOpr"}}) {
        stops.push_back({form, [entry](MonkeyDesk& desk) { desk.Press("mdiBack", entry); }});
    }
    for (const auto& sheet : support::kSheetsUnderTest) {
        for (const auto& material : support::kMaterialsUnderTest) {
            const auto open = [&sheet, &material](MonkeyDesk& desk) {
                auto& frame = desk.program.Get<mdiBack>(kFrameName);
                frame.tbrLab.PressItem(std::string(sheet.Described().menu) + material.menuDigit);
            };
            const auto preview = [&sheet, open](MonkeyDesk& desk) {
                open(desk);
                for (const auto& command : sheet.commands)
                    desk.Press(std::string(sheet.Described().sheet.form), std::string(command.button));
                desk.Press(std::string(sheet.Described().sheet.form), "cmdView");
            };
            stops.push_back({std::string(sheet.Described().sheet.form), open});
            stops.push_back({"frmPreview", preview});
        }
    }
    return stops;
}

/// What mdb-count says of a table.
int CountedByAnother(const std::string& path, std::string_view table)
{
    std::FILE* const pipe = popen(("mdb-count '" + path + "' " + std::string(table) + " 2>&1").c_str(), "r");
    char text[64] = "";
    if (!pipe || !std::fgets(text, sizeof text, pipe)) text[0] = 0;
    return pipe && pclose(pipe) == 0 ? std::atoi(text) : -1;
}

class Tour {
  public:
    explicit Tour(unsigned seed) : folder_(home_.path().toStdString() + "/"), monkey_(seed, folder_) {}

    void Visit(const Stop& stop)
    {
        disk_.ReplaceWhole(folder_ + std::string(kRoad), RoadFile());
        MonkeyDesk desk(disk_, home_.path().toStdString());
        desk.surroundings.showsBox = [] { return false; };
        if (stop.form != "frmTitle") desk.OpenProject(folder_ + std::string(kRoad));
        desk.surroundings.files.push_back(folder_ + "new" + std::to_string(++stops_) + ".mdb");
        stop.go(desk);
        ASSERT_TRUE(desk.HasForm(stop.form)) << "The way to " << stop.form << " is blocked.";
        monkey_.Play(desk, kActsAStop);
        EXPECT_EQ(monkey_.Complaint(), "");
        EXPECT_EQ(desk.surroundings.unheardOf, "") << "No slip of a hand may lead there.";
        failures_.merge(desk.surroundings.failures);
    }

    /// Every project file that stands in the folder, in our reader and in another.
    void CheckFiles(bool alsoByAnother) const
    {
        const QDir folder(home_.path());
        for (const QString& name : folder.entryList({"TRVN_*.mdb"}, QDir::Files)) CheckFile(name, alsoByAnother);
        EXPECT_TRUE(folder.entryList({".*saving*"}, QDir::Files | QDir::Hidden).isEmpty()) << "A half save was left.";
    }

    int Acts() const { return monkey_.Acts(); }
    const std::set<std::string>& Failures() const { return failures_; }

  private:
    void CheckFile(const QString& name, bool alsoByAnother) const
    {
        const std::string path = folder_ + name.toStdString();
        jet::Connection project;
        ASSERT_NO_THROW(project.Open(disk_, path)) << path;
        const std::size_t ofTests = laboratory::Tests().size() * laboratory::kMaterials.size();
        EXPECT_GT(ProjectTables().size(), ofTests) << "Those of the whole project stand with them.";
        for (const TableSchema& table : ProjectTables()) {
            EXPECT_EQ(project.Execute(SelectAll(table.name)).RowCount(), static_cast<std::size_t>(table.rows))
                << path << " " << table.name;
            if (!alsoByAnother) continue;
            EXPECT_EQ(CountedByAnother(path, table.name), table.rows) << path << " " << table.name;
        }
    }

    QTemporaryDir home_;
    mutable DiskFileSystem disk_;
    std::string folder_;
    Monkey monkey_;
    int stops_ = 0;
    std::set<std::string> failures_;
};

void Print(unsigned seed, const Tour& tour)
{
    std::printf("seed %u: %d acts\n", seed, tour.Acts());
    for (const auto& failure : tour.Failures()) std::printf("  told: %s\n", failure.c_str());
    std::fflush(stdout);
}

TEST(Monkey, LeavesTheProgramStandingAndTheFilesWhole)
{
    QElapsedTimer time;
    time.start();
    const long milliseconds = Asked("TERRAVANE_MONKEY_SECONDS", 0) * 1000;
    auto seed = static_cast<unsigned>(Asked("TERRAVANE_MONKEY_SEED", kFirstSeed));
    do {
        SCOPED_TRACE("TERRAVANE_MONKEY_SEED=" + std::to_string(seed));
        Tour tour(seed);
        for (const Stop& stop : AllStops()) {
            tour.Visit(stop);
            tour.CheckFiles(false);
            if (HasFailure()) return;
        }
        tour.CheckFiles(true);
        Print(seed++, tour);
    } while (!HasFailure() && time.elapsed() < milliseconds);
}

}  // namespace
}  // namespace terravane
