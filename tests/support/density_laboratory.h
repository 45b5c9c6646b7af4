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
/// The mold that the sand is weighed in: cm, g.
struct MoldReading {
    std::string_view diameter, height, empty, withSand;
};
/// One test hole: its soil, its sand, its can; g.
struct HoleReading {
    std::string_view wetAndPan, pan, initial, final, wetAndCan, dryAndCan, can;
};

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

    /// The average compaction in the summary.
    std::string Posted(std::size_t row = 0) const { return Laboratory::Posted("sum_compaction", row); }
};

inline void TypeCone(frmDensity& sheet, int column, const ConeReading& typed)
{
    TypeColumn(sheet.txtData, field::cone::Initial, column, {typed.initial, typed.final});
}

inline void TypeSand(frmDensity& sheet, int column, const MoldReading& typed)
{
    TypeColumn(sheet.txtData1, field::sand::Diameter, column,
               {typed.diameter, typed.height, typed.empty, typed.withSand});
}

inline void TypeHole(frmDensity& sheet, int hole, const HoleReading& typed)
{
    TypeColumn(sheet.txtData2, field::soil::WetAndPan, hole, {typed.wetAndPan, typed.pan});
    TypeColumn(sheet.txtData4, field::volume::Initial, hole, {typed.initial, typed.final});
    TypeColumn(sheet.txtData3, field::water::WetAndCan, hole, {typed.wetAndCan, typed.dryAndCan, typed.can});
}

inline void TypeMaximum(frmDensity& sheet, int hole, std::string_view density)
{
    TypeCell(sheet.txtData5, field::summary::MaximumDensity, hole, density);
}

// Round figures: 1600 g in the cone, 3000 g in a mold of 2123.31 cm³ are 1.41 g/cm³; 7000 - 3284 - 1600 = 2116 g of
// sand fill 1500.71 cm³; 3000 g of soil, 2.00 g/cm³ wet; 10 g of water in 100 g, 10.00 %, 1.82 g/cm³ dry.
inline constexpr ConeReading kCone{"7000", "5400"};
inline constexpr MoldReading kSandMold{"15.24", "11.64", "7000", "10000"};
inline constexpr HoleReading kHole{"3250", "250", "7000", "3284", "130", "120", "20"};

inline void TypeOneHole(frmDensity& sheet)
{
    TypeCone(sheet, 1, kCone);
    TypeSand(sheet, 1, kSandMold);
    TypeHole(sheet, 1, kHole);
}

}  // namespace terravane::support
