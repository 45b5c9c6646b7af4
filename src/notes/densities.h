/// What the rules of several tests ask of densities and water contents.
#pragma once

namespace terravane::notes {

/// Degree of saturation, %, of a soil that is lighter than its grains.
/// water    content, % of the dry mass
/// dry      density, g/cm³, below gravity
/// gravity  of the grains
/// Source: phase relations, the density of water taken as 1 g/cm³.
constexpr double Saturation(double water, double dry, double gravity)
{
    return water * dry * gravity / (gravity - dry);
}

}  // namespace terravane::notes
