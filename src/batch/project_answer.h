/// What a worker process tells of a project.
#pragma once

#include <string>
#include <vector>

#include "batch/journal_entry.h"

namespace terravane {

/// What came of a project.
///   failure   why there is nothing of it, or why something is missing; empty where all went well
///   entry     what the journal keeps of it: its outputs; wasThere: they were made by an earlier run
///   stale     under a check
///   csvRows   lines with their ends; json: one object on one line; empty where not asked for or not to be had
///   noteRows  of the notes, as csvRows; hasDoubts: one of them is more than information
struct ProjectAnswer {
    std::string failure;
    JournalEntry entry;
    bool wasThere = false;
    std::vector<std::string> stale;
    std::string csvRows, json, noteRows;
    bool hasDoubts = false;
};

/// For the way from a worker process to the one that started it.
std::string ToText(const ProjectAnswer& answer);
ProjectAnswer ReadAnswer(const std::string& text);

}  // namespace terravane
