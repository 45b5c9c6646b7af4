// A document from its pages: contents, then what they draw with, then the catalog and the bookmarks.
#include <map>
#include <utility>

#include "render/fonts.h"
#include "render/gui_application.h"
#include "render/pdf.h"
#include "render/pdf_archive.h"
#include "render/pdf_objects.h"
#include "render/pdf_page.h"
#include "render/pdf_structure.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

using pdf::Objects;
using pdf::Reference;

void RequirePlaces(std::span<const DisplayList> pages, const PdfDocument& document)
{
    if (pages.empty()) throw RuntimeError(error::kPrinter, "There is no page to print.");
    for (const PdfSection& section : document.sections)
        if (section.firstPage >= pages.size()) throw RuntimeError(error::kInvalidProcedureCall);
}

/// The objects that a page refers to.
struct PageObjects {
    int tree, content, resources;
};

/// number  of the page in the document, from 0
std::string PageText(const DisplayList& page, const PageObjects& objects, std::size_t number)
{
    std::string text = "<< /Type /Page /Parent " + Reference(objects.tree) + " /MediaBox [0 0";
    pdf::AppendNumber(text, pdf::PaperPoints(page.width));
    pdf::AppendNumber(text, pdf::PaperPoints(page.height));
    return text + "] /Contents " + Reference(objects.content) + " /Resources " + Reference(objects.resources) +
           " /StructParents " + std::to_string(number) + " >>";
}

/// One document while it is put together.
class Assembly {
  public:
    Assembly(std::span<const DisplayList> pages, const PdfDocument& document) : pages_(pages), document_(document) {}

    Bytes Make()
    {
        AddPages();
        const std::string bookmarks = AddBookmarks();
        const std::string structure = pdf::StructureEntries(objects_, structures_, pageObjects_);
        const std::string description = pdf::Description(document_.title, document_.created);
        const std::string archive = pdf::ArchiveEntries(objects_, pages_, description);
        const int catalog =
            objects_.Add("<< /Type /Catalog /Pages " + Reference(tree_) + bookmarks + structure + archive + " >>");
        const std::string maker(pdf::kMaker);
        const std::string created = pdf::DateString(document_.created);
        const int information = objects_.Add("<< /Title " + pdf::TextString(document_.title) + " /Creator (" + maker +
                                             ") /Producer (" + maker + ") /CreationDate " + created + " >>");
        return objects_.Finish(catalog, information, identity_ + created + document_.title + bookmarks);
    }

  private:
    void AddPages()
    {
        std::vector<int> contents;
        for (const DisplayList& page : pages_) {
            structures_.emplace_back(page);
            const std::string content =
                pdf::Deflated(pdf::PageContent(page, used_, structures_.back()), pdf::Packing::Quick);
            contents.push_back(objects_.AddStream("/Filter /FlateDecode", content));
            identity_ += content;
        }
        const int resources = used_.AddTo(objects_);
        std::string kids;
        for (std::size_t at = 0; at < pages_.size(); ++at) {
            pageObjects_.push_back(objects_.Add(PageText(pages_[at], {tree_, contents[at], resources}, at)));
            kids += " " + Reference(pageObjects_.back());
        }
        objects_.Put(tree_, "<< /Type /Pages /Count " + std::to_string(pages_.size()) + " /Kids [" + kids + " ] >>");
    }

    /// What the catalog says of them; nothing where there is none.
    std::string AddBookmarks()
    {
        const std::size_t count = document_.sections.size();
        if (count == 0) return {};
        const int root = objects_.Reserve();
        for (std::size_t at = 0; at < count; ++at) objects_.Reserve();  // numbered in a row behind the root
        for (std::size_t at = 0; at < count; ++at) PutBookmark(root, at);
        objects_.Put(root, "<< /Type /Outlines /Count " + std::to_string(count) + " /First " + Reference(root + 1) +
                               " /Last " + Reference(root + static_cast<int>(count)) + " >>");
        return " /Outlines " + Reference(root) + " /PageMode /UseOutlines";
    }

    void PutBookmark(int root, std::size_t at)
    {
        const PdfSection& section = document_.sections[at];
        const int own = root + 1 + static_cast<int>(at);
        std::string text = "<< /Title " + pdf::TextString(section.title) + " /Parent " + Reference(root);
        text += " /Dest [" + Reference(pageObjects_[section.firstPage]) + " /Fit]";
        if (at > 0) text += " /Prev " + Reference(own - 1);
        if (at + 1 < document_.sections.size()) text += " /Next " + Reference(own + 1);
        objects_.Put(own, text + " >>");
    }

    std::span<const DisplayList> pages_;
    const PdfDocument& document_;
    Objects objects_;
    int tree_ = objects_.Reserve();
    pdf::Resources used_;
    std::vector<pdf::PageStructure> structures_;
    std::vector<int> pageObjects_;
    std::string identity_;
};

}  // namespace

Bytes MakePdf(std::span<const DisplayList> pages, const PdfDocument& document)
{
    RequirePlaces(pages, document);
    EnsureGuiApplication();
    RequireFonts();
    return Assembly(pages, document).Make();
}

}  // namespace terravane
