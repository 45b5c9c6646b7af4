// The places of a label are tried in the order of what they cost: their distance from where it is wanted, the lines
// that run through them, and the line that must lead back to the point. A place that hides something costs more than
// any distance.
#include "sheets/pattern/plot_labels.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <variant>

#include "drawing/scopes.h"

namespace terravane {

namespace {

constexpr double kClearance = 10;  // around marks
constexpr double kPointRadius = 25;
constexpr double kEdgeRoom = 20;      // between a label and the plot's frame
constexpr double kSearchReach = 12;   // text heights around a wanted place
constexpr double kSearchStep = 0.5;   // text heights
constexpr double kSecondChoice = 60;  // what each further wanted place costs, in twips of distance
constexpr double kCurveCost = 800;    // of standing on a curve
constexpr double kGuideCost = 250;    // and on another line
constexpr double kLeaderCost = 120;
constexpr double kHidingCost = 1e6;
constexpr double kGroundInset = 8;  // of a line's height above and below its letters
constexpr double kLongStep = 60;    // twips: a curve is looked at in steps of this

struct Segment {
    DrawnPoint from, to;
};

bool Crosses(const Segment& line, const PlotArea& area)
{
    double begin = 0, end = 1;
    const auto clip = [&](double from, double to, double low, double high) {
        const double way = to - from;
        if (way == 0) return from > low && from < high;
        const double one = (low - from) / way, other = (high - from) / way;
        begin = std::max(begin, std::min(one, other));
        end = std::min(end, std::max(one, other));
        return begin < end;
    };
    return clip(line.from.x, line.to.x, area.left, area.right) && clip(line.from.y, line.to.y, area.top, area.bottom);
}

PlotArea Around(const DrawnPoint& point, double radius)
{
    return {point.x - radius, point.y - radius, point.x + radius, point.y + radius};
}

DrawnPoint Nearest(const PlotArea& area, const DrawnPoint& point)
{
    return {std::clamp(point.x, area.left, area.right), std::clamp(point.y, area.top, area.bottom)};
}

double Distance(const DrawnPoint& one, const DrawnPoint& other)
{
    return std::hypot(one.x - other.x, one.y - other.y);
}

/// What stands on a plot: what no label may hide, and the lines that it had better not interrupt.
struct Standing {
    std::vector<PlotArea> kept;
    std::vector<Segment> curves, guides;

    void operator()(const TextItem& item)
    {
        kept.push_back({item.x, item.y, item.x + TextWidth(item.font, item.text), item.y + TextHeight(item.font)});
    }
    void operator()(const LineItem& item)
    {
        if (item.pen.colour == kGridGrey) return;
        const DrawnPoint from{item.x1, item.y1}, to{item.x2, item.y2};
        guides.push_back({from, to});
        for (const DrawnPoint& end : {from, to}) kept.push_back(Around(end, 0));
    }
    void operator()(const PolylineItem& item)
    {
        const DrawnPoint* last = &item.points.front();
        for (const DrawnPoint& point : item.points) {
            if (Distance(*last, point) < kLongStep && &point != &item.points.back()) continue;
            curves.push_back({*last, point});
            last = &point;
        }
    }
    void operator()(const FillItem& item) { kept.push_back({item.x1, item.y1, item.x2, item.y2}); }
    void operator()(const CircleItem& item) { kept.push_back(Around({item.x, item.y}, item.radius + kClearance)); }
    void operator()(const PointItem& item) { curves.push_back({{item.x, item.y}, {item.x + 1, item.y + 1}}); }
    void operator()(const BoxItem&) {}
    void operator()(const PictureItem&) {}
};

/// The labels of one plot while they are placed.
class Placing {
  public:
    Placing(const DrawingSurface& plot, const PlotArea& room) : plot_(plot), room_(room)
    {
        for (const DrawnItem& item : plot.Items()) std::visit(standing_, item);
    }

    /// The point that a label tells of is hidden by no label.
    void Keep(const PlotLabel& label)
    {
        if (!label.stays) standing_.kept.push_back(Around(label.at, kPointRadius));
    }

    PlotArea Place(const PlotLabel& label)
    {
        best_ = std::numeric_limits<double>::infinity();
        for (std::size_t choice = 0; choice < label.wanted.size(); ++choice)
            LookAround(label, label.wanted[choice], kSecondChoice * static_cast<double>(choice));
        if (best_ >= kHidingCost) LookEverywhere(label);
        placed_.push_back({place_, label.column});
        return place_;
    }

  private:
    struct Placed {
        PlotArea area;
        int column;
    };

    double Height() const { return plot_.TextHeight("0"); }

    /// In rings around the wanted place, as long as a farther one could still be better.
    void LookAround(const PlotLabel& label, const DrawnPoint& wanted, double cost)
    {
        const double step = Height() * kSearchStep;
        const int rings = static_cast<int>(kSearchReach / kSearchStep);
        for (int ring = 0; ring <= rings && cost + ring * step < best_; ++ring)
            for (int across = -ring; across <= ring; ++across)
                for (int down = -ring; down <= ring; ++down) {
                    if (std::max(std::abs(across), std::abs(down)) != ring) continue;
                    Try(label, {wanted.x + across * step, wanted.y + down * step}, wanted, cost);
                }
    }

    void LookEverywhere(const PlotLabel& label)
    {
        const double step = Height() * kSearchStep / 2;
        for (double y = room_.top; y < room_.bottom; y += step)
            for (double x = room_.left; x < room_.right; x += step) Try(label, {x, y}, label.wanted.front(), 0);
    }

    void Try(const PlotLabel& label, const DrawnPoint& corner, const DrawnPoint& wanted, double cost)
    {
        const PlotArea area = Inside(label, corner);
        cost += Distance({area.left, area.top}, Bounded(wanted));
        if (cost < best_) cost += CostOf(label, area);
        if (cost >= best_) return;
        best_ = cost;
        place_ = area;
    }

    /// The label's area at a corner, moved into the room.
    PlotArea Inside(const PlotLabel& label, const DrawnPoint& corner) const
    {
        const double width = plot_.TextWidth(label.text), height = Height();
        const auto fit = [](double start, double length, double low, double high) {
            return std::max(std::min(start, high - kEdgeRoom - length), low + kEdgeRoom);
        };
        const DrawnPoint at = Bounded(corner);
        const double left = fit(at.x, width, room_.left, room_.right), top = fit(at.y, height, room_.top, room_.bottom);
        return {left, top, left + width, top + height};
    }

    /// A curve that failed may lie beyond every plot; the nearest place on this one is meant.
    DrawnPoint Bounded(const DrawnPoint& point) const
    {
        const auto bounded = [](double value, double low, double high) {
            return std::isfinite(value) ? std::clamp(value, low, high) : low;
        };
        return {bounded(point.x, room_.left, room_.right), bounded(point.y, room_.top, room_.bottom)};
    }

    double CostOf(const PlotLabel& label, const PlotArea& area) const
    {
        const auto overlaps = [&](const PlotArea& kept) { return kept.Overlaps(area); };
        const auto disturbs = [&](const Placed& other) {
            const bool sameColumn = label.column != 0 && other.column == label.column;
            return other.area.Overlaps(area) || (sameColumn && std::abs(other.area.top - area.top) < Height());
        };
        const auto crosses = [&](const Segment& line) { return Crosses(line, area); };
        const auto hidden =
            std::ranges::count_if(standing_.kept, overlaps) + 2 * std::ranges::count_if(placed_, disturbs);
        double cost = kHidingCost * static_cast<double>(hidden) + LeaderCost(label, area);
        if (label.stays || cost >= best_) return cost;
        if (std::ranges::any_of(standing_.guides, crosses)) cost += kGuideCost;
        if (std::ranges::any_of(standing_.curves, crosses)) cost += kCurveCost;
        return cost;
    }

    double LeaderCost(const PlotLabel& label, const PlotArea& area) const
    {
        const DrawnPoint end = Nearest(area, label.at);
        if (!(Distance(end, label.at) > Height())) return 0;
        const auto hides = [&](const Placed& other) { return Crosses({label.at, end}, other.area); };
        return kLeaderCost * (1 + 3 * static_cast<double>(std::ranges::count_if(placed_, hides)));
    }

    const DrawingSurface& plot_;
    PlotArea room_;
    Standing standing_;
    std::vector<Placed> placed_;
    double best_ = 0;
    PlotArea place_{};
};

/// Whether a label is so far from its point that a line must lead there.
bool NeedsLeader(const PlotLabel& label, const PlotArea& area, const PlotArea& room)
{
    const bool onPlot =
        label.at.x >= room.left && label.at.x <= room.right && label.at.y >= room.top && label.at.y <= room.bottom;
    const bool asWanted = std::ranges::any_of(label.wanted, [&](const DrawnPoint& corner) {
        return Distance(corner, {area.left, area.top}) < (area.bottom - area.top) / 2;
    });
    return onPlot && !asWanted && Distance(Nearest(area, label.at), label.at) > area.bottom - area.top;
}

void DrawLeader(DrawingSurface& plot, const PlotLabel& label, const PlotArea& area)
{
    const PlotArea letters{area.left, area.top + kGroundInset, area.right, area.bottom - kGroundInset};
    const DrawnPoint end = Nearest(letters, label.at);
    plot.Line(label.at.x, label.at.y, end.x, end.y, kBlack);
}

}  // namespace

std::vector<DrawnPoint> PlacesBeside(const DrawingSurface& plot, std::string_view text, DrawnPoint at, double gap,
                                     std::span<const Beside> sides)
{
    const double width = plot.TextWidth(text), height = plot.TextHeight(text);
    const double left = at.x - gap - width, right = at.x + gap, level = at.y - height / 2;
    std::vector<DrawnPoint> places;
    for (const Beside side : sides) {
        const bool isLeft = side == Beside::Left || side == Beside::BelowLeft || side == Beside::AboveLeft;
        const bool isBelow = side == Beside::BelowLeft || side == Beside::BelowRight;
        const bool isLevel = side == Beside::Left || side == Beside::Right;
        places.push_back({isLeft ? left : right, isLevel ? level : isBelow ? at.y + gap : at.y - gap - height});
    }
    return places;
}

std::vector<PlotArea> PlaceLabels(const DrawingSurface& plot, const PlotArea& room, std::span<const PlotLabel> labels)
{
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < labels.size(); ++i) order.push_back(i);
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return labels[i].at.y; });
    Placing placing(plot, room);
    for (const PlotLabel& label : labels) placing.Keep(label);
    std::vector<PlotArea> places(labels.size());
    for (const std::size_t i : order) places[i] = placing.Place(labels[i]);
    return places;
}

void PrintLabels(DrawingSurface& plot, const PlotArea& room, std::span<const PlotLabel> labels)
{
    const auto places = PlaceLabels(plot, room, labels);
    const Stroke stroke(plot, kThinRule);
    const TextColour black(plot, kBlack);
    for (std::size_t i = 0; i < labels.size(); ++i)
        if (NeedsLeader(labels[i], places[i], room)) DrawLeader(plot, labels[i], places[i]);
    for (const PlotArea& area : places)
        plot.FilledBox(area.left, area.top + kGroundInset, area.right, area.bottom - kGroundInset, kWhite);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        plot.CurrentX = places[i].left;
        plot.CurrentY = places[i].top;
        plot.Print(labels[i].text);
    }
}

}  // namespace terravane
