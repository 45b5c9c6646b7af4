#include "desktop/bindings.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

#include "controls/form.h"
#include "desktop/looks.h"
#include "desktop/qt_text.h"
#include "runtime/text.h"

namespace terravane {

namespace {

/// Selects the view's text when a handler asked for it since the last look.
template <class View>
auto SelectsWhenAsked(const Control& control, View& view)
{
    return [&control, &view, seen = control.SelectAllRequests()]() mutable {
        if (control.SelectAllRequests() == seen) return;
        seen = control.SelectAllRequests();
        view.selectAll();
    };
}

QString ShownText(const std::string& text)
{
    const auto whole = ToQt(text);
    return whole.trimmed().isEmpty() ? QString() : whole;
}

void ShowList(QComboBox& view, const std::vector<std::string>& list)
{
    QStringList items;
    for (const auto& item : list) items << ToQt(item);
    QStringList present;
    for (int i = 0; i < view.count(); ++i) present << view.itemText(i);
    if (items == present) return;
    view.clear();
    view.addItems(items);
}

bool IsPlatforms(Colour colour)
{
    return colour == kWindowColour || colour == kButtonFace;
}

void ShowPointer(const Control& control, QWidget& view)
{
    if (control.MousePointer() == Pointer::Hand) view.setCursor(Qt::PointingHandCursor);
}

/// A new view is shown with its window; telling it so before costs its styling anew.
void ShowOrHide(QWidget& view, bool visible)
{
    const bool hidden = view.isHidden() && view.testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (visible == hidden) view.setVisible(visible);
}

/// Line height of Thai is more than a font's own; Qt centres such a line by its height and lifts it by its ascent as
/// well. The difference, to the pixel for a box as high as its font asks for. Figures and Latin letters, most of what
/// is loaded into a sheet, need no measuring.
void AlignToBaseline(QLineEdit& edit, const QString& text)
{
    constexpr char16_t kLastLatin = 0xff;
    const bool isLatin = std::ranges::all_of(text, [](QChar letter) { return letter.unicode() <= kLastLatin; });
    const QFontMetrics font = edit.fontMetrics();
    const int lifted = isLatin ? 0 : (font.size(0, text).height() - font.height() - 1) / 2;
    if (edit.textMargins().top() != lifted) edit.setTextMargins(0, lifted, 0, -lifted);
}

/// The entry whose text stands in the box, or none: the arrow keys go on from there. What is being typed keeps its
/// place.
void ShowEntry(QComboBox& view, const std::string& text)
{
    const int entry = view.findText(ToQt(text), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (entry == view.currentIndex()) return ShowText(*view.lineEdit(), text);
    const int cursor = view.lineEdit()->cursorPosition();
    view.setCurrentIndex(entry);
    ShowText(*view.lineEdit(), text);
    view.lineEdit()->setCursorPosition(cursor);
}

/// With a box to type in. Qt would give it a completer, which costs more than the rest of the combo; where there is one
/// already it makes none.
void MakeEditable(QComboBox& view)
{
    QCompleter none;
    auto* box = new QLineEdit(&view);
    box->setCompleter(&none);
    view.setLineEdit(box);
    view.setCompleter(nullptr);
    KeepAlignedToBaseline(*box);
    box->setAccessibleName(view.accessibleName());
}

QIcon PictureOf(Icon icon)
{
    switch (icon) {
        case Icon::Save:
            return looks::SignIcon(looks::Sign::Save);
        case Icon::Print:
            return looks::SignIcon(looks::Sign::Page);
        case Icon::Close:
            return looks::SignIcon(looks::Sign::Cross);
        case Icon::None:
            break;
    }
    return {};
}

QToolButton* MakeToolButton(Toolbar& bar, int number, QToolBar& view)
{
    const ToolButton& button = bar.Button(number);
    auto* tool = new QToolButton(&view);
    tool->setText(ToQt(button.caption));
    tool->setToolTip(ToQt(button.toolTip.empty() ? button.caption : button.toolTip));
    tool->setAccessibleName(ToQt(button.caption));
    tool->setIcon(PictureOf(button.icon));
    tool->setToolButtonStyle(tool->icon().isNull() ? Qt::ToolButtonTextOnly : Qt::ToolButtonTextBesideIcon);
    tool->setFocusPolicy(Qt::TabFocus);
    if (button.items.empty()) {
        QObject::connect(tool, &QToolButton::clicked, &view, [&bar, number] { bar.Press(number); });
        return tool;
    }
    auto* menu = new QMenu(tool);
    for (const ToolButton& item : button.items) {
        menu->addAction(ToQt(item.caption), &view, [&bar, key = item.key] { bar.PressItem(key); });
    }
    tool->setMenu(menu);
    tool->setPopupMode(QToolButton::InstantPopup);
    return tool;
}

}  // namespace

void KeepAlignedToBaseline(QLineEdit& edit)
{
    QObject::connect(&edit, &QLineEdit::textChanged, &edit,
                     [&edit](const QString& text) { AlignToBaseline(edit, text); });
}

void ShowText(QLineEdit& edit, const std::string& text)
{
    const auto shown = ShownText(text);
    if (shown != edit.text()) edit.setText(shown);
}

/// Such a text comes without the key's signal.
void TakeTextsOfOthers(QLineEdit& edit, const TextControl& control)
{
    QObject::connect(&edit, &QLineEdit::textChanged, &edit, [&edit, &control] {
        if (edit.text() != ShownText(control.Text())) emit edit.textEdited(edit.text());
    });
}

void NameForEars(QWidget& view, const QString& name)
{
    view.setAccessibleName(name);
    if (auto* combo = qobject_cast<QComboBox*>(&view); combo && combo->lineEdit())
        combo->lineEdit()->setAccessibleName(name);
}

QString PlainCaption(const Control& control)
{
    return ToQt(control.Caption()).remove('&');
}

Subscription BindFurniture(Control& control, QWidget& view)
{
    const QString caption = PlainCaption(control);
    view.setAccessibleName(caption);
    view.setObjectName(ToQt(control.Name()));
    return control.Show([&control, &view] {
        view.setEnabled(control.Enabled());
        ShowOrHide(view, control.Visible());
        if (!control.ToolTip().empty()) view.setToolTip(ToQt(control.ToolTip()));
        const auto ground = control.BackColor();
        if (ground && !IsPlatforms(*ground)) looks::SetGround(view, looks::ToQt(*ground));
        ShowPointer(control, view);
    });
}

Subscription Bind(TextBox& box, QLineEdit& edit)
{
    KeepAlignedToBaseline(edit);
    QObject::connect(&edit, &QLineEdit::textEdited, &edit,  // the user's typing only, never setText
                     [&box](const QString& text) { box.Type(text.toStdString()); });
    TakeTextsOfOthers(edit, box);
    return box.Show([&box, &edit, select = SelectsWhenAsked(box, edit)]() mutable {
        ShowText(edit, box.Text());
        edit.setReadOnly(box.Locked());
        select();
    });
}

Subscription Bind(ComboBox& combo, QComboBox& view)
{
    MakeEditable(view);
    view.setInsertPolicy(QComboBox::NoInsert);
    QObject::connect(view.lineEdit(), &QLineEdit::textEdited, &view,
                     [&combo](const QString& text) { combo.Type(text.toStdString()); });
    TakeTextsOfOthers(*view.lineEdit(), combo);
    QObject::connect(&view, &QComboBox::activated, &view,
                     [&combo](int index) { combo.Choose(static_cast<std::size_t>(index)); });
    return combo.Show([&combo, &view, select = SelectsWhenAsked(combo, *view.lineEdit())]() mutable {
        {
            const QSignalBlocker quiet(view), quietBox(view.lineEdit());  // entries pass through the box meanwhile
            ShowList(view, combo.List());
            ShowEntry(view, combo.Text());
        }
        AlignToBaseline(*view.lineEdit(), view.lineEdit()->text());
        select();
    });
}

Subscription Bind(DatePicker& picker, QDateEdit& edit)
{
    edit.setCalendarPopup(true);
    edit.setDisplayFormat("dd/MM/yyyy");
    QObject::connect(&edit, &QDateEdit::userDateChanged, &edit,
                     [&picker](QDate date) { picker.Type(date.toString(Qt::ISODate).toStdString()); });
    return picker.Show([&picker, &edit] {
        const QSignalBlocker quiet(edit);
        edit.setDate(QDate::fromString(ToQt(picker.Text()), "dd/MM/yyyy"));
    });
}

Subscription Bind(CommandButton& button, QPushButton& view)
{
    QObject::connect(&view, &QPushButton::clicked, &view, [&button] { button.Press(); });
    return button.Show([&button, &view] { view.setText(ToQt(button.Caption())); });
}

Subscription Bind(OptionButton& option, QRadioButton& view)
{
    view.setAutoExclusive(false);  // the controls know their groups
    QObject::connect(&view, &QRadioButton::clicked, &view, [&option, &view] {
        option.Press();
        view.setChecked(option.Value());
    });
    return option.Show([&option, &view] {
        view.setText(ToQt(option.Caption()));
        view.setChecked(option.Value());
    });
}

Subscription Bind(CheckBox& box, QCheckBox& view)
{
    QObject::connect(&view, &QCheckBox::clicked, &view, [&box](bool checked) { box.SetValue(checked); });
    return box.Show([&box, &view] {
        view.setText(ToQt(box.Caption()));
        view.setChecked(box.Value());
    });
}

Subscription Bind(ListBox& list, QListWidget& view)
{
    view.setSelectionMode(QAbstractItemView::MultiSelection);
    for (const auto& entry : list.List()) view.addItem(ToQt(entry).trimmed());
    QObject::connect(&view, &QListWidget::itemSelectionChanged, &view, [&list, &view] {
        for (int i = 0; i < view.count(); ++i) {
            list.SetSelected(static_cast<std::size_t>(i), view.item(i)->isSelected());
        }
    });
    return list.Show([&list, &view] {
        const QSignalBlocker quiet(view);
        for (int i = 0; i < view.count(); ++i) view.item(i)->setSelected(list.Selected(static_cast<std::size_t>(i)));
    });
}

Subscription Bind(Label& label, QLabel& view)
{
    return label.Show([&label, &view] { view.setText(ToQt(label.Caption())); });
}

Subscription Bind(TabControl& tabs, QTabWidget& view)
{
    QObject::connect(&view, &QTabWidget::currentChanged, &view, [&tabs](int tab) {
        if (tab >= 0) tabs.SetTab(tab);
    });
    return tabs.Show([&tabs, &view] {
        for (int tab = 0; tab < view.count(); ++tab) {
            view.setTabEnabled(tab, tabs.TabEnabled(tab));
            view.setTabToolTip(tab, tabs.TabEnabled(tab) ? QString() : ToQt(tabs.ToolTip()));
        }
        if (view.currentIndex() != tabs.Tab()) view.setCurrentIndex(tabs.Tab());
    });
}

Subscription Bind(Toolbar& bar, QToolBar& view)
{
    view.setAccessibleName(QObject::tr("Commands"));
    ShowPointer(bar, view);
    std::vector<QToolButton*> tools;
    for (int number = 1; number <= static_cast<int>(bar.Buttons().size()); ++number) {
        tools.push_back(MakeToolButton(bar, number, view));
        view.addWidget(tools.back());
    }
    return bar.Show([&bar, tools] {
        for (std::size_t i = 0; i < tools.size(); ++i) tools[i]->setEnabled(bar.Enabled() && bar.Buttons()[i].enabled);
    });
}

Subscription Bind(StatusBar& bar, QStatusBar& view)
{
    view.setSizeGripEnabled(false);
    view.setAccessibleName(QObject::tr("Project file and time"));
    std::vector<QLabel*> panels;
    for (std::size_t number = 1; number <= bar.PanelCount(); ++number) {
        panels.push_back(new QLabel(&view));
        panels.back()->setTextFormat(Qt::PlainText);
        view.addWidget(panels.back(), number == 1 ? 1 : 0);
    }
    return bar.Show([&bar, panels] {
        for (std::size_t i = 0; i < panels.size(); ++i) panels[i]->setText(ToQt(Printable(bar.Panel(i + 1))));
    });
}

Subscription Bind(ScrollBar& bar, QScrollBar& view)
{
    QObject::connect(&view, &QScrollBar::valueChanged, &view, [&bar](int value) { bar.SetValue(value); });
    return bar.Show([&bar, &view] {
        const QSignalBlocker quiet(view);
        view.setRange(0, std::max(0, bar.Maximum()));
        view.setSingleStep(300);
        view.setPageStep(3000);
        view.setValue(bar.Value());
        view.setEnabled(bar.Maximum() > 0);
    });
}

Subscription Bind(Timer& timer, QTimer& clock)
{
    QObject::connect(&clock, &QTimer::timeout, &clock, [&timer] { timer.Tick(); });
    clock.start(timer.Interval());
    return timer.Show([] {});
}

}  // namespace terravane
