/// A control that is drawn on and keeps its drawing.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "controls/control.h"
#include "drawing/drawing_surface.h"
#include "drawing/plot_axes.h"

namespace terravane {

struct PictureEvents {
    std::function<void(double width, double height)> ViewResized = {};
};

/// The surface's sizes are the box's own, in twips; a window shows them through a scale and never changes
/// them. The view is told once a command, by Changed(), not at every stroke.
class PictureBox : public ControlKind<PictureBox>, public DrawingSurface {
  public:
    PictureBox(Form& owner, std::string_view name, double left, double top, double width, double height,
               PictureEvents events = {})
        : ControlKind(owner, name),
          DrawingSurface(width, height),
          Left(left),
          Top(top),
          ViewResized(std::move(events.ViewResized))
    {}

    using DrawingSurface::ForeColor;  // the pen's; a picture box has no other

    double Left, Top;  // twips, in the box's container
    /// The picture box that this one stands in; none where both stand in the same container.
    const PictureBox* Container = nullptr;

    /// What the places of the plot mean; none where nothing is plotted yet. No drawing: it goes on no page.
    std::optional<PlotAxes> Axes;

    /// Runs when the box's window gives it another size, in twips; empty where the size is fixed.
    std::function<void(double width, double height)> ViewResized;
};

}  // namespace terravane
