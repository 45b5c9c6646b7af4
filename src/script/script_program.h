/// A whole run of the script runner, from its options to its exit status.
#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "runtime/dates.h"

namespace terravane {

/// home    the program's folder; empty: a fresh private one that is gone after the run
/// brand   the brand store's folder; empty: "BrandList" in the home
/// now     the fixed clock; nothing: the machine's
/// files   scripts in their order; none: standard input
struct ScriptOptions {
    std::string home;
    std::string brand;
    std::optional<Moment> now;
    bool isStrict = false;
    std::vector<std::string> files;
};

/// Answers go to `answers`, lines that are none to `complaints`. Returns the exit status. RuntimeError where
/// the home can't be made ready.
int RunScripts(const ScriptOptions& options, std::istream& input, std::ostream& answers, std::ostream& complaints);

}  // namespace terravane
