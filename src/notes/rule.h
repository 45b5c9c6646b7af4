/// A rule of the checker as a line of a table: what it looks at, the limits that a laboratory may set otherwise, where
/// they are from, what is said and what to do about it.
#pragma once

#include <array>
#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "notes/note.h"
#include "notes/sheet_readings.h"

namespace terravane::notes {

/// The limits of a rule, in the order of its sentence; their number is part of the rule.
inline constexpr std::size_t kMostLimits = 2;
using LimitValues = std::array<double, kMostLimits>;

class Findings;

/// key       test and what is seen, "compaction.above-zero-air-voids"; a laboratory switches a note off by it
/// looksAt   for the guide
/// limits    so many of `limit` count
/// unit      of the limits
/// source    the standard; a text that nobody here has read is a "usual limit"
/// sentence  "{}" stands for each figure, in the order in which the rule gives them
/// advice    what to do
/// look      finds the places; needs no limit but Findings' own
struct Rule {
    std::string_view key;
    Level level;
    std::string_view looksAt;
    std::size_t limits;
    LimitValues limit;
    std::string_view unit;
    std::string_view source;
    std::string_view sentence;
    std::string_view advice;
    void (*look)(const SheetReadings& read, Findings& found);
};

/// Takes what a rule finds.
class Findings {
  public:
    Findings(const Rule& rule, const LimitValues& limits, std::vector<Note>& notes)
        : rule_(rule), limits_(limits), notes_(notes)
    {}

    double Limit(std::size_t number = 0) const { return limits_[number]; }
    /// The figures fill the sentence's places; as many as it has.
    void Add(const Place& at, std::initializer_list<std::string> figures);

  private:
    const Rule& rule_;
    const LimitValues& limits_;
    std::vector<Note>& notes_;
};

/// Whether a test is one that a group of rules looks at, and the group.
struct RuleGroup {
    std::string_view title;
    bool (*isFor)(const laboratory::Description& test);
    std::span<const Rule> rules;
};

/// All of them, in the order of the guide.
std::span<const RuleGroup> RuleGroups();

std::span<const Rule> CompactionRules();
std::span<const Rule> AtterbergRules();
std::span<const Rule> SieveRules();
std::span<const Rule> SpecificGravityRules();
std::span<const Rule> BearingRatioRules();
std::span<const Rule> FieldDensityRules();
std::span<const Rule> WaterContentRules();
std::span<const Rule> JobRules();
std::span<const Rule> TextRules();

}  // namespace terravane::notes
