/// What earlier runs made: a line a project, kept in the folder of its outputs, so that a run that was broken off goes
/// on where it stopped and a changed project or another choice is done again.
///
///     .terravane-report.journal    {"project":"TRVN_road","content":"<sha>","made":"<sha>","today":"2026-11-21",
///                                   "outputs":[{"path":"TRVN_road_att_soil.pdf","pages":2,"bytes":41230,"sha256":"..."}]}
///
/// Lines are only added; the last of a project counts, and a line cut short counts for nothing.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "batch/journal_entry.h"
#include "batch/project_list.h"
#include "runtime/file_system.h"

namespace terravane {

/// Where a project's line stands.
std::string JournalPath(const ProjectFile& project);

/// The last line of each project of the list, by its stem; a journal that is not there, or is no
/// file of its own, is empty.
std::map<std::string, JournalEntry> ReadJournals(const FileSystem& disk, const std::vector<ProjectFile>& projects);

/// Adds a project's line at the end of its journal, in one piece. A link under the journal's name gives way. A journal
/// that can't be written is no failure: the project is then done again.
void AddToJournal(const FileSystem& disk, const ProjectFile& project, const JournalEntry& entry);

}  // namespace terravane
