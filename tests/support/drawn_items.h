/// What stands on a drawn surface, for tests that look at one kind of thing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/display_list.h"

namespace terravane::support {

template <class Item>
std::vector<Item> ItemsOf(const std::vector<DrawnItem>& items)
{
    std::vector<Item> found;
    for (const DrawnItem& item : items)
        if (const auto* one = std::get_if<Item>(&item)) found.push_back(*one);
    return found;
}

/// All places where a text stands by itself, in drawing order.
inline std::vector<TextItem> TextsOf(const std::vector<DrawnItem>& items, std::string_view text)
{
    std::vector<TextItem> found;
    for (const TextItem& item : ItemsOf<TextItem>(items))
        if (item.text == text) found.push_back(item);
    return found;
}

/// The one place where a text stands; a text at (-1, -1) where it is missing or stands more than once.
inline TextItem TextOn(const std::vector<DrawnItem>& items, std::string_view text)
{
    const auto found = TextsOf(items, text);
    return found.size() == 1 ? found.front() : TextItem{std::string(text), -1, -1, {}, kBlack, 0};
}

}  // namespace terravane::support
