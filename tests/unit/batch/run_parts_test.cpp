// The parts of a run that know no project: the list of files, the journal, the workers, the bar, the growing files.
#include <filesystem>
#include <fstream>
#include <set>

#include <gtest/gtest.h>

#include "batch/brand_folder.h"
#include "batch/growing_file.h"
#include "batch/journal.h"
#include "batch/progress.h"
#include "batch/project_list.h"
#include "batch/worker_pool.h"
#include "journal/sha256.h"
#include "runtime/machine.h"
#include "runtime/native_path.h"
#include "runtime/runtime_error.h"
#include "unit/batch/test_worker.h"

namespace terravane {
namespace {

namespace fs = std::filesystem;

/// A path with the marks of the system that the test runs on.
std::string Marked(std::string_view path)
{
    return ToText(ToNative(path).make_preferred());
}

/// A folder of the test's own, gone after it.
struct Folder {
    fs::path path = ToNative(MakePrivateFolder("terravane-batch"));
    ~Folder() { RemoveAll(ToText(path)); }

    std::string operator/(std::string_view name) const { return Marked(ToText(path / ToNative(name))); }
    void Touch(std::string_view name) const
    {
        const fs::path file = path / ToNative(name);
        fs::create_directories(file.parent_path());
        std::ofstream(file) << "x";
    }
};

std::string ReadText(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(ListProjects, TakesAFoldersProjectsSortedWithThoseOfItsSubfolders)
{
    Folder folder;
    for (const char* name : {"b.mdb", "a/ถนน.MDB", "BrandList/logo.mdb", "a.pdf"}) folder.Touch(name);
    const auto projects = ListProjects({folder.path.string()}, "/out");
    ASSERT_EQ(projects.size(), 2U);
    EXPECT_EQ(projects[0].path, folder / "a/ถนน.MDB");
    EXPECT_EQ(projects[0].stem, Marked("/out/a/ถนน"));
    EXPECT_EQ(projects[1].stem, Marked("/out/b"));
}

TEST(ListProjects, PutsOutputsBesideTheProjectUnlessAFolderIsNamed)
{
    EXPECT_EQ(ListProjects({"jobs/TRVN_a.mdb"}, "").at(0).stem, "jobs/TRVN_a");
    EXPECT_EQ(ListProjects({"jobs/TRVN_a.mdb"}, "out").at(0).stem, Marked("out/TRVN_a"));
    EXPECT_EQ(ListProjects({"TRVN_a.mdb"}, "out").at(0).stem, Marked("out/TRVN_a"));
}

TEST(ListProjects, TakesAFileOnceHoweverItIsNamed)
{
    Folder folder;
    folder.Touch("a.mdb");
    EXPECT_EQ(ListProjects({folder / "a.mdb", folder.path.string(), folder / "x/../a.mdb"}, "").size(), 1U);
}

TEST(ListProjects, KeepsAPathThatLeadsNowhere)
{
    EXPECT_EQ(ListProjects({"/nowhere/a.mdb"}, "").at(0).path, "/nowhere/a.mdb");
}

TEST(Journal, TheLastLineOfAProjectCountsAndACutOneDoesNot)
{
    Folder folder;
    const ProjectFile road{"road.mdb", folder / "road"}, bridge{"bridge.mdb", folder / "bridge"};
    AddToJournal(DiskFileSystem(), road, {"old", "made", "2026-11-20", {}});
    AddToJournal(DiskFileSystem(), road, {"new", "made", "2026-11-21", {{folder / "road.pdf", 2, 700, "sum"}}});
    std::ofstream(JournalPath(road), std::ios::app) << "{\"project\":\"bridge\",\"content\":\"x\"";
    const auto entries = ReadJournals(DiskFileSystem(), {road, bridge});
    ASSERT_EQ(entries.size(), 1U);
    const JournalEntry& entry = entries.at(road.stem);
    EXPECT_EQ(entry.content, "new");
    EXPECT_EQ(entry.outputs, (std::vector<Output>{{folder / "road.pdf", 2, 700, "sum"}}));
}

TEST(Journal, ALineThatIsNoneIsPassedOver)
{
    Folder folder;
    const ProjectFile road{"road.mdb", folder / "road"};
    std::ofstream(JournalPath(road)) << "nonsense\n{\"project\":\"road\"}\n[1]\n";
    EXPECT_TRUE(ReadJournals(DiskFileSystem(), {road}).empty());
}

TEST(GrowingFile, AppearsAtItsEndOnly)
{
    Folder folder;
    const std::string path = folder / "results.csv";
    {
        GrowingFile file(path);
        file.Add("one\n");
    }
    EXPECT_TRUE(fs::is_empty(folder.path)) << "a run that was broken off leaves nothing";
    GrowingFile file(path);
    file.Add("one\n");
    EXPECT_FALSE(fs::exists(path));
    file.Add("two\n");
    file.Finish();
    EXPECT_EQ(ReadText(path), "one\ntwo\n");
}

TEST(BrandFolder, HoldsTheStoreAndThePicturesOfTheFolderAndNothingElse)
{
    Folder folder;
    std::ofstream(folder / "logo.mdb") << "names";
    std::ofstream(folder / "logo.jpg") << "picture";
    fs::create_directory(folder / "old");
    const Brand brand = ReadBrand(DiskFileSystem(), folder / "");
    EXPECT_EQ(brand.disk.Paths(), (std::vector{folder / "logo.jpg", folder / "logo.mdb"}));
    EXPECT_EQ(brand.digest, "logo.jpg " + Sha256("picture") + " logo.mdb " + Sha256("names") + " ");
}

TEST(BrandFolder, OfANewInstallationHasAStore)
{
    const Brand brand = FirstBrand();
    EXPECT_TRUE(brand.disk.Exists(brand.folder + "logo.mdb"));
    EXPECT_THROW(brand.disk.Read("/etc/hostname"), RuntimeError) << "no other file can be reached";
}

TEST(Sha256, OfThePublishedExample)
{
    EXPECT_EQ(Sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

TEST(Progress, TellsRateAndRemainingTime)
{
    Progress progress(1000);
    for (int i = 0; i < 350; ++i) progress.Done(false);
    EXPECT_EQ(progress.Bar(Progress::Seconds(17.5)), "[#######-------------]   350/1000  35 %  20.0/s  0:33 left");
}

TEST(Progress, CountsWhatWasThereForNoRate)
{
    Progress progress(4);
    progress.Done(true);
    EXPECT_EQ(progress.Bar(Progress::Seconds(1)), "[#####---------------]  1/4  25 %");
    progress.Done(false);
    EXPECT_EQ(progress.Bar(Progress::Seconds(3600)), "[##########----------]  2/4  50 %  0.0/s  2:00:00 left");
}

struct Answers {
    std::set<std::string> texts;
    std::vector<std::string> crashes;

    /// Tasks that are all asked the same, with their number behind it.
    PoolTask Task(const std::string& request)
    {
        return {[request](std::size_t task) { return request + " " + std::to_string(task); },
                TestWork,
                {std::string(kWorkerArgument)},
                [this](std::size_t task, const std::optional<std::string>& answer, const std::string& crash) {
                    if (answer) texts.insert(*answer);
                    if (!answer) crashes.push_back(std::to_string(task) + ": " + crash);
                },
                {},
                {}};
    }
};

TEST(Workers, DoEveryTaskOnce)
{
    Answers answers;
    RunInWorkers(50, 3, answers.Task("square"));
    EXPECT_EQ(answers.texts.size(), 50U);
    EXPECT_TRUE(answers.texts.contains("2401"));
}

TEST(Workers, TakeAnswersOfAnyLength)
{
    Answers answers;
    RunInWorkers(2, 2, answers.Task("letters"));
    EXPECT_EQ(answers.texts.size(), 2U);
    EXPECT_EQ(answers.texts.begin()->size(), 5'000'000U);
}

TEST(Workers, ACrashCostsItsOwnTaskOnly)
{
    Answers answers;
    RunInWorkers(10, 2, answers.Task("crash-at-three"));
    EXPECT_EQ(answers.texts.size(), 9U);
    ASSERT_EQ(answers.crashes.size(), 1U);
    EXPECT_TRUE(answers.crashes.front().starts_with("3: the program crashed (")) << answers.crashes.front();
    EXPECT_TRUE(answers.crashes.front().ends_with("); please report the project")) << answers.crashes.front();
}

TEST(Workers, HandOutNothingMoreOnceStopped)
{
    Answers answers;
    auto task = answers.Task("square");
    task.stop = [&] { return answers.texts.size() >= 4; };
    RunInWorkers(1000, 2, task);
    EXPECT_GE(answers.texts.size(), 4U);
    EXPECT_LE(answers.texts.size(), 6U) << "those begun are waited for";
}

TEST(Workers, NoTaskNeedsNoWorker)
{
    Answers answers;
    RunInWorkers(0, 4, answers.Task("square"));
    EXPECT_TRUE(answers.texts.empty());
}

}  // namespace
}  // namespace terravane
