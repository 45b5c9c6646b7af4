#include "batch/batch_run.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <utility>

#include "batch/batch_worker.h"
#include "batch/growing_file.h"
#include "batch/progress.h"
#include "batch/project_work.h"
#include "batch/result_rows.h"
#include "batch/terminal.h"
#include "batch/worker_pool.h"
#include "notes/settings.h"
#include "runtime/text.h"

namespace terravane {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::string_view kClearLine = "\r\x1b[K";

/// CSV, JSON and manifest, written in the order of the projects, whichever ends first.
class ResultFiles {
  public:
    explicit ResultFiles(const BatchOptions& options)
        : csv_(options.csv), json_(options.json), manifest_(options.manifest), notes_(options.notes)
    {
        notes_.Add(NotesHead());
        csv_.Add(CsvHead());
        json_.Add("[");
        manifest_.Add(ManifestHead());
    }

    void Take(const ProjectFile& project, const ProjectAnswer& answer)
    {
        csv_.Add(answer.csvRows);
        if (!answer.json.empty()) json_.Add((std::exchange(isFirst_, false) ? "\n" : ",\n") + answer.json);
        manifest_.Add(ManifestRows(project.path, answer.entry));
        notes_.Add(answer.noteRows);
    }

    void Finish()
    {
        json_.Add("\n]\n");
        for (GrowingFile* file : {&csv_, &json_, &manifest_, &notes_}) file->Finish();
    }

  private:
    GrowingFile csv_, json_, manifest_, notes_;
    bool isFirst_ = true;
};

std::string Counted(std::size_t count, const std::string& one, const std::string& many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

/// What is said of a project that is done.
std::string ProjectLine(const ProjectFile& project, const ProjectAnswer& answer, bool checks)
{
    const std::string path = Printable(project.path);
    if (!answer.failure.empty()) return path + ": failed: " + Printable(answer.failure);
    if (checks) return path + (answer.stale.empty() ? ": all results follow from their readings" : ": stale");
    std::size_t pages = 0;
    for (const Output& output : answer.entry.outputs) pages += output.pages;
    return path + ": " + Counted(answer.entry.outputs.size(), "file", "files") + ", " +
           Counted(pages, "page", "pages") + (answer.wasThere ? ", there already" : "");
}

class BatchRun {
  public:
    BatchRun(const BatchOptions& options, const Listeners& listeners)
        : options_(options),
          listeners_(listeners),
          projects_(ListProjects(options.arguments, options.outputFolder)),
          worker_(options),
          files_(options),
          progress_(projects_.size())
    {
        if (options.resumes) journal_ = ReadJournals(DiskFileSystem(), projects_);
        FindClashes();
    }

    int Run()
    {
        TellBadSettings();
        RunInWorkers(projects_.size(), static_cast<std::size_t>(std::max(1, options_.jobs)),
                     {[this](std::size_t project) { return RequestOf(project); },
                      [this](const std::string& request) { return worker_.Answer(request); }, options_.workerArguments,
                      [this](std::size_t project, const auto& answer, const std::string& crash) {
                          Take(project, answer ? ReadAnswer(*answer) : Crashed(project, crash));
                      },
                      WasInterrupted, [this] { ShowBar(); }});
        ClearBar();
        if (progress_.Count() == projects_.size()) files_.Finish();
        TellEnd();
        return Status();
    }

  private:
    std::string RequestOf(std::size_t number) const
    {
        ProjectRequest request{projects_[number], {}, {}};
        if (const auto clash = clashes_.find(number); clash != clashes_.end())
            request.clash = projects_[clash->second].path;
        if (const auto earlier = journal_.find(request.project.stem); earlier != journal_.end())
            request.earlier = earlier->second;
        return ToText(request);
    }

    /// Once a run, not once a project.
    void TellBadSettings()
    {
        if (!options_.WantsNotes() || options_.brand.empty()) return;
        const auto settings = notes::Settings::Beside(DiskFileSystem(), options_.brand);
        for (const std::string& complaint : settings.Complaints()) listeners_.complains << complaint << '\n';
    }

    /// Projects whose outputs would overwrite those of an earlier one.
    void FindClashes()
    {
        std::map<std::string, std::size_t> owners;
        for (std::size_t i = 0; i < projects_.size(); ++i) {
            const auto [owner, isNew] = owners.emplace(projects_[i].stem, i);
            if (!isNew) clashes_.emplace(i, owner->second);
        }
    }

    ProjectAnswer Crashed(std::size_t number, const std::string& crash) const
    {
        ProjectAnswer answer;
        answer.failure = crash;
        if (!options_.json.empty()) answer.json = JsonFailure(projects_[number].path, crash);
        return answer;
    }

    void Take(std::size_t number, ProjectAnswer answer)
    {
        const ProjectFile& project = projects_[number];
        progress_.Done(answer.wasThere);
        if (!options_.checks && answer.failure.empty() && !answer.wasThere)
            AddToJournal(DiskFileSystem(), project, answer.entry);
        if (!answer.failure.empty()) failures_.emplace(number, answer.failure);
        if (!answer.stale.empty()) ++stale_;
        if (answer.hasDoubts) ++doubtful_;
        waiting_.emplace(number, std::move(answer));
        for (auto next = waiting_.find(told_); next != waiting_.end(); next = waiting_.find(++told_)) {
            Tell(projects_[told_], next->second);
            waiting_.erase(next);
        }
        ShowBar();
    }

    void Tell(const ProjectFile& project, const ProjectAnswer& answer)
    {
        files_.Take(project, answer);
        if (!listeners_.tellsProjects && answer.stale.empty()) return;
        ClearBar();
        if (listeners_.tellsProjects) listeners_.says << ProjectLine(project, answer, options_.checks) << '\n';
        for (const std::string& stale : answer.stale) listeners_.says << Printable(project.path + ": " + stale) << '\n';
        listeners_.says.flush();
    }

    void ShowBar()
    {
        if (!listeners_.bar) return;
        *listeners_.bar << kClearLine << progress_.Bar(Clock::now() - began_) << std::flush;
    }

    void ClearBar()
    {
        if (listeners_.bar) *listeners_.bar << kClearLine << std::flush;
    }

    void TellEnd()
    {
        std::ostream& out = listeners_.complains;
        if (!failures_.empty()) out << Counted(failures_.size(), "project", "projects") << " failed:\n";
        for (const auto& [number, failure] : failures_)
            out << "  " << Printable(projects_[number].path + ": " + failure) << '\n';
        if (progress_.Count() < projects_.size()) {
            out << "Broken off after " << progress_.Count() << " of " << projects_.size()
                << " projects; what is finished stands. The same command with --resume goes on from here.\n";
        }
        if (projects_.empty()) out << "There is no project file.\n";
    }

    int Status() const
    {
        if (stale_ > 0 || (options_.hasStrictNotes && doubtful_ > 0)) return exit_status::kStale;
        const bool isWhole = progress_.Count() == projects_.size();
        return failures_.empty() && isWhole ? exit_status::kDone : exit_status::kSomeFailed;
    }

    const BatchOptions& options_;
    const Listeners& listeners_;
    std::vector<ProjectFile> projects_;
    BatchWorker worker_;
    ResultFiles files_;
    Progress progress_;
    std::map<std::string, JournalEntry> journal_;
    std::map<std::size_t, std::size_t> clashes_;
    std::map<std::size_t, ProjectAnswer> waiting_;  // until those before them are told
    std::map<std::size_t, std::string> failures_;
    std::size_t told_ = 0, stale_ = 0, doubtful_ = 0;
    Clock::time_point began_ = Clock::now();
};

}  // namespace

void WorkForRun(const BatchOptions& options)
{
    BatchWorker worker(options);
    ServeRequests([&worker](const std::string& request) { return worker.Answer(request); });
}

int RunBatch(const BatchOptions& options, const Listeners& listeners)
{
    return BatchRun(options, listeners).Run();
}

}  // namespace terravane
