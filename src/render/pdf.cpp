#include "render/pdf.h"

#include <QBuffer>
#include <QDateTime>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QString>
#include <algorithm>

#include "render/fonts.h"
#include "render/gui_application.h"
#include "render/memory_file.h"
#include "render/painter.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

constexpr int kTwipsPerInch = 1440;
constexpr double kTwipsPerPoint = 20;

QPageLayout LayoutFor(const DisplayList& page)
{
    const auto [shorter, longer] = std::minmax(page.width, page.height);
    const QPageSize size(QSizeF(shorter, longer) / kTwipsPerPoint, QPageSize::Point);
    const auto orientation = page.width > page.height ? QPageLayout::Landscape : QPageLayout::Portrait;
    QPageLayout layout(size, orientation, QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

void PrintPage(QPainter& painter, const QPagedPaintDevice& device, const DisplayList& page)
{
    painter.save();
    painter.scale(device.logicalDpiX() / double{kTwipsPerInch}, device.logicalDpiY() / double{kTwipsPerInch});
    PaintList(painter, page);
    painter.restore();
}

Moment MachineNow()
{
    const QDateTime now = QDateTime::currentDateTime();
    return Moment(std::chrono::seconds(now.toSecsSinceEpoch() + now.offsetFromUtc()));
}

}  // namespace

void PrintPages(QPagedPaintDevice& device, std::span<const DisplayList> pages)
{
    if (pages.empty()) throw RuntimeError(error::kPrinter, "There is no page to print.");
    device.setPageLayout(LayoutFor(pages.front()));
    QPainter painter;
    if (!painter.begin(&device)) throw RuntimeError(error::kPrinter);
    PrintPage(painter, device, pages.front());
    for (const DisplayList& page : pages.subspan(1)) {
        device.setPageLayout(LayoutFor(page));
        if (!device.newPage()) throw RuntimeError(error::kPrinter);
        PrintPage(painter, device, page);
    }
    if (!painter.end()) throw RuntimeError(error::kPrinter);
}

void WritePdf(FileSystem& files, const std::string& path, std::span<const DisplayList> pages,
              const PdfDocument& document)
{
    files.ReplaceWhole(path, MakePdf(pages, document));
}

void WritePdf(FileSystem& files, const std::string& path, std::span<const DisplayList> pages, const std::string& title)
{
    WritePdf(files, path, pages, PdfDocument{title, MachineNow(), {}});
}

}  // namespace terravane
