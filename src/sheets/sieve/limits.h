/// The consistency limits of a soil's fines, in percent of water.
#pragma once

namespace terravane {

struct Limits {
    double liquid;
    double plastic;

    constexpr double PlasticityIndex() const { return liquid - plastic; }
    /// The plasticity index on the A-line of the plasticity chart, which parts clay from silt; negative below a liquid
    /// limit of 20.
    constexpr double ALine() const { return (liquid - 20) * 0.73; }
    constexpr bool IsClayey() const { return PlasticityIndex() >= 4 && PlasticityIndex() >= ALine(); }
};

}  // namespace terravane
