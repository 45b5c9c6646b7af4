#include "notes/find_notes.h"

#include <algorithm>
#include <array>
#include <ranges>

#include "controls/text_grid.h"
#include "program/cell_words.h"
#include "program/next_command.h"
#include "runtime/runtime_error.h"

namespace terravane::notes {

namespace {

template <Test... kTests>
bool IsOneOf(const laboratory::Description& test)
{
    return ((test.test == kTests) || ...);
}

bool IsAny(const laboratory::Description&)
{
    return true;
}

}  // namespace

std::span<const RuleGroup> RuleGroups()
{
    static const std::array kGroups{
        RuleGroup{"Every sheet", IsAny, TextRules()},
        RuleGroup{"Every test with cans", IsAny, WaterContentRules()},
        RuleGroup{"Dates", IsAny, JobRules()},
        RuleGroup{"Compaction", IsOneOf<Test::StdSoil, Test::ModSoil>, CompactionRules()},
        RuleGroup{"Atterberg limits", IsOneOf<Test::AttSoil>, AtterbergRules()},
        RuleGroup{"Sieve analysis", IsOneOf<Test::SieSoil>, SieveRules()},
        RuleGroup{"Specific gravity", IsOneOf<Test::SpcSoil>, SpecificGravityRules()},
        RuleGroup{"Bearing ratio", IsOneOf<Test::CBRSoil>, BearingRatioRules()},
        RuleGroup{"Field density", IsOneOf<Test::DenSoil>, FieldDensityRules()},
    };
    return kGroups;
}

void Findings::Add(const Place& at, std::initializer_list<std::string> figures)
{
    std::string sentence;
    std::string_view rest = rule_.sentence;
    for (const std::string& figure : figures) {
        const auto place = rest.find("{}");
        sentence.append(rest.substr(0, place)).append(figure);
        rest.remove_prefix(place + 2);
    }
    notes_.push_back({rule_.key, rule_.level, sentence.append(rest), rule_.source, at});
}

std::vector<Note> NotesOn(const Form& sheet, const laboratory::Description& test, Material material,
                          const ProjectTexts* job, const Settings& settings)
{
    const SheetReadings read(sheet, test, material, job);
    std::vector<Note> notes;
    for (const RuleGroup& group : RuleGroups()) {
        if (!group.isFor(test)) continue;
        for (const Rule& rule : group.rules) {
            if (!settings.IsOn(rule)) continue;
            const LimitValues limits = settings.LimitsOf(rule);
            Findings found(rule, limits, notes);
            rule.look(read, found);
        }
    }
    return notes;
}

std::string PlaceWords(const Form& sheet, const laboratory::Description& test, const Place& at)
{
    if (at.control.empty()) return {};
    if (at.IsCell()) return CellWords(sheet.Get<TextGrid>(at.control), at.row, at.column);
    for (const std::span<const laboratory::Box> boxes :
         {std::span<const laboratory::Box>(laboratory::kGeneralBoxes), test.sheet.boxes, test.sheet.results}) {
        const auto found = std::ranges::find(boxes, at.control, &laboratory::Box::control);
        if (found != boxes.end()) return PlainWords(found->caption);
    }
    return std::string(at.control);
}

const Form* OpenSheet(const Program& program)
{
    for (const auto& shown : program.ShownForms() | std::views::reverse)
        if (SheetOfForm(shown.form->Name())) return shown.form;
    return nullptr;
}

Checker::Checker(const Program& program)
    : program_(program), settings_(Settings::Beside(program.Files(), program.BrandFolderNow()))
{}

std::vector<Note> Checker::NotesNow()
{
    const Form* sheet = OpenSheet(program_);
    if (!sheet || program_.CurrentTest == Test::None) return {};
    return NotesOn(*sheet, laboratory::Describe(program_.CurrentTest), program_.CurrentMaterial, Job(), settings_);
}

std::vector<SaidNote> Checker::Said()
{
    std::vector<SaidNote> said;
    for (Note& note : NotesNow()) {
        std::string place = PlaceWords(*OpenSheet(program_), laboratory::Describe(program_.CurrentTest), note.at);
        said.push_back({std::move(note), std::move(place)});
    }
    return said;
}

const ProjectTexts* Checker::Job()
try {
    Bytes content = program_.Files().Read(program_.CurrentProjectPath);
    if (!job_ || content != content_) {
        job_.emplace(content);
        content_ = std::move(content);
    }
    return &*job_;
} catch (const RuntimeError&) {
    job_.reset();
    return nullptr;
}

}  // namespace terravane::notes
