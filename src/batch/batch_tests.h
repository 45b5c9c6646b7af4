/// The seven tests as one table, in the order in which a technician has to work them: a test stands behind those whose
/// results it takes. What a test is called, what it reads and posts, which commands its sheet has, stands here alone.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "batch/choices.h"
#include "batch/presser.h"
#include "batch/project_texts.h"
#include "laboratory/current_test.h"

namespace terravane {

/// A result of another test that the project file holds a second time, in this test's table.
/// column      of this test's table, behind its prefix
/// what        it is: "MDD"
/// from        key of the other test; empty where the file's choice tells which ("den_comp")
/// source      column of the other test's table
/// mayBeTyped  whether a person may have typed it where the other test has none
struct TakenResult {
    std::string_view column, what, from, source;
    bool mayBeTyped;
};

/// key       in options and file names
/// menu      stem of the toolbar item that opens the sheet
/// name      as it stands in a sentence; title: at the head of a section
/// readings  columns of its table; a test with a number but 0 in one of them has saved readings
/// keeps     columns of its table that hold its results, which other tests read
/// posts     columns of SUMMARY
/// takes     results of other tests; needs: keys of the tests whose results the commands read
/// press     the commands, in their order
struct BatchTest {
    std::string_view key;
    Test test;
    std::string_view menu, name, title;
    std::span<const std::string_view> readings, keeps, posts;
    std::span<const TakenResult> takes;
    std::span<const std::string_view> needs;
    void (*press)(Presser& presser, const Choices& choices, const ProjectTexts& saved);
};

std::span<const BatchTest> BatchTests();
/// nullptr where there is none of that key.
const BatchTest* FindBatchTest(std::string_view key);

/// "SOIL" tables and "CRUSH" ones: how a material is called in options, names and sentences, and its row of SUMMARY.
struct BatchMaterial {
    std::string_view key, title;
    Material material;
    char menuDigit;
    int summaryRow;
};
std::span<const BatchMaterial> BatchMaterials();
/// The row of a material; error 5 for none.
const BatchMaterial& RowOf(Material material);

/// The name of the test's table.
std::string TableName(const BatchTest& test, Material material);
/// A column of it.
std::string ColumnName(const BatchTest& test, std::string_view suffix);

bool HasReadings(const ProjectTexts& texts, const BatchTest& test, Material material);

/// The test that a taken result comes from; nullptr where the file does not say.
const BatchTest* SourceOf(const TakenResult& taken, const ProjectTexts& texts, const BatchTest& test,
                          Material material);

}  // namespace terravane
