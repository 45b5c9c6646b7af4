/// A run-time error that no handler trapped, told to a technician: which command stopped, at which reading, and what is
/// missing there; number, event and statement for whoever looks after the program.
#pragma once

#include <string_view>

#include "controls/form.h"
#include "laboratory/current_test.h"
#include "program/notices.h"
#include "runtime/runtime_error.h"

namespace terravane {

/// What failed, and what the program knew then.
/// event      "frmCompaction.cmdCal_Click"
/// form       that the event belongs to; nullptr where it is not loaded
/// test       whose sheet is open
/// statement  that was sent to a store last; may be empty
struct Failed {
    std::string_view event;
    const RuntimeError& error;
    const Form* form = nullptr;
    Test test = Test::None;
    std::string_view statement = {};

    /// The form of an event, which stands before the point.
    static std::string_view FormOf(std::string_view event) { return event.substr(0, event.find('.')); }
};

/// The cell is the one that the handler addressed last; a text that is too long for its column is found by the column;
/// where numbers divide by nothing, the boxes of the sheet in which nothing is typed are named.
Notice FailureNotice(const Failed& failed);

}  // namespace terravane
