/// The choices that may stand behind a posted result.
#pragma once

#include <vector>

#include "batch/batch_options.h"
#include "batch/batch_tests.h"
#include "batch/choices.h"
#include "laboratory/description.h"

namespace terravane {

/// The choices to press a test's commands with, in turn, until what was posted comes out; the first where it never
/// does. Without a check only what has no choice of its own on the sheet is tried, the compaction test that a bearing
/// ratio refers to. Under a check every combination that a technician could have pressed, so that a result is not
/// called stale for a choice that the file does not keep; what the options name stays fixed.
std::vector<Choices> PossibleChoices(const laboratory::Description& test, const BatchOptions& options);

}  // namespace terravane
