/// What the batch tool does with each test: which commands of its sheet it presses, what counts as saved readings,
/// where a result comes from that a test took from another. What a test is called, reads and posts stands in its
/// description.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "batch/choices.h"
#include "batch/presser.h"
#include "laboratory/current_test.h"
#include "laboratory/description.h"
#include "laboratory/tests.h"
#include "store/project_texts.h"

namespace terravane {

/// The test's commands, in the order of its method.
void PressCommands(const laboratory::Description& test, Presser& presser, const Choices& choices,
                   const ProjectTexts& saved);

/// The name of the test's table.
std::string TableName(const laboratory::Description& test, Material material);
/// A column of it.
std::string ColumnName(const laboratory::Description& test, std::string_view suffix);
/// The columns of its table, without the prefix, that hold what the test gave or took.
std::vector<std::string_view> ResultColumns(const laboratory::Description& test);

bool HasReadings(const ProjectTexts& texts, const laboratory::Description& test, Material material);

/// The test that a taken result comes from; nullptr where the file does not say.
const laboratory::Description* SourceOf(const laboratory::Taken& taken, const ProjectTexts& texts,
                                        const laboratory::Description& test, Material material);

}  // namespace terravane
