/// Where a report page goes. Printer and preview share every routine; what differs between them stands in
/// tables.
#pragma once

namespace terravane {

enum class Medium { Printer, Preview };

constexpr Medium TheOther(Medium medium)
{
    return medium == Medium::Printer ? Medium::Preview : Medium::Printer;
}

/// A fact of the layout that printer and preview may have differently.
template <class Fact>
struct PerMedium {
    Fact printer;
    Fact preview;

    constexpr PerMedium(Fact both) : printer(both), preview(both) {}
    constexpr PerMedium(Fact onPrinter, Fact onPreview) : printer(onPrinter), preview(onPreview) {}

    constexpr const Fact& On(Medium medium) const { return medium == Medium::Printer ? printer : preview; }
};

}  // namespace terravane
