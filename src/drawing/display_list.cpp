#include "drawing/display_list.h"

#include <utility>

namespace terravane {

namespace {

template <typename Value>
bool SameContent(const std::shared_ptr<const Value>& left, const std::shared_ptr<const Value>& right)
{
    if (left == right) return true;
    return left && right && *left == *right;
}

/// A move after a stretch, the one change that placing makes.
struct Placement {
    double dx, dy, sx, sy;

    double X(double x) const { return dx + x * sx; }
    double Y(double y) const { return dy + y * sy; }

    DrawnItem operator()(TextItem item) const
    {
        item.x = X(item.x);
        item.y = Y(item.y);
        item.font.size *= sy;
        return item;
    }
    DrawnItem operator()(const LineItem& item) const { return Cornered(item); }
    DrawnItem operator()(const BoxItem& item) const { return Cornered(item); }
    DrawnItem operator()(const FillItem& item) const { return Cornered(item); }
    DrawnItem operator()(PolylineItem item) const
    {
        for (DrawnPoint& point : item.points) point = {X(point.x), Y(point.y)};
        return item;
    }
    DrawnItem operator()(CircleItem item) const
    {
        item.radius *= sy;
        return Centred(item);
    }
    DrawnItem operator()(const PointItem& item) const { return Centred(item); }
    DrawnItem operator()(PictureItem item) const
    {
        item.width *= sx;
        item.height *= sy;
        return Centred(std::move(item));
    }

  private:
    template <typename Item>
    DrawnItem Cornered(Item item) const
    {
        item.x1 = X(item.x1);
        item.y1 = Y(item.y1);
        item.x2 = X(item.x2);
        item.y2 = Y(item.y2);
        return item;
    }

    template <typename Item>
    DrawnItem Centred(Item item) const
    {
        item.x = X(item.x);
        item.y = Y(item.y);
        return item;
    }
};

/// From a drawing's own size to the rectangle it is placed in; a drawing without a size stays as large as it
/// is.
double Stretch(double placed, double own)
{
    return own == 0 ? 1 : placed / own;
}

void AppendFlat(const DrawnItem& item, std::vector<DrawnItem>& flat)
{
    flat.push_back(item);
    const auto* picture = std::get_if<PictureItem>(&item);
    if (!picture || !picture->drawing) return;

    std::get<PictureItem>(flat.back()).drawing.reset();
    const DisplayList& drawing = *picture->drawing;
    for (const DrawnItem& inner : drawing.items)
        AppendFlat(Placed(inner, picture->x, picture->y, Stretch(picture->width, drawing.width),
                          Stretch(picture->height, drawing.height)),
                   flat);
}

}  // namespace

std::string ColourText(Colour colour)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text = "#";
    for (const std::uint8_t part : {colour.red, colour.green, colour.blue}) {
        text += kDigits[part / 16];
        text += kDigits[part % 16];
    }
    return text;
}

bool PictureItem::operator==(const PictureItem& other) const
{
    return name == other.name && x == other.x && y == other.y && width == other.width && height == other.height &&
           SameContent(picture, other.picture) && SameContent(drawing, other.drawing);
}

DrawnItem Placed(const DrawnItem& item, double dx, double dy, double sx, double sy)
{
    return std::visit(Placement{dx, dy, sx, sy}, item);
}

std::vector<DrawnItem> Flattened(const DisplayList& list)
{
    std::vector<DrawnItem> flat;
    flat.reserve(list.items.size());
    for (const DrawnItem& item : list.items) AppendFlat(item, flat);
    return flat;
}

}  // namespace terravane
