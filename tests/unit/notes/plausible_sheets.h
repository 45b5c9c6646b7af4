/// Sheets as a careful laboratory fills them, of soils that there are: what a checker has nothing to say about. A seed
/// gives the same sheet on every machine.
#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/dates.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "support/open_sheet.h"

namespace terravane::support {

class PlausibleSheet {
  public:
    PlausibleSheet(Test test, unsigned seed) : random_(seed), test_(test), open_(test, '1', Job()) { Fill(); }

    OpenSheet& Open() { return open_; }

  private:
    double Between(double low, double high)
    {
        return low + (high - low) * static_cast<double>(random_() % 100001) / 100000.0;
    }
    void Cell(std::string_view grid, int row, int column, double value, int decimals)
    {
        static constexpr std::string_view kMasks[]{"0", "0.0", "0.00", "0.000"};
        open_.Put(std::string(grid) + ' ' + std::to_string(row) + ' ' + std::to_string(column),
                  Format(value, kMasks[decimals]));
    }
    void Press(std::string_view command) { open_.Sheet().Get<CommandButton>(command).Press(); }

    /// What the file knows of the job's other tests.
    static std::vector<std::string> Job()
    {
        return {"UPDATE SPCSOIL Set spc_gs='2.68'", "UPDATE STDSOIL Set std_mdd='1.95',std_omc='11.0'"};
    }

    void Fill()
    {
        switch (test_) {
            case Test::StdSoil:
            case Test::ModSoil:
                return FillCompaction();
            case Test::AttSoil:
                return FillAtterberg();
            case Test::SieSoil:
                return FillSieve();
            case Test::SpcSoil:
                return FillGravity();
            case Test::CBRSoil:
                return FillBearingRatio();
            default:
                return FillFieldDensity();
        }
    }

    /// Masses in a can of 20 to 25 g whose soil holds that water, %: rows from `row` on, wet, dry, can.
    void FillCan(std::string_view grid, int row, int column, double water, double soil)
    {
        const double can = std::round(Between(20, 25) * 100) / 100;
        Cell(grid, row, column, can + soil * (1 + water / 100), 2);
        Cell(grid, row + 1, column, can + soil, 2);
        Cell(grid, row + 2, column, can, 2);
    }

    void FillCompaction()
    {
        const bool isModified = test_ == Test::ModSoil;
        const double gravity = Between(2.62, 2.74), optimum = Between(isModified ? 7 : 9.5, isModified ? 9 : 14);
        const double top = gravity / (1 + optimum * gravity / 100 / Between(0.79, 0.86));
        const double curvature = Between(0.006, 0.009), volume = std::numbers::pi / 4 * 10.16 * 10.16 * 11.64;
        open_.Put("txtDia", "10.16");
        open_.Put("txtHeight", "11.64");
        open_.Put("cboWt", isModified ? "4.5 kg" : "2.5 kg");
        open_.Put("cboLayer", isModified ? "5" : "3");
        open_.Put("cboBlow", "25");
        open_.Put("txtGs", Format(gravity, "0.00"));
        for (int trial = 1; trial <= 5; ++trial) {
            const double water = optimum + (trial - 3) * Between(1.7, 2.1) + Between(-0.2, 0.2);
            // Wet of the optimum soil runs along the line without air voids, and does not cross it.
            const double wettest = gravity / (1 + water * gravity / 100 / 0.95);
            const double dry = std::min(top - curvature * (water - optimum) * (water - optimum), wettest);
            open_.Put("MSHWt 1 " + std::to_string(trial), "C" + std::to_string(trial));
            FillCan("MSHWt", 2, trial, water, Between(40, 60));
            Cell("MSHDensity", 0, trial, water, 0);
            Cell("MSHDensity", 1, trial, 4200 + dry * (1 + water / 100) * volume, 0);
            Cell("MSHDensity", 2, trial, 4200, 0);
        }
        Press("cmdCal");
        Press("cmdOMC");
    }

    void FillAtterberg()
    {
        const double liquid = Between(28, 65), plastic = liquid - Between(0.45, 0.85) * 0.9 * (liquid - 8);
        const double flow = liquid * Between(0.15, 0.3);
        for (int trial = 1; trial <= 4; ++trial) {
            const double blows = std::round(37 - 5 * trial + Between(-1.4, 1.4));
            Cell("MSHLL", 1, trial, blows, 0);
            FillCan("MSHLL", 2, trial, liquid - flow * std::log10(blows / 25) + Between(-0.12, 0.12), Between(12, 18));
        }
        for (int thread = 1; thread <= 3; ++thread)
            FillCan("MSHPL", 1, thread, plastic + Between(-0.5, 0.5), Between(10, 14));
        Press("cmdCal");
        Press("cmdPlot");
    }

    void FillSieve()
    {
        static constexpr std::string_view kStack[]{"#4", "#10", "#20", "#40", "#100", "#200", "Pan"};
        auto& list = open_.Sheet().Get<ListBox>("lstSieve");
        for (std::size_t entry = 0; entry < list.List().size(); ++entry)
            for (const std::string_view sieve : kStack)
                if (Trim(list.List()[entry]) == sieve) list.SetSelected(entry, true);
        Press("cmdSieve");
        open_.Put("optYes", "on");
        double left = std::round(Between(500, 600)), found = 0;
        const double washed = std::round(left * Between(0.06, 0.25));
        open_.Put("txtGsoil", Format(left, "0"));
        open_.Put("txtDwp", Format(left - washed, "0"));
        open_.Put("txtWl", Format(washed, "0"));
        left -= washed;
        for (int row = 1; row <= 7; ++row) {
            const double empty = std::round(Between(350, 500));
            const double on = row == 7 ? left * 0.99 : std::min(left * Between(0.05, 0.35), 190.0);
            Cell("MSHSieve", row, 2, empty, 1);
            Cell("MSHSieve", row, 3, empty + on, 1);
            left -= on;
            found += on;
        }
        Press("cmdCal");
        Press("cmdgraph");
    }

    void FillGravity()
    {
        const double gravity = Between(2.63, 2.75), full = Between(660, 690);
        const auto flask = [full](double celsius) {
            return full - 0.08 * (celsius - 20) - 0.002 * (celsius - 20) * (celsius - 20);
        };
        for (int reading = 1; reading <= 6; ++reading) {
            Cell("MSHCalibration", reading, 1, flask(15 + 3 * reading), 2);
            Cell("MSHCalibration", reading, 2, 15 + 3 * reading, 0);
        }
        for (int trial = 1; trial <= 3; ++trial) {
            const double celsius = std::round(Between(20, 31)), soil = Between(50, 65);
            const double container = std::round(Between(90, 100) * 100) / 100;
            Cell("MSHSpecific", 1, trial, celsius, 0);
            Cell("MSHSpecific", 3, trial, flask(celsius) + soil - soil / (gravity + Between(-0.008, 0.008)), 2);
            Cell("MSHSpecific", 5, trial, container + soil, 2);
            Cell("MSHSpecific", 6, trial, container, 2);
        }
        Press("cmdgraph");
        Press("cmdCal");
    }

    void FillBearingRatio()
    {
        static constexpr double kDepths[]{0, 0.025, 0.05, 0.075, 0.1, 0.125, 0.15, 0.175, 0.2, 0.3, 0.4, 0.5};
        const double water = Between(9, 12), densest = Between(1.98, 2.1), bend = Between(0.07, 0.11);
        open_.Put("optSoak", "on");
        open_.Put("txtK", "5.0");
        open_.Put("txtWeight", "4.54");
        const double volume = std::numbers::pi / 4 * 15.24 * 15.24 * 11.64;
        for (int row = 0; row < 12; ++row) Cell("MSHPenetrate1", row, 0, kDepths[row], 3);
        for (int mold = 1; mold <= 3; ++mold) {
            const double dry = densest - (3 - mold) * Between(0.07, 0.1), strong = Between(200, 260) * mold;
            static constexpr std::string_view kBlows[]{"10", "25", "56"};
            open_.Put("MSHWater 1 " + std::to_string(mold), "B" + std::to_string(mold));
            FillCan("MSHWater", 2, mold, water + Between(-0.2, 0.2), Between(90, 110));
            open_.Put("MSHCompaction 2 " + std::to_string(mold), kBlows[mold - 1]);
            Cell("MSHCompaction", 3, mold, 15.24, 2);
            Cell("MSHCompaction", 4, mold, 11.64, 2);
            Cell("MSHCompaction", 5, mold, 7000 + dry * (1 + water / 100) * volume, 0);
            Cell("MSHCompaction", 6, mold, 7000, 0);
            for (int row = 0; row < 12; ++row)
                Cell("MSHPenetrate1", row, 1 + 3 * (mold - 1), strong * (1 - std::exp(-kDepths[row] / bend)) * 3 / 5,
                     1);
        }
        for (int day = 0; day < 5; ++day) {
            open_.Put("MSHSwell " + std::to_string(3 + day) + " 0", ShortDate(MakeMoment(2026, 11, 9 + day)));
            Cell("MSHSwell", 3 + day, 1, 9, 0);
            for (int mold = 1; mold <= 3; ++mold)
                Cell("MSHSwell", 3 + day, 1 + 2 * mold, 1 + 0.3 * day + Between(0, 0.1), 2);
        }
        open_.Put("txtOMC", Format(water, "0.0"));
        open_.Put("txtMDD", Format(densest * 1.02, "0.00"));
        Press("cmdCal");
        Press("cmdLPen");
    }

    void FillFieldDensity()
    {
        const double sand = Between(1.4, 1.5), cone = std::round(Between(1600, 1700));
        const double mold = std::numbers::pi / 4 * 15.24 * 15.24 * 11.64;
        open_.Put("optStd", "on");
        for (int trial = 1; trial <= 3; ++trial) {
            Cell("MSHWsand", 1, trial, 7000, 0);
            Cell("MSHWsand", 2, trial, 7000 - cone + Between(-4, 4), 0);
            Cell("MSHDsand", 1, trial, 15.24, 2);
            Cell("MSHDsand", 2, trial, 11.64, 2);
            Cell("MSHDsand", 3, trial, 4000, 0);
            Cell("MSHDsand", 4, trial, 4000 + mold * sand + Between(-4, 4), 0);
        }
        for (int hole = 1; hole <= 4; ++hole) {
            const double volume = Between(1500, 2200), water = Between(9.3, 12.7), dry = 1.95 * Between(0.95, 1.01);
            Cell("MSHWsoil", 1, hole, 300 + volume * dry * (1 + water / 100), 1);
            Cell("MSHWsoil", 2, hole, 300, 1);
            Cell("MSHVolume", 1, hole, 7500, 0);
            Cell("MSHVolume", 2, hole, 7500 - cone - volume * sand, 0);
            FillCan("MSHWater", 1, hole, water, Between(110, 150));
            open_.Put("MSHSummary 1 " + std::to_string(hole), "1.95");
        }
        Press("cmdCal");
    }

    std::mt19937 random_;
    Test test_;
    OpenSheet open_;
};

}  // namespace terravane::support
