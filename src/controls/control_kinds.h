/// The kinds of controls: a closed set, told once. Who treats kinds differently (a view, a property, a script's
/// command) visits a variant of them without a fallback, so that a new kind does not compile until each of them knows
/// it.
#pragma once

#include <concepts>
#include <type_traits>
#include <variant>

namespace terravane {

class CellEditor;
class CheckBox;
class ComboBox;
class CommandButton;
class DatePicker;
class Frame;
class Image;
class Label;
class ListBox;
class ListCellEditor;
class MenuEntry;
class OptionButton;
class PictureBox;
class ScrollBar;
class StatusBar;
class TabControl;
class TextBox;
class TextGrid;
class Timer;
class Toolbar;

template <class... Kinds>
struct KindSet {
    using Any = std::variant<Kinds*...>;
    using AnyConst = std::variant<const Kinds*...>;
};
using ControlKinds =
    KindSet<CellEditor, CheckBox, ComboBox, CommandButton, DatePicker, Frame, Image, Label, ListBox, ListCellEditor,
            MenuEntry, OptionButton, PictureBox, ScrollBar, StatusBar, TabControl, TextBox, TextGrid, Timer, Toolbar>;

/// A control as what it is.
using AnyControl = ControlKinds::Any;
using AnyConstControl = ControlKinds::AnyConst;

/// One of several kinds that a visitor treats alike: `operator()(OneOf<Frame, Image> auto& control)`.
template <class Kind, class... Kinds>
concept OneOf = (std::same_as<std::remove_const_t<Kind>, Kinds> || ...);

}  // namespace terravane
