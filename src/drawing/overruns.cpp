#include "drawing/overruns.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>
#include <variant>

#include "drawing/font_metrics.h"
#include "drawing/table_cells.h"
#include "runtime/text.h"

namespace terravane {

namespace {

constexpr double kHair = 15;           // twips: what the eye takes for touching, not for overrunning
constexpr std::size_t kMostTold = 40;  // characters of a text

/// A text with ink, and the part of the page that it belongs to.
struct PrintedText {
    const TextItem* item;
    const PagePart* part;
    double left, right, top, bottom;

    double Middle() const { return (top + bottom) / 2; }
};

std::string_view TrimmedLeft(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

/// A turned text belongs to a figure, and is none of ours.
std::optional<PrintedText> PrintedTextOf(const DrawnItem& drawn, const PagePart* part)
{
    const auto* item = std::get_if<TextItem>(&drawn);
    if (!item || item->angle != 0 || Trim(item->text).empty()) return std::nullopt;
    if (part && part->kind == PartKind::Figure) return std::nullopt;
    const std::string_view begun = TrimmedLeft(item->text);
    const double left = item->x + TextWidth(item->font, item->text) - TextWidth(item->font, begun);
    return PrintedText{
        item, part, left, left + TextWidth(item->font, Trim(item->text)), item->y, item->y + TextHeight(item->font)};
}

/// The inner part of those around an item.
const PagePart* PartOf(const DisplayList& page, std::size_t item)
{
    const auto part = std::ranges::find_if(
        page.parts, [&](const PagePart& known) { return item >= known.first && item < known.last; });
    return part == page.parts.end() ? nullptr : &*part;
}

std::vector<PrintedText> PrintedTextsOf(const DisplayList& page)
{
    std::vector<PrintedText> texts;
    for (std::size_t item = 0; item < page.items.size(); ++item)
        if (const auto text = PrintedTextOf(page.items[item], PartOf(page, item))) texts.push_back(*text);
    return texts;
}

bool LeavesPaper(const PrintedText& text, const DisplayList& page)
{
    return text.left < 0 || text.right > page.width || text.top < 0 || text.bottom > page.height;
}

bool IsWiderThanCell(const PrintedText& text)
{
    if (!text.part || text.part->kind != PartKind::Table) return false;
    const TableShape& table = text.part->table;
    const int row = SpaceAt(table.rows, text.Middle());
    const int column = SpaceAt(table.columns, (text.left + text.right) / 2);
    const MergedCells cell = CellOf(table, row, column);
    const auto edge = [&](int at) { return table.columns[static_cast<std::size_t>(at)]; };
    return text.left < edge(cell.column) - kHair || text.right > edge(cell.column + cell.columns) + kHair;
}

bool RunsOver(const PrintedText& one, const PrintedText& other)
{
    const double line = std::min(one.bottom - one.top, other.bottom - other.top);
    return std::abs(one.Middle() - other.Middle()) < line / 2 && one.left < other.right - kHair &&
           other.left < one.right - kHair;
}

/// The caption that was printed last in front of a part.
std::string CaptionOf(const DisplayList& page, const PagePart& part)
{
    const TextItem* caption = nullptr;
    for (const PagePart& other : page.parts)
        if (other.kind == PartKind::Caption && other.first < part.first)
            caption = std::get_if<TextItem>(&page.items[other.first]);
    return caption ? std::string(Trim(caption->text)) : std::string();
}

std::optional<Overrun> OverrunOf(const DisplayList& page, std::span<const PrintedText> texts, std::size_t at)
{
    const PrintedText& own = texts[at];
    Overrun overrun{.text = std::string(Trim(own.item->text))};
    if (LeavesPaper(own, page)) return overrun;
    if (IsWiderThanCell(own)) {
        overrun.kind = OverrunKind::WiderThanCell;
        overrun.place = CaptionOf(page, *own.part);
        return overrun;
    }
    const auto later = texts.subspan(at + 1);
    const auto other = std::ranges::find_if(later, [&](const PrintedText& second) { return RunsOver(own, second); });
    if (other == later.end()) return std::nullopt;
    overrun.kind = OverrunKind::RunsOverText;
    overrun.place = Trim(other->item->text);
    const bool isWider = other->right - other->left > own.right - own.left;
    if (isWider) std::swap(overrun.text, overrun.place);
    return overrun;
}

std::string Quoted(const std::string& text)
{
    const std::string begin(Left(text, kMostTold));
    return "“" + begin + (begin.size() < text.size() ? "...”" : "”");
}

}  // namespace

std::vector<Overrun> OverrunsOf(const DisplayList& page, std::size_t number)
{
    const auto texts = PrintedTextsOf(page);
    std::vector<Overrun> overruns;
    for (std::size_t at = 0; at < texts.size(); ++at) {
        auto overrun = OverrunOf(page, texts, at);
        if (!overrun) continue;
        overrun->page = number;
        const bool isKnown = std::ranges::any_of(
            overruns, [&](const Overrun& known) { return known.text == overrun->text && known.kind == overrun->kind; });
        if (!isKnown) overruns.push_back(std::move(*overrun));
    }
    return overruns;
}

std::vector<Overrun> OverrunsOf(std::span<const DisplayList> pages)
{
    std::vector<Overrun> all;
    for (std::size_t page = 0; page < pages.size(); ++page)
        for (Overrun& overrun : OverrunsOf(pages[page], page + 1)) all.push_back(std::move(overrun));
    return all;
}

std::string Told(const Overrun& overrun)
{
    const std::string text = Quoted(overrun.text);
    switch (overrun.kind) {
        case OverrunKind::LeavesPaper:
            return text + " is cut at the edge of the paper.";
        case OverrunKind::WiderThanCell:
            return text + " is wider than its cell" +
                   (overrun.place.empty() ? "." : " under " + Quoted(overrun.place) + ".");
        case OverrunKind::RunsOverText:
            return text + " runs over " + Quoted(overrun.place) + ".";
    }
    return {};
}

std::string StatusOf(std::span<const Overrun> overruns)
{
    if (overruns.empty()) return {};
    const std::size_t more = overruns.size() - 1;
    return Told(overruns.front()) + (more == 0 ? "" : " And " + std::to_string(more) + " more on this page.");
}

}  // namespace terravane
