#include "controls/form.h"

#include <algorithm>
#include <type_traits>

#include <gtest/gtest.h>

#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "unit/controls/plain_form.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

struct HeadForm : PlainForm {
    TextBox txtClient{*this, "txtClient", "Client Name"};
    TextBox txtID{*this, "txtID", "Task No."};
    TextGrid MSHWt{*this, "MSHWt", 2, 2};
};

TEST(Form, FindsItsControlsByNameWithoutRegardToCase)
{
    HeadForm form;
    EXPECT_EQ(form.Find("txtClient"), &form.txtClient);
    EXPECT_EQ(form.Find("TXTCLIENT"), &form.txtClient);
    EXPECT_EQ(form.Find("txtClien"), nullptr);
    EXPECT_EQ(&form.Get<TextBox>("txtid"), &form.txtID);
}

TEST(Form, SaysWhichControlItDoesNotHave)
{
    HeadForm form;
    EXPECT_EQ(ErrorOf([&] { form.Get<TextBox>("MSHWt"); }), error::kObjectRequired) << "A grid is no text box.";
    EXPECT_EQ(DescriptionOf([&] { form.Get<TextBox>("txtNone"); }), "The form frmPlain has no such control: txtNone");
}

TEST(Form, KeepsItsControlsInTheOrderOfDeclaration)
{
    HeadForm form;
    EXPECT_TRUE(std::ranges::equal(form.Controls(), std::vector<Control*>{&form.txtClient, &form.txtID, &form.MSHWt}));
}

TEST(Form, GivesControlsThatCanBeChangedOnlyWhereItCanBeChangedItself)
{
    HeadForm form;
    const Form& looked = form;
    static_assert(std::is_same_v<decltype(looked.Find("txtID")), const Control*>);
    static_assert(std::is_same_v<decltype(looked.Get<TextBox>("txtID")), const TextBox&>);
    static_assert(std::is_same_v<decltype(looked.ActiveControl()), const Control*>);
    static_assert(std::is_same_v<decltype(*looked.Controls().begin()), const Control*>);
    EXPECT_EQ(&looked.Get<TextBox>("txtID"), &form.txtID);
    EXPECT_EQ(ErrorOf([&] { looked.Get<TextBox>("MSHWt"); }), error::kObjectRequired);
}

TEST(Form, TellsTheFieldThatIsLeftBeforeTheOneThatIsEntered)
{
    HeadForm form;
    std::string order;
    form.txtClient.GotFocus = [&] { order += "client in, "; };
    form.txtClient.LostFocus = [&] { order += "client out, "; };
    form.txtID.GotFocus = [&] { order += "number in, "; };
    form.txtClient.SetFocus();
    form.txtClient.SetFocus();
    form.txtID.SetFocus();
    EXPECT_EQ(order, "client in, client out, number in, ");
    EXPECT_TRUE(form.txtID.HasFocus());
    EXPECT_FALSE(form.txtClient.HasFocus());
}

TEST(Form, LetsAFieldThatIsLeftSendTheFocusElsewhere)
{
    HeadForm form;
    bool entered = false;
    form.txtID.GotFocus = [&] { entered = true; };
    form.txtClient.SetFocus();
    form.txtClient.LostFocus = [&] { form.MSHWt.SetFocus(); };
    form.txtID.SetFocus();
    EXPECT_EQ(form.ActiveControl(), &form.MSHWt);
    EXPECT_FALSE(entered);
}

TEST(Form, TellsItsViewsOfFocusAndCaption)
{
    HeadForm form;
    int told = 0;
    const auto view = form.Show([&] { ++told; });
    form.txtID.SetFocus();
    form.SetCaption("Other");
    EXPECT_EQ(told, 3);
    EXPECT_EQ(form.Caption(), "Other");
}

TEST(Form, NamesItsEvents)
{
    HeadForm form;
    form.txtClient.Change = [] {};
    form.txtClient.Type("x");
    EXPECT_EQ(form.events, std::vector<std::string>{"frmPlain.txtClient_Change"});
}

TEST(Control, HandsAKeyToItsFormAndSaysWhetherItWasTaken)
{
    HeadForm form;
    EXPECT_FALSE(form.txtClient.PressKey(Key::Enter)) << "Nobody listens.";
    form.txtClient.KeyPress = [](Key key) { return key == Key::Enter; };
    EXPECT_TRUE(form.txtClient.PressKey(Key::Enter));
    EXPECT_FALSE(form.txtClient.PressKey(Key::Down));
}

TEST(Control, TellsItsViewsWhatIsNew)
{
    HeadForm form;
    int told = 0;
    const auto view = form.txtClient.Show([&] { ++told; });
    const auto news = [&](auto change) {
        const int before = told;
        change();
        return told - before;
    };
    EXPECT_EQ(news([&] { form.txtClient.SetEnabled(false); }), 1);
    EXPECT_EQ(news([&] { form.txtClient.SetEnabled(false); }), 0);
    EXPECT_EQ(news([&] { form.txtClient.SetVisible(false); }), 1);
    EXPECT_EQ(news([&] { form.txtClient.SetBackColor(kRed); }), 1);
    EXPECT_EQ(news([&] { form.txtClient.SetForeColor(kBlue); }), 1);
    EXPECT_EQ(news([&] { form.txtClient.SetCaption("Client"); }), 1);
    EXPECT_EQ(news([&] { form.txtClient.SetToolTip("who pays"); }), 1);
    EXPECT_EQ(news([&] { form.txtClient.SetText("a"); }), 1);
    EXPECT_EQ(news([&] { form.txtClient.SetText("a"); }), 0);
    EXPECT_EQ(news([&] { form.txtClient.SelectAll(); }), 1);
}

}  // namespace
}  // namespace terravane
