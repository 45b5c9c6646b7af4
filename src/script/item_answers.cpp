#include "script/item_answers.h"

#include <cmath>

namespace terravane {

namespace {

Json Number(double value)
{
    const double rounded = std::round(value * 100) / 100;
    if (rounded == std::floor(rounded) && std::abs(rounded) < 1e15) return static_cast<long long>(rounded);
    return rounded;
}

template <class... Values>
Json Numbers(Values... values)
{
    return Json::array({Number(values)...});
}

Json PointsOf(const PolylineItem& item)
{
    Json points = Json::array();
    for (const DrawnPoint& point : item.points) points.push_back(Numbers(point.x, point.y));
    return points;
}

Json FillOf(const CircleItem& item)
{
    return item.filled ? Json(ColourText(item.fill)) : Json(nullptr);
}

struct ToAnswer {
    Json operator()(const TextItem& item) const
    {
        return {{"text", item.text},
                {"x", Number(item.x)},
                {"y", Number(item.y)},
                {"font", item.font.name},
                {"size", Number(item.font.size)},
                {"bold", item.font.bold},
                {"italic", item.font.italic},
                {"colour", ColourText(item.colour)},
                {"angle", item.angle}};
    }
    Json operator()(const LineItem& item) const
    {
        return {{"line", Numbers(item.x1, item.y1, item.x2, item.y2)},
                {"width", item.pen.width},
                {"style", item.pen.style},
                {"colour", ColourText(item.pen.colour)}};
    }
    Json operator()(const PolylineItem& item) const
    {
        return {{"polyline", PointsOf(item)}, {"width", item.pen.width}, {"colour", ColourText(item.pen.colour)}};
    }
    Json operator()(const BoxItem& item) const
    {
        return {{"box", Numbers(item.x1, item.y1, item.x2, item.y2)},
                {"width", item.pen.width},
                {"colour", ColourText(item.pen.colour)}};
    }
    Json operator()(const FillItem& item) const
    {
        return {{"fill", Numbers(item.x1, item.y1, item.x2, item.y2)}, {"colour", ColourText(item.colour)}};
    }
    Json operator()(const CircleItem& item) const
    {
        return {{"circle", Numbers(item.x, item.y)},
                {"radius", Number(item.radius)},
                {"fill", FillOf(item)},
                {"colour", ColourText(item.pen.colour)}};
    }
    Json operator()(const PointItem& item) const
    {
        return {{"point", Numbers(item.x, item.y)}, {"colour", ColourText(item.colour)}};
    }
    Json operator()(const PictureItem& item) const
    {
        return {{"picture", item.name},
                {"x", Number(item.x)},
                {"y", Number(item.y)},
                {"width", Number(item.width)},
                {"height", Number(item.height)}};
    }
};

}  // namespace

Json ItemAnswer(const DrawnItem& item)
{
    return std::visit(ToAnswer{}, item);
}

void WriteItems(AnswerWriter& answers, const DisplayList& list)
{
    for (const DrawnItem& item : Flattened(list)) answers.Write(ItemAnswer(item));
}

}  // namespace terravane
