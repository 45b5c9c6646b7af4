/// The texts that every test's sheet has at its head: those of the job, kept once a project, and those of the test.
#pragma once

#include <array>

#include "laboratory/description.h"

namespace terravane::laboratory {

/// In the order of HEAD's columns.
inline constexpr std::array kJobBoxes{
    Box{"txtClient", "Client Name", {.kept = "client", .length = 100}},
    Box{"txtProject", "Project Name", {.kept = "name", .length = 100}},
    Box{"txtLocation", "Location", {.kept = "location", .length = 150}},
    Box{"txtID", "Task No.", {.kept = "number"}},
};

/// The first columns of every test's table, behind the row's key.
inline constexpr std::array kGeneralBoxes{
    Box{"DTPDate", "Date of Test", {.kept = "date", .unit = kDate}},
    Box{"txtSoil", "Sample", {.kept = "soil", .length = 20}},
    Box{"cboTest", "Tested by", {.kept = "test", .length = 50}},
    Box{"cboCheck", "Checked by", {.kept = "check", .length = 50}},
};

inline constexpr const Box& kClient = kJobBoxes[0];
inline constexpr const Box& kProjectName = kJobBoxes[1];
inline constexpr const Box& kLocation = kJobBoxes[2];
inline constexpr const Box& kTaskNumber = kJobBoxes[3];
inline constexpr const Box& kTestDate = kGeneralBoxes[0];
inline constexpr const Box& kSample = kGeneralBoxes[1];
inline constexpr const Box& kTester = kGeneralBoxes[2];
inline constexpr const Box& kChecker = kGeneralBoxes[3];

}  // namespace terravane::laboratory
