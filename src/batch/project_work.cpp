#include "batch/project_work.h"

#include <algorithm>
#include <chrono>
#include <future>

#include "batch/output_disk.h"
#include "batch/pressing.h"
#include "batch/result_rows.h"
#include "jet/connection.h"
#include "journal/sha256.h"
#include "render/pdf.h"
#include "runtime/runtime_error.h"
#include "store/statements.h"

namespace terravane {

namespace {

constexpr std::string_view kDate = "yyyy-mm-dd";

/// A part of the printed whole: one test's report, or the overall results.
/// name   behind the project's in the file's name: "att_soil", "results"
struct Part {
    std::string name, bookmark, title;
    std::vector<DisplayList> pages;
};

/// The day alone: a run is printed for a day, at no hour that anybody knows.
Moment DayOf(Moment moment)
{
    return std::chrono::floor<std::chrono::days>(moment);
}

class ProjectWork {
  public:
    ProjectWork(const Disks& disks, const ProjectFile& project, const BatchOptions& options, const Brand& brand)
        : disk_(disks.projects), outputs_(disks.outputs), project_(project), options_(options), brand_(brand)
    {}

    ProjectAnswer Do(const std::optional<JournalEntry>& earlier)
    {
        content_ = disk_.Read(project_.path);
        answer_.entry = {Sha256(content_), MadeWith(), Format(options_.today, kDate), {}};
        if (options_.resumes && !options_.checks && earlier && IsDone(*earlier)) {
            answer_.entry = *earlier;
            answer_.wasThere = true;
        }
        if (!answer_.wasThere || WantsRows() || options_.WantsNotes()) WorkSession();
        return std::move(answer_);
    }

  private:
    std::string MadeWith() const { return Sha256(options_.Fingerprint() + brand_.digest + FullPath(project_.path)); }
    bool WantsRows() const { return !options_.csv.empty() || !options_.json.empty(); }
    bool MakesPages() const { return !options_.checks && !answer_.wasThere; }

    /// Whether an earlier run made the same of the same, and all of it still stands as it was made.
    bool IsDone(const JournalEntry& earlier) const
    {
        if (earlier.content != answer_.entry.content || earlier.made != answer_.entry.made) return false;
        if (options_.isTodayGiven && earlier.today != answer_.entry.today) return false;
        return std::ranges::all_of(earlier.outputs, [this](const Output& output) {
            return outputs_.Exists(output.path) && Sha256(outputs_.Read(output.path)) == output.sha256;
        });
    }

    void WorkSession()
    {
        const ProjectTexts saved(content_);
        ProjectSession session(brand_, FullPath(project_.path), content_, options_.today);
        const auto outcomes = WorkSheets(session, saved, options_, [&](const TestOutcome& outcome) {
            if (MakesPages()) AddReportPages(session, outcome);
            if (options_.WantsNotes()) AddNotes(session, outcome);
        });
        if (MakesPages() && options_.wantsSummary) AddResultsPages(session);
        if (!options_.checks) AddTroubles(outcomes);
        if (options_.checks || WantsRows()) AddRows(saved, session.Texts(), outcomes);
        if (!MakesPages()) return;
        WriteOutputs();
        if (options_.posts) Post(saved, session.Texts());
    }

    void AddReportPages(ProjectSession& session, const TestOutcome& outcome)
    {
        const laboratory::MaterialDescription& material = laboratory::Describe(outcome.material);
        auto pages = session.ReportPages();
        if (pages.empty()) return;
        parts_.push_back({std::string(outcome.test->key) + "_" + std::string(material.key),
                          std::string(outcome.test->names.title) + ", " + std::string(material.title),
                          session.ReportTitle(), std::move(pages)});
    }

    void AddNotes(ProjectSession& session, const TestOutcome& outcome)
    {
        const auto said = session.Notes();
        answer_.hasDoubts |= std::ranges::any_of(
            said, [](const notes::SaidNote& one) { return one.note.level != notes::Level::Information; });
        if (!options_.notes.empty()) answer_.noteRows += NoteRows(project_.path, outcome, said);
    }

    void AddResultsPages(ProjectSession& session)
    {
        const std::size_t before = session.Heard().Troubles().size();
        auto pages = session.ResultsPages();
        const auto& heard = session.Heard().Troubles();
        if (heard.size() > before) AddFailure(heard.back());
        if (!pages.empty())
            parts_.push_back({"results", "Overall Results", "Overall Testing Results", std::move(pages)});
    }

    void AddFailure(const std::string& sentence)
    {
        if (!answer_.failure.empty()) answer_.failure += "; ";
        answer_.failure += sentence;
    }

    void AddTroubles(const std::vector<TestOutcome>& outcomes)
    {
        for (const TestOutcome& outcome : outcomes) {
            const laboratory::MaterialDescription& material = laboratory::Describe(outcome.material);
            for (const std::string& trouble : outcome.troubles) {
                AddFailure(std::string(outcome.test->names.title) + ", " + std::string(material.title) + ": " +
                           trouble);
            }
        }
    }

    void AddRows(const ProjectTexts& saved, const ProjectTexts& now, const std::vector<TestOutcome>& outcomes)
    {
        const auto stale = options_.checks ? FindStale(saved, now, outcomes) : std::vector<StaleResult>();
        std::ranges::transform(stale, std::back_inserter(answer_.stale), Sentence);
        const ProjectTexts& texts = options_.isAsSaved || options_.checks ? saved : now;
        if (!options_.csv.empty()) answer_.csvRows = CsvRows(project_.path, texts, options_);
        if (!options_.json.empty()) answer_.json = JsonObject(project_.path, texts, options_, outcomes, stale);
    }

    void WriteOutputs()
    {
        if (parts_.empty()) return;
        const std::string folder = FolderOf(project_.stem);
        if (!options_.followsLinks) RefuseLinksBelow(outputs_, options_.outputFolder, folder);
        outputs_.MakeFolders(folder);
        if (options_.isOneFile) {
            WriteOneFile();
        } else {
            for (const Part& part : parts_)
                Write(project_.stem + "_" + part.name + ".pdf", part.pages, {part.title, DayOf(options_.today), {}});
        }
        writing_.get();
    }

    void WriteOneFile()
    {
        std::vector<DisplayList> pages;
        PdfDocument document{NameOf(project_.stem), DayOf(options_.today), {}};
        for (Part& part : parts_) {
            document.sections.push_back({part.bookmark, pages.size()});
            std::ranges::move(part.pages, std::back_inserter(pages));
        }
        Write(project_.stem + ".pdf", pages, document);
    }

    /// While one output is on its way to the disk, the next one is made.
    void Write(const std::string& path, std::span<const DisplayList> pages, const PdfDocument& document)
    {
        Bytes content = MakePdf(pages, document);
        answer_.entry.outputs.push_back({path, pages.size(), content.size(), Sha256(content)});
        if (writing_.valid()) writing_.get();
        writing_ = std::async(std::launch::async,
                              [this, path, content = std::move(content)] { outputs_.ReplaceWhole(path, content); });
    }

    /// Results that the commands changed go into the project file, all at once; one that the commands could not work
    /// out stays as it was.
    void Post(const ProjectTexts& saved, const ProjectTexts& now)
    {
        jet::Connection connection;
        connection.Open(disk_, project_.path);
        if (Sha256(disk_.Read(project_.path)) != answer_.entry.content) {
            throw RuntimeError(error::kPathFileAccess, "The project was changed meanwhile; nothing was posted.");
        }
        for (const TableSchema& table : ProjectTables()) {
            if (!table.keyed) continue;
            for (int row = 1; row <= table.rows; ++row) PostRow(connection, table, row, saved, now);
        }
        connection.Flush();
        answer_.entry.content = Sha256(disk_.Read(project_.path));
    }

    static void PostRow(jet::Connection& connection, const TableSchema& table, int row, const ProjectTexts& saved,
                        const ProjectTexts& now)
    {
        std::vector<Assignment> changed;
        for (const ColumnSchema& column : table.columns) {
            const std::string name = table.ColumnName(column.suffix);
            const std::string result = now.Text(table.name, name, row);
            if (result == saved.Text(table.name, name, row) || now.Trimmed(table.name, name, row).empty()) continue;
            changed.push_back({name, result});
        }
        if (!changed.empty()) connection.Execute(UpdateRow(table, changed, row));
    }

    FileSystem& disk_;
    FileSystem& outputs_;
    const ProjectFile& project_;
    const BatchOptions& options_;
    const Brand& brand_;
    Bytes content_;
    std::vector<Part> parts_;
    ProjectAnswer answer_;
    std::future<void> writing_;  // one output at a time; what fails in it fails the next one
};

ProjectAnswer Failed(const ProjectFile& project, const BatchOptions& options, const std::string& failure)
{
    ProjectAnswer answer;
    answer.failure = failure;
    if (!options.json.empty()) answer.json = JsonFailure(project.path, failure);
    return answer;
}

}  // namespace

ProjectAnswer WorkProject(const Disks& disks, const ProjectFile& project, const BatchOptions& options,
                          const Brand& brand, const std::optional<JournalEntry>& earlier)
try {
    return ProjectWork(disks, project, options, brand).Do(earlier);
} catch (const std::exception& failure) {
    return Failed(project, options, failure.what());
}

}  // namespace terravane
