#include "batch/stale.h"

#include <algorithm>

#include "store/schema.h"

namespace terravane {

namespace {

/// Compares one project before and after its commands were pressed.
class Comparison {
  public:
    Comparison(const ProjectTexts& saved, const ProjectTexts& now, const std::vector<TestOutcome>& outcomes)
        : saved_(saved), now_(now), outcomes_(outcomes)
    {}

    std::vector<StaleResult> Take()
    {
        for (const TestOutcome& outcome : outcomes_) {
            const auto taken = StaleTaken(outcome);
            AddOwn(outcome);
            found_.insert(found_.end(), taken.begin(), taken.end());
            AddPosted(outcome);
        }
        return std::move(found_);
    }

  private:
    /// Results of another test that this test's table holds a second time.
    std::vector<StaleResult> StaleTaken(const TestOutcome& outcome) const
    {
        std::vector<StaleResult> stale;
        for (const laboratory::Taken& taken : outcome.test->takes) {
            const laboratory::Description* source = SourceOf(taken, saved_, *outcome.test, outcome.material);
            if (!source) continue;  // the file does not say where it came from
            const auto from = std::ranges::find_if(outcomes_, [&](const TestOutcome& other) {
                return other.test == source && other.material == outcome.material;
            });
            if (from != outcomes_.end()) AddTaken(stale, outcome, taken, *from);
        }
        return stale;
    }

    void AddTaken(std::vector<StaleResult>& stale, const TestOutcome& outcome, const laboratory::Taken& taken,
                  const TestOutcome& source) const
    {
        const std::string follows =
            source.hasReadings && !source.gives
                ? std::string()
                : now_.Trimmed(TableName(*source.test, source.material), ColumnName(*source.test, taken.source), 1);
        if (follows.empty() && !source.hasReadings && taken.mayBeTyped) return;
        const std::string whose = std::string(source.test->names.sentence) + "'s " + std::string(taken.name);
        const std::string why = follows.empty() ? std::string(source.test->names.sentence) + " gives no " +
                                                      std::string(taken.name) + " now" + Reason(source)
                                                : whose + " is " + follows + " now";
        AddRows(stale, outcome, ColumnName(*outcome.test, taken.column), follows, why);
    }

    /// The test's own results in its table: those that other tests read. Taken ones are told as such.
    void AddOwn(const TestOutcome& outcome)
    {
        if (!outcome.hasReadings) return;  // a result without readings may have been typed
        const std::string table = TableName(*outcome.test, outcome.material);
        for (const std::string_view suffix : ResultColumns(*outcome.test)) {
            const bool isTaken =
                std::ranges::find(outcome.test->takes, suffix, &laboratory::Taken::column) != outcome.test->takes.end();
            if (isTaken) continue;
            const std::string column = ColumnName(*outcome.test, suffix);
            const std::string follows = outcome.gives ? now_.Trimmed(table, column, 1) : std::string();
            AddRows(found_, outcome, column, follows, WhyNot(outcome, follows));
        }
    }

    void AddPosted(const TestOutcome& outcome)
    {
        const int row = laboratory::Describe(outcome.material).summaryRow;
        for (const laboratory::Posted& posted : outcome.test->posts) {
            const std::string column = SummaryTable().ColumnName(posted.column);
            const std::string stands = saved_.Trimmed(kSummaryTable, column, row);
            const std::string follows = outcome.gives ? now_.Trimmed(kSummaryTable, column, row) : std::string();
            if (stands.empty() || (outcome.gives && SaysTheSame(stands, follows))) continue;
            found_.push_back({outcome.material,
                              std::string(kSummaryTable),
                              column,
                              {row},
                              stands,
                              follows,
                              WhyNot(outcome, follows)});
        }
    }

    /// Rows of the test's table whose text is there and is not what follows; the same texts together.
    void AddRows(std::vector<StaleResult>& stale, const TestOutcome& outcome, const std::string& column,
                 const std::string& follows, const std::string& why) const
    {
        const TableSchema& table = TableOf(outcome.test->test, outcome.material);
        std::vector<StaleResult> ofColumn;
        for (int row = 1; row <= table.rows; ++row) {
            const std::string stands = saved_.Trimmed(table.name, column, row);
            if (stands.empty() || SaysTheSame(stands, follows)) continue;
            const auto same = std::ranges::find(ofColumn, stands, &StaleResult::stands);
            if (same != ofColumn.end()) {
                same->rows.push_back(row);
            } else {
                ofColumn.push_back({outcome.material, std::string(table.name), column, {row}, stands, follows, why});
            }
        }
        stale.insert(stale.end(), ofColumn.begin(), ofColumn.end());
    }

    static std::string Reason(const TestOutcome& outcome)
    {
        if (!outcome.hasReadings) return ": it has no saved readings";
        return outcome.troubles.empty() ? std::string() : " (" + outcome.troubles.front() + ")";
    }

    static std::string WhyNot(const TestOutcome& outcome, const std::string& follows)
    {
        const std::string name(outcome.test->names.sentence);
        if (!outcome.gives || follows.empty()) return name + " gives no such result now" + Reason(outcome);
        const bool isItsOwn = outcome.test->needs.empty() || IsCompaction(outcome.test->test);  // a Gs moves no peak
        if (isItsOwn) return "the readings of " + name + " give " + follows + " now";
        return "the readings of " + name + " and what it takes from other tests give " + follows + " now";
    }

    const ProjectTexts& saved_;
    const ProjectTexts& now_;
    const std::vector<TestOutcome>& outcomes_;
    std::vector<StaleResult> found_;
};

int RowsOf(std::string_view table)
{
    return std::ranges::find(ProjectTables(), table, &TableSchema::name)->rows;
}

/// Which rows; nothing for a result that all rows repeat.
std::string Where(const StaleResult& stale)
{
    if (stale.table == kSummaryTable || static_cast<int>(stale.rows.size()) == RowsOf(stale.table)) return {};
    std::string rows;
    for (const int row : stale.rows) rows += (rows.empty() ? "" : ", ") + std::to_string(row);
    return std::string(stale.rows.size() == 1 ? " in row " : " in rows ") + rows;
}

}  // namespace

std::vector<StaleResult> FindStale(const ProjectTexts& saved, const ProjectTexts& now,
                                   const std::vector<TestOutcome>& outcomes)
{
    return Comparison(saved, now, outcomes).Take();
}

std::string Sentence(const StaleResult& stale)
{
    return std::string(laboratory::Describe(stale.material).title) + ": " + stale.table + " " + stale.column + " " +
           stale.stands + Where(stale) + ": " + stale.why;
}

}  // namespace terravane
