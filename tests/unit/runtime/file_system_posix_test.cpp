// What a file is on POSIX systems: modes, links, pipes; and other processes, which are made by fork here.
#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "unit/runtime/disk_fixture.h"

namespace terravane {
namespace {

TEST_F(Disk, KeepsTheModeOfTheOldFile)
{
    files_.ReplaceWhole(Path("a"), BytesOf("old"));
    ASSERT_EQ(chmod(Path("a").c_str(), 0640), 0);
    files_.ReplaceWhole(Path("a"), BytesOf("new"));
    struct stat status {};
    ASSERT_EQ(stat(Path("a").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(Disk, DoesNotWaitForAPipe)
{
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(ErrorOf([&] { files_.Read(Path("pipe")); }), error::kPathFileAccess);
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

}  // namespace
}  // namespace terravane
