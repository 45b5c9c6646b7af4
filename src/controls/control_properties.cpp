#include "controls/control_properties.h"

#include <array>

#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {

namespace {

using Answer = std::optional<PropertyValue>;

/// The property of the controls of one kind; nothing for any other.
template <class T, class Read>
Answer Of(const Control& control, Read read)
{
    const auto* kind = dynamic_cast<const T*>(&control);
    return kind ? Answer(read(*kind)) : std::nullopt;
}

std::string ColourAnswer(const std::optional<Colour>& colour)
{
    return colour ? ColourText(*colour) : std::string();
}

Answer ValueOf(const Control& control, int)
{
    if (auto answer = Of<OptionButton>(control, [](const auto& option) { return option.Value(); })) return answer;
    if (auto answer = Of<CheckBox>(control, [](const auto& box) { return box.Value(); })) return answer;
    if (auto answer = Of<ScrollBar>(control, [](const auto& bar) { return bar.Value(); })) return answer;
    return Of<DatePicker>(control, [](const auto& picker) { return picker.Text(); });
}

const std::vector<std::string>* ListOf(const Control& control)
{
    if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) return &combo->List();
    if (const auto* list = dynamic_cast<const ListBox*>(&control)) return &list->List();
    return nullptr;
}

Answer ListEntryOf(const Control& control, int index)
{
    const auto* list = ListOf(control);
    if (!list) return std::nullopt;
    if (index < 0 || index >= static_cast<int>(list->size())) throw RuntimeError(error::kSubscriptOutOfRange);
    return (*list)[static_cast<std::size_t>(index)];
}

Answer ListCountOf(const Control& control, int)
{
    const auto* list = ListOf(control);
    return list ? Answer(static_cast<int>(list->size())) : std::nullopt;
}

Answer TabEnabledOf(const Control& control, int index)
{
    return Of<TabControl>(control, [index](const auto& tabs) {
        if (index < 0 || index >= tabs.Count()) throw RuntimeError(error::kSubscriptOutOfRange);
        return tabs.TabEnabled(index);
    });
}

struct Property {
    std::string_view name;
    Answer (*read)(const Control& control, int index);
};

constexpr std::array kProperties{
    Property{"Enabled", [](const Control& control, int) { return Answer(control.Enabled()); }},
    Property{"Visible", [](const Control& control, int) { return Answer(control.Visible()); }},
    Property{"Caption", [](const Control& control, int) { return Answer(control.Caption()); }},
    Property{"Text", [](const Control& control, int) { return Answer(control.Text()); }},
    Property{"BackColor", [](const Control& control, int) { return Answer(ColourAnswer(control.BackColor())); }},
    Property{"ForeColor", [](const Control& control, int) { return Answer(ColourAnswer(control.ForeColor())); }},
    Property{"Value", ValueOf},
    Property{"Locked", [](const Control& control,
                          int) { return Of<TextControl>(control, [](const auto& box) { return box.Locked(); }); }},
    Property{"ListCount", ListCountOf},
    Property{"List", ListEntryOf},
    Property{"Rows", [](const Control& control,
                        int) { return Of<TextGrid>(control, [](const auto& grid) { return grid.Rows(); }); }},
    Property{"Cols", [](const Control& control,
                        int) { return Of<TextGrid>(control, [](const auto& grid) { return grid.Columns(); }); }},
    Property{"Tab", [](const Control& control,
                       int) { return Of<TabControl>(control, [](const auto& tabs) { return tabs.Tab(); }); }},
    Property{"TabEnabled", TabEnabledOf},
};

}  // namespace

std::optional<PropertyValue> ReadProperty(const Control& control, std::string_view property, int index)
{
    for (const Property& known : kProperties) {
        if (SameName(known.name, property)) return known.read(control, index);
    }
    return std::nullopt;
}

}  // namespace terravane
