/// All that is done with one project file, from its bytes to its outputs. Touches nothing but the project and its
/// outputs, so that any number of projects can be worked at the same time.
#pragma once

#include <optional>

#include "batch/batch_options.h"
#include "batch/brand_folder.h"
#include "batch/journal_entry.h"
#include "batch/project_answer.h"
#include "batch/project_list.h"
#include "runtime/file_system.h"

namespace terravane {

/// Where projects are read and posted to, and where outputs go.
struct Disks {
    FileSystem& projects;
    FileSystem& outputs;
};

/// Never throws: what goes wrong stands in the answer.
ProjectAnswer WorkProject(const Disks& disks, const ProjectFile& project, const BatchOptions& options,
                          const Brand& brand, const std::optional<JournalEntry>& earlier);

}  // namespace terravane
