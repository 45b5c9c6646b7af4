#include "controls/choice_controls.h"

#include <gtest/gtest.h>

#include "unit/controls/plain_form.h"

namespace terravane {
namespace {

struct ChoiceForm : PlainForm {
    OptionButton optInt{*this, "optInt", "Interpolation", "method", true};
    OptionButton optFit{*this, "optFit", "Curve Fitting", "method"};
    OptionButton optSoak{*this, "optSoak", "Soaked", "condition"};
    CheckBox chkSatLine{*this, "chkSatLine", "AV Line"};
    CommandButton cmdCal{*this, "cmdCal", "Calculate"};
    ListBox lstSieve{*this, "lstSieve", {"No.4", "No.10"}};
};

TEST(OptionButton, ExcludesTheOthersOfItsGroupOnly)
{
    ChoiceForm form;
    form.optSoak.Choose();
    form.optFit.Choose();
    EXPECT_TRUE(form.optFit.Value());
    EXPECT_FALSE(form.optInt.Value());
    EXPECT_TRUE(form.optSoak.Value()) << "Another group keeps its choice.";
}

TEST(OptionButton, ChosenByAHandlerRunsClickOnlyWhenItWasNotChosenBefore)
{
    ChoiceForm form;
    int clicks = 0, others = 0;
    form.optFit.Click = [&] { ++clicks; };
    form.optInt.Click = [&] { ++others; };
    form.optFit.Choose();
    form.optFit.Choose();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(others, 0) << "Losing the choice is no click.";
    EXPECT_EQ(form.events, std::vector<std::string>{"frmPlain.optFit_Click"});
}

TEST(OptionButton, PressedAgainWhileItIsChosenIsAPress)
{
    ChoiceForm form;
    int clicks = 0;
    form.optInt.Click = [&] { ++clicks; };
    form.optInt.Press();
    form.optInt.Press();
    EXPECT_EQ(clicks, 2);
    EXPECT_TRUE(form.optInt.Value());
}

TEST(OptionButton, PressedTakesTheChoiceFromTheOthersAndADisabledOneDoesNot)
{
    ChoiceForm form;
    form.optFit.SetEnabled(false);
    form.optFit.Press();
    EXPECT_TRUE(form.optInt.Value());
    form.optFit.SetEnabled(true);
    form.optFit.Press();
    EXPECT_TRUE(form.optFit.Value());
    EXPECT_FALSE(form.optInt.Value());
}

TEST(OptionButton, IsSetBeforeItsClickRuns)
{
    ChoiceForm form;
    bool seen = false;
    form.optFit.Click = [&] { seen = form.optFit.Value() && !form.optInt.Value(); };
    form.optFit.Choose();
    EXPECT_TRUE(seen);
}

TEST(OptionButton, CanBeReleasedWithoutAnother)
{
    ChoiceForm form;
    form.optInt.Click = [] { FAIL() << "A release is no click."; };
    form.optInt.Release();
    EXPECT_FALSE(form.optInt.Value());
    EXPECT_FALSE(form.optFit.Value());
}

TEST(CheckBox, RunsClickWhereItsStateChanges)
{
    ChoiceForm form;
    std::vector<bool> states;
    form.chkSatLine.Click = [&] { states.push_back(form.chkSatLine.Value()); };
    form.chkSatLine.SetValue(false);
    form.chkSatLine.SetValue(true);
    form.chkSatLine.SetValue(true);
    form.chkSatLine.SetValue(false);
    EXPECT_EQ(states, (std::vector<bool>{true, false}));
}

TEST(CommandButton, DoesNothingWhileItIsDisabled)
{
    ChoiceForm form;
    int pressed = 0;
    form.cmdCal.Press();  // a button without a handler
    form.cmdCal.Click = [&] { ++pressed; };
    form.cmdCal.SetEnabled(false);
    form.cmdCal.Press();
    EXPECT_EQ(pressed, 0);
    form.cmdCal.SetEnabled(true);
    form.cmdCal.Press();
    EXPECT_EQ(pressed, 1);
}

TEST(ListBox, SelectsAnyNumberOfEntries)
{
    ChoiceForm form;
    int clicks = 0;
    form.lstSieve.Click = [&] { ++clicks; };
    form.lstSieve.SetSelected(0, true);
    form.lstSieve.SetSelected(1, true);
    form.lstSieve.SetSelected(1, true);
    EXPECT_TRUE(form.lstSieve.Selected(0));
    EXPECT_TRUE(form.lstSieve.Selected(1));
    EXPECT_EQ(clicks, 2);
    EXPECT_THROW(form.lstSieve.SetSelected(2, true), std::out_of_range);
}

}  // namespace
}  // namespace terravane
