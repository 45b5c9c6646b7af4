#include "controls/text_controls.h"

#include <gtest/gtest.h>

#include "unit/controls/plain_form.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

struct TextForm : PlainForm {
    TextBox txtSoil{*this, "txtSoil", "Sample", "S-1"};
    ComboBox cboWt{*this, "cboWt", "Wt. Hammer", {"2.5 kg", "4.5 kg"}};
    DatePicker DTPDate{*this, "DTPDate", "Date of Test"};
};

TEST(TextBox, RunsChangeForTheUserOnly)
{
    TextForm form;
    std::string seen;
    form.txtSoil.Change = [&] { seen += form.txtSoil.Text() + ";"; };
    form.txtSoil.SetText("by a handler");
    form.txtSoil.Type("ดินเหนียว");
    EXPECT_EQ(seen, "ดินเหนียว;");
}

TEST(ComboBox, TakesAnyTextBesideItsList)
{
    TextForm form;
    EXPECT_EQ(form.cboWt.Text(), "");
    form.cboWt.Type("5 kg");
    EXPECT_EQ(form.cboWt.Text(), "5 kg");
    EXPECT_EQ(form.cboWt.List().size(), 2U);
}

TEST(ComboBox, RunsClickForAChosenEntry)
{
    TextForm form;
    int clicks = 0;
    form.cboWt.Click = [&] { ++clicks; };
    form.cboWt.Choose(1);
    form.cboWt.Type("2.5 kg");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(ErrorOf([&] { form.cboWt.Choose(2); }), error::kInvalidProcedureCall);
}

TEST(ComboBox, LosesListAndTextWhenItIsCleared)
{
    TextForm form;
    form.cboWt.Choose(0);
    form.cboWt.Clear();
    EXPECT_TRUE(form.cboWt.List().empty());
    EXPECT_EQ(form.cboWt.Text(), "");
    form.cboWt.AddItem("A name");
    EXPECT_EQ(form.cboWt.List(), std::vector<std::string>{"A name"});
}

TEST(DatePicker, HoldsTheShortDateOfWhatItIsGiven)
{
    TextForm form;
    for (const char* text : {"5/3/2026", "2026-03-05", "05 March 2026", " 5 Mar 2026 "}) {
        form.DTPDate.SetText(text);
        EXPECT_EQ(form.DTPDate.Text(), "05/03/2026") << "from " << text;
    }
}

TEST(DatePicker, RefusesATextThatIsNoDateAndKeepsItsOwn)
{
    TextForm form;
    form.DTPDate.SetText("5/3/2026");
    for (const char* text : {"yesterday", "31/2/2026", "", "   "}) {
        EXPECT_EQ(ErrorOf([&] { form.DTPDate.SetText(text); }), error::kTypeMismatch) << "for '" << text << "'";
    }
    EXPECT_EQ(form.DTPDate.Text(), "05/03/2026");
}

// Typing rubbish into a date once went past the place that catches failing commands.
TEST(DatePicker, FailsForTheUserInsideTheEventBoundary)
{
    TextForm form;
    EXPECT_EQ(ErrorOf([&] { form.DTPDate.Type("rubbish"); }), error::kTypeMismatch);
    EXPECT_EQ(form.events, std::vector<std::string>{"frmPlain.DTPDate_Change"});
}

TEST(TextControl, CanBeLocked)
{
    TextForm form;
    EXPECT_FALSE(form.txtSoil.Locked());
    form.txtSoil.SetLocked(true);
    EXPECT_TRUE(form.txtSoil.Locked());
}

}  // namespace
}  // namespace terravane
