// The drafts of the journal: what is typed and not saved, and its offer when the sheet is opened again.
#include <algorithm>
#include <utility>

#include "journal/journal.h"
#include "laboratory/tests.h"

namespace terravane {

namespace {

constexpr std::string_view kDraftSubject = "Draft", kDraftFailed = "Draft failure";
constexpr std::chrono::milliseconds kBetweenSyncs{900};

/// "14:02" of today, else the day before it.
std::string ShownTime(const std::string& at, Moment now)
{
    const std::string today = TimeText(now);
    const std::string time = at.substr(11, 5);
    return at.substr(0, 10) == today.substr(0, 10) ? time : at.substr(0, 10) + " " + time;
}

TextPlace PlaceOf(Form& form, const DraftText& text)
{
    return {form.Find(text.control), text.row, text.column};
}

}  // namespace

void Journal::KeepDrafts(const std::string& folder)
{
    if (drafts_) return;
    drafts_ = std::make_unique<DraftKeeper>(program_.Files(), folder);
    if (sheet_) OpenDraft();
}

void Journal::OpenDraft()
try {
    if (!drafts_ || program_.CurrentTest == Test::None) return;
    drafts_->Open({program_.CurrentProjectPath, std::string(laboratory::Describe(program_.CurrentTest).key),
                   std::string(laboratory::Describe(program_.CurrentMaterial).key)},
                  program_.Ask().Now());
    OfferDraft();
} catch (const RuntimeError& error) {
    TellDraftFailure(error);
}

/// A home that is full or read-only costs the draft, never the sheet.
void Journal::TellDraftFailure(const RuntimeError& error)
{
    program_.notices.Tell({.kind = NoticeKind::Attention,
                           .sentence = "What is typed here is not kept as a draft: it is safe when it is saved.",
                           .details = error.Description(),
                           .subject = std::string(kDraftFailed)});
}

void Journal::KeepDraft()
try {
    if (!drafts_ || step_.IsEmpty()) return;
    drafts_->Add(step_, TimeText(program_.Ask().Now()));
    if (std::chrono::steady_clock::now() - lastSync_ > kBetweenSyncs) SyncDraft();
} catch (const RuntimeError& error) {
    TellDraftFailure(error);
}

void Journal::SyncDraft()
try {
    if (!drafts_) return;
    lastSync_ = std::chrono::steady_clock::now();
    drafts_->Sync();
} catch (const RuntimeError& error) {
    TellDraftFailure(error);
}

std::vector<Draft> Journal::WaitingDrafts() const
{
    return drafts_ ? drafts_->WaitingOf(program_.CurrentProjectPath) : std::vector<Draft>();
}

std::optional<Draft> Journal::WaitingDraft() const
{
    if (!drafts_ || !sheet_) return std::nullopt;
    const auto waiting = drafts_->Waiting();
    return waiting.empty() ? std::nullopt : std::optional(waiting.front());
}

/// Places whose text is another one in the draft.
std::vector<TextPlace> Journal::Differing(const Draft& draft) const
{
    std::vector<TextPlace> places;
    for (const DraftText& text : draft.texts) {
        const TextPlace place = PlaceOf(*sheet_, text);
        if (!place.control || text.row == kRowsPlace || !HoldsTypedText(*place.control)) continue;
        if (TextAt(place) != text.text) places.push_back(place);
    }
    return places;
}

/// One that says nothing else than the file is forgotten without a word.
void Journal::OfferDraft()
{
    const auto draft = WaitingDraft();
    if (!draft) return;
    if (Differing(*draft).empty()) return drafts_->Forget(*draft);
    const auto show = [this, draft] {
        if (ShowDraft) ShowDraft(*draft);
        OfferDraft();
    };
    program_.notices.Tell(
        {.kind = NoticeKind::Attention,
         .sentence = "Readings of " + ShownTime(draft->at, program_.Ask().Now()) + " were typed here and not saved.",
         .place = {sheet_->Name()},
         .subject = std::string(kDraftSubject),
         .actions = {{"Take back", [this, draft] { Take(*draft); }}, {"Show", show}, {"Forget", [this, draft] {
                                                                                          Forget(*draft);
                                                                                      }}}});
}

void Journal::Forget(const Draft& draft)
{
    if (drafts_) drafts_->Forget(draft);
    program_.notices.Settle(kDraftSubject);
}

/// The texts are in this window's own draft before the old one goes.
int Journal::Take(const Draft& draft)
{
    if (!sheet_ || program_.IsRunning()) return 0;
    std::size_t taken = 0;
    actor_ = Actor::Person;
    actedOn_ = nullptr;
    program_.Run(sheet_->Name() + ".Draft", [&] {
        taken = Differing(draft).size();
        Step step;
        for (const DraftText& text : draft.texts) {
            const TextPlace place = PlaceOf(*sheet_, text);
            auto* grid = dynamic_cast<TextGrid*>(place.control);
            if (grid && text.row == kRowsPlace) step.AddRows(*grid, grid->Rows(), std::stoi(text.text));
            if (place.control && text.row != kRowsPlace && HoldsTypedText(*place.control))
                step.Add(place, TextAt(place), text.text);
        }
        step.Redo();
    });
    SyncDraft();
    Forget(draft);
    return static_cast<int>(taken);
}

}  // namespace terravane
