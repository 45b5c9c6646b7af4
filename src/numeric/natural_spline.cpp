#include "numeric/natural_spline.h"

#include <array>
#include <utility>

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace terravane {
namespace {

/// The members of a row in the order of SplineColumn.
constexpr std::array<double SplineRow::*, 5> kColumns{&SplineRow::before, &SplineRow::diagonal, &SplineRow::after,
                                                      &SplineRow::rightSide, &SplineRow::moment};

/// The tridiagonal system on its way from the points to the second derivatives, one step of the method a
/// function.
class SplineSystem {
  public:
    SplineSystem(std::span<const double> x, std::span<const double> y, StageRounding rounded,
                 const SplineListener& written)
        : x_(x), y_(y), rounded_(rounded), written_(written), rows_(x.size())
    {}

    std::vector<SplineRow> Solve()
    {
        if (rows_.size() < 2) throw RuntimeError(error::kSubscriptOutOfRange);
        Write(0, SplineColumn::kAfter, x_[1] - x_[0]);
        for (std::size_t i = 1; i + 1 < rows_.size(); ++i) SetUp(i);
        for (std::size_t i = 2; i + 1 < rows_.size(); ++i) Eliminate(i);
        Write(0, SplineColumn::kMoment, 0);
        Write(rows_.size() - 1, SplineColumn::kMoment, 0);
        SubstituteBack();
        return std::move(rows_);
    }

  private:
    void Write(std::size_t point, SplineColumn column, double value)
    {
        const double stage = rounded_(value);
        rows_[point].*kColumns[static_cast<std::size_t>(column)] = stage;
        if (written_) written_(point, column, stage);
    }

    void SetUp(std::size_t i)
    {
        Write(i, SplineColumn::kBefore, x_[i] - x_[i - 1]);
        Write(i, SplineColumn::kDiagonal, 2 * (x_[i + 1] - x_[i - 1]));
        Write(i, SplineColumn::kAfter, x_[i + 1] - x_[i]);
        const double slopeAfter = Divide(y_[i + 1] - y_[i], rows_[i].after);
        const double slopeBefore = Divide(y_[i] - y_[i - 1], rows_[i - 1].after);
        Write(i, SplineColumn::kRightSide, 6 * (slopeAfter - slopeBefore));
    }

    void Eliminate(std::size_t i)
    {
        const SplineRow& above = rows_[i - 1];
        Write(i, SplineColumn::kDiagonal, rows_[i].diagonal - Divide(above.after * above.after, above.diagonal));
        Write(i, SplineColumn::kRightSide, rows_[i].rightSide - Divide(above.after * above.rightSide, above.diagonal));
    }

    void SubstituteBack()
    {
        const std::size_t last = rows_.size() - 2;
        Write(last, SplineColumn::kMoment, Divide(rows_[last].rightSide, rows_[last].diagonal));
        for (std::size_t i = last; i-- > 1;) {
            const SplineRow& row = rows_[i];
            Write(i, SplineColumn::kMoment, Divide(row.rightSide - row.after * rows_[i + 1].moment, row.diagonal));
        }
    }

    std::span<const double> x_;
    std::span<const double> y_;
    StageRounding rounded_;
    const SplineListener& written_;
    std::vector<SplineRow> rows_;
};

}  // namespace

std::vector<SplineRow> NaturalSpline(std::span<const double> x, std::span<const double> y, StageRounding rounded,
                                     const SplineListener& written)
{
    return SplineSystem(x, y, rounded, written).Solve();
}

double SplineValue(std::span<const SplineRow> rows, std::span<const double> x, std::span<const double> y,
                   std::size_t interval, double at)
{
    const std::size_t next = interval + 1;
    const double h = x[next] - x[interval];
    const double a = x[next] - at;
    const double b = at - x[interval];
    return ((Divide(a * a, h) - h) * a * rows[interval].moment) / 6 +
           ((Divide(b * b, h) - h) * b * rows[next].moment) / 6 + Divide(a * y[interval], h) + Divide(b * y[next], h);
}

}  // namespace terravane
