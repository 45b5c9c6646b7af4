/// The laboratory with the field density sheet, and sheets as a technician types them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sheets/density/frmDensity.h"
#include "support/laboratory.h"

namespace terravane::support {

/// The sand that stays in the cone: jar before and after, g.
struct ConeReading {
    std::string_view initial, final;
};
/// The mould that the sand is weighed in: cm, g.
struct MouldReading {
    std::string_view diameter, height, empty, withSand;
};
/// One test hole: its soil, its sand, its can; g.
struct HoleReading {
    std::string_view wetAndPan, pan, initial, final, wetAndCan, dryAndCan, can;
};

inline void TypeCells(CellEditor& editor, int firstRow, int column, const std::vector<std::string_view>& texts)
{
    for (std::size_t i = 0; i < texts.size(); ++i) TypeCell(editor, firstRow + static_cast<int>(i), column, texts[i]);
}

struct DensityLaboratory : Laboratory {
    frmDensity& OpenDensity(Material material = Material::Soil)
    {
        return Open<frmDensity>("frmDensity", Test::DenSoil, material);
    }

    /// What Save left in the project file's compaction table, in all of its rows.
    void StoreMaximum(const std::string& table, const std::string& column, const std::string& text)
    {
        Change("UPDATE " + table + " Set " + column + " ='" + text + "'");
    }

    /// The average compaction in the summary, of soil (row 0) and crushed rock.
    std::string Posted(std::size_t row = 0) const { return StoredColumn("SUMMARY", "sum_compaction").at(row); }

    /// The number of the only error so far; 0 for none or several.
    int OnlyError() const { return ask.errors.size() == 1 ? ask.errors[0].number : 0; }
};

inline void TypeCone(frmDensity& sheet, int column, const ConeReading& typed)
{
    TypeCells(sheet.txtData, field::cone::Initial, column, {typed.initial, typed.final});
}

inline void TypeSand(frmDensity& sheet, int column, const MouldReading& typed)
{
    TypeCells(sheet.txtData1, field::sand::Diameter, column,
              {typed.diameter, typed.height, typed.empty, typed.withSand});
}

inline void TypeHole(frmDensity& sheet, int hole, const HoleReading& typed)
{
    TypeCells(sheet.txtData2, field::soil::WetAndPan, hole, {typed.wetAndPan, typed.pan});
    TypeCells(sheet.txtData4, field::volume::Initial, hole, {typed.initial, typed.final});
    TypeCells(sheet.txtData3, field::water::WetAndCan, hole, {typed.wetAndCan, typed.dryAndCan, typed.can});
}

inline void TypeMaximum(frmDensity& sheet, int hole, std::string_view density)
{
    TypeCell(sheet.txtData5, field::summary::MaximumDensity, hole, density);
}

/// The six cells of a grid's row, "a|b|c|d|e|f".
inline std::string RowOf(const TextGrid& grid, int row)
{
    std::string text = grid(row, 1);
    for (int column = 2; column <= field::kColumns; ++column) text += "|" + grid(row, column);
    return text;
}

// Round figures: 1600 g in the cone, 3000 g in a mould of 2123.31 cm³ are 1.41 g/cm³; 7000 - 3284 - 1600 = 2116 g of
// sand fill 1500.71 cm³; 3000 g of soil, 2.00 g/cm³ wet; 10 g of water in 100 g, 10.00 %, 1.82 g/cm³ dry.
inline constexpr ConeReading kCone{"7000", "5400"};
inline constexpr MouldReading kSandMould{"15.24", "11.64", "7000", "10000"};
inline constexpr HoleReading kHole{"3250", "250", "7000", "3284", "130", "120", "20"};

inline void TypeOneHole(frmDensity& sheet)
{
    TypeCone(sheet, 1, kCone);
    TypeSand(sheet, 1, kSandMould);
    TypeHole(sheet, 1, kHole);
}

}  // namespace terravane::support
