/// Every command of every sheet, as a table of script lines: what the benchmarks time without windows and with them.
/// The readings are those of the road project in samples/.
#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace terravane::support {

/// group, name  as the table of figures shows them
/// before       lines that bring the sheet to where the command is pressed; a sheet is opened anew for each row
/// pressed      the command itself
/// after        lines that make the sheet ready to press it again
struct SheetCommand {
    std::string_view group, name;
    std::vector<std::string_view> before;
    std::string_view pressed;
    std::vector<std::string_view> after = {};
};

/// The row of a report: the benchmarks time its drawing and printing from here, too.
inline constexpr std::string_view kPreviewName = "Print Preview";
inline constexpr std::string_view kPreview = "click cmdView", kClosePreview = "tool Toolbar1 mn3";
inline constexpr std::string_view kSave = "tool tblMenu 1";

// clang-format off
inline const std::array kSheetCommands{
    SheetCommand{"Atterberg", "open", {}, "menu mnuAtt1"},
    SheetCommand{"Atterberg", "Calculate", {"menu mnuAtt1"}, "click cmdCal"},
    SheetCommand{"Atterberg", "Plot Graph", {"menu mnuAtt1", "click cmdCal", "tab SSTData 1"}, "click cmdPlot"},
    SheetCommand{"Atterberg", "Save", {"menu mnuAtt1", "click cmdCal", "click cmdPlot"}, kSave},
    SheetCommand{"Atterberg", kPreviewName, {"menu mnuAtt1", "click cmdCal", "click cmdPlot"}, kPreview, {kClosePreview}},

    SheetCommand{"Sieve", "open", {}, "menu mnuSie1"},
    SheetCommand{"Sieve", "Sieve list to table", {"menu mnuSie1", "select lstSieve \"#4\" on", "select lstSieve \"#200\" on"}, "click cmdSieve"},
    SheetCommand{"Sieve", "Limits from Atterberg", {"menu mnuSie1"}, "click cmdAtt"},
    SheetCommand{"Sieve", "Calculate", {"menu mnuSie1"}, "click cmdCal"},
    SheetCommand{"Sieve", "Plot Graph", {"menu mnuSie1", "click cmdCal", "tab SSTData 1"}, "click cmdgraph"},
    SheetCommand{"Sieve", "Plot Graph, smooth", {"menu mnuSie2", "click cmdCal", "tab SSTData 1", "check chkSmooth on"}, "click cmdgraph"},
    SheetCommand{"Sieve", "Classify", {"menu mnuSie1", "click cmdAtt", "click cmdCal", "click cmdgraph", "tab SSTData 2"}, "click cmdClass"},
    SheetCommand{"Sieve", "Save", {"menu mnuSie1", "click cmdAtt", "click cmdCal", "click cmdgraph"}, kSave},
    SheetCommand{"Sieve", kPreviewName, {"menu mnuSie1", "click cmdAtt", "click cmdCal", "click cmdgraph", "click cmdClass"}, kPreview, {kClosePreview}},
    SheetCommand{"Sieve", "Print Preview, page 2", {"menu mnuSie1", "click cmdAtt", "click cmdCal", "click cmdgraph", "click cmdClass", kPreview}, "click cmdNext", {"click cmdNext"}},

    SheetCommand{"Specific gravity", "open", {}, "menu mnuSpe1"},
    SheetCommand{"Specific gravity", "Plot Graph Calibration, Auto", {"menu mnuSpe1", "click optAut"}, "click cmdgraph", {"click optAut"}},
    SheetCommand{"Specific gravity", "Plot Graph Calibration, exponential", {"menu mnuSpe1", "click optExp"}, "click cmdgraph"},
    SheetCommand{"Specific gravity", "Plot Graph Calibration, linear", {"menu mnuSpe1", "click optLin"}, "click cmdgraph"},
    SheetCommand{"Specific gravity", "Plot Graph Calibration, polynomial", {"menu mnuSpe1", "click optPol"}, "click cmdgraph"},
    SheetCommand{"Specific gravity", "Calculate", {"menu mnuSpe1", "click cmdgraph"}, "click cmdCal"},
    SheetCommand{"Specific gravity", "Save", {"menu mnuSpe1", "click cmdgraph", "click cmdCal"}, kSave},
    SheetCommand{"Specific gravity", kPreviewName, {"menu mnuSpe1", "click cmdgraph", "click cmdCal"}, kPreview, {kClosePreview}},

    SheetCommand{"Compaction", "open", {}, "menu mnuStd1"},
    SheetCommand{"Compaction", "Calculate", {"menu mnuStd1"}, "click cmdCal"},
    SheetCommand{"Compaction", "Compaction Curve, Interpolation", {"menu mnuStd1", "click cmdCal", "tab SSTData 1"}, "click cmdOMC"},
    SheetCommand{"Compaction", "Compaction Curve, Curve Fitting", {"menu mnuStd1", "click cmdCal", "tab SSTData 1", "click optFit"}, "click cmdOMC"},
    SheetCommand{"Compaction", "Compaction Curve, air voids", {"menu mnuStd1", "click cmdCal", "tab SSTData 1", "check chkSatLine on", "set txtGs 2.68"}, "click cmdOMC"},
    SheetCommand{"Compaction", "Save", {"menu mnuStd1", "click cmdCal", "click cmdOMC"}, kSave},
    SheetCommand{"Compaction", kPreviewName, {"menu mnuStd1", "click cmdCal", "click cmdOMC"}, kPreview, {kClosePreview}},

    SheetCommand{"CBR", "open", {}, "menu mnuCBR1"},
    SheetCommand{"CBR", "Penetration Intervals", {"menu mnuCBR1"}, "click cmdPen"},
    SheetCommand{"CBR", "Standard Compaction", {"menu mnuCBR1"}, "click optStd", {"click optMod"}},
    SheetCommand{"CBR", "Modified Compaction", {"menu mnuCBR1"}, "click optMod", {"click optStd"}},
    SheetCommand{"CBR", "Calculate", {"menu mnuCBR1"}, "click cmdCal"},
    SheetCommand{"CBR", "Load-Penetration Curve", {"menu mnuCBR1", "click cmdCal", "tab SSTData 2"}, "click cmdLPen"},
    SheetCommand{"CBR", "Load-Penetration Curve, corrected", {"menu mnuCBR1", "click cmdCal", "tab SSTData 2", "check chkMold1 on", "check chkMold2 on", "check chkMold3 on"}, "click cmdLPen"},
    SheetCommand{"CBR", "one mold's curve", {"menu mnuCBR1", "click cmdCal", "tab SSTData 2", "click cmdLPen"}, "click lblMold1"},
    SheetCommand{"CBR", "CBR Value from Graph", {"menu mnuCBR1", "click optStd", "click cmdCal", "click cmdLPen", "tab SSTData 3"}, "click cmdCBR"},
    SheetCommand{"CBR", "one ratio's curve", {"menu mnuCBR1", "click optStd", "click cmdCal", "click cmdLPen", "tab SSTData 3", "click cmdCBR"}, "click lbl01"},
    SheetCommand{"CBR", "Save", {"menu mnuCBR1", "click cmdCal"}, kSave},
    SheetCommand{"CBR", kPreviewName, {"menu mnuCBR1", "click optStd", "click cmdCal", "click cmdLPen", "click cmdCBR"}, kPreview, {kClosePreview}},
    SheetCommand{"CBR", "Print Preview, page 2", {"menu mnuCBR1", "click optStd", "click cmdCal", "click cmdLPen", "click cmdCBR", kPreview}, "click cmdNext", {"click cmdNext"}},

    SheetCommand{"Field density", "open", {}, "menu mnuDen1"},
    SheetCommand{"Field density", "Standard Compaction", {"menu mnuDen1"}, "click optStd", {"click optMod"}},
    SheetCommand{"Field density", "Modified Compaction", {"menu mnuDen1"}, "click optMod", {"click optStd"}},
    SheetCommand{"Field density", "Calculate", {"menu mnuDen1", "click optStd"}, "click cmdCal"},
    SheetCommand{"Field density", "Save", {"menu mnuDen1", "click optStd", "click cmdCal"}, kSave},
    SheetCommand{"Field density", kPreviewName, {"menu mnuDen1", "click optStd", "click cmdCal"}, kPreview, {kClosePreview}},

    SheetCommand{"Overall results", "open", {}, "menu mnuSum", {"close"}},
};
// clang-format on

}  // namespace terravane::support
