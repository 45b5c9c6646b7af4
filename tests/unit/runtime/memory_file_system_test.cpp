// The disk that tests and the batch tool work on: what makes a copy of it a disk of its own, and that its steps fail as
// they are asked to.
#include "runtime/memory_file_system.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "unit/runtime/raises.h"

namespace terravane {
namespace {

const std::string kFile = "/lab/jobs/road.mdb";
const Bytes kOld(8, 'o'), kNew(6, 'n');

MemoryFileSystem DiskWithFile()
{
    MemoryFileSystem disk;
    disk.Put(kFile, kOld);
    return disk;
}

TEST(MemoryFileSystem, CopyIsADiskOfItsOwn)
{
    const MemoryFileSystem disk = DiskWithFile();
    MemoryFileSystem copy = disk;
    copy.ReplaceWhole(kFile, kNew);
    copy.Put("/lab/jobs/bridge.mdb", kNew);
    EXPECT_EQ(copy.Content(kFile), kNew);
    EXPECT_EQ(disk.Content(kFile), kOld);
    EXPECT_EQ(disk.Paths(), std::vector{kFile});
}

TEST(MemoryFileSystem, CopyHoldsNoLocks)
{
    MemoryFileSystem disk = DiskWithFile();
    const auto lock = disk.Lock(kFile);
    EXPECT_EQ(disk.LocksHeld(), 1);
    EXPECT_EQ(MemoryFileSystem(disk).LocksHeld(), 0);
}

TEST(MemoryFileSystem, HasTheFoldersOfWhatWasPutThere)
{
    const MemoryFileSystem disk = DiskWithFile();
    EXPECT_TRUE(disk.IsFolder("/lab"));
    EXPECT_TRUE(disk.IsFolder("/lab/jobs/"));
    EXPECT_FALSE(disk.IsFolder("/lab/job"));
    EXPECT_FALSE(disk.Exists("/lab/jobs/road.md"));
    EXPECT_EQ(disk.Names("/lab/jobs"), std::vector<std::string>{"road.mdb"});
    EXPECT_TRUE(disk.Names("/lab").empty()) << "no file stands in it";
    EXPECT_EQ(DescriptionOf([&] { disk.Read("/etc/hostname"); }), "Could not find file '/etc/hostname'.");
}

TEST(MemoryFileSystem, FailsOnceAtTheStepAskedFor)
{
    MemoryFileSystem disk = DiskWithFile();
    disk.ReplaceWhole(kFile, kOld);
    for (int step = 1; step <= 4; ++step) {
        disk.FailAtStep(step, error::kDiskFull);
        EXPECT_EQ(ErrorOf([&] { disk.ReplaceWhole(kFile, kNew); }), error::kDiskFull);
        EXPECT_EQ(disk.Content(kFile), step < 4 ? kOld : kNew) << "the fourth step comes behind the rename";
        EXPECT_EQ(disk.Paths(), std::vector{kFile}) << "the temporary file is gone";
    }
    disk.ReplaceWhole(kFile, kOld);
    EXPECT_EQ(disk.Content(kFile), kOld);
}

/// As a process that is killed: nothing clears up behind the step that failed.
class KilledProcess : public MemoryFileSystem {
    void Remove(const std::string&) noexcept override {}
};

TEST(MemoryFileSystem, WriteThatFailsLeavesTheHalfOfItsBytes)
{
    KilledProcess disk;
    disk.FailAtStep(1, error::kDiskFull);
    EXPECT_EQ(ErrorOf([&] { disk.ReplaceWhole(kFile, kNew); }), error::kDiskFull);
    ASSERT_EQ(disk.Paths().size(), 1U);
    EXPECT_EQ(disk.Content(disk.Paths().front()), Bytes(3, 'n'));
}

TEST(MemoryFileSystem, AppendsAndKeepsTheHalfOfWhatFailed)
{
    MemoryFileSystem disk = DiskWithFile();
    const auto stamp = disk.Stamp(kFile);
    disk.Append(kFile, kNew);
    EXPECT_EQ(disk.Content(kFile).size(), kOld.size() + kNew.size());
    EXPECT_NE(disk.Stamp(kFile), stamp);
    disk.FailAtStep(1, error::kDiskFull);
    EXPECT_EQ(ErrorOf([&] { disk.Append(kFile, kNew); }), error::kDiskFull);
    EXPECT_EQ(disk.Content(kFile).size(), kOld.size() + kNew.size() + kNew.size() / 2);
}

TEST(MemoryFileSystem, TellsWhetherAFileIsLocked)
{
    MemoryFileSystem disk = DiskWithFile();
    auto lock = disk.Lock(kFile);
    EXPECT_TRUE(disk.IsLocked(kFile));
    lock.reset();
    EXPECT_FALSE(disk.IsLocked(kFile));
    disk.LockElsewhere(kFile);
    EXPECT_TRUE(disk.IsLocked(kFile));
}

TEST(MemoryFileSystem, ShowsTheStepsOfASaveInTheirOrder)
{
    MemoryFileSystem disk = DiskWithFile();
    std::vector<SaveStep::Kind> kinds;
    std::string renamedTo, synced;
    disk.atStep = [&](const SaveStep& step) {
        kinds.push_back(step.kind);
        if (step.kind == SaveStep::Kind::Rename) renamedTo = step.to;
        if (step.kind == SaveStep::Kind::SyncFolder) synced = step.path;
    };
    disk.ReplaceWhole(kFile, kNew);
    using enum SaveStep::Kind;
    EXPECT_EQ(kinds, (std::vector{Write, SyncFile, Rename, SyncFolder}));
    EXPECT_EQ(renamedTo, kFile);
    EXPECT_EQ(synced, "/lab/jobs/");
}

}  // namespace
}  // namespace terravane
