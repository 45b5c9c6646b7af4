#include "controls/furniture.h"

#include <algorithm>
#include <utility>

#include "runtime/runtime_error.h"

namespace terravane {

Label::Label(Form& owner, std::string_view name, std::string_view caption, ClickEvent events)
    : ControlKind(owner, name, caption), Click(std::move(events.Click))
{}

Frame::Frame(Form& owner, std::string_view name, std::string_view caption, ClickEvent events)
    : ControlKind(owner, name, caption), Click(std::move(events.Click))
{}

void Image::SetContent(std::shared_ptr<const Picture> content)
{
    content_ = std::move(content);
    Changed();
}

TabControl::TabControl(Form& owner, std::string_view name, std::vector<std::string> captions, TabEvents events)
    : ControlKind(owner, name),
      TabChanged(std::move(events.TabChanged)),
      captions_(std::move(captions)),
      enabledTabs_(captions_.size(), true)
{}

void TabControl::SetTab(int tab)
{
    if (tab < 0 || tab >= Count()) throw RuntimeError(error::kInvalidProcedureCall);
    if (tab == tab_) return;
    const int previous = tab_;
    tab_ = tab;
    Changed();
    if (TabChanged) Raise("Click", [&] { TabChanged(previous); });
}

void TabControl::SetTabEnabled(int tab, bool enabled)
{
    enabledTabs_.at(static_cast<std::size_t>(tab)) = enabled;
    Changed();
}

void TabControl::Hold(int tab, std::initializer_list<const Control*> controls)
{
    for (const Control* control : controls) tabOf_[control] = tab;
}

bool TabControl::Reaches(const Control& control) const
{
    const auto found = tabOf_.find(&control);
    return found == tabOf_.end() || TabEnabled(found->second);
}

Toolbar::Toolbar(Form& owner, std::string_view name, std::vector<ToolButton> buttons, ToolbarEvents events)
    : ControlKind(owner, name),
      ButtonClick(std::move(events.ButtonClick)),
      ItemClick(std::move(events.ItemClick)),
      buttons_(std::move(buttons))
{}

const ToolButton& Toolbar::Button(int number) const
{
    if (number < 1 || number > static_cast<int>(buttons_.size())) throw RuntimeError(error::kSubscriptOutOfRange);
    return buttons_[static_cast<std::size_t>(number - 1)];
}

void Toolbar::SetButtonEnabled(int number, bool enabled)
{
    Button(number);
    buttons_[static_cast<std::size_t>(number - 1)].enabled = enabled;
    Changed();
}

void Toolbar::Press(int number)
{
    const ToolButton& button = Button(number);
    if (!Enabled() || !button.enabled || !button.items.empty() || !ButtonClick) return;
    Raise("ButtonClick", [&] { ButtonClick(number); });
}

bool Toolbar::PressItem(std::string_view key)
{
    for (const ToolButton& button : buttons_) {
        const auto item = std::ranges::find(button.items, key, &ToolButton::key);
        if (item == button.items.end()) continue;
        if (Enabled() && button.enabled && ItemClick) Raise("ButtonMenuClick", [&] { ItemClick(item->key); });
        return true;
    }
    return false;
}

StatusBar::StatusBar(Form& owner, std::string_view name, std::size_t panels) : ControlKind(owner, name), panels_(panels)
{}

void StatusBar::SetPanel(std::size_t number, std::string text)
{
    panels_.at(number - 1) = std::move(text);
    Changed();
}

MenuEntry::MenuEntry(Form& owner, std::string_view name, std::string_view caption, std::string parent,
                     ClickEvent events)
    : ControlKind(owner, name, caption), Click(std::move(events.Click)), parent_(std::move(parent))
{}

void MenuEntry::Press()
{
    if (Enabled()) Raise("Click", Click);
}

Timer::Timer(Form& owner, std::string_view name, std::chrono::milliseconds interval, TimerEvents events)
    : ControlKind(owner, name), Ticked(std::move(events.Ticked)), interval_(interval)
{}

void Timer::Tick()
{
    if (Enabled()) Raise("Timer", Ticked);
}

ScrollBar::ScrollBar(Form& owner, std::string_view name, ScrollEvents events)
    : ControlKind(owner, name), Change(std::move(events.Change))
{}

void ScrollBar::SetValue(int value)
{
    const int held = std::clamp(value, 0, std::max(0, maximum_));
    if (held == value_) return;
    value_ = held;
    Changed();
    Raise("Change", Change);
}

void ScrollBar::SetMaximum(int maximum)
{
    maximum_ = maximum;
    Changed();
    SetValue(value_);
}

}  // namespace terravane
