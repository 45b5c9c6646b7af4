/// The checker's notes on a test sheet as it stands: a second pair of eyes that knows all readings.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/form.h"
#include "laboratory/description.h"
#include "laboratory/tests.h"
#include "notes/note.h"
#include "notes/settings.h"
#include "program/program.h"
#include "store/project_texts.h"

namespace terravane::notes {

/// In the order of the rules, those of one rule in the order of the sheet. Nothing is changed, nothing is pressed: what
/// was not calculated has no notes on results.
/// sheet  an open form of the test
/// job    the project file with the other tests; nullptr where there is none
std::vector<Note> NotesOn(const Form& sheet, const laboratory::Description& test, Material material,
                          const ProjectTexts* job, const Settings& settings);

/// A note with its place as a technician calls it: "Dry Density, (g/cm^3), trial 3".
struct SaidNote {
    Note note;
    std::string place;
};

/// The notes of the program's open sheet, as often as somebody asks. The project file is taken apart again only where
/// it has changed; one that can't be read is none.
class Checker {
  public:
    /// Reads the laboratory's settings beside the brand folder.
    explicit Checker(const Program& program);

    /// None where no sheet is open.
    std::vector<Note> NotesNow();
    std::vector<SaidNote> Said();
    const Settings& TheSettings() const { return settings_; }

  private:
    const ProjectTexts* Job();

    const Program& program_;
    Settings settings_;
    Bytes content_;
    std::optional<ProjectTexts> job_;
};

/// What a technician calls a place of the sheet; empty for none.
std::string PlaceWords(const Form& sheet, const laboratory::Description& test, const Place& at);

/// The sheet that is open, the one shown last; nullptr where there is none.
const Form* OpenSheet(const Program& program);

}  // namespace terravane::notes
