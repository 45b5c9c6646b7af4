#include "batch/presser.h"

#include "controls/choice_controls.h"

namespace terravane {

template <class Act>
void Presser::Do(const Control& control, Act act)
{
    if (hasStopped_) return;
    heard_.During(control.Caption());
    const std::size_t before = heard_.Troubles().size();
    act();
    hasStopped_ = heard_.Troubles().size() > before;
}

void Presser::Press(std::string_view command)
{
    auto& button = sheet_.Get<CommandButton>(command);
    Do(button, [&] { button.Press(); });
}

void Presser::Choose(std::string_view option)
{
    auto& button = sheet_.Get<OptionButton>(option);
    Do(button, [&] { button.Choose(); });
}

void Presser::Tick(std::string_view box, bool on)
{
    auto& check = sheet_.Get<CheckBox>(box);
    Do(check, [&] { check.SetValue(on); });
}

void Presser::Set(std::string_view box, std::string_view text)
{
    auto& control = sheet_.Get<TextControl>(box);
    Do(control, [&] { control.Type(text); });
}

}  // namespace terravane
