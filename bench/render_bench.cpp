// A report page from recording to paper. Goals: a page is recorded in under a millisecond and painted on the screen in
// under 16 ms; a file takes at most 3 ms a page, fonts included, also where a page has 2000 dots.
#include <filesystem>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "drawing/drawing_surface.h"
#include "render/pdf.h"
#include "render/png.h"
#include "runtime/file_system.h"

namespace terravane {
namespace {

constexpr int kRows = 40;
constexpr int kColumns = 7;

/// A page as full as the fullest report: a grid of figures under Thai and English headings, and two curves,
/// of lines and of points.
DisplayList FullPage()
{
    DrawingSurface page(11906, 16838);
    page.FontName = "DilleniaUPC";
    page.FontSize = 16;
    page.FontBold = true;
    page.CurrentX = page.CurrentY = 1000;
    page.Print("การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน");
    page.Print("Modified Compaction Test");
    page.FontBold = false;
    page.FontSize = 13;
    for (int row = 0; row < kRows; ++row) {
        const double top = 2000 + row * page.TextHeight("n");
        page.Line(500, top, 11406, top);
        for (int column = 0; column < kColumns; ++column) {
            const std::string figure = std::to_string(row * column) + ".25";
            page.CurrentX = 500 + 1558 * column + (1558 - page.TextWidth(figure)) / 2;
            page.CurrentY = top;
            page.PrintOn(figure);
        }
    }
    std::vector<DrawnPoint> curve;
    for (int point = 0; point < 2000; ++point) curve.push_back({500 + 5.0 * point, 16000 - 0.0005 * point * point});
    page.Polyline(curve, kMagenta);
    for (const DrawnPoint& point : curve) page.PSet(point.x, point.y + 200, kBlue);
    return *page.Image();
}

void RecordPage(benchmark::State& state)
{
    for (auto _ : state) benchmark::DoNotOptimize(FullPage());
}
BENCHMARK(RecordPage)->Unit(benchmark::kMicrosecond);

void MeasureLatinText(benchmark::State& state)
{
    const Font font{"DilleniaUPC", 13, false, false};
    for (auto _ : state) benchmark::DoNotOptimize(TextWidth(font, "Date of Test : "));
}
BENCHMARK(MeasureLatinText);

void MeasureThaiText(benchmark::State& state)
{
    const Font font{"DilleniaUPC", 13, false, false};
    for (auto _ : state) benchmark::DoNotOptimize(TextWidth(font, "การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน"));
}
BENCHMARK(MeasureThaiText);

void MakePdfFile(benchmark::State& state)
{
    const std::vector<DisplayList> pages(static_cast<std::size_t>(state.range(0)), FullPage());
    const PdfDocument document{"Test of Soil", MakeMoment(2026, 11, 21), {{"Compaction", 0}}};
    for (auto _ : state) benchmark::DoNotOptimize(MakePdf(pages, document));
}
BENCHMARK(MakePdfFile)->Arg(1)->Arg(3)->Arg(33)->Unit(benchmark::kMillisecond);

void WriteReportOfTwoPages(benchmark::State& state)
{
    DiskFileSystem files;
    const std::vector<DisplayList> pages{FullPage(), FullPage()};
    const auto path = std::filesystem::temp_directory_path() / "terravane-bench.pdf";
    for (auto _ : state) WritePdf(files, path.string(), pages, "Test of Soil");
    std::filesystem::remove(path);
}
BENCHMARK(WriteReportOfTwoPages)->Unit(benchmark::kMillisecond);

void PaintPageForTheScreen(benchmark::State& state)
{
    const DisplayList page = FullPage();
    for (auto _ : state) benchmark::DoNotOptimize(PaintImage(page, static_cast<double>(state.range(0))));
}
BENCHMARK(PaintPageForTheScreen)->Arg(50)->Arg(100)->Arg(200)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace terravane
