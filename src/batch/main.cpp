// terravane-report: reports and results of many project files. See docs/batch.md.
#include <QString>
#include <QtGlobal>
#include <algorithm>
#include <iostream>
#include <thread>

#include <CLI/CLI.hpp>

#include "batch/batch_run.h"
#include "batch/batch_tests.h"
#include "batch/history_report.h"
#include "batch/terminal.h"
#include "runtime/machine.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace {

using namespace terravane;

constexpr auto kAbout =
    "Prints the reports of Terravane project files into PDFs and collects their results, as the desktop program\n"
    "would, for many projects at once. A folder stands for every project file below it.";

constexpr auto kFooter =
    "Exit status: 0 all is well, 1 some projects failed or the run was broken off, 2 wrong usage, 3 something is\n"
    "stale (--check). Projects that fail are told at the end and do not stop the others.";

constexpr std::string_view kProgram = "terravane-report: ";

constexpr std::string_view kDay = "yyyy-mm-dd";

/// What the command line says, before it means something.
/// worker  the date of the run that this is a worker of; empty where it is the run itself
struct Typed {
    std::string curve, today, brand, worker;
    std::vector<int> corrects;
    std::string history, format = "text";
    std::vector<std::string> diff;

    bool Lists() const { return !history.empty() || !diff.empty(); }
};

/// The brand folder that the desktop program of this installation uses; empty where it never ran.
std::string InstalledBrand()
{
    const DiskFileSystem disk;
    for (const std::string& folder : {FolderOf(ProgramFile()), DataFolder()}) {
        const std::string brand = BrandFolderIn(folder);
        if (disk.Exists(brand + "logo.mdb")) return brand;
    }
    return {};
}

Moment Noon(Moment day)
{
    return std::chrono::floor<std::chrono::days>(day) + std::chrono::hours(12);
}

void TakeDate(BatchOptions& options, const std::string& today, const std::string& run)
try {
    options.isTodayGiven = !today.empty();
    const std::string& given = run.empty() ? today : run;
    options.today = Noon(given.empty() ? LocalNow() : ParseDate(given));
} catch (const RuntimeError&) {
    throw CLI::ValidationError("--today", "\"" + today + "\" is no date; write it as 2026-11-21.");
}

void TakeBrand(BatchOptions& options, const std::string& brand)
{
    options.brand = brand.empty() ? InstalledBrand() : brand;
    if (!brand.empty() && !DiskFileSystem().IsFolder(brand)) {
        throw CLI::ValidationError("--brand", "There is no folder \"" + brand + "\".");
    }
}

void TakeChoices(BatchOptions& options, const Typed& typed)
{
    if (!typed.curve.empty()) options.given.curve = typed.curve == "fit" ? "optFit" : "optInt";
    if (typed.corrects.empty()) return;
    options.given.corrects.emplace();
    for (const int mold : typed.corrects) options.given.corrects->at(static_cast<std::size_t>(mold - 1)) = true;
}

void Check(const BatchOptions& options, const Typed& typed)
{
    if (typed.Lists() && !options.arguments.empty())
        throw CLI::ValidationError(options.arguments.front(), "--history and --diff list, and print no project.");
    if (!typed.Lists() && options.arguments.empty()) throw CLI::RequiredError("PROJECT.mdb|FOLDER");
    if (options.checks && options.isAsSaved)
        throw CLI::ValidationError("--check", "works sheets anew, --as-saved does not.");
    if (options.checks && options.posts) throw CLI::ValidationError("--check", "writes nothing; leave --post away.");
    if (options.posts && options.isAsSaved) {
        throw CLI::ValidationError("--post", "has nothing to write where no command is pressed (--as-saved).");
    }
}

std::vector<std::string> TestKeys()
{
    std::vector<std::string> keys;
    for (const laboratory::Description* test : laboratory::TestsInWorkOrder()) keys.emplace_back(test->key);
    return keys;
}

std::string TestsHelp()
{
    std::string keys;
    for (const laboratory::Description* test : laboratory::Tests())
        keys.append(keys.empty() ? "" : ",").append(test->key);
    return keys + "; else every test that has saved readings";
}

void AddOptions(CLI::App& app, BatchOptions& options, Typed& typed)
{
    app.add_option("PROJECT.mdb|FOLDER", options.arguments, "Project files, and folders of them");
    app.add_option("-o", options.outputFolder, "Where the PDFs go, in a folder's subfolders; else beside each project")
        ->option_text("DIR");
    app.add_option("--tests", options.tests, TestsHelp())
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(CLI::IsMember(TestKeys()))
        ->option_text("LIST");
    app.add_option("--materials", options.materials, "soil,crush; else both")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(CLI::IsMember({"soil", "crush"}))
        ->option_text("LIST");
    app.add_flag("--summary", options.wantsSummary, "The overall results page as well");
    app.add_flag("--one-file", options.isOneFile, "One PDF a project, with bookmarks, instead of one a test");
    app.add_option("--csv", options.csv, "One row a project and material with every column of SUMMARY")
        ->option_text("FILE");
    app.add_option("--json", options.json, "The same and every reading")->option_text("FILE");
    app.add_flag("--as-saved", options.isAsSaved,
                 "Print the sheets as loaded; else their commands are pressed first, on a private copy");
    app.add_flag("--post", options.posts, "Write the results of those commands back into the project");
    app.add_option("--curve", typed.curve, "Compaction curve: spline (the sheet's own) or fit")
        ->check(CLI::IsMember({"spline", "fit"}))
        ->option_text("spline|fit");
    app.add_flag("--smooth", options.given.isSmooth, "Sieve curve smooth instead of straight from point to point");
    app.add_option("--correct", typed.corrects, "Moulds whose bearing ratio curves are corrected, as 1,3")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(CLI::Range(1, 3))
        ->option_text("1,2,3");
    app.add_flag("--check", options.checks,
                 "No PDFs: list what stands in SUMMARY or in another test but no longer follows from the readings");
    app.add_option("--manifest", options.manifest, "Each output with pages, bytes and SHA-256, as CSV")
        ->option_text("FILE");
    app.add_option("--notes", options.notes, "What an experienced eye would say of each sheet, one row a note, as CSV")
        ->option_text("FILE");
    app.add_flag("--strict-notes", options.hasStrictNotes,
                 "Exit status 3 where a note is doubtful or impossible, as for a stale result");
    app.add_option("--jobs", options.jobs, "How many projects at a time; else as many as the machine has processors")
        ->check(CLI::Range(1, 1024))
        ->option_text("N");
    app.add_flag("--resume", options.resumes, "Leave out what an earlier run finished of unchanged projects");
    app.add_flag("--follow-links", options.followsLinks, "Let outputs go through folders below -o that are links");
    app.add_option("--brand", typed.brand, "The laboratory's names and logos; else those of the desktop program")
        ->option_text("DIR");
    app.add_option("--today", typed.today, "The date that the sheets and the PDFs see; else the machine's")
        ->option_text("YYYY-MM-DD");
    app.add_option("--history", typed.history, "List every change of a project that a Save made")
        ->option_text("PROJECT");
    app.add_option("--diff", typed.diff, "List what is different in two projects, or two states: road.mdb@2026-11-21")
        ->expected(2)
        ->excludes("--history")
        ->option_text("A B");
    app.add_option("--format", typed.format, "Of these lists: text (else), csv, json")
        ->check(CLI::IsMember({"text", "csv", "json"}))
        ->option_text("FORMAT");
    app.add_option("--worker", typed.worker)->group("");  // of this program's own; nobody is told of it
}

/// Qt's warnings are about a desktop session, a missing run-time folder for one, which a printing program does without;
/// they would stand between the lines of a run.
void DropQtWarnings()
{
    qInstallMessageHandler([](QtMsgType kind, const QMessageLogContext&, const QString& text) {
        if (kind == QtCriticalMsg || kind == QtFatalMsg) std::cerr << kProgram << text.toStdString() << '\n';
    });
}

int Run(const BatchOptions& options, bool isWorker)
try {
    DropQtWarnings();
    if (isWorker) {
        WorkForRun(options);
        return exit_status::kDone;
    }
    CatchInterruption();
    const bool hasBar = IsErrorTerminal();
    const Listeners listeners{std::cout, std::cerr, hasBar ? &std::cerr : nullptr, !hasBar || !IsOutputTerminal()};
    return RunBatch(options, listeners);
} catch (const RuntimeError& error) {
    std::cerr << kProgram << error.Description() << '\n';
    return exit_status::kUsage;
}

int List(const Typed& typed)
try {
    const DiskFileSystem disk;
    const ListFormat format = typed.format == "csv"    ? ListFormat::Csv
                              : typed.format == "json" ? ListFormat::JsonLines
                                                       : ListFormat::Text;
    if (!typed.history.empty()) return ListHistory(disk, FullPath(typed.history), format, std::cout, std::cerr);
    return ListDifferences(disk, FullPath(typed.diff.at(0)), FullPath(typed.diff.at(1)), format, std::cout);
} catch (const RuntimeError& error) {
    std::cerr << kProgram << error.Description() << '\n';
    return exit_status::kUsage;
}

}  // namespace

int main(int argc, char** argv)
{
    BecomeTool();
    BatchOptions options;
    Typed typed;
    options.jobs = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    CLI::App app(kAbout, "terravane-report");
    app.footer(kFooter);
    app.allow_windows_style_options(false);  // "/projects" is a folder everywhere
    AddOptions(app, options, typed);
    app.failure_message([](const CLI::App*, const CLI::Error& failure) {
        return Printable(failure.what()) + "\nRun with --help for more information.\n";
    });
    app.final_callback([&] {
        TakeDate(options, typed.today, typed.worker);
        TakeBrand(options, typed.brand);
        TakeChoices(options, typed);
        Check(options, typed);
    });
    std::vector<std::string> arguments = Arguments(argc, argv);
    options.workerArguments = arguments;
    std::ranges::reverse(arguments);  // the parser takes them from the back
    try {
        app.parse(std::move(arguments));
        options.workerArguments.insert(options.workerArguments.end(), {"--worker", Format(options.today, kDay)});
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? exit_status::kDone : exit_status::kUsage;
    }
    return typed.Lists() ? List(typed) : Run(options, !typed.worker.empty());
}
