/// A whole run: projects listed, worked by as many processes as wished, told of, their rows collected.
#pragma once

#include <ostream>

#include "batch/batch_options.h"

namespace terravane {

/// The exit status of a run.
namespace exit_status {
inline constexpr int kDone = 0, kSomeFailed = 1, kUsage = 2, kStale = 3;
}

/// says           takes a line for each stale result under a check, and a line for each project if tellsProjects
/// complains      takes what failed, at the end
/// bar            takes the progress bar; nullptr where nobody watches
struct Listeners {
    std::ostream& says;
    std::ostream& complains;
    std::ostream* bar = nullptr;
    bool tellsProjects = true;
};

/// Returns the exit status: 1 also where the run was broken off. RuntimeError where brand folder, CSV, JSON or manifest
/// can't be had.
int RunBatch(const BatchOptions& options, const Listeners& listeners);

/// The same program's part in a run where it was started as one of its workers.
void WorkForRun(const BatchOptions& options);

}  // namespace terravane
