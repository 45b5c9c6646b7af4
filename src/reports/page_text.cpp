#include "reports/page_text.h"

namespace terravane {

double RightEdge(const DrawingSurface& page)
{
    return page.ScaleWidth - kRightMargin;
}

double LineHeight(const DrawingSurface& page)
{
    return page.TextHeight("n");
}

void PrintFrom(DrawingSurface& page, double x, std::string_view text)
{
    page.CurrentX = x;
    page.PrintOn(text);
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

void PrintCaption(DrawingSurface& page, double y, std::string_view text)
{
    page.FontBold = true;
    page.CurrentY = y;
    PrintLineFrom(page, kLeft, text);
}

}  // namespace terravane
