/// What stands in a project file but no longer follows from its readings.
#pragma once

#include <string>
#include <vector>

#include "batch/pressing.h"
#include "laboratory/current_test.h"
#include "store/project_texts.h"

namespace terravane {

/// table, column, rows  where it stands; rows from 1, those with the same text together
/// stands               the text there, without the blanks around it
/// follows              what it would be now; empty where nothing follows
/// why                  a sentence without its full stop
struct StaleResult {
    Material material;
    std::string table, column;
    std::vector<int> rows;
    std::string stands, follows, why;
};

/// Compares what was saved with what the pressed sheets left in the copy. Blanks are never stale.
std::vector<StaleResult> FindStale(const ProjectTexts& saved, const ProjectTexts& now,
                                   const std::vector<TestOutcome>& outcomes);

/// "soil: DENSOIL den_mdd 2.10 in column 3: the standard compaction's MDD is 2.14 now"
std::string Sentence(const StaleResult& stale);

}  // namespace terravane
