#include "journal/others.h"

#include <algorithm>

#include "runtime/runtime_error.h"

namespace terravane {

void OthersWatch::Begin(const std::string& project)
try {
    project_ = project;
    stamp_ = files_.Stamp(project);
    known_ = seen_ = files_.Read(project);
} catch (const RuntimeError&) {  // a project that is gone is told of where it is saved
    End();
}

std::vector<TextDifference> OthersWatch::Look()
try {
    if (project_.empty()) return {};
    const std::uint64_t stamp = files_.Stamp(project_);
    if (stamp == stamp_ || stamp == 0) return {};
    stamp_ = stamp;
    Bytes now = files_.Read(project_);
    if (now == seen_) return {};
    auto changed = Differences(TextsOf(seen_), TextsOf(now));
    seen_ = std::move(now);
    return changed;
} catch (const RuntimeError&) {
    return {};
}

std::vector<TextDifference> OthersWatch::Saved(const jet::SavedFile& saved)
{
    if (saved.path != project_) return {};
    std::vector<TextDifference> replaced;
    if (!std::ranges::equal(saved.before, known_)) {
        const FileTexts known = TextsOf(known_), before = TextsOf(saved.before), after = TextsOf(saved.after);
        const auto byOthers = Differences(known, before);
        for (const TextDifference& ours : Differences(before, after)) {
            const auto isSame = [&](const TextDifference& theirs) { return theirs.place == ours.place; };
            if (std::ranges::any_of(byOthers, isSame)) replaced.push_back(ours);
        }
    }
    known_.assign(saved.after.begin(), saved.after.end());
    seen_ = known_;
    stamp_ = files_.Stamp(project_);
    return replaced;
}

}  // namespace terravane
