/// All that is done with one project file, from its bytes to its outputs. Touches nothing but the project and its
/// outputs, so that any number of projects can be worked at the same time.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "batch/batch_options.h"
#include "batch/journal.h"
#include "batch/private_disk.h"
#include "batch/project_list.h"
#include "batch/stale.h"

namespace terravane {

/// What came of a project.
///   failure   why there is nothing of it, or why something is missing; empty where all went well
///   entry     what the journal keeps of it: its outputs; wasThere: they were made by an earlier run
///   stale     under a check
///   csvRows   lines with their ends; json: one object on one line; empty where not asked for or not to be had
struct ProjectAnswer {
    std::string failure;
    JournalEntry entry;
    bool wasThere = false;
    std::vector<std::string> stale;
    std::string csvRows, json;
};

/// Where projects are read and posted to, and where outputs go.
struct Disks {
    FileSystem& projects;
    FileSystem& outputs;
};

/// Never throws: what goes wrong stands in the answer.
ProjectAnswer WorkProject(const Disks& disks, const ProjectFile& project, const BatchOptions& options,
                          const Brand& brand, const std::optional<JournalEntry>& earlier);

/// For the way from a worker process to the one that started it.
std::string ToText(const ProjectAnswer& answer);
ProjectAnswer ReadAnswer(const std::string& text);

}  // namespace terravane
