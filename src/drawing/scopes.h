/// What a surface draws with, for the length of a scope: a routine says its own font and pen, and leaves the surface as
/// it found it. So no routine draws otherwise because of what ran before it.
#pragma once

#include <exception>
#include <string>
#include <utility>

#include "drawing/drawing_surface.h"

namespace terravane {

inline constexpr int kThinRule = 1;  // draw widths
inline constexpr int kThickRule = 2;

inline constexpr int kSolid = 0;  // draw styles
inline constexpr int kDashed = 1;
inline constexpr int kDotted = 2;
inline constexpr int kDashDotted = 3;

/// A piece of a surface's state that has another value until the scope ends, also where an error ends it.
template <class State>
class [[nodiscard]] ForScope {
  public:
    ForScope(State& state, State value) : state_(state), before_(std::exchange(state, value)) {}
    ~ForScope() { state_ = before_; }
    ForScope(const ForScope&) = delete;
    ForScope& operator=(const ForScope&) = delete;

  private:
    State& state_;
    State before_;
};

struct Bold : ForScope<bool> {
    explicit Bold(DrawingSurface& surface) : ForScope(surface.FontBold, true) {}
};

/// The regular weight within a scope that is bold.
struct Regular : ForScope<bool> {
    explicit Regular(DrawingSurface& surface) : ForScope(surface.FontBold, false) {}
};

struct Italic : ForScope<bool> {
    explicit Italic(DrawingSurface& surface) : ForScope(surface.FontItalic, true) {}
};

/// In points.
struct TextSize : ForScope<double> {
    TextSize(DrawingSurface& surface, double size) : ForScope(surface.FontSize, size) {}
};

struct TextColour : ForScope<Colour> {
    TextColour(DrawingSurface& surface, Colour colour) : ForScope(surface.ForeColor, colour) {}
};

/// How lines, boxes and circles are drawn: width in draw widths, solid unless told.
class [[nodiscard]] Stroke {
  public:
    explicit Stroke(DrawingSurface& surface, int width, int style = kSolid)
        : width_(surface.DrawWidth, width), style_(surface.DrawStyle, style)
    {}

  private:
    ForScope<int> width_, style_;
};

/// Circles are filled.
class [[nodiscard]] Filled {
  public:
    Filled(DrawingSurface& surface, Colour colour) : solid_(surface.FillSolid, true), colour_(surface.FillColor, colour)
    {}

  private:
    ForScope<bool> solid_;
    ForScope<Colour> colour_;
};

/// What is drawn in the scope is one part of the page. An error leaves it unmarked: the page is not shown then.
class [[nodiscard]] AsPart {
  public:
    AsPart(DrawingSurface& surface, PagePart part) : surface_(surface), part_(std::move(part))
    {
        part_.first = surface.Items().size();
    }
    ~AsPart()
    {
        if (std::uncaught_exceptions() == failing_) surface_.Mark(std::move(part_));
    }
    AsPart(const AsPart&) = delete;
    AsPart& operator=(const AsPart&) = delete;

  private:
    DrawingSurface& surface_;
    PagePart part_;
    int failing_ = std::uncaught_exceptions();
};

struct AsTitle : AsPart {
    explicit AsTitle(DrawingSurface& surface) : AsPart(surface, {PartKind::Title}) {}
};

struct AsCaption : AsPart {
    explicit AsCaption(DrawingSurface& surface) : AsPart(surface, {PartKind::Caption}) {}
};

struct AsLine : AsPart {
    explicit AsLine(DrawingSurface& surface) : AsPart(surface, {PartKind::Line}) {}
};

struct AsFurniture : AsPart {
    explicit AsFurniture(DrawingSurface& surface) : AsPart(surface, {PartKind::Furniture}) {}
};

/// shows  in words
struct AsFigure : AsPart {
    AsFigure(DrawingSurface& surface, std::string shows) : AsPart(surface, {PartKind::Figure, 0, 0, std::move(shows)})
    {}
};

struct AsTable : AsPart {
    AsTable(DrawingSurface& surface, TableShape shape) : AsPart(surface, {PartKind::Table, 0, 0, {}, std::move(shape)})
    {}
};

}  // namespace terravane
