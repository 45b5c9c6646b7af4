/// What a worker process does with one project of a run.
#pragma once

#include <optional>
#include <string>

#include "batch/batch_options.h"
#include "batch/brand_folder.h"
#include "batch/journal_entry.h"
#include "batch/output_disk.h"
#include "batch/project_list.h"
#include "runtime/file_system.h"

namespace terravane {

/// All that a worker is told of a project.
/// clash    the path of another whose outputs have the same names; empty where there is none
/// earlier  what an earlier run made of it
struct ProjectRequest {
    ProjectFile project;
    std::string clash;
    std::optional<JournalEntry> earlier;
};

/// For the way to a worker process.
std::string ToText(const ProjectRequest& request);
ProjectRequest ReadRequest(const std::string& text);

class BatchWorker {
  public:
    /// The brand folder is read here, once for all projects; a file error where it can't be. The options have to
    /// outlive the worker.
    explicit BatchWorker(const BatchOptions& options);

    /// A request's answer, both as texts.
    std::string Answer(const std::string& request);

  private:
    const BatchOptions& options_;
    DiskFileSystem disk_;
    OutputDisk outputs_;
    Brand brand_;
};

}  // namespace terravane
