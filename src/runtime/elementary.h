/// Logarithm and exponential out of additions, multiplications and divisions alone, which every processor rounds the
/// same way. The systems' own differ from each other in the last bit, so that one machine could print another digit
/// than the next.
#pragma once

namespace terravane {

/// The natural logarithm of a value above zero, the double nearest to it but for one in some billion. What is not above
/// zero or no number at all is not asked for; of infinity it is infinity.
double NaturalLogarithm(double value) noexcept;

/// e to the power of the exponent, as near; infinity above 709.78, zero below -745.13.
double Exponential(double exponent) noexcept;

}  // namespace terravane
