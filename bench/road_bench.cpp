/// Every command of every sheet on the readings of the road project, then each report from the open sheet to its pages,
/// from the pages to a PDF, and each page to the preview's picture. Project file in memory: what the disk adds is
/// measured by jet_bench.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ranges>
#include <span>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "render/gui_application.h"
#include "render/pdf.h"
#include "render/png.h"
#include "reports/print_report.h"
#include "results/frmSummary.h"
#include "source_folder.h"
#include "support/road_project.h"
#include "support/sheet_commands.h"

namespace terravane {
namespace {

using support::RoadProject;
using Lines = std::span<const std::string_view>;

/// Typed once, when the first benchmark needs it.
RoadProject& Road()
{
    static RoadProject road{kSourceFolder};
    return road;
}

/// A line that fails measures nothing: the run ends.
void CheckOrEnd(const std::string& name)
try {
    Road().Check();
} catch (const std::exception& failure) {
    std::fprintf(stderr, "%s: %s\n", name.c_str(), failure.what());
    std::exit(1);
}

void Do(Lines lines)
{
    for (const auto line : lines) Road().Do(line);
}

/// With what makes the sheet ready for the next press, such as closing the preview.
void TimeCommand(benchmark::State& state, const support::SheetCommand& command)
{
    Road();
    Do(command.before);
    std::vector<std::vector<std::string>> timed{SplitLine(command.pressed)};
    for (const auto line : command.after) timed.push_back(SplitLine(line));
    for (auto _ : state) {
        for (const auto& words : timed) Road().Do(words);
    }
    CheckOrEnd(std::string(command.name));
    while (Road().OfProgram().Loaded("frmPreview")) Road().OfProgram().Unload("frmPreview");
}

/// A report is printed from where its preview is pressed.
bool IsReport(const support::SheetCommand& command)
{
    return command.name == support::kPreviewName;
}

std::vector<DisplayList> PagesOf(const support::SheetCommand& preview)
{
    Do(preview.before);
    CheckOrEnd(std::string(preview.group));
    return PagesOfReport(Road().OfProgram());
}

std::vector<DisplayList> OverallPage()
{
    Road().Do("menu mnuSum");
    auto pages = Road().OfProgram().Get<frmSummary>("frmSummary").Pages();
    Road().Do("close");
    CheckOrEnd("Overall results");
    return pages;
}

void RecordReport(benchmark::State& state, const support::SheetCommand& preview)
{
    Do(preview.before);
    for (auto _ : state) benchmark::DoNotOptimize(PagesOfReport(Road().OfProgram()));
}

void RecordOverallResults(benchmark::State& state)
{
    Road().Do("menu mnuSum");
    const auto& form = Road().OfProgram().Get<frmSummary>("frmSummary");
    for (auto _ : state) benchmark::DoNotOptimize(form.Pages());
    Road().Do("close");
    CheckOrEnd("Overall results");
}

template <class PagesOf>
void WriteReport(benchmark::State& state, const PagesOf& pagesOf)
{
    EnsureGuiApplication();
    const auto pages = pagesOf();
    const PdfDocument document{"Report", MakeMoment(2026, 11, 21, 12)};
    benchmark::DoNotOptimize(MakePdf(pages, document));  // the first in a process loads the fonts
    for (auto _ : state) benchmark::DoNotOptimize(MakePdf(pages, document));
    state.counters["pages"] = static_cast<double>(pages.size());
}

template <class PagesOf>
void PaintPages(benchmark::State& state, const PagesOf& pagesOf)
{
    constexpr double kPercent = 100;
    EnsureGuiApplication();
    const auto pages = pagesOf();
    for (const DisplayList& page : pages) benchmark::DoNotOptimize(PaintImage(page, kPercent));
    for (auto _ : state) {
        for (const DisplayList& page : pages) benchmark::DoNotOptimize(PaintImage(page, kPercent));
    }
    state.counters["pages"] = static_cast<double>(pages.size());
}

template <class PagesOf>
void RegisterPages(const std::string& name, const PagesOf& pagesOf)
{
    benchmark::RegisterBenchmark(("Report to PDF/" + name).c_str(), [pagesOf](benchmark::State& state) {
        WriteReport(state, pagesOf);
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(("Preview painted/" + name + ", all pages").c_str(), [pagesOf](
                                                                                          benchmark::State& state) {
        PaintPages(state, pagesOf);
    })->Unit(benchmark::kMillisecond);
}

bool RegisterAll()
{
    for (const auto& command : support::kSheetCommands) {
        const std::string name = std::string(command.group).append("/").append(command.name);
        benchmark::RegisterBenchmark(name.c_str(), [&command](benchmark::State& state) {
            TimeCommand(state, command);
        })->Unit(benchmark::kMillisecond);
    }
    auto reports = std::views::filter(support::kSheetCommands, IsReport);
    for (const auto& report : reports) {
        benchmark::RegisterBenchmark(("Report drawn/" + std::string(report.group)).c_str(),
                                     [&report](benchmark::State& state) { RecordReport(state, report); })
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark("Report drawn/Overall results", RecordOverallResults)->Unit(benchmark::kMillisecond);
    for (const auto& report : reports) RegisterPages(std::string(report.group), [&report] { return PagesOf(report); });
    RegisterPages("Overall results", OverallPage);
    return true;
}

[[maybe_unused]] const bool kRegistered = RegisterAll();

}  // namespace
}  // namespace terravane
