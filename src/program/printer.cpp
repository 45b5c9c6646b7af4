#include "program/printer.h"

#include <utility>

namespace terravane {

Printer::Printer() : DrawingSurface(kA4Short, kA4Long) {}

void Printer::SetPaperSize(int size)
{
    if (size != kPaperA4) throw RuntimeError(380, "Invalid property value");
    paperSize_ = size;
}

void Printer::SetOrientation(Orientation orientation)
{
    orientation_ = orientation;
    const bool portrait = orientation == Orientation::Portrait;
    Resize(portrait ? kA4Short : kA4Long, portrait ? kA4Long : kA4Short);
}

void Printer::SetTarget(PrintTarget target, std::string title)
{
    target_ = std::move(target);
    title_ = std::move(title);
}

DisplayList Printer::PresentPage() const
{
    DisplayList page = *Image();
    page.label = PageLabel;
    return page;
}

void Printer::NewPage()
{
    ended_.push_back(PresentPage());
    PageLabel.clear();
    Cls();
}

void Printer::EndDoc()
{
    NewPage();
    const auto pages = std::exchange(ended_, {});
    const auto target = std::exchange(target_, {});
    if (target) target(pages, title_);
}

void Printer::KillDoc()
{
    ended_.clear();
    target_ = {};
    PageLabel.clear();
    Cls();
}

std::vector<DisplayList> Printer::Pages() const
{
    auto pages = ended_;
    pages.push_back(PresentPage());
    return pages;
}

}  // namespace terravane
