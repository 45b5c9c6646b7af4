/// The laboratory with the sieve sheet in it, and stacks as a technician types them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "runtime/text.h"
#include "sheets/sieve/frmSieve.h"
#include "sheets/sieve/sieve_table.h"
#include "support/laboratory.h"

namespace terravane::support {

/// One sieve with the masses in g of the empty sieve and of sieve and soil.
struct SieveReading {
    std::string_view sieve, empty, withSoil;
};
using Stack = std::vector<SieveReading>;

struct SieveLaboratory : Laboratory {
    frmSieve& OpenSieve(Material material = Material::Soil)
    {
        return Open<frmSieve>("frmSieve", Test::SieSoil, material);
    }
};

inline void Choose(frmSieve& sheet, std::string_view name, bool selected = true)
{
    sheet.lstSieve.SetSelected(static_cast<std::size_t>(FindSieve(name) - kSieves.data()), selected);
}

/// Selects the stack's sieves, puts them into the grid and types their masses.
inline void TypeStack(frmSieve& sheet, const Stack& stack, std::string_view original)
{
    for (const SieveReading& reading : stack) Choose(sheet, reading.sieve);
    sheet.cmdSieve.Press();
    int row = 0;
    for (const SieveReading& reading : stack) {
        ++row;
        TypeCell(sheet.txtData, row, sieve::EmptySieve, reading.empty);
        TypeCell(sheet.txtData, row, sieve::SieveAndSoil, reading.withSoil);
    }
    sheet.txtGsoil.Type(original);
}

inline void TypeLimits(frmSieve& sheet, std::string_view liquid, std::string_view plastic)
{
    sheet.txtLL.Type(liquid);
    sheet.txtPL.Type(plastic);
}

inline void SieveWet(frmSieve& sheet, std::string_view original, std::string_view washed)
{
    sheet.optYes.Choose();
    sheet.txtGsoil.Type(original);
    sheet.txtDwp.Type(washed);
    sheet.txtDwp.PressKey(Key::Enter);
}

/// One column of the sieves' rows from 1 on.
inline std::vector<std::string> ColumnOf(const frmSieve& sheet, sieve::Column column, int rows)
{
    std::vector<std::string> texts;
    for (int row = 1; row <= rows; ++row) texts.push_back(sheet.MSHSieve(row, column));
    return texts;
}

/// A fine sand of 729 g from a textbook: percent finer 100, 94.5, 86.3, 74.1, 54.9, 38.1, 9.3 and 1.7.
inline const Stack kFineSand{
    {"#4", "0", "0"},    {"#10", "0", "40"},   {"#20", "0", "60"},  {"#40", "0", "89"}, {"#60", "0", "140"},
    {"#80", "0", "122"}, {"#100", "0", "210"}, {"#200", "0", "56"}, {"Pan", "0", "12"},
};

/// A washed sand with silt, 640 g before and 568 g after washing, limits 33 and 24.
inline const Stack kWashedSand{
    {"#4", "0", "0"},     {"#10", "0", "0.2"},    {"#20", "0", "0.3"},    {"#40", "0", "5.4"},
    {"#60", "0", "82.9"}, {"#100", "0", "369.7"}, {"#200", "0", "108.4"}, {"Pan", "0", "1.1"},
};

/// A coarse sand with gravel, 500 g: percent passing 63.64, 45.44, 25.52, 14.45, 5.09, 3.03 and 1.11.
inline const Stack kGravellySand{
    {"#4", "0", "181.8"}, {"#8", "0", "91"},     {"#16", "0", "99.6"}, {"#30", "0", "55.33"},
    {"#50", "0", "46.8"}, {"#100", "0", "10.3"}, {"#200", "0", "9.6"}, {"Pan", "0", "4.8"},
};

/// Crushed rock of 3530 g, 3340 g after washing.
inline const Stack kCrushedRockStack{
    {"1 in", "601.2", "601.2"}, {"3/4 in", "588.4", "905.6"}, {"3/8 in", "560.9", "1362.3"},
    {"#4", "512.7", "1108.1"},  {"#10", "478.3", "1121.8"},   {"#40", "402.6", "1003.9"},
    {"#100", "361.5", "587.2"}, {"#200", "338.9", "462.4"},   {"Pan", "371.0", "386.3"},
};

}  // namespace terravane::support
