/// A project's results and readings as lines for other programs.
#pragma once

#include <string>
#include <vector>

#include "batch/batch_options.h"
#include "batch/journal.h"
#include "batch/journal_entry.h"
#include "batch/pressing.h"
#include "batch/stale.h"
#include "notes/find_notes.h"
#include "store/project_texts.h"

namespace terravane {

/// "project,material,sum_ID,sum_LL,...": the columns of SUMMARY in the order of the store.
std::string CsvHead();
/// A line for each material asked for; blank results are empty. Quoted as RFC 4180 has it, line ends are LF.
std::string CsvRows(const std::string& project, const ProjectTexts& texts, const BatchOptions& options);

/// One object on one line: headings, and of each material its results and the rows of every test with readings, as the
/// texts that the file holds without the blanks around them.
std::string JsonObject(const std::string& project, const ProjectTexts& texts, const BatchOptions& options,
                       const std::vector<TestOutcome>& outcomes, const std::vector<StaleResult>& stale);
/// What stands in its place for a project that could not be read.
std::string JsonFailure(const std::string& project, const std::string& failure);

/// "project,material,test,note,level,place,text,source", and a line a note.
std::string NotesHead();
std::string NoteRows(const std::string& project, const TestOutcome& outcome, const std::vector<notes::SaidNote>& said);

/// "output,pages,bytes,sha256,project".
std::string ManifestHead();
std::string ManifestRows(const std::string& project, const JournalEntry& entry);

}  // namespace terravane
