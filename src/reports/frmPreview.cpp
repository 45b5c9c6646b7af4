#include "reports/frmPreview.h"

#include "reports/all_reports.h"
#include "reports/page_frame.h"
#include "reports/print_report.h"
#include "runtime/numbers.h"

namespace terravane {

namespace {

constexpr std::string_view kNext = "Next>>";
constexpr std::string_view kBack = "<<Back";

}  // namespace

frmPreview::frmPreview(Program& owner)
    : Form(owner, "frmPreview", "Report Preview", WindowKind::Preview), program(owner)
{
    Toolbar1.SetMousePointer(Pointer::Hand);
    for (Image* holder : {&Image1, &Image2, &Image6, &imgPoint}) holder->SetVisible(false);
}

void frmPreview::Form_Load()
{
    picPreview.SetVisible(false);
    SetScrollMaxima(program.printer.Width, program.printer.Height);
    cmdNext.SetVisible(ReportOf(program.CurrentTest).second.has_value());
    ShowFirstPage();
    ShowPageAtFullSize();
    cboScale.SetText("100%");
    TellViews();
}

/// The commands of the sheet lose the colour that the mouse gave them; those of the CBR sheet keep it.
void frmPreview::Form_Unload()
{
    if (program.CurrentTest == Test::None || program.CurrentTest == Test::CBRSoil) return;
    if (auto* sheet = dynamic_cast<TestSheet*>(program.Loaded(SheetNameOf(program.CurrentTest))))
        sheet->RestoreCommandColours();
}

void frmPreview::ShowFirstPage()
{
    BeginPage(false);
    const Printing first = PrintingOf(program, picView, Medium::Preview);
    DrawPageFrame(first);
    SetScrollMaxima(program.printer.Width, program.printer.Height);
    DrawPageBody(first);
}

void frmPreview::ShowSecondPage()
{
    BeginPage(ReportOf(program.CurrentTest).second.value().isOnItsSide);
    const Printing second = PrintingOf(program, picView, Medium::Preview, kSecondPage);
    DrawPageFrame(second);
    DrawPageBody(second);
    SetScrollMaxima(picView.Width, picView.Height);
}

/// An empty page of the printer's size on picView, in view without a zoom. On its side, the page alone is
/// turned: the printer stays as it is.
void frmPreview::BeginPage(bool onItsSide)
{
    picPreview.SetVisible(false);
    picView.SetVisible(true);
    cboScale.SetText("");
    picView.Cls();
    Printer& printer = program.printer;
    printer.SetPaperSize(kPaperA4);
    picView.Width = onItsSide ? printer.Height : printer.Width;
    picView.Height = onItsSide ? printer.Width : printer.Height;
    picView.ScaleLeft = onItsSide ? printer.ScaleTop : printer.ScaleLeft;
    picView.ScaleTop = onItsSide ? printer.ScaleLeft : printer.ScaleTop;
    picView.ScaleWidth = onItsSide ? printer.ScaleHeight : printer.ScaleWidth;
    picView.ScaleHeight = onItsSide ? printer.ScaleWidth : printer.ScaleHeight;
}

void frmPreview::ShowPageAtFullSize()
{
    if (picPreview.Width >= Picture1.Width) return;
    BringCopyToFront();
    CopyPage(picView.Width, picView.Height);
    picPreview.Top = 0;
    CentreAcross(picPreview);
    VScroll1.SetMaximum(ToInteger(picView.Height - Picture1.Height));
    HScroll1.SetMaximum(0);
}

/// The zoom copies the page, it never draws the report again. A page on its side takes the printer's sizes
/// crosswise.
void frmPreview::cboScale_Click()
{
    BringCopyToFront();
    const std::string chosen = cboScale.Text();
    const double percent = Val(chosen.substr(0, chosen.size() - 1));
    const Printer& printer = program.printer;
    const bool isUpright = picView.Width < picView.Height;
    const double width = isUpright ? printer.Width : printer.Height;
    const double height = isUpright ? printer.Height : printer.Width;
    CopyPage(ToInteger(width * percent / 100), ToInteger(height * percent / 100));
    Place(picPreview);
    TellViews();
}

void frmPreview::BringCopyToFront()
{
    picView.SetVisible(false);
    VScroll1.SetValue(0);
    HScroll1.SetValue(0);
    picPreview.SetVisible(true);
}

void frmPreview::CopyPage(double width, double height)
{
    picPreview.Resize(width, height);
    picPreview.Cls();
    picPreview.PaintPicture(picView.Name(), picView.Image(), 0, 0, width, height);
}

void frmPreview::CentreAcross(PictureBox& page)
{
    page.Left = (Picture1.Width - page.Width) / 2;
}

/// In each direction: centred where the viewport has room, else from its edge on with a scroll bar.
void frmPreview::Place(PictureBox& page)
{
    const double spareWidth = Picture1.Width - page.Width;
    const double spareHeight = Picture1.Height - page.Height;
    page.Left = spareWidth > 0 ? spareWidth / 2 : 0;
    page.Top = spareHeight > 0 ? spareHeight / 2 : 0;
    VScroll1.SetMaximum(spareHeight < 0 ? ToInteger(-spareHeight) : 0);
    HScroll1.SetMaximum(spareWidth < 0 ? ToInteger(-spareWidth) : 0);
}

void frmPreview::SetScrollMaxima(double width, double height)
{
    HScroll1.SetMaximum(ToInteger(width - Picture1.Width));
    VScroll1.SetMaximum(ToInteger(height - Picture1.Height));
}

PictureBox& frmPreview::ShownPage()
{
    return cboScale.Text().empty() ? picView : picPreview;
}

void frmPreview::HScroll1_Change()
{
    ShownPage().Left = -HScroll1.Value();
    TellViews();
}

void frmPreview::VScroll1_Change()
{
    ShownPage().Top = -VScroll1.Value();
    TellViews();
}

void frmPreview::ResizeViewport(double width, double height)
{
    Picture1.Resize(width, height);
    VScroll1.SetValue(0);
    HScroll1.SetValue(0);
    Place(ShownPage());
    TellViews();
}

void frmPreview::cmdNext_Click()
{
    const bool isSecond = cmdNext.Caption() == kBack;
    if (isSecond) {
        cmdNext.SetCaption(std::string(kNext));
        ShowFirstPage();
    } else {
        ShowSecondPage();
    }
    VScroll1.SetValue(0);
    HScroll1.SetValue(0);
    picView.Top = 0;
    CentreAcross(picView);
    if (!isSecond) cmdNext.SetCaption(std::string(kBack));
    TellViews();
}

void frmPreview::Toolbar1_ButtonClick(int number)
{
    const std::string key = Toolbar1.Button(number).key;
    if (key == "mn2") PrintPages();
    if (key == "mn3") program.Unload(Name());
}

/// The pages are drawn again from the sheet. A cancelled dialog prints nothing; a report that fails half-way
/// sends nothing.
void frmPreview::PrintPages()
{
    const auto target = program.Ask().AskPrinter();
    if (!target) return;
    Printer& printer = program.printer;
    try {
        PrintReport(program, printer);
        printer.SetTarget(*target, JobTitle(program));
    } catch (...) {
        printer.KillDoc();
        throw;
    }
    printer.EndDoc();
}

void frmPreview::TellViews()
{
    for (PictureBox* box : {&Picture1, &picView, &picPreview}) box->Changed();
}

}  // namespace terravane
