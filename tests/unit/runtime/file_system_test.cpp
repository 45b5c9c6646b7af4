#include "runtime/file_system.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "unit/runtime/raises.h"

namespace terravane {
namespace {

Bytes BytesOf(std::string_view text)
{
    return {text.begin(), text.end()};
}

std::string TextOf(const Bytes& bytes)
{
    return {bytes.begin(), bytes.end()};
}

/// An empty folder of its own for each test.
class Disk : public testing::Test {
  protected:
    void SetUp() override
    {
        std::string name = testing::TempDir() + "terravane-files-XXXXXX";
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        folder_ = name + "/";
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    std::string Path(const std::string& name) const { return folder_ + name; }
    std::vector<std::string> Names() const
    {
        auto names = files_.Names(folder_);
        std::ranges::sort(names);
        return names;
    }

    std::string folder_;
    DiskFileSystem files_;
};

TEST_F(Disk, KeepsWhatIsWritten)
{
    files_.ReplaceWhole(Path("a.mdb"), BytesOf("first"));
    EXPECT_EQ(TextOf(files_.Read(Path("a.mdb"))), "first");
    files_.ReplaceWhole(Path("a.mdb"), BytesOf("second, longer"));
    EXPECT_EQ(TextOf(files_.Read(Path("a.mdb"))), "second, longer");
    files_.ReplaceWhole(Path("a.mdb"), {});
    EXPECT_TRUE(files_.Read(Path("a.mdb")).empty());
    EXPECT_EQ(Names(), std::vector<std::string>{"a.mdb"}) << "nothing is left beside the file";
}

TEST_F(Disk, KeepsALargeFile)
{
    Bytes content(20'000'000);
    for (std::size_t i = 0; i < content.size(); ++i) content[i] = static_cast<std::uint8_t>(i * 7 / 3);
    files_.ReplaceWhole(Path("large"), content);
    EXPECT_TRUE(files_.Read(Path("large")) == content);
}

TEST_F(Disk, CopiesAWholeFile)
{
    files_.ReplaceWhole(Path("a"), BytesOf("content"));
    files_.Copy(Path("a"), Path("b"));
    EXPECT_EQ(TextOf(files_.Read(Path("b"))), "content");
}

TEST_F(Disk, KeepsTheModeOfTheOldFile)
{
    files_.ReplaceWhole(Path("a"), BytesOf("old"));
    ASSERT_EQ(chmod(Path("a").c_str(), 0640), 0);
    files_.ReplaceWhole(Path("a"), BytesOf("new"));
    struct stat status {};
    ASSERT_EQ(stat(Path("a").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

// The folder would allow the rename; the file's own mode says no, and for the administrator too.
TEST_F(Disk, RefusesAReadOnlyFile)
{
    files_.ReplaceWhole(Path("a"), BytesOf("old"));
    ASSERT_EQ(chmod(Path("a").c_str(), 0444), 0);
    const auto save = [&] { files_.ReplaceWhole(Path("a"), BytesOf("new")); };
    EXPECT_EQ(ErrorOf(save), error::kPermissionDenied);
    EXPECT_EQ(DescriptionOf(save), "Permission denied: '" + Path("a") + "' is read-only.");
    EXPECT_EQ(TextOf(files_.Read(Path("a"))), "old");
    EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}

TEST_F(Disk, NamesAFileThatIsNotThere)
{
    const auto read = [&] { files_.Read(Path("none.mdb")); };
    EXPECT_EQ(ErrorOf(read), error::kFileNotFound);
    EXPECT_EQ(DescriptionOf(read), "Could not find file '" + Path("none.mdb") + "'.");
    EXPECT_FALSE(files_.Exists(Path("none.mdb")));
}

TEST_F(Disk, NamesAFileWhoseFolderIsNotThere)
{
    const auto save = [&] { files_.ReplaceWhole(Path("none/a.mdb"), BytesOf("x")); };
    EXPECT_EQ(ErrorOf(save), error::kPathNotFound);
    EXPECT_EQ(DescriptionOf(save), "Could not find the folder of '" + Path("none/a.mdb") + "'.");
    EXPECT_EQ(ErrorOf([&] { files_.Names(Path("none")); }), error::kPathNotFound);
}

TEST_F(Disk, TakesAFolderForNoFile)
{
    files_.MakeFolders(Path("deep/er"));
    EXPECT_TRUE(files_.IsFolder(Path("deep/er")));
    EXPECT_TRUE(files_.IsWritableFolder(Path("deep/er/")));
    EXPECT_EQ(ErrorOf([&] { files_.Read(Path("deep")); }), error::kPathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.ReplaceWhole(Path("deep"), BytesOf("x")); }), error::kPathFileAccess);
    EXPECT_EQ(Names(), std::vector<std::string>{"deep"});
}

TEST_F(Disk, DoesNotWaitForAPipe)
{
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(ErrorOf([&] { files_.Read(Path("pipe")); }), error::kPathFileAccess);
}

TEST_F(Disk, RefusesAFileAboveTwoGiB)
{
    files_.ReplaceWhole(Path("huge"), BytesOf("x"));
    ASSERT_EQ(truncate(Path("huge").c_str(), (off_t{2} << 30) + 1), 0) << "a hole, which takes no room";
    EXPECT_EQ(ErrorOf([&] { files_.Read(Path("huge")); }), error::kPathFileAccess);
}

TEST_F(Disk, WritesWhereALinkLeads)
{
    files_.MakeFolders(Path("real"));
    files_.ReplaceWhole(Path("real/a"), BytesOf("old"));
    ASSERT_EQ(symlink("real/a", Path("link").c_str()), 0);
    files_.ReplaceWhole(Path("link"), BytesOf("new"));
    EXPECT_TRUE(std::filesystem::is_symlink(Path("link")));
    EXPECT_EQ(TextOf(files_.Read(Path("real/a"))), "new");
}

TEST_F(Disk, RefusesALinkThatLeadsToItself)
{
    ASSERT_EQ(symlink("loop", Path("loop").c_str()), 0);
    EXPECT_EQ(ErrorOf([&] { files_.ReplaceWhole(Path("loop"), BytesOf("x")); }), error::kPathFileAccess);
}

TEST_F(Disk, TakesANameAsLongAsTheFolderDoes)
{
    const std::string name(255, 'n');
    files_.ReplaceWhole(Path(name), BytesOf("x"));
    EXPECT_EQ(TextOf(files_.Read(Path(name))), "x");
    EXPECT_EQ(ErrorOf([&] { files_.ReplaceWhole(Path(name + "n"), BytesOf("x")); }), error::kPathFileAccess);
    EXPECT_EQ(Names(), std::vector<std::string>{name});
}

TEST_F(Disk, SavesSideBySide)
{
    const auto save = [&](char letter) {
        for (int i = 0; i < 20; ++i)
            files_.ReplaceWhole(Path("shared"), Bytes(1000, static_cast<std::uint8_t>(letter)));
    };
    {
        std::jthread first(save, 'a');
        std::jthread second(save, 'b');
    }
    const Bytes content = files_.Read(Path("shared"));
    ASSERT_EQ(content.size(), 1000u);
    EXPECT_TRUE(std::ranges::all_of(content, [&](auto byte) { return byte == content[0]; })) << "never a mixture";
    EXPECT_EQ(Names(), std::vector<std::string>{"shared"});
}

/// A disk on which one step of a save fails, after half of it was done.
class FailingDisk : public DiskFileSystem {
  public:
    enum class Step { Write, SyncFile, Rename, SyncFolder };
    explicit FailingDisk(Step step) : step_(step) {}

  protected:
    void WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string& like) override
    {
        const bool fails = step_ == Step::Write;
        DiskFileSystem::WriteNew(path, fails ? content.first(content.size() / 2) : content, like);
        FailAt(Step::Write, path);
    }
    void SyncFile(const std::string& path) override
    {
        FailAt(Step::SyncFile, path);
        DiskFileSystem::SyncFile(path);
    }
    void Rename(const std::string& from, const std::string& to) override
    {
        FailAt(Step::Rename, to);
        DiskFileSystem::Rename(from, to);
    }
    void SyncFolder(const std::string& folder) override
    {
        FailAt(Step::SyncFolder, folder);
        DiskFileSystem::SyncFolder(folder);
    }

  private:
    void FailAt(Step step, const std::string& path)
    {
        if (step == step_) throw RuntimeError(error::kDiskFull, "Could not write '" + path + "': the disk is full.");
    }

    Step step_;
};

TEST_F(Disk, KeepsTheOldContentWhenAStepBeforeTheRenameFails)
{
    files_.ReplaceWhole(Path("a.mdb"), BytesOf("old"));
    using enum FailingDisk::Step;
    for (const auto step : {Write, SyncFile, Rename}) {
        FailingDisk disk(step);
        const auto save = [&] { disk.ReplaceWhole(Path("a.mdb"), BytesOf("new content")); };
        EXPECT_EQ(ErrorOf(save), error::kDiskFull);
        EXPECT_EQ(DescriptionOf(save), "Could not write '" + Path("a.mdb") + "': the disk is full.")
            << "the user knows nothing of a temporary file";
        EXPECT_EQ(TextOf(files_.Read(Path("a.mdb"))), "old");
        EXPECT_EQ(Names(), std::vector<std::string>{"a.mdb"}) << "the temporary file is gone";
    }
}

TEST_F(Disk, HasTheNewContentWhenOnlyTheFoldersSyncFails)
{
    files_.ReplaceWhole(Path("a.mdb"), BytesOf("old"));
    FailingDisk disk(FailingDisk::Step::SyncFolder);
    EXPECT_EQ(ErrorOf([&] { disk.ReplaceWhole(Path("a.mdb"), BytesOf("new")); }), error::kDiskFull);
    EXPECT_EQ(TextOf(files_.Read(Path("a.mdb"))), "new");
    EXPECT_EQ(Names(), std::vector<std::string>{"a.mdb"});
}

// The process may write 1000 bytes a file from here on: the write of a longer one is cut short and then
// refused.
TEST_F(Disk, ReportsADiskThatTakesNoMore)
{
    files_.ReplaceWhole(Path("a"), BytesOf("old"));
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{1000, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const int failure = ErrorOf([&] { files_.ReplaceWhole(Path("a"), Bytes(5000)); });
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(failure, error::kDiskFull);
    EXPECT_EQ(TextOf(files_.Read(Path("a"))), "old");
    EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}

// --- two programs

/// Another process that does one thing with a path, holds on to it, and ends with the object.
class OtherProcess {
  public:
    template <typename Hold>
    explicit OtherProcess(Hold hold)
    {
        int ready[2];
        if (pipe(ready) != 0) return;
        process_ = fork();
        if (process_ == 0) {
            [[maybe_unused]] const auto held = hold();
            (void)!write(ready[1], "x", 1);
            for (;;) pause();
        }
        char byte = 0;
        (void)!read(ready[0], &byte, 1);
        close(ready[0]);
        close(ready[1]);
    }
    ~OtherProcess() { Kill(); }
    void Kill()
    {
        if (process_ <= 0) return;
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
        process_ = 0;
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

  private:
    pid_t process_ = 0;
};

TEST_F(Disk, LockWaitsForAnotherProcessAndOutlivesNone)
{
    files_.ReplaceWhole(Path("a.mdb"), BytesOf("x"));
    OtherProcess other([&] { return files_.Lock(Path("a.mdb")); });
    const auto lock = [&] { EXPECT_NE(files_.Lock(Path("a.mdb")), nullptr); };
    EXPECT_EQ(DescriptionOf(lock), "Could not save '" + Path("a.mdb") + "': another program is saving it; try again.");
    other.Kill();
    EXPECT_EQ(ErrorOf(lock), 0) << "a killed program locks nothing";
    EXPECT_EQ(Names(), std::vector<std::string>{"a.mdb"}) << "a lock leaves nothing beside the file";
}

// Each adds one to the number in the file, a hundred times: without the lock some would be lost.
TEST_F(Disk, LockedChangesOfSeveralProcessesAreAllKept)
{
    constexpr int kProcesses = 4, kRounds = 25;
    files_.ReplaceWhole(Path("count"), BytesOf("0"));
    std::vector<pid_t> processes;
    for (int i = 0; i < kProcesses; ++i) {
        const pid_t process = fork();
        if (process != 0) {
            processes.push_back(process);
            continue;
        }
        for (int round = 0; round < kRounds; ++round) {
            const auto lock = files_.Lock(Path("count"));
            const int count = std::stoi(TextOf(files_.Read(Path("count"))));
            files_.ReplaceWhole(Path("count"), BytesOf(std::to_string(count + 1)));
        }
        _exit(0);
    }
    for (const pid_t process : processes) {
        int status = 0;
        ASSERT_EQ(waitpid(process, &status, 0), process);
        ASSERT_EQ(status, 0);
    }
    EXPECT_EQ(TextOf(files_.Read(Path("count"))), "100");
}

TEST_F(Disk, ReadOnlyFileCanBeLocked)
{
    files_.ReplaceWhole(Path("a"), BytesOf("x"));
    ASSERT_EQ(chmod(Path("a").c_str(), 0444), 0);
    EXPECT_NE(files_.Lock(Path("a")), nullptr);
    EXPECT_EQ(ErrorOf([&] { files_.Lock(Path("none")); }), error::kFileNotFound);
}

TEST_F(Disk, TellsWhetherAnotherProcessHasAFileOpen)
{
    files_.ReplaceWhole(Path("a.ldb"), BytesOf("x"));
    EXPECT_FALSE(files_.IsOpenElsewhere(Path("a.ldb")));
    {
        const OtherProcess other([&] { return open(Path("a.ldb").c_str(), O_RDONLY); });
        EXPECT_TRUE(files_.IsOpenElsewhere(Path("a.ldb")));
    }
    EXPECT_FALSE(files_.IsOpenElsewhere(Path("a.ldb")));
    EXPECT_FALSE(files_.IsOpenElsewhere(Path("none.ldb")));
}

TEST_F(Disk, NewFileTakesNobodysPlace)
{
    files_.CreateWhole(Path("a"), BytesOf("first"));
    const auto create = [&] { files_.CreateWhole(Path("a"), BytesOf("second")); };
    EXPECT_EQ(ErrorOf(create), error::kPathFileAccess);
    EXPECT_EQ(DescriptionOf(create), "Could not make '" + Path("a") + "': it is there already.");
    EXPECT_EQ(TextOf(files_.Read(Path("a"))), "first");
    EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}

TEST_F(Disk, LockTakesAwayWhatAKilledSaveOfTheSameFileLeft)
{
    const std::string name(100, 'n'), other = std::string(99, 'n') + "m";
    for (const std::string& file : {name, other}) files_.ReplaceWhole(Path(file), BytesOf("x"));
    /// A disk that dies in the middle of a save.
    class DyingDisk : public DiskFileSystem {
        void SyncFile(const std::string&) override { _exit(0); }
    };
    for (const std::string& file : {name, other}) {
        const pid_t process = fork();
        if (process == 0) DyingDisk().ReplaceWhole(Path(file), BytesOf("new"));
        waitpid(process, nullptr, 0);
    }
    EXPECT_EQ(Names().size(), 4U);
    files_.Lock(Path(name));
    EXPECT_EQ(Names().size(), 3U) << "the other file's stays: it may be under way";
    files_.Lock(Path(other));
    EXPECT_EQ(Names(), (std::vector<std::string>{other, name}));
}

TEST_F(Disk, ReadsNoMoreThanAsked)
{
    files_.ReplaceWhole(Path("a"), Bytes(3 << 20));
    EXPECT_EQ(files_.ReadAtMost(Path("a"), 3 << 20).size(), 3U << 20);
    const auto read = [&] { files_.ReadAtMost(Path("a"), 2 << 20); };
    EXPECT_EQ(DescriptionOf(read), "Could not read '" + Path("a") + "': it is larger than 2 MiB.");
    EXPECT_EQ(ErrorOf([&] { files_.ReadAtMost(Path("none"), 1); }), error::kFileNotFound);
}

TEST_F(Disk, FindsANameInAnotherCase)
{
    files_.ReplaceWhole(Path("Logo.MDB"), BytesOf("x"));
    EXPECT_EQ(FindWithoutCase(files_, folder_, "logo.mdb"), Path("Logo.MDB"));
    EXPECT_EQ(FindWithoutCase(files_, Path("").substr(0, folder_.size() - 1), "logo.mdb"), Path("Logo.MDB"));
    EXPECT_EQ(FindWithoutCase(files_, folder_, "none.mdb"), Path("none.mdb"));
    EXPECT_EQ(FindWithoutCase(files_, Path("none/"), "logo.mdb"), Path("none/logo.mdb"));
    files_.ReplaceWhole(Path("logo.mdb"), BytesOf("y"));
    EXPECT_EQ(FindWithoutCase(files_, folder_, "logo.mdb"), Path("logo.mdb")) << "the exact name first";
}

TEST(Paths, AreCutBehindTheLastMark)
{
    EXPECT_EQ(FolderOf("/a/b/c.mdb"), "/a/b/");
    EXPECT_EQ(NameOf("/a/b/c.mdb"), "c.mdb");
    EXPECT_EQ(FolderOf("c.mdb"), "");
    EXPECT_EQ(NameOf("c.mdb"), "c.mdb");
    EXPECT_EQ(FolderOf("/a/"), "/a/");
    EXPECT_EQ(NameOf("/a/"), "");
}

}  // namespace
}  // namespace terravane
