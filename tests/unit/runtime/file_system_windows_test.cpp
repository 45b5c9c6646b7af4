// What a file is on Windows: names of devices, long paths, access lists, files that somebody holds open; and other
// processes, which are this program started anew there.
#include <chrono>
#include <cstdlib>
#include <thread>

#include <windows.h>

#include "runtime/native_path.h"
#include "unit/runtime/disk_fixture.h"

namespace terravane {
namespace {

constexpr const char* kHeldFile = "TERRAVANE_TEST_HELD_FILE";

/// Not run by itself: what the other process of the tests below does.
TEST(OtherProgram, DISABLED_HoldsALock)
{
    const char* const path = std::getenv(kHeldFile);
    ASSERT_NE(path, nullptr);
    DiskFileSystem files;
    const auto lock = files.Lock(path);
    std::fputs("held\n", stdout);
    std::fflush(stdout);
    std::this_thread::sleep_for(std::chrono::seconds(60));
}

/// Another process that holds a file's lock, until it is killed.
class LockHolder {
  public:
    explicit LockHolder(const std::string& path)
    {
        SetEnvironmentVariableW(L"TERRAVANE_TEST_HELD_FILE", ToNative(path).c_str());
        std::wstring line = L"\"" + ToNative(ProgramFile()).wstring() +
                            L"\" --gtest_also_run_disabled_tests --gtest_filter=OtherProgram.*";
        STARTUPINFOW start{};
        start.cb = sizeof start;
        CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr, nullptr, &start,
                       &made_);
    }
    ~LockHolder() { Kill(); }
    LockHolder(const LockHolder&) = delete;
    LockHolder& operator=(const LockHolder&) = delete;

    void Kill()
    {
        if (!made_.hProcess) return;
        TerminateProcess(made_.hProcess, 1);
        WaitForSingleObject(made_.hProcess, INFINITE);
        CloseHandle(made_.hProcess);
        CloseHandle(made_.hThread);
        made_ = {};
    }

  private:
    PROCESS_INFORMATION made_{};
};

/// Waits until the lock's file stands beside the file, at most ten seconds.
bool WaitForLock(const DiskFileSystem& files, const std::string& lockFile)
{
    for (int i = 0; i < 1000 && !files.Exists(lockFile); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return files.Exists(lockFile);
}

class WindowsDisk : public Disk {};

TEST_F(WindowsDisk, LockWaitsForAnotherProcessAndOutlivesNone)
{
    files_.ReplaceWhole(Path("a.mdb"), BytesOf("x"));
    LockHolder other(Path("a.mdb"));
    ASSERT_TRUE(WaitForLock(files_, Path("~$a.mdb.lock")));
    const auto lock = [&] { EXPECT_NE(files_.Lock(Path("a.mdb")), nullptr); };
    EXPECT_EQ(DescriptionOf(lock), "Could not save '" + Path("a.mdb") + "': another program is saving it; try again.");
    other.Kill();
    EXPECT_EQ(ErrorOf(lock), 0) << "a killed program locks nothing";
    EXPECT_EQ(Names(), std::vector<std::string>{"a.mdb"}) << "a lock leaves nothing beside the file";
}

// Each adds one to the number in the file, a hundred times: without the lock some would be lost.
TEST_F(WindowsDisk, LockedChangesSideBySideAreAllKept)
{
    constexpr int kRounds = 25;
    files_.ReplaceWhole(Path("count"), BytesOf("0"));
    const auto add = [&] {
        for (int round = 0; round < kRounds; ++round) {
            const auto lock = files_.Lock(Path("count"));
            const int count = std::stoi(TextOf(files_.Read(Path("count"))));
            files_.ReplaceWhole(Path("count"), BytesOf(std::to_string(count + 1)));
        }
    };
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < 4; ++i) threads.emplace_back(add);
    }
    EXPECT_EQ(TextOf(files_.Read(Path("count"))), "100");
}

TEST_F(WindowsDisk, RefusesTheNamesOfDevices)
{
    for (const char* name : {"NUL", "con.mdb", "Com1", "LPT9.txt", "aux .mdb", "nul:"}) {
        const auto save = [&] { files_.ReplaceWhole(Path(name), BytesOf("x")); };
        EXPECT_EQ(DescriptionOf(save), "Could not use '" + Path(name) + "': it is the name of a device.") << name;
        EXPECT_FALSE(files_.Exists(Path(name))) << name;
    }
    EXPECT_EQ(ErrorOf([&] { files_.ReplaceWhole(Path("consolidation.mdb"), BytesOf("x")); }), 0);
}

TEST_F(WindowsDisk, RefusesANameWhoseEndTheSystemWouldDrop)
{
    for (const char* name : {"road.mdb.", "road.mdb "}) {
        EXPECT_EQ(ErrorOf([&] { files_.ReplaceWhole(Path(name), BytesOf("x")); }), error::kPathFileAccess) << name;
    }
    EXPECT_TRUE(Names().empty());
}

TEST_F(WindowsDisk, TakesPathsLongerThanTheOldLimit)
{
    std::string folder = folder_;
    while (folder.size() < 400) folder += std::string(60, 'n') + "\\";
    files_.MakeFolders(folder);
    files_.ReplaceWhole(folder + "road.mdb", BytesOf("x"));
    EXPECT_EQ(TextOf(files_.Read(folder + "road.mdb")), "x");
    EXPECT_EQ(files_.Names(folder), std::vector<std::string>{"road.mdb"});
    EXPECT_NE(files_.Lock(folder + "road.mdb"), nullptr);
}

TEST_F(WindowsDisk, TakesThaiNamesAndBothMarks)
{
    files_.MakeFolders(Path("งานทาง/สายใหม่"));
    files_.ReplaceWhole(Path("งานทาง\\สายใหม่/ถนน.mdb"), BytesOf("x"));
    EXPECT_EQ(TextOf(files_.Read(Path("งานทาง/สายใหม่\\ถนน.mdb"))), "x");
    EXPECT_EQ(files_.Names(Path("งานทาง/สายใหม่")), std::vector<std::string>{"ถนน.mdb"});
}

// A virus scanner or an indexer holds what was just written, for some tenths of a second and without sharing.
TEST_F(WindowsDisk, SaveWaitsForWhoeverHoldsTheFileForAMoment)
{
    files_.ReplaceWhole(Path("a.mdb"), BytesOf("old"));
    const HANDLE scanner =
        CreateFileW(ToNative(Path("a.mdb")).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(scanner, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(files_.IsOpenElsewhere(Path("a.mdb")));
    std::jthread ends([scanner] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        CloseHandle(scanner);
    });
    files_.ReplaceWhole(Path("a.mdb"), BytesOf("new"));
    EXPECT_EQ(TextOf(files_.Read(Path("a.mdb"))), "new");
    EXPECT_EQ(Names(), std::vector<std::string>{"a.mdb"});
}

TEST_F(WindowsDisk, KeepsAHiddenFileHidden)
{
    files_.ReplaceWhole(Path("a.mdb"), BytesOf("old"));
    ASSERT_TRUE(SetFileAttributesW(ToNative(Path("a.mdb")).c_str(), FILE_ATTRIBUTE_HIDDEN));
    files_.ReplaceWhole(Path("a.mdb"), BytesOf("new"));
    EXPECT_TRUE(GetFileAttributesW(ToNative(Path("a.mdb")).c_str()) & FILE_ATTRIBUTE_HIDDEN);
}

// Every spelling is the file, so that none is looked for.
TEST_F(WindowsDisk, FindsANameInAnotherCase)
{
    files_.ReplaceWhole(Path("Logo.MDB"), BytesOf("x"));
    EXPECT_EQ(TextOf(files_.Read(FindWithoutCase(files_, folder_, "logo.mdb"))), "x");
    EXPECT_FALSE(files_.Exists(FindWithoutCase(files_, folder_, "none.mdb")));
}

}  // namespace
}  // namespace terravane
