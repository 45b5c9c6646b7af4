/// The sheets of one project worked in the order in which a technician has to.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "batch/batch_options.h"
#include "batch/batch_tests.h"
#include "batch/project_session.h"
#include "laboratory/current_test.h"
#include "laboratory/description.h"
#include "store/project_texts.h"

namespace terravane {

/// What became of one test of one material.
/// troubles  what went wrong in opening, pressing or drawing, a sentence each
/// gives     whether the commands went through: then the copy holds what follows from the readings
struct TestOutcome {
    const laboratory::Description* test;
    Material material;
    bool hasReadings = false;
    bool gives = false;
    std::vector<std::string> troubles = {};
};

/// Which tests are opened: those wanted, and where commands are pressed those whose results they take.
bool IsNeeded(const BatchOptions& options, const laboratory::Description& test);

/// Opens every needed test that has saved readings, presses its commands unless sheets are shown as saved, and runs
/// `atSheet` while the sheet of a wanted test is open.
/// Returns an outcome for each test and material asked for, in the order of the tests.
using AtSheet = std::function<void(const TestOutcome& outcome)>;
std::vector<TestOutcome> WorkSheets(ProjectSession& session, const ProjectTexts& saved, const BatchOptions& options,
                                    const AtSheet& atSheet);

/// Whether two stored texts say the same: as numbers where both are, else without the blanks around them.
bool SaysTheSame(std::string_view left, std::string_view right);

}  // namespace terravane
