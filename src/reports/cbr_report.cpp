#include "reports/cbr_report.h"

#include "reports/cbr_report_pages.h"
#include "reports/page_frame.h"
#include "reports/signature_block.h"

namespace terravane {

namespace {

const frmCBR& SheetOf(const Program& program)
{
    return program.Get<frmCBR>("frmCBR");
}

void DrawPage1(Program& program, DrawingSurface& page, Medium medium)
{
    DrawCbrPage1(SheetOf(program), page);
    DrawSignatures(program, page, medium);
}

void DrawPage2(Program& program, DrawingSurface& page, Medium medium)
{
    DrawFurniture(program, page, medium, "Page 2");
    DrawCbrPage2(SheetOf(program), page);
}

}  // namespace

void PrintCBR(Program& program, Printer& printer)
{
    DrawPage1(program, printer, Medium::Printer);
    printer.NewPage();
    DrawPage2(program, printer, Medium::Printer);
}

void ShowCBRPage1(Program& program, DrawingSurface& picView)
{
    DrawPage1(program, picView, Medium::Preview);
}

void ShowCBRPage2(Program& program, DrawingSurface& picView)
{
    DrawPage2(program, picView, Medium::Preview);
}

}  // namespace terravane
