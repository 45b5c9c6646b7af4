// What a person sees: texts, states, cells, forms, drawings. Nothing is changed by looking.
#include <algorithm>
#include <array>

#include "controls/picture_box.h"
#include "controls/text_grid.h"
#include "notes/find_notes.h"
#include "render/png.h"
#include "reports/print_report.h"
#include "results/frmSummary.h"
#include "runtime/numbers.h"
#include "script/commands.h"
#include "script/item_answers.h"
#include "script/script_controls.h"

namespace terravane {

namespace {

void GetCell(Session& session, Words words)
{
    const auto& grid = ControlFor(&ControlUses::cells, session.program, words[0], "be asked for a cell");
    const int row = WholeNumber(words[1], "a row"), column = WholeNumber(words[2], "a column");
    session.answers.Write(CellAnswer(words[0], row, column, grid(row, column)));
}

void GetProperty(Session& session, Words words)
{
    const auto [control, property] = PropertyNamed(session.program, words[0]);
    if (property.empty()) return session.answers.Write(TextAnswer(words[0], control.Text()));
    const int index = words.size() > 1 ? WholeNumber(words[1], "an entry") : 0;
    const auto value = ReadProperty(control, property, index);
    if (!value) throw LineFault("\"" + control.Name() + "\" has no property \"" + property + "\".");
    session.answers.Write(ValueAnswer(Joined(words), *value));
}

void RunGet(Session& session, Words words)
{
    words.size() == 3 ? GetCell(session, words) : GetProperty(session, words);
}

void RunDump(Session& session, Words words)
{
    const auto& grid = ControlFor(&ControlUses::cells, session.program, words[0], "be dumped");
    for (int row = 0; row < grid.Rows(); ++row) session.answers.Write(GridRowAnswer(words[0], grid, row));
}

/// Those that are only loaded come first, then those shown, the one shown last at the end.
void RunForms(Session& session, Words)
{
    const auto& shown = session.program.ShownForms();
    Json names = Json::array();
    for (const Form* form : session.program.LoadedForms()) {
        const bool isShown = std::ranges::any_of(shown, [form](const auto& one) { return one.form == form; });
        if (!isShown) names.push_back(form->Name());
    }
    for (const auto& one : shown) names.push_back(one.form->Name());
    session.answers.Write({{"forms", std::move(names)}});
}

std::string_view KindWords(NoticeKind kind)
{
    switch (kind) {
        case NoticeKind::Information:
            return "information";
        case NoticeKind::Attention:
            return "attention";
        case NoticeKind::Failure:
            break;
    }
    return "failure";
}

Json NoticeAnswer(const Notice& notice)
{
    Json answer{{"notice", notice.sentence}, {"kind", KindWords(notice.kind)}};
    const NoticePlace& place = notice.place;
    if (place.IsGiven()) {
        const std::string cell = " " + std::to_string(place.row) + " " + std::to_string(place.column);
        answer["at"] = place.form + "." + place.control + (place.IsCell() ? cell : std::string());
    }
    return answer;
}

/// Those that are open, the oldest first, and how many.
void RunNotices(Session& session, Words)
{
    int open = 0;
    for (const Notice& notice : session.program.notices.Told()) {
        if (!notice.isOpen) continue;
        ++open;
        session.answers.Write(NoticeAnswer(notice));
    }
    session.answers.Write({{"notices", open}});
}

std::string PlaceWords(const notes::Place& at)
{
    std::string place(at.control);
    if (at.IsCell()) place += " " + std::to_string(at.row) + " " + std::to_string(at.column);
    return place;
}

/// What an experienced eye would say of the open sheet, and how many notes that are. Bad lines of the laboratory's
/// settings come first.
void RunNotes(Session& session, Words)
{
    notes::Checker checker(session.program);
    for (const std::string& complaint : checker.TheSettings().Complaints())
        session.answers.Write({{"settings", complaint}});
    const auto found = checker.NotesNow();
    for (const notes::Note& note : found) {
        Json answer{{"note", note.key}, {"level", notes::Words(note.level)}, {"text", note.sentence}};
        if (!note.at.control.empty()) answer["at"] = PlaceWords(note.at);
        session.answers.Write(answer);
    }
    session.answers.Write({{"notes", found.size()}});
}

void RunPicture(Session& session, Words words)
{
    const auto& box = ControlFor(&ControlUses::drawing, session.program, words[0], "be looked at as a picture");
    WriteItems(session.answers, *box.Image());
}

/// Error 424 where no preview is open.
const PictureBox& PreviewPage(const Program& program)
{
    return program.Get<Form>("frmPreview").Get<PictureBox>("picView");
}

/// What printing would send: the overall results where they are open, else the open sheet's report.
std::vector<DisplayList> PagesToPrint(Program& program)
{
    const auto* results = dynamic_cast<const frmSummary*>(program.Loaded("frmSummary"));
    return results ? results->Pages() : PagesOfReport(program);
}

void WritePrintedPage(Session& session, int number)
{
    const auto pages = PagesToPrint(session.program);
    if (number < 1 || number > static_cast<int>(pages.size())) {
        throw RuntimeError(error::kInvalidProcedureCall, "There is no page " + std::to_string(number));
    }
    WriteItems(session.answers, pages[static_cast<std::size_t>(number - 1)]);
}

void RunPage(Session& session, Words words)
{
    if (words[0] == "preview" && words.size() == 1) {
        return WriteItems(session.answers, *PreviewPage(session.program).Image());
    }
    if (words[0] != "print" || words.size() != 2) {
        throw LineFault("A page is \"preview\" or \"print\" and its number.");
    }
    WritePrintedPage(session, WholeNumber(words[1], "a page"));
}

void RunRender(Session& session, Words words)
{
    if (words[0] != "preview") throw LineFault("Only the preview's page can be rendered.");
    if (words.size() > 2 && !IsNumber(words[2])) throw LineFault("\"" + words[2] + "\" is no percentage.");
    const double percent = words.size() > 2 ? Val(words[2]) : 100;
    const auto page = PreviewPage(session.program).Image();
    WritePng(session.program.Files(), FullPath(words[1]), *page, percent);
}

constexpr std::array kLookingCommands{
    Command{"get", 1, 3, RunGet},         Command{"dump", 1, 1, RunDump},   Command{"forms", 0, 0, RunForms},
    Command{"picture", 1, 1, RunPicture}, Command{"page", 1, 2, RunPage},   Command{"render", 2, 3, RunRender},
    Command{"notices", 0, 0, RunNotices}, Command{"notes", 0, 0, RunNotes},
};

}  // namespace

std::span<const Command> LookingCommands()
{
    return kLookingCommands;
}

}  // namespace terravane
