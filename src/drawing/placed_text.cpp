#include "drawing/placed_text.h"

namespace terravane {

double LineHeight(const DrawingSurface& page)
{
    return page.TextHeight("n");
}

void PrintFrom(DrawingSurface& page, double x, std::string_view text)
{
    page.CurrentX = x;
    page.PrintOn(text);
}

void PrintFrom(DrawingSurface& page, double x, double y, std::string_view text)
{
    page.CurrentY = y;
    PrintFrom(page, x, text);
}

void PrintLineFrom(DrawingSurface& page, double x, std::string_view text)
{
    page.CurrentX = x;
    page.Print(text);
}

void PrintCentred(DrawingSurface& page, double x, double width, std::string_view text)
{
    PrintFrom(page, x + (width - page.TextWidth(text)) / 2, text);
}

}  // namespace terravane
