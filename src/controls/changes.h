/// How a form tells whoever keeps a record of it what becomes of its texts: each change with the text before and the
/// text after. Who made it is known to whoever runs the commands. A form that nobody listens to tells nothing and pays
/// nothing.
#pragma once

#include <string_view>

namespace terravane {

class Control;

/// A text of a form that is another one now.
/// row, column  of a cell; of an entry of a list its place and 0; -1 where the control holds one text
/// before,      the texts; of what is switched "on" or "off". They live as long as the call
/// after
struct TextChange {
    Control& control;
    int row, column;
    std::string_view before, after;
};

class ControlListener {
  public:
    virtual ~ControlListener() = default;

    /// The control holds the new text already; its views have not been told yet.
    virtual void TextChanged(const TextChange& change) = 0;
    /// A grid has grown or shrunk. The texts of rows that go away were told before, as changes to nothing.
    virtual void RowsChanged(Control&, int /*before*/, int /*after*/) {}
};

/// How a switch is told as a text.
constexpr std::string_view OnOrOffText(bool on)
{
    return on ? "on" : "off";
}

}  // namespace terravane
