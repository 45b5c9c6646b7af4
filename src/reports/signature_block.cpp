#include "reports/signature_block.h"

#include <string>
#include <string_view>

#include "reports/brand.h"
#include "reports/open_sheet.h"
#include "reports/report.h"
#include "reports/report_page.h"

namespace terravane {

namespace {

constexpr double kSignatureSize = 15;  // points
constexpr std::string_view kDots = "..................................................";
constexpr std::string_view kTested = "Tested by ";
constexpr std::string_view kChecked = "Checked by ";
constexpr std::string_view kApproved = "Approved by ";
constexpr std::string_view kPreviewApprover = "Head of Laboratory";

/// The label, and the dots that end where the page's content ends. The last row is one text, the others' dots
/// begin where its dots do.
void PrintDottedLine(DrawingSurface& page, std::string_view label)
{
    const std::string longest = std::string(kApproved) + std::string(kDots);
    const double left = RightEdge(page) - page.TextWidth(longest);
    if (label == kApproved) return PrintLineFrom(page, left, longest);
    PrintFrom(page, left, label);
    PrintLineFrom(page, left + page.TextWidth(kApproved), kDots);
}

void PrintSignature(DrawingSurface& page, double top, std::string_view label, const std::string& name)
{
    page.CurrentY = top;
    page.FontSize = kSignatureSize;
    page.FontBold = false;
    PrintDottedLine(page, label);
    const double dots = page.TextWidth(kDots);
    PrintCentred(page, RightEdge(page) - dots, dots, "(" + name + ")");
    page.Print();
    page.FontSize = kBodySize;
}

std::string ApproverOn(Program& program, const SignaturePlace& place, Medium medium)
{
    if (place.fixedPreview && medium == Medium::Preview) return std::string(kPreviewApprover);
    LoadApproverName(program);
    return program.ApproverName;
}

}  // namespace

void DrawSignatures(Program& program, DrawingSurface& page, Medium medium)
{
    const TestSheet& sheet = OpenSheet(program);
    const SignaturePlace& place = ReportOf(program.CurrentTest).signatures;
    page.FontSize = kBodySize;
    const PageLines below(page, LineHeight(page) * place.anchor.On(medium));
    PrintSignature(page, below(1), kTested, sheet.cboTest.Text());
    PrintSignature(page, below(place.second), kChecked, sheet.cboCheck.Text());
    PrintSignature(page, below(place.third), kApproved, ApproverOn(program, place, medium));
}

}  // namespace terravane
