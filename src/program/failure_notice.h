/// A run-time error that no handler trapped, told to a technician: which command stopped, at which reading, and what is
/// missing there; number, event and statement for whoever looks after the program.
#pragma once

#include <string_view>

#include "program/notices.h"
#include "runtime/runtime_error.h"

namespace terravane {

class Program;

/// event  what failed, "frmCompaction.cmdCal_Click". The cell is the one that the handler addressed last; a text that
///        is too long for its column is found by the column; where numbers divide by nothing, the boxes of the sheet
///        in which nothing is typed are named.
Notice FailureNotice(const Program& program, std::string_view event, const RuntimeError& error);

}  // namespace terravane
