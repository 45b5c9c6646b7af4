// What the journal tells of another hand in the file of the open sheet.
#include <algorithm>

#include "controls/furniture.h"
#include "journal/journal.h"
#include "laboratory/tests.h"

namespace terravane {

namespace {

constexpr std::string_view kOthersSubject = "Another hand", kReplacedSubject = "Saved over another hand";
constexpr std::size_t kMostNamed = 3;

std::string ChangeWords(const TextDifference& change)
{
    return WordsOf(change.place).words + ": \"" + change.before + "\" by \"" + change.after + "\"";
}

}  // namespace

/// The sheet shows the general data and its own table.
bool Journal::ShowsTableOf(const StoredPlace& place) const
{
    const PlaceWords words = WordsOf(place);
    const bool isOfTest = words.test == laboratory::Describe(program_.CurrentTest).key &&
                          words.material == laboratory::Describe(program_.CurrentMaterial).key;
    return isOfTest || words.test == "job";
}

void Journal::LookForOthers()
{
    if (!keepsHistory_ || !sheet_ || program_.CurrentTest == Test::None) return;
    const auto changed = others_.Look();
    if (!changed.empty()) changes_.Announce();
    if (std::ranges::none_of(changed, [this](const TextDifference& of) { return ShowsTableOf(of.place); })) return;
    program_.notices.Tell(
        {.kind = NoticeKind::Attention,
         .sentence = "This test was saved at " + Format(program_.Ask().Now(), "hh:nn") + " by another window.",
         .place = {sheet_->Name()},
         .subject = std::string(kOthersSubject),
         .actions = {{"Load anew", [this] { LoadAnew(); }}, {"Keep mine", [] {}}}});
}

/// As the person opens the sheet from the row of tests: what was typed and not saved waits as a draft.
void Journal::LoadAnew()
{
    Form* frame = program_.Loaded("mdiBack");
    if (!sheet_ || !frame) return;
    const auto& test = laboratory::Describe(program_.CurrentTest);
    const auto& material = laboratory::Describe(program_.CurrentMaterial);
    frame->Get<Toolbar>("tbrLab").PressItem(std::string(test.menu) + material.menuDigit);
}

void Journal::TellReplaced(const std::vector<TextDifference>& replaced)
{
    program_.notices.Settle(kOthersSubject);
    if (replaced.empty()) return;
    std::string sentence = "Saved over what another window had saved: ", details;
    for (std::size_t i = 0; i < replaced.size(); ++i) {
        if (i < kMostNamed) sentence += (i == 0 ? "" : "; ") + ChangeWords(replaced[i]);
        details += ChangeWords(replaced[i]) + "\n";
    }
    if (replaced.size() > kMostNamed) sentence += "; and " + std::to_string(replaced.size() - kMostNamed) + " more";
    program_.notices.Tell({.kind = NoticeKind::Attention,
                           .sentence = sentence + ".",
                           .details = details,
                           .place = {sheet_->Name()},
                           .subject = std::string(kReplacedSubject)});
}

}  // namespace terravane
