#include "render/pdf_structure.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>
#include <variant>

#include "drawing/font_metrics.h"
#include "drawing/table_cells.h"

namespace terravane::pdf {

namespace {

std::string_view CellKind(const TableShape& shape, const MergedCells& cell)
{
    return cell.row < shape.headRows || cell.column < shape.headColumns ? "/TH" : "/TD";
}

std::string AboutCell(const TableShape& shape, const MergedCells& cell)
{
    std::string about;
    if (cell.row < shape.headRows)
        about += " /Scope /Column";
    else if (cell.column < shape.headColumns)
        about += " /Scope /Row";
    if (cell.columns > 1) about += " /ColSpan " + std::to_string(cell.columns);
    if (cell.rows > 1) about += " /RowSpan " + std::to_string(cell.rows);
    return about.empty() ? about : " /A << /O /Table" + about + " >>";
}

/// A page's language is English but for what has letters of U+0E00 to U+0E7F.
void NoteLanguage(Element& element, std::string_view text)
{
    constexpr std::string_view kThai = " /Lang (th)";
    const bool isThai = text.find("\xE0\xB8") != text.npos || text.find("\xE0\xB9") != text.npos;
    if (isThai && element.about.find(kThai) == std::string::npos) element.about += kThai;
}

/// The part that each item is in, the inner one of those around it; none for an item outside all.
std::vector<const PagePart*> PartsOfItems(const DisplayList& page)
{
    std::vector<const PagePart*> parts(page.items.size(), nullptr);
    for (auto part = page.parts.rbegin(); part != page.parts.rend(); ++part)
        for (std::size_t item = part->first; item < std::min(part->last, parts.size()); ++item) parts[item] = &*part;
    return parts;
}

/// Finds the elements of a page while its items are gone through in their order.
class PageReader {
  public:
    explicit PageReader(std::vector<Element>& elements) : elements_(elements)
    {
        elements_.push_back({"/Sect", " /Lang (en)"});
    }

    int ElementOf(const DrawnItem& item, const PagePart* part)
    {
        const auto* text = std::get_if<TextItem>(&item);
        if (part && part->kind == PartKind::Furniture) return kFurniture;
        if (part && part->kind == PartKind::Figure) return Find(*part).element;
        if (!text) return kArtifact;
        const int element = part ? ElementIn(*part, *text) : LineOf(*text);
        NoteLanguage(elements_[static_cast<std::size_t>(element)], text->text);
        return element;
    }

  private:
    /// cells  of a table, row by row; those that are merged have one element
    struct KnownPart {
        int element = 0;
        std::vector<int> cells = {};
    };

    int Add(std::string_view kind, int parent, std::string about = {})
    {
        const int own = static_cast<int>(elements_.size());
        elements_.push_back({kind, std::move(about), parent});
        elements_[static_cast<std::size_t>(parent)].kids.push_back(own);
        return own;
    }

    /// Texts behind one another on a line are one.
    int LineOf(const TextItem& text)
    {
        const bool goesOn = last_ && std::abs(text.y - last_->y) < TextHeight(last_->font) / 2;
        last_ = &text;
        if (!goesOn) line_ = Add("/P", 0);
        return line_;
    }

    int ElementIn(const PagePart& part, const TextItem& text)
    {
        last_ = nullptr;
        const KnownPart& known = Find(part);
        if (part.kind != PartKind::Table) return known.element;
        const int column = SpaceAt(part.table.columns, text.x + TextWidth(text.font, text.text) / 2);
        const int row = SpaceAt(part.table.rows, text.y + TextHeight(text.font) / 2);
        return known.cells[static_cast<std::size_t>(row * SpacesBetween(part.table.columns) + column)];
    }

    const KnownPart& Find(const PagePart& part)
    {
        const auto [known, isNew] = parts_.try_emplace(&part);
        if (isNew) known->second = AddPart(part);
        return known->second;
    }

    KnownPart AddPart(const PagePart& part)
    {
        switch (part.kind) {
            case PartKind::Title:
                return {Add("/H1", 0)};
            case PartKind::Caption:
                return {Add("/H2", 0)};
            case PartKind::Line:
                return {Add("/P", 0)};
            case PartKind::Figure:
                return {Add("/Figure", 0, " /Alt " + TextString(part.shows))};
            case PartKind::Table:
                return AddTable(part.table);
            case PartKind::Furniture:
                break;
        }
        return {};
    }

    KnownPart AddTable(const TableShape& shape)
    {
        KnownPart table{Add("/Table", 0)};
        const int columns = SpacesBetween(shape.columns);
        for (int row = 0; row < SpacesBetween(shape.rows); ++row) {
            const int line = Add("/TR", table.element);
            for (int column = 0; column < columns; ++column) {
                const MergedCells cell = CellOf(shape, row, column);
                const bool isOwn = cell.row == row && cell.column == column;
                table.cells.push_back(isOwn ? Add(CellKind(shape, cell), line, AboutCell(shape, cell))
                                            : table.cells[static_cast<std::size_t>(cell.row * columns + cell.column)]);
            }
        }
        return table;
    }

    std::vector<Element>& elements_;
    std::map<const PagePart*, KnownPart> parts_;
    const TextItem* last_ = nullptr;  // of the present line
    int line_ = 0;
};

/// What an element holds: others, stretches of its page's content, or nothing, as an empty cell.
std::string KidsOf(const Element& element, int own)
{
    std::string kids;
    for (const int kid : element.kids) kids += Reference(own + kid) + " ";
    for (const int stretch : element.stretches) kids += std::to_string(stretch) + " ";
    if (kids.empty()) return kids;
    kids.pop_back();
    return element.stretches.size() == 1 && element.kids.empty() ? "/K " + kids : "/K[" + kids + "]";
}

}  // namespace

PageStructure::PageStructure(const DisplayList& page)
{
    PageReader reader(elements_);
    const auto parts = PartsOfItems(page);
    elementOf_.reserve(parts.size());
    for (std::size_t item = 0; item < parts.size(); ++item)
        elementOf_.push_back(reader.ElementOf(page.items[item], parts[item]));
}

std::string PageStructure::Begin(int element) const
{
    if (element == kArtifact) return "/Artifact BMC";
    if (element == kFurniture) return "/Artifact<</Type/Pagination>>BDC";
    return std::string(elements_[static_cast<std::size_t>(element)].kind) + "<</MCID " +
           std::to_string(stretches_.size()) + ">>BDC";
}

void PageStructure::Keep(int element)
{
    if (element < 0) return;
    elements_[static_cast<std::size_t>(element)].stretches.push_back(static_cast<int>(stretches_.size()));
    stretches_.push_back(element);
}

std::string PageStructure::AddTo(Objects& objects, int document, int page, int own) const
{
    for (std::size_t at = 1; at < elements_.size(); ++at) objects.Reserve();  // numbered in a row behind the page's own
    const std::string onPage = "/Pg " + Reference(page);
    for (std::size_t at = 0; at < elements_.size(); ++at) {
        const Element& element = elements_[at];
        objects.Put(own + static_cast<int>(at),
                    "<</S" + std::string(element.kind) + "/P " + Reference(at == 0 ? document : own + element.parent) +
                        (element.stretches.empty() ? "" : onPage) + element.about + KidsOf(element, own) + ">>");
    }
    std::string stretches;
    for (const int element : stretches_) stretches += " " + Reference(own + element);
    return stretches;
}

std::string StructureEntries(Objects& objects, std::span<const PageStructure> structures, std::span<const int> pages)
{
    const int root = objects.Reserve();
    const int document = objects.Reserve();
    std::string sections, stretches;
    for (std::size_t at = 0; at < structures.size(); ++at) {
        const int own = objects.Reserve();
        sections += " " + Reference(own);
        const std::string ofPage = structures[at].AddTo(objects, document, pages[at], own);
        stretches += " " + std::to_string(at) + " " + Reference(objects.Add("[" + ofPage + " ]"));
    }
    const int parents = objects.Add("<< /Nums [" + stretches + " ] >>");
    objects.Put(document, "<< /S /Document /P " + Reference(root) + " /K [" + sections + " ] >>");
    objects.Put(root, "<< /Type /StructTreeRoot /K " + Reference(document) + " /ParentTree " + Reference(parents) +
                          " /ParentTreeNextKey " + std::to_string(structures.size()) + " >>");
    return " /MarkInfo << /Marked true >> /StructTreeRoot " + Reference(root);
}

}  // namespace terravane::pdf
