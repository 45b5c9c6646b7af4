/// A report page for tests: its rules and texts found by their places. Lengths are twips.
#pragma once

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "drawing/font_metrics.h"
#include "support/drawn_items.h"

namespace terravane::support {

inline constexpr double kTwip = 0.1;
inline constexpr double kBodyLine = 339.3;  // of the body's size 13

struct PageMarks {
    std::vector<DrawnItem> items;

    static bool Near(double value, double wanted) { return std::abs(value - wanted) < kTwip; }

    /// How many lines, or boxes, stand exactly there in that draw width.
    int Across(double x1, double x2, double y, int width) const { return Lines(x1, y, x2, y, width); }
    int Down(double x, double y1, double y2, int width) const { return Lines(x, y1, x, y2, width); }

    int Boxes(double x1, double y1, double x2, double y2, int width) const
    {
        return Count<BoxItem>(x1, y1, x2, y2, width);
    }

    std::vector<TextItem> Texts(std::string_view text) const { return TextsOf(items, text); }
    TextItem Text(std::string_view text) const { return TextOn(items, text); }

    /// The middle of the one text of that wording.
    double Middle(std::string_view text) const
    {
        const TextItem item = Text(text);
        return item.x + TextWidth(item.font, item.text) / 2;
    }

  private:
    int Lines(double x1, double y1, double x2, double y2, int width) const
    {
        return Count<LineItem>(x1, y1, x2, y2, width);
    }

    template <class Item>
    int Count(double x1, double y1, double x2, double y2, int width) const
    {
        const auto found = ItemsOf<Item>(items);
        return static_cast<int>(std::ranges::count_if(found, [&](const Item& item) {
            return Near(item.x1, x1) && Near(item.y1, y1) && Near(item.x2, x2) && Near(item.y2, y2) &&
                   item.pen.width == width;
        }));
    }
};

/// With readings of usual length no two texts of a page share a place, and none leaves the page's content.
inline void ExpectNoTextOverText(const std::vector<DrawnItem>& items)
{
    const auto texts = ItemsOf<TextItem>(items);
    const auto end = [](const TextItem& item) { return item.x + TextWidth(item.font, item.text); };
    for (std::size_t one = 0; one < texts.size(); ++one) {
        EXPECT_LE(end(texts[one]), 11406 + 1) << texts[one].text << " leaves the page's content";
        for (std::size_t other = one + 1; other < texts.size(); ++other) {
            const TextItem &a = texts[one], &b = texts[other];
            const bool sameRow = std::abs(a.y - b.y) < 100;
            EXPECT_FALSE(sameRow && a.x < end(b) - 1 && b.x < end(a) - 1) << a.text << " over " << b.text;
        }
    }
}

}  // namespace terravane::support
