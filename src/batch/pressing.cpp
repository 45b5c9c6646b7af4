#include "batch/pressing.h"

#include <algorithm>

#include "batch/posted_choices.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "store/schema.h"

namespace terravane {

namespace {

bool IsWanted(const BatchOptions& options, const laboratory::Description& test)
{
    return options.Wants(test.key);
}

/// One test of one material on its way through the sheet.
class Work {
  public:
    Work(ProjectSession& session, const ProjectTexts& saved, const BatchOptions& options, TestOutcome& outcome)
        : session_(session), saved_(saved), options_(options), outcome_(outcome)
    {}

    void Do(const AtSheet& atSheet)
    {
        TestSheet* const sheet = Open();
        if (!sheet) return;
        if (!options_.isAsSaved) PressCommands(*sheet);
        if (!atSheet) return;
        const std::size_t before = CountOfTroubles();
        atSheet(outcome_);
        AddTroublesSince(before);
    }

  private:
    TestSheet* Open()
    {
        outcome_.troubles.clear();
        const std::size_t before = CountOfTroubles();
        TestSheet* const sheet = session_.Open(*outcome_.test, outcome_.material);
        AddTroublesSince(before);
        return sheet;
    }

    /// A posted result may have come of a choice that neither file nor options tell. The sheet's own choice stands
    /// where none of them gives it.
    void PressCommands(TestSheet& sheet)
    {
        const auto variants = PossibleChoices(*outcome_.test, options_);
        Press(sheet, variants.front());
        if (variants.size() == 1 || !HasPosted() || GivesWhatWasPosted()) return;
        for (std::size_t i = 1; i < variants.size(); ++i) {
            if (TryAgain(variants[i])) return;
        }
        TryAgain(variants.front());
    }

    bool TryAgain(const Choices& choices)
    {
        TestSheet* const sheet = Open();
        if (!sheet) return false;
        Press(*sheet, choices);
        return GivesWhatWasPosted();
    }

    void Press(TestSheet& sheet, const Choices& choices)
    {
        const std::size_t before = CountOfTroubles();
        outcome_.gives = session_.Press(sheet, *outcome_.test, choices, saved_);
        AddTroublesSince(before);
    }

    bool GivesWhatWasPosted() const
    {
        if (!outcome_.gives) return false;
        const ProjectTexts now = session_.Texts(kSummaryTable);
        return std::ranges::all_of(outcome_.test->posts, [&](const laboratory::Posted& result) {
            const std::string column = SummaryTable().ColumnName(result.column);
            const std::string posted = saved_.Trimmed(kSummaryTable, column, SummaryRow());
            return posted.empty() || SaysTheSame(posted, now.Text(kSummaryTable, column, SummaryRow()));
        });
    }

    std::size_t CountOfTroubles() const { return session_.Heard().Troubles().size(); }

    void AddTroublesSince(std::size_t count)
    {
        const auto& heard = session_.Heard().Troubles();
        outcome_.troubles.insert(outcome_.troubles.end(), heard.begin() + static_cast<std::ptrdiff_t>(count),
                                 heard.end());
    }

    bool HasPosted() const
    {
        return std::ranges::any_of(outcome_.test->posts, [&](const laboratory::Posted& result) {
            return !saved_.Trimmed(kSummaryTable, SummaryTable().ColumnName(result.column), SummaryRow()).empty();
        });
    }

    int SummaryRow() const { return laboratory::Describe(outcome_.material).summaryRow; }

    ProjectSession& session_;
    const ProjectTexts& saved_;
    const BatchOptions& options_;
    TestOutcome& outcome_;
};

}  // namespace

bool IsNeeded(const BatchOptions& options, const laboratory::Description& test)
{
    if (IsWanted(options, test)) return true;
    return !options.isAsSaved && std::ranges::any_of(laboratory::Tests(), [&](const laboratory::Description* other) {
        return std::ranges::find(other->needs, test.test) != other->needs.end() && IsNeeded(options, *other);
    });
}

std::vector<TestOutcome> WorkSheets(ProjectSession& session, const ProjectTexts& saved, const BatchOptions& options,
                                    const AtSheet& atSheet)
{
    std::vector<TestOutcome> outcomes;
    for (const laboratory::MaterialDescription& material : laboratory::kMaterials) {
        if (!options.WantsMaterial(material.key)) continue;
        for (const laboratory::Description* test : laboratory::TestsInWorkOrder()) {
            if (!IsNeeded(options, *test)) continue;
            auto& outcome = outcomes.emplace_back(TestOutcome{test, material.material});
            outcome.hasReadings = HasReadings(saved, *test, material.material);
            if (outcome.hasReadings)
                Work(session, saved, options, outcome).Do(IsWanted(options, *test) ? atSheet : nullptr);
        }
    }
    return outcomes;
}

bool SaysTheSame(std::string_view left, std::string_view right)
{
    if (IsNumber(left) && IsNumber(right)) return Val(left) == Val(right);
    return Trim(left) == Trim(right);
}

}  // namespace terravane
