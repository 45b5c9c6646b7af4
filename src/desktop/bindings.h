/// A widget for each kind of control, and the two-way street between them. A view shows what the control holds and
/// writes back only what the user types or presses, so that no change can chase itself.
#pragma once

#include <QWidget>
#include <vector>

#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/text_controls.h"

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QStatusBar;
class QTabWidget;
class QTimer;
class QToolBar;

namespace terravane {

/// What a window holds as long as it shows its form; it is let go before the form goes away.
using Bindings = std::vector<Subscription>;

[[nodiscard]] Subscription Bind(TextBox& box, QLineEdit& edit);
[[nodiscard]] Subscription Bind(ComboBox& combo, QComboBox& view);
[[nodiscard]] Subscription Bind(DatePicker& picker, QDateEdit& edit);
[[nodiscard]] Subscription Bind(CommandButton& button, QPushButton& view);
[[nodiscard]] Subscription Bind(OptionButton& option, QRadioButton& view);
[[nodiscard]] Subscription Bind(CheckBox& box, QCheckBox& view);
[[nodiscard]] Subscription Bind(ListBox& list, QListWidget& view);
[[nodiscard]] Subscription Bind(Label& label, QLabel& view);
[[nodiscard]] Subscription Bind(TabControl& tabs, QTabWidget& view);
[[nodiscard]] Subscription Bind(Toolbar& bar, QToolBar& view);
[[nodiscard]] Subscription Bind(StatusBar& bar, QStatusBar& view);
[[nodiscard]] Subscription Bind(ScrollBar& bar, QScrollBar& view);
[[nodiscard]] Subscription Bind(Timer& timer, QTimer& clock);

/// Puts a control's text into its box. Nothing but blanks, as a new file's columns hold, is shown as nothing: what is
/// typed there begins without them.
void ShowText(QLineEdit& edit, const std::string& text);

/// Hands over what stands in the box and not in its control, too: a screen reader's or a dictation program's text.
void TakeTextsOfOthers(QLineEdit& edit, const TextControl& control);

/// Names a view for ears, with the box to type in that it may have.
void NameForEars(QWidget& view, const QString& name);

/// Thai texts stand on the line that Latin ones stand on.
void KeepAlignedToBaseline(QLineEdit& edit);

/// What every control has: enabled, visible, tool tip, accessible name, colours.
[[nodiscard]] Subscription BindFurniture(Control& control, QWidget& view);

/// The caption without the mark of its key.
QString PlainCaption(const Control& control);

}  // namespace terravane
