/// All tests and materials, to be looked up.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "laboratory/description.h"
#include "laboratory/kept_columns.h"

namespace terravane::laboratory {

/// The tests as toolbar and overall results show them.
std::span<const Description* const> Tests();

/// The same in the order in which a technician has to work them.
std::span<const Description* const> TestsInWorkOrder();

/// Error 5 "No test sheet has been opened." for none.
const Description& Describe(Test test);

/// nullptr where no test has the key.
const Description* FindTest(std::string_view key);

/// The sheets, in the order of their closing before another file, or before another sheet.
std::span<const Sheet* const> SheetsClosedBeforeFile();
std::span<const Sheet* const> SheetsClosedBeforeSheet();

/// The columns of a test's tables, the key first, and without it in the order of the statements; none of a sheet that
/// no test has.
std::span<const KeptColumn> TableColumns(const Sheet& sheet);
std::span<const KeptColumn> StatementColumns(const Sheet& sheet);

/// key         in options and names of files
/// title       in a sentence; caption: on the toolbar
/// menuDigit   behind the stem of a test's menu key
/// summaryRow  its row of SUMMARY, from 1
struct MaterialDescription {
    Material material;
    std::string_view key, title, caption;
    char menuDigit;
    int summaryRow;
};

inline constexpr std::array kMaterials{
    MaterialDescription{Material::Soil, "soil", "soil", "Soil", '1', 1},
    MaterialDescription{Material::Crush, "crush", "crushed rock", "Crushed Rock", '2', 2},
};

/// Error 5 for none.
const MaterialDescription& Describe(Material material);

}  // namespace terravane::laboratory
