// Calculate: from the masses on the sieves to the percentages that pass. Sums are single precision, each sieve's own
// mass is taken from its cell's two decimals.
#include <array>
#include <cmath>

#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/pattern/trial_cells.h"
#include "sheets/sieve/frmSieve.h"
#include "sheets/sieve/sieve_table.h"

namespace terravane {

namespace {

/// The boxes that take their text from a sieve's row.
struct PassingBox {
    std::string_view sieve;
    TextBox frmSieve::*box;
};
constexpr std::array kPassingBoxes{
    PassingBox{"#4", &frmSieve::txtP4},
    PassingBox{"#10", &frmSieve::txtP10},
    PassingBox{"#40", &frmSieve::txtP40},
    PassingBox{"#200", &frmSieve::txtP200},
};

float Added(float sum, double value)
{
    return static_cast<float>(static_cast<double>(sum) + value);
}

}  // namespace

void frmSieve::cmdCal_Click()
{
    if (Trim(txtGsoil.Text()).empty()) {
        program.Ask().Show(
            {"Please input Dry Wt. of Origin Sample before", "Data not complete", MessageStyle::Information});
        return txtGsoil.SetFocus();
    }
    const float total = TotalMass();
    const double original = Val(txtGsoil.Text());
    const double loss = std::abs(Divide(static_cast<double>(total) - original, original) * 100);
    txtErr.SetText(Shown(laboratory::kMassLost.is, loss) + "%");
    float cumulative = 0;
    for (int row = 1; row <= kMostSieves; ++row) ReduceRow(row, total, cumulative);
    CopyPassing();
    cmdgraph.SetEnabled(true);
}

/// g: what was found on the sieves and what was lost by washing. The percentages rest on it, not on the mass that was
/// put on the stack.
float frmSieve::TotalMass()
{
    float withSoil = 0, empty = 0;
    for (int row = 1; row <= kMostSieves; ++row) {
        withSoil = Added(withSoil, Val(MSHSieve(row, sieve::SieveAndSoil)));
        empty = Added(empty, Val(MSHSieve(row, sieve::EmptySieve)));
    }
    return static_cast<float>(static_cast<double>(withSoil) - static_cast<double>(empty) + Val(txtWl.Text()));
}

/// The mass lost by washing counts as retained in the pan, wherever the pan stands.
void frmSieve::ReduceRow(int row, float total, float& cumulative)
{
    const TrialCells of(MSHSieve, laboratory::kSieveStack, row);
    const auto name = Trim(of[sieve::Number]);
    if (name.empty()) return;

    const double washed = name == kPan ? Val(txtWl.Text()) : 0;
    of.Show(sieve::Retained, of.Value(sieve::SieveAndSoil) - of.Value(sieve::EmptySieve) + washed);
    cumulative = Added(cumulative, of.Value(sieve::Retained));
    of.Show(sieve::Cumulative, static_cast<double>(cumulative));
    of.Show(sieve::CumulativePercent, Divide(of.Value(sieve::Cumulative), static_cast<double>(total)) * 100);
    of.Show(sieve::Passing, 100 - of.Value(sieve::CumulativePercent));
}

/// A sieve that is not in the stack leaves its box as it was.
void frmSieve::CopyPassing()
{
    for (int row = 1; row < MSHSieve.Rows(); ++row) {
        const auto name = Trim(MSHSieve(row, sieve::Number));
        for (const PassingBox& of : kPassingBoxes) {
            if (of.sieve == name) (this->*of.box).SetText(MSHSieve(row, sieve::Passing));
        }
    }
}

}  // namespace terravane
