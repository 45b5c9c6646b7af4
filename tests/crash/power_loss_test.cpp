// What a power cut leaves on a disk that keeps nothing for sure before it is told to: after each step of a save, every
// state that the disk may come back with is the old file or the new one.
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/file_system.h"

namespace terravane {
namespace {

const std::string kTarget = "lab/TRVN_road.mdb";
const Bytes kOld(1000, 'o'), kNew(3000, 'n'), kGone;

struct PowerCut {};

/// Contents and names apart. A content that was not synced comes back empty, cut in half or whole; of the changes of
/// names since the folder was synced, any number of the first ones come back.
class PowerlessDisk : public FileSystem {
  public:
    /// The power fails behind this many steps of a save.
    explicit PowerlessDisk(int steps) : stepsLeft_(steps) { durable_[kTarget] = names_[kTarget] = Add(kOld, true); }

    /// What may stand in the target after the cut; kGone for no file.
    std::set<Bytes> TargetAfterTheCut() const
    {
        std::set<Bytes> states;
        Names_ names = durable_;
        AddStates(states, names);
        for (const auto& change : pending_) {
            change(names);
            AddStates(states, names);
        }
        return states;
    }

    bool Exists(const std::string& path) const override { return names_.contains(path); }
    bool IsFolder(const std::string& path) const override { return path == "lab/"; }
    bool IsWritableFolder(const std::string& path) const override { return IsFolder(path); }
    std::vector<std::string> Names(const std::string&) const override { return {}; }
    void MakeFolders(const std::string&) override {}
    Bytes Read(const std::string& path) const override { return contents_.at(names_.at(path)).bytes; }

  protected:
    using Names_ = std::map<std::string, std::size_t>;

    void WriteNew(const std::string& path, std::span<const std::uint8_t> content, const std::string&) override
    {
        TakeStep();
        const std::size_t number = Add({content.begin(), content.end()}, false);
        Change([path, number](Names_& names) { names[path] = number; });
    }
    void SyncFile(const std::string& path) override
    {
        TakeStep();
        contents_.at(names_.at(path)).synced = true;
    }
    void Rename(const std::string& from, const std::string& to) override
    {
        TakeStep();
        Change([from, to](Names_& names) {
            names[to] = names.at(from);
            names.erase(from);
        });
    }
    void SyncFolder(const std::string&) override
    {
        TakeStep();
        durable_ = names_;
        pending_.clear();
    }
    void Remove(const std::string&) noexcept override {}  // the power is gone

    void TakeStep()
    {
        if (stepsLeft_-- == 0) throw PowerCut();
    }

  private:
    struct Content {
        Bytes bytes;
        bool synced;
    };

    std::size_t Add(Bytes bytes, bool synced)
    {
        contents_.push_back({std::move(bytes), synced});
        return contents_.size() - 1;
    }
    void Change(std::function<void(Names_&)> change)
    {
        change(names_);
        pending_.push_back(std::move(change));
    }
    void AddStates(std::set<Bytes>& states, const Names_& names) const
    {
        const auto found = names.find(kTarget);
        if (found == names.end()) {
            states.insert(kGone);
            return;
        }
        const Content& content = contents_.at(found->second);
        states.insert(content.bytes);
        if (content.synced) return;
        const auto half = static_cast<std::ptrdiff_t>(content.bytes.size() / 2);
        states.insert(Bytes(content.bytes.begin(), content.bytes.begin() + half));
        states.insert(Bytes());
    }

    std::vector<Content> contents_;
    Names_ names_, durable_;
    std::vector<std::function<void(Names_&)>> pending_;
    int stepsLeft_;
};

constexpr int kSteps = 4;  // write, sync, rename, sync of the folder

void SaveUntilTheCut(FileSystem& disk)
{
    try {
        disk.ReplaceWhole(kTarget, kNew);
    } catch (const PowerCut&) {
    }
}

TEST(PowerLoss, LeavesTheOldFileOrTheNewOneAfterEveryStep)
{
    const std::set<Bytes> either{kOld, kNew};
    for (int steps = 0; steps <= kSteps; ++steps) {
        PowerlessDisk disk(steps);
        SaveUntilTheCut(disk);
        for (const Bytes& state : disk.TargetAfterTheCut()) {
            EXPECT_TRUE(either.contains(state)) << "a file of " << state.size() << " bytes after step " << steps;
        }
    }
}

TEST(PowerLoss, TakesNothingOfASaveThatHasEnded)
{
    PowerlessDisk disk(kSteps);
    disk.ReplaceWhole(kTarget, kNew);
    EXPECT_EQ(disk.TargetAfterTheCut(), std::set<Bytes>{kNew});
}

// The model sees a save that does not sync what it wrote.
TEST(PowerLoss, WouldTakeAFileThatWasNotSynced)
{
    class Careless : public PowerlessDisk {
        using PowerlessDisk::PowerlessDisk;
        void SyncFile(const std::string&) override { TakeStep(); }
    };
    Careless disk(kSteps);
    SaveUntilTheCut(disk);
    EXPECT_TRUE(disk.TargetAfterTheCut().contains(kGone));
}

}  // namespace
}  // namespace terravane
