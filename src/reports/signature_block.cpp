#include "reports/signature_block.h"

#include <string>
#include <string_view>

#include "drawing/scopes.h"
#include "reports/brand.h"
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
    const TextSize size(page, kSignatureSize);
    page.CurrentY = top;
    PrintDottedLine(page, label);
    const double dots = page.TextWidth(kDots);
    PrintCentred(page, RightEdge(page) - dots, dots, "(" + name + ")");
    page.Print();
}

std::string ApproverOn(const Printing& of)
{
    if (of.report.signatures.fixedPreview && of.medium == Medium::Preview) return std::string(kPreviewApprover);
    Program& program = of.sheet.program;
    LoadApproverName(program);
    return program.ApproverName;
}

}  // namespace

void DrawSignatures(const Printing& of)
{
    const SignaturePlace& place = of.report.signatures;
    const TextSize size(of.page, kBodySize);
    const PageLines below(of.page, LineHeight(of.page) * place.anchor.On(of.medium));
    PrintSignature(of.page, below(1), kTested, of.sheet.cboTest.Text());
    PrintSignature(of.page, below(place.second), kChecked, of.sheet.cboCheck.Text());
    PrintSignature(of.page, below(place.third), kApproved, ApproverOn(of));
}

}  // namespace terravane
