/// The laboratory with the bearing ratio sheet, and sheets as a technician types them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sheets/cbr/frmCBR.h"
#include "support/laboratory.h"

namespace terravane::support {

struct CbrLaboratory : Laboratory {
    frmCBR& OpenCbr(Material material = Material::Soil) { return Open<frmCBR>("frmCBR", Test::CBRSoil, material); }

    /// What stands in the summary for soil (row 0) and crushed rock.
    std::vector<std::string> PostedRatios() const { return StoredColumn("SUMMARY", "sum_CBR"); }
};

inline std::string RatiosOf(const frmCBR& sheet, cbr::result::Row row)
{
    return RowOf(sheet.mshLPC, row);
}

/// One can: number, masses in g.
struct CbrCan {
    std::string_view number, wetAndCan, dryAndCan, can;
};
/// One mold: blows and layers, lengths in cm, masses in g.
struct CbrMold {
    std::string_view blows, diameter, height, whole, mold;
};
/// One swelling reading: day, hour, dials in mm.
struct CbrSwell {
    std::string_view date, hour;
    std::vector<std::string_view> dials;
};

inline void TypeCan(frmCBR& sheet, int column, const CbrCan& can)
{
    TypeColumn(sheet.txtData, cbr::water::CanNumber, column, {can.number, can.wetAndCan, can.dryAndCan, can.can});
}

inline void TypeMold(frmCBR& sheet, int column, const CbrMold& mold)
{
    TypeColumn(sheet.txtData1, cbr::density::Blows, column,
               {mold.blows, mold.diameter, mold.height, mold.whole, mold.mold});
}

inline void TypeSwell(frmCBR& sheet, int row, const CbrSwell& reading)
{
    sheet.MSHSwell.PressMouse(MouseButton::Left, row, cbr::swell::Date);
    sheet.dtpSwell.Type(reading.date);
    TypeCell(sheet.txtData2, row, cbr::swell::Time, reading.hour);
    for (int mold = 1; mold <= cbr::kMolds; ++mold)
        TypeCell(sheet.txtData2, row, cbr::swell::Dial(mold), reading.dials[static_cast<std::size_t>(mold - 1)]);
}

/// Penetrations as they are typed, one below the other.
inline void TypePenetrations(frmCBR& sheet, const std::vector<std::string_view>& depths)
{
    TypeColumn(sheet.txtData3, 0, cbr::penetration::Depth, depths);
}

inline void TypeDials(frmCBR& sheet, int mold, const std::vector<std::string_view>& dials)
{
    TypeColumn(sheet.txtData3, 0, cbr::penetration::Dial(mold), dials);
}

// Penetrations of 0 to 12.5 mm in inches and dials of a ring of 4.9958 lb/div from published single molds; weighings,
// swelling and the maximum density are made to go with them.
inline const std::vector<std::string_view> kDepths{"0.0",    "0.0197", "0.0394", "0.0591", "0.0787", "0.0984",
                                                   "0.1181", "0.1575", "0.1969", "0.2953", "0.3937", "0.4921"};
inline const std::vector<std::string_view> kLooseDials{"0",  "15",   "21",   "26.3", "29.9", "34.6",
                                                       "41", "46.1", "49.8", "53.4", "59.6", "67"};
inline const std::vector<std::string_view> kSandyDials{"0",    "20",   "29.2", "34.4", "38.6", "42.6",
                                                       "45.6", "50.6", "54.8", "61.8", "66",   "70.2"};
inline const std::vector<std::string_view> kDenseDials{"0",    "18",   "29",   "35",   "39.8", "46.1",
                                                       "51.2", "59.4", "63.7", "69.8", "73.5", "79.4"};
/// The curve of a fine-grained soil that starts concave upward.
inline const std::vector<std::string_view> kConcaveDials{"0",    "5",    "12",   "20",   "33.2", "44",
                                                         "50.1", "56.4", "61.7", "67.8", "71.2", "76.5"};

inline const std::vector<CbrCan> kCans{{"B1", "132.1", "120", "20"}, {"B2", "132.0", "120", "20"},
                                       {"B3", "131.9", "120", "20"}, {"A1", "138.4", "120", "20"},
                                       {"A2", "136.9", "120", "20"}, {"A3", "135.2", "120", "20"}};
inline const std::vector<CbrMold> kMoldColumns{
    {"10/5", "15.24", "11.64", "11165", "7000"}, {"25/5", "15.24", "11.64", "11452", "7100"},
    {"56/5", "15.24", "11.64", "11762", "7200"}, {"10/5", "15.24", "11.64", "11399", "7000"},
    {"25/5", "15.24", "11.64", "11642", "7100"}, {"56/5", "15.24", "11.64", "11896", "7200"}};
inline const std::vector<CbrSwell> kSwellRows{{"02/03/2009", "9", {"1.0", "2.0", "1.5"}},
                                              {"03/03/2009", "9", {"1.32", "2.22", "1.63"}},
                                              {"04/03/2009", "10", {"1.45", "2.31", "1.69"}},
                                              {"06/03/2009", "9", {"1.58", "2.4", "1.74"}}};

/// The whole soaked sheet of three molds.
inline void TypeThreeMolds(frmCBR& sheet)
{
    sheet.optSoak.Choose();
    sheet.txtK.Type("4.9958");
    sheet.txtWeight.Type("4.54");
    sheet.txtMDD.Type("1.95");
    for (std::size_t i = 0; i < kCans.size(); ++i) TypeCan(sheet, static_cast<int>(i) + 1, kCans[i]);
    for (std::size_t i = 0; i < kMoldColumns.size(); ++i) TypeMold(sheet, static_cast<int>(i) + 1, kMoldColumns[i]);
    for (std::size_t i = 0; i < kSwellRows.size(); ++i)
        TypeSwell(sheet, cbr::swell::First + static_cast<int>(i), kSwellRows[i]);
    TypePenetrations(sheet, kDepths);
    TypeDials(sheet, 1, kLooseDials);
    TypeDials(sheet, 2, kSandyDials);
    TypeDials(sheet, 3, kDenseDials);
}

/// A sheet with the readings of one mold alone.
inline void TypeSingleMold(frmCBR& sheet, const std::vector<std::string_view>& dials)
{
    sheet.optUnsoak.Choose();
    sheet.txtK.Type("4.9958");
    TypePenetrations(sheet, kDepths);
    TypeDials(sheet, 1, dials);
}

}  // namespace terravane::support
