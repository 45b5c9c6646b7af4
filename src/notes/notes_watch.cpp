#include "notes/notes_watch.h"

#include <algorithm>

namespace terravane::notes {

namespace {

constexpr std::string_view kPreview = "frmPreview", kSubject = "notes";

}  // namespace

NotesWatch::NotesWatch(Program& program) : program_(program), checker_(program)
{
    program.Listen(*this);
}

NotesWatch::~NotesWatch()
{
    program_.StopListening(*this);
}

std::vector<const SaidNote*> NotesWatch::On(std::string_view grid, int row, int column) const
{
    std::vector<const SaidNote*> found;
    for (const SaidNote& said : notes_)
        if (said.note.at == Place{grid, row, column}) found.push_back(&said);
    std::ranges::stable_sort(found, std::ranges::greater{}, [](const SaidNote* said) { return said->note.level; });
    return found;
}

void NotesWatch::FormOpened(Form& form)
{
    previewOpens_ |= form.Name() == kPreview;
}

void NotesWatch::CommandEnded(std::string_view, bool)
{
    notes_ = checker_.Said();
    if (std::exchange(previewOpens_, false)) TellDoubts();
    changes_.Announce();
}

/// A page is printed as it is; whoever signs it should know.
void NotesWatch::TellDoubts() const
{
    program_.notices.Settle(kSubject);
    const auto isDoubt = [](const SaidNote& said) { return said.note.level != Level::Information; };
    const auto doubts = std::ranges::count_if(notes_, isDoubt);
    if (doubts == 0) return;
    const SaidNote& first = *std::ranges::find_if(notes_, isDoubt);
    const std::string more =
        doubts == 1 ? std::string() : " And " + std::to_string(doubts - 1) + " more, see View, Notes.";
    const Place& at = first.note.at;
    program_.notices.Tell({.kind = NoticeKind::Attention,
                           .sentence = "For the checker: " + first.note.sentence + more,
                           .details = std::string(first.note.source),
                           .place = {OpenSheet(program_)->Name(), std::string(at.control), at.row, at.column},
                           .subject = std::string(kSubject)});
}

}  // namespace terravane::notes
