// What a power cut leaves on a disk that keeps nothing for sure before it is told to: after each step of a save, every
// state that the disk may come back with is the old file or the new one.
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/memory_file_system.h"

namespace terravane {
namespace {

const std::string kTarget = "lab/TRVN_road.mdb";
const Bytes kOld(1000, 'o'), kNew(3000, 'n'), kGone;

struct PowerCut {};

/// What the disk may come back with, told by the steps of a save. Contents and names apart: a content that was not
/// synced comes back empty, cut in half or whole; of the changes of names since the folder was synced, any number of
/// the first ones come back.
class PowerCuts {
  public:
    /// The power of the disk fails behind this many steps.
    PowerCuts(MemoryFileSystem& disk, int steps) : stepsLeft_(steps)
    {
        disk.Put(kTarget, kOld);
        durable_[kTarget] = names_[kTarget] = Add(kOld, true);
        disk.atStep = [this](const SaveStep& step) {
            if (stepsLeft_-- == 0) throw PowerCut();
            Take(step);
        };
    }

    /// What may stand in the target after the cut; kGone for no file.
    std::set<Bytes> TargetAfterTheCut() const
    {
        std::set<Bytes> states;
        PlacesByName names = durable_;
        AddStates(states, names);
        for (const auto& change : pending_) {
            change(names);
            AddStates(states, names);
        }
        return states;
    }

  private:
    using PlacesByName = std::map<std::string, std::size_t, std::less<>>;
    struct Content {
        Bytes bytes;
        bool synced;
    };

    void Take(const SaveStep& step)
    {
        switch (step.kind) {
            case SaveStep::Kind::Write:
                return Write(std::string(step.path), step.content);
            case SaveStep::Kind::Append:
                throw std::logic_error("a save appends nothing");
            case SaveStep::Kind::SyncFile:
                contents_.at(names_.find(step.path)->second).synced = true;
                return;
            case SaveStep::Kind::Rename:
                return Rename(std::string(step.path), std::string(step.to));
            case SaveStep::Kind::SyncFolder:
                return SyncNames();
        }
    }
    void Write(const std::string& path, std::span<const std::uint8_t> content)
    {
        const std::size_t place = Add({content.begin(), content.end()}, false);
        Change([path, place](PlacesByName& names) { names[path] = place; });
    }
    void Rename(const std::string& from, const std::string& to)
    {
        Change([from, to](PlacesByName& names) {
            names[to] = names.at(from);
            names.erase(from);
        });
    }
    void SyncNames()
    {
        durable_ = names_;
        pending_.clear();
    }

    std::size_t Add(Bytes bytes, bool synced)
    {
        contents_.push_back({std::move(bytes), synced});
        return contents_.size() - 1;
    }
    void Change(std::function<void(PlacesByName&)> change)
    {
        change(names_);
        pending_.push_back(std::move(change));
    }
    void AddStates(std::set<Bytes>& states, const PlacesByName& names) const
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
    PlacesByName names_, durable_;
    std::vector<std::function<void(PlacesByName&)>> pending_;
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
        MemoryFileSystem disk;
        const PowerCuts cuts(disk, steps);
        SaveUntilTheCut(disk);
        for (const Bytes& state : cuts.TargetAfterTheCut()) {
            EXPECT_TRUE(either.contains(state)) << "a file of " << state.size() << " bytes after step " << steps;
        }
    }
}

TEST(PowerLoss, TakesNothingOfASaveThatHasEnded)
{
    MemoryFileSystem disk;
    const PowerCuts cuts(disk, kSteps);
    disk.ReplaceWhole(kTarget, kNew);
    EXPECT_EQ(cuts.TargetAfterTheCut(), std::set<Bytes>{kNew});
}

// The model sees a save that does not sync what it wrote.
TEST(PowerLoss, WouldTakeAFileThatWasNotSynced)
{
    MemoryFileSystem disk;
    const PowerCuts cuts(disk, kSteps);
    const auto told = disk.atStep;
    disk.atStep = [&told](const SaveStep& step) {
        if (step.kind != SaveStep::Kind::SyncFile) told(step);
    };
    disk.ReplaceWhole(kTarget, kNew);
    EXPECT_TRUE(cuts.TargetAfterTheCut().contains(Bytes()));
}

}  // namespace
}  // namespace terravane
