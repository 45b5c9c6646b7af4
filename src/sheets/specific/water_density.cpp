#include "sheets/specific/water_density.h"

#include <array>
#include <cmath>

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {

namespace {

/// A row each ten degrees, a column each degree.
constexpr std::array<std::array<float, 10>, 10> kDensities{{
    {0.9999F, 0.9999F, 1.0000F, 1.0000F, 1.0000F, 1.0000F, 1.0000F, 0.9999F, 0.9999F, 0.9999F},
    {0.9997F, 0.9996F, 0.9995F, 0.9994F, 0.9993F, 0.9991F, 0.9990F, 0.9988F, 0.9986F, 0.9984F},
    {0.9982F, 0.9980F, 0.9978F, 0.9976F, 0.9973F, 0.9971F, 0.9968F, 0.9965F, 0.9963F, 0.9960F},
    {0.9957F, 0.9954F, 0.9951F, 0.9947F, 0.9944F, 0.9941F, 0.9898F, 0.9934F, 0.9930F, 0.9926F},
    {0.9922F, 0.9919F, 0.9915F, 0.9911F, 0.9907F, 0.9902F, 0.0000F, 0.9894F, 0.9890F, 0.9885F},
    {0.9881F, 0.9876F, 0.9872F, 0.9867F, 0.9862F, 0.9857F, 0.9852F, 0.9848F, 0.9842F, 0.9838F},
    {0.9832F, 0.9827F, 0.9822F, 0.9817F, 0.9811F, 0.9806F, 0.9800F, 0.9795F, 0.9789F, 0.9784F},
    {0.9778F, 0.9772F, 0.9767F, 0.9761F, 0.9755F, 0.9749F, 0.9743F, 0.9737F, 0.9731F, 0.9724F},
    {0.9718F, 0.9712F, 0.9706F, 0.9699F, 0.9693F, 0.9686F, 0.9680F, 0.9673F, 0.9667F, 0.9660F},
    {0.9653F, 0.9647F, 0.9640F, 0.9633F, 0.9626F, 0.9619F, 0.9612F, 0.9605F, 0.9598F, 0.9591F},
}};

double UnitsOf(std::string_view text)
{
    const double units = Val(text);
    return CharacterCount(text) > 1 ? std::trunc(units) : units;
}

}  // namespace

float WaterDensity(std::string_view temperature)
{
    const double tens = Val(Left(temperature, 1));
    const double units = UnitsOf(SkipCharacters(temperature, 1));
    if (units < 0 || units > 9) throw RuntimeError(error::kSubscriptOutOfRange);
    return kDensities[static_cast<std::size_t>(tens)][static_cast<std::size_t>(units)];
}

}  // namespace terravane
