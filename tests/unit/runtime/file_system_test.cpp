#include "runtime/file_system.h"

#include <filesystem>
#include <thread>

#include "unit/runtime/disk_fixture.h"

namespace terravane {
namespace {

/// As a person does who wants a file to stay as it is.
void SetReadOnly(const std::string& path)
{
    using std::filesystem::perms;
    std::filesystem::permissions(path, perms::owner_read | perms::group_read | perms::others_read);
}

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

TEST_F(Disk, AppendsBehindWhatIsThere)
{
    files_.Append(Path("a"), BytesOf("first "));
    files_.Append(Path("a"), BytesOf("second"));
    files_.MakeSure(Path("a"));
    EXPECT_EQ(TextOf(files_.Read(Path("a"))), "first second");
    EXPECT_EQ(ErrorOf([&] { files_.Append(Path("none/a"), BytesOf("x")); }), error::kPathNotFound);
}

TEST_F(Disk, HasAnotherStampWhenAFileWasWritten)
{
    EXPECT_EQ(files_.Stamp(Path("a")), 0U);
    files_.ReplaceWhole(Path("a"), BytesOf("first"));
    const auto first = files_.Stamp(Path("a"));
    EXPECT_NE(first, 0U);
    EXPECT_EQ(files_.Stamp(Path("a")), first);
    files_.ReplaceWhole(Path("a"), BytesOf("other"));
    EXPECT_NE(files_.Stamp(Path("a")), first) << "as long, and in the same moment";
}

TEST_F(Disk, TellsWhetherAFileIsLocked)
{
    files_.Append(Path("a"), BytesOf("text"));
    EXPECT_FALSE(files_.IsLocked(Path("a")));
    auto lock = files_.Lock(Path("a"));
    EXPECT_TRUE(files_.IsLocked(Path("a")));
    lock.reset();
    EXPECT_FALSE(files_.IsLocked(Path("a")));
    EXPECT_FALSE(files_.IsLocked(Path("none")));
}

// The folder would allow the rename; the file's own mode says no, and for the administrator too.
TEST_F(Disk, RefusesAReadOnlyFile)
{
    files_.ReplaceWhole(Path("a"), BytesOf("old"));
    SetReadOnly(Path("a"));
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

TEST_F(Disk, RefusesAFileAboveTwoGiB)
{
    files_.ReplaceWhole(Path("huge"), BytesOf("x"));
    std::filesystem::resize_file(Path("huge"), (std::uintmax_t{2} << 30) + 1);  // a hole, which takes no room
    EXPECT_EQ(ErrorOf([&] { files_.Read(Path("huge")); }), error::kPathFileAccess);
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

// --- two programs

TEST_F(Disk, ReadOnlyFileCanBeLocked)
{
    files_.ReplaceWhole(Path("a"), BytesOf("x"));
    SetReadOnly(Path("a"));
    EXPECT_NE(files_.Lock(Path("a")), nullptr);
    EXPECT_EQ(ErrorOf([&] { files_.Lock(Path("none")); }), error::kFileNotFound);
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

TEST_F(Disk, ReadsNoMoreThanAsked)
{
    files_.ReplaceWhole(Path("a"), Bytes(3 << 20));
    EXPECT_EQ(files_.ReadAtMost(Path("a"), 3 << 20).size(), 3U << 20);
    const auto read = [&] { files_.ReadAtMost(Path("a"), 2 << 20); };
    EXPECT_EQ(DescriptionOf(read), "Could not read '" + Path("a") + "': it is larger than 2 MiB.");
    EXPECT_EQ(ErrorOf([&] { files_.ReadAtMost(Path("none"), 1); }), error::kFileNotFound);
}

}  // namespace
}  // namespace terravane
