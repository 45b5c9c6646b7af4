// What an experienced eye looks for between the sheets of a job: the order of their dates.
#include <optional>

#include "laboratory/all_tests.h"
#include "notes/figures.h"
#include "notes/rule.h"
#include "runtime/dates.h"
#include "runtime/runtime_error.h"

namespace terravane::notes {

namespace on_jobs {

namespace {

std::optional<Moment> DateIn(const std::string& text)
try {
    return text.empty() ? std::nullopt : std::optional(ParseDate(text));
} catch (const RuntimeError&) {
    return {};
}

std::optional<Moment> KeptDate(const SheetReadings& read, Test test)
{
    return DateIn(read.Kept(test, laboratory::kTestDate.is.kept));
}

/// A compaction test whose maximum density the sheet goes by, done after it.
void BeforeItsCompaction(const SheetReadings& read, Findings& found)
{
    const auto own = DateIn(read.Text(laboratory::kTestDate));
    if (!own) return;
    for (const Test needed : read.Described().needs) {
        if (!IsCompaction(needed) || read.Described().test == needed) continue;
        const auto before = KeptDate(read, needed);
        const bool gives = !read.Kept(needed, laboratory::kMaximumDryDensity.is.kept).empty();
        if (gives && before && *own < *before)
            found.Add(SheetReadings::At(laboratory::kTestDate),
                      {ShortDate(*own), std::string(laboratory::Describe(needed).names.sentence), ShortDate(*before)});
    }
}

void SoakingBackwards(const SheetReadings& read, Findings& found)
{
    if (read.Described().test != Test::CBRSoil) return;
    std::optional<Moment> last;
    for (int trial = 1; trial <= laboratory::kSwelling.count; ++trial) {
        const auto date = DateIn(read.Text(laboratory::kSwelling, cbr::swell::Date, trial));
        if (date && last && *date < *last)
            found.Add(SheetReadings::At(laboratory::kSwelling, cbr::swell::Date, trial),
                      {ShortDate(*date), ShortDate(*last)});
        if (date) last = date;
    }
}

using enum Level;

constexpr Rule kRules[]{
    {"dates.before-its-compaction",
     Doubtful,
     "The test's date against the compaction test that it goes by",
     0,
     {},
     "",
     "ISO/IEC 17025, technical records",
     "The test is of {}, {} that it goes by of {}: one of the dates is wrong.",
     "Correct the date.",
     BeforeItsCompaction},
    {"dates.soaking-backwards",
     Doubtful,
     "The dates of the swelling readings",
     0,
     {},
     "",
     "ISO/IEC 17025, technical records",
     "The reading of {} stands behind one of {}.",
     "Correct the date.",
     SoakingBackwards},
};

}  // namespace

}  // namespace on_jobs

std::span<const Rule> JobRules()
{
    return on_jobs::kRules;
}

}  // namespace terravane::notes
