// The grid of persons, its two editors, and what of it is stored.
#include <gtest/gtest.h>

#include "unit/app/preferences_bench.h"

namespace terravane::testing {
namespace {

struct PersonsBench : PreferencesBench {
    frmPreferences& form = OpenForm(2);
    TextGrid& grid = form.mshPerson;

    void Click(int row, int column) { grid.PressMouse(MouseButton::Left, row, column); }
    void ExpectOver(int row, int column) const
    {
        EXPECT_EQ(grid.Row(), row);
        EXPECT_EQ(grid.Column(), column);
        EXPECT_EQ(form.txtData.Visible(), column == person::kName);
        EXPECT_EQ(form.cboList.Visible(), column == person::kPosition);
    }
};

TEST(PersonGrid, AClickOpensTheEditorOfItsColumn)
{
    PersonsBench bench;
    bench.grid(3, person::kName) = "Anong Jai";
    bench.grid(3, person::kPosition) = "Checker";
    bench.Click(3, person::kName);
    bench.ExpectOver(3, person::kName);
    EXPECT_EQ(bench.form.txtData.Text(), "Anong Jai");
    EXPECT_TRUE(bench.form.txtData.HasFocus());
    bench.Click(3, person::kPosition);
    bench.ExpectOver(3, person::kPosition);
    EXPECT_EQ(bench.form.cboList.Text(), "Checker");
    EXPECT_TRUE(bench.form.cboList.HasFocus());
    bench.Click(15, person::kName);
    bench.ExpectOver(15, person::kName);
}

TEST(PersonGrid, AClickElsewhereDoesNothing)
{
    PersonsBench bench;
    bench.Click(3, person::kNumber);
    bench.Click(0, person::kName);
    bench.grid.PressMouse(MouseButton::Right, 3, person::kName);
    EXPECT_FALSE(bench.form.txtData.Visible());
    EXPECT_FALSE(bench.form.cboList.Visible());
    bench.Click(4, person::kPosition);
    bench.Click(5, person::kNumber);
    bench.ExpectOver(4, person::kPosition);
}

TEST(PersonGrid, EnterWritesTheTrimmedTextAndGoesDown)
{
    PersonsBench bench;
    bench.grid(2, person::kName) = "Boon Dee";
    bench.Click(1, person::kName);
    const int requests = bench.form.txtData.SelectAllRequests();
    bench.form.txtData.Type("  Anong Jai ");
    EXPECT_EQ(bench.grid(1, person::kName), "   ") << "Only Enter writes.";
    EXPECT_TRUE(bench.form.txtData.PressKey(Key::Enter)) << "The key is discarded.";
    EXPECT_EQ(bench.grid(1, person::kName), "Anong Jai");
    bench.ExpectOver(2, person::kName);
    EXPECT_EQ(bench.form.txtData.Text(), "Boon Dee");
    EXPECT_GT(bench.form.txtData.SelectAllRequests(), requests) << "all of it selected";
}

TEST(PersonGrid, EnterInTheLastRowGoesToTheFirst)
{
    PersonsBench bench;
    bench.Click(15, person::kName);
    bench.form.txtData.Type("Chai");
    bench.form.txtData.PressKey(Key::Enter);
    EXPECT_EQ(bench.grid(15, person::kName), "Chai");
    bench.ExpectOver(1, person::kName);
    bench.Click(15, person::kPosition);
    bench.form.cboList.Choose(2);
    bench.form.cboList.PressKey(Key::Enter);
    EXPECT_EQ(bench.grid(15, person::kPosition), "Approver");
    bench.ExpectOver(1, person::kPosition);
}

TEST(PersonGrid, EscapeHidesTheEditorAndWritesNothing)
{
    PersonsBench bench;
    for (const int column : {person::kName, person::kPosition}) {
        bench.Click(2, column);
        Control& editor = column == person::kName ? static_cast<Control&>(bench.form.txtData) : bench.form.cboList;
        dynamic_cast<TextControl&>(editor).Type("x");
        EXPECT_TRUE(editor.PressKey(Key::Esc));
        EXPECT_FALSE(editor.Visible());
        EXPECT_TRUE(bench.form.cmdPerson.HasFocus());
        EXPECT_EQ(bench.grid(2, column), "   ");
    }
}

TEST(PersonGrid, UpAndDownMoveTheNameBoxWithoutWriting)
{
    PersonsBench bench;
    bench.grid(4, person::kName) = "Four";
    bench.grid(5, person::kName) = "Five";
    bench.Click(4, person::kName);
    bench.form.txtData.Type("lost");
    EXPECT_TRUE(bench.form.txtData.PressKey(Key::Down));
    bench.ExpectOver(5, person::kName);
    EXPECT_EQ(bench.form.txtData.Text(), "Five");
    bench.form.txtData.PressKey(Key::Up);
    bench.ExpectOver(4, person::kName);
    EXPECT_EQ(bench.form.txtData.Text(), "Four") << "What was left behind is not written.";
}

TEST(PersonGrid, UpAndDownEndAtTheFirstAndLastRow)
{
    PersonsBench bench;
    bench.Click(1, person::kName);
    bench.form.txtData.Type("kept");
    bench.form.txtData.PressKey(Key::Up);
    bench.ExpectOver(1, person::kName);
    EXPECT_EQ(bench.form.txtData.Text(), "kept") << "The box is only set over its cell again.";
    bench.Click(15, person::kName);
    bench.form.txtData.PressKey(Key::Down);
    bench.ExpectOver(15, person::kName);
}

TEST(PersonGrid, TheListKeepsUpAndDownForItself)
{
    PersonsBench bench;
    bench.Click(4, person::kPosition);
    bench.form.cboList.Type("Tester");
    EXPECT_FALSE(bench.form.cboList.PressKey(Key::Down));
    EXPECT_FALSE(bench.form.cboList.PressKey(Key::Up));
    bench.ExpectOver(4, person::kPosition);
    EXPECT_EQ(bench.form.cboList.Text(), "Tester");
}

TEST(PersonGrid, OtherKeysLeaveEditorAndTextWhereTheyAre)
{
    PersonsBench bench;
    bench.Click(4, person::kName);
    bench.form.txtData.Type("half a na");
    for (const Key key : {Key::Left, Key::Right, Key::Tab}) EXPECT_FALSE(bench.form.txtData.PressKey(key));
    bench.ExpectOver(4, person::kName);
    EXPECT_EQ(bench.form.txtData.Text(), "half a na");
}

TEST(PersonGrid, AClickOnTheFrameHidesBothEditors)
{
    PersonsBench bench;
    for (const int column : {person::kName, person::kPosition}) {
        bench.Click(2, column);
        bench.form.Frame7.Press();
        EXPECT_FALSE(bench.form.txtData.Visible());
        EXPECT_FALSE(bench.form.cboList.Visible());
        EXPECT_TRUE(bench.form.cmdPerson.HasFocus());
    }
}

TEST(SavePersons, WritesFifteenRowsByTheirKeys)
{
    PersonsBench bench;
    TypePerson(bench.form, 1, "Anong Jai", "Tester");
    TypePerson(bench.form, 9, "สมชาย ดีมาก", "Checker");
    TypePerson(bench.form, 15, "Chai Somsak", "Approver");
    bench.form.cmdPerson.Press();
    EXPECT_EQ(bench.program.CurrentSql,
              "UPDATE PERSON Set person_name ='Chai Somsak',  person_position ='Approver' Where person_ID =' 15'");
    const auto names = bench.BrandColumn("PERSON", "person_name");
    const auto positions = bench.BrandColumn("PERSON", "person_position");
    ASSERT_EQ(names.size(), 15U);
    EXPECT_EQ(names[0], "Anong Jai");
    EXPECT_EQ(names[1], "   ") << "An untouched row keeps its three blanks.";
    EXPECT_EQ(names[8], "สมชาย ดีมาก");
    EXPECT_EQ(names[14], "Chai Somsak");
    EXPECT_EQ(positions[8], "Checker");
    EXPECT_TRUE(bench.surroundings.messages.empty());
}

TEST(SavePersons, RefusesTwoApproversAndStoresNothing)
{
    PersonsBench bench;
    TypePerson(bench.form, 1, "Anong Jai", "Approver");
    bench.grid(7, person::kPosition) = " Approver ";
    bench.form.cmdPerson.Press();
    ASSERT_EQ(bench.surroundings.messages.size(), 1U);
    const Message& box = bench.surroundings.messages.front();
    EXPECT_EQ(box.text, "Please input only one approver.");
    EXPECT_EQ(box.title, "Inform");
    EXPECT_EQ(box.style, MessageStyle::Information);
    EXPECT_EQ(bench.BrandColumn("PERSON", "person_name").front(), "   ");
    bench.grid(7, person::kPosition) = "";
    bench.form.cmdPerson.Press();
    EXPECT_EQ(bench.surroundings.messages.size(), 1U) << "One approver is right.";
    EXPECT_EQ(bench.BrandColumn("PERSON", "person_position").front(), "Approver");
}

TEST(SavePersons, NoApproverAndPersonsWithoutAPositionAreAllowed)
{
    PersonsBench bench;
    TypePerson(bench.form, 2, "Boon Dee", "");
    bench.form.cmdPerson.Press();
    EXPECT_TRUE(bench.surroundings.messages.empty());
    EXPECT_EQ(bench.BrandColumn("PERSON", "person_name")[1], "Boon Dee");
    EXPECT_EQ(bench.BrandColumn("PERSON", "person_position")[1], "");
}

// Fifteen statements of their own: those before the broken one stand, those behind it were not sent. The file is whole.
TEST(SavePersons, AnApostropheStopsTheSaveAtItsRow)
{
    PersonsBench bench;
    TypePerson(bench.form, 1, "Anong Jai", "Tester");
    TypePerson(bench.form, 2, "Sean O'Hara", "Checker");
    TypePerson(bench.form, 3, "Chai Somsak", "Approver");
    bench.form.cmdPerson.Press();
    EXPECT_EQ(bench.Failure(), -2147217900);
    const auto names = bench.BrandColumn("PERSON", "person_name");
    ASSERT_EQ(names.size(), 15U);
    EXPECT_EQ(names[0], "Anong Jai");
    EXPECT_EQ(names[1], "   ");
    EXPECT_EQ(names[2], "   ");
    EXPECT_EQ(bench.grid(2, person::kName), "Sean O'Hara") << "What was typed stays to be mended.";
}

TEST(ClearAll, ClearsTheGridAloneUntilItIsSaved)
{
    PersonsBench bench;
    TypePerson(bench.form, 1, "Anong Jai", "Tester");
    bench.form.cmdPerson.Press();
    bench.form.cmdClear.Press();
    for (int row = 1; row <= 15; ++row) {
        EXPECT_EQ(bench.grid(row, person::kName), "");
        EXPECT_EQ(bench.grid(row, person::kPosition), "");
    }
    EXPECT_EQ(bench.grid(1, person::kNumber), " 1");
    EXPECT_FALSE(bench.form.cboList.Visible()) << "It would show a position that is no longer there.";
    EXPECT_EQ(bench.BrandColumn("PERSON", "person_name").front(), "Anong Jai");
}

TEST(ClearAll, FollowedByCloseLeavesTheStoreAsItWas)
{
    PersonsBench bench;
    TypePerson(bench.form, 1, "Anong Jai", "Tester");
    bench.form.cmdPerson.Press();
    bench.form.cmdClear.Press();
    bench.form.cmdClose.Press();
    EXPECT_EQ(bench.OpenForm(2).mshPerson(1, person::kName), "Anong Jai");
}

TEST(ClearAll, FollowedBySaveStoresEmptyTexts)
{
    PersonsBench bench;
    bench.form.cmdClear.Press();
    bench.form.cmdPerson.Press();
    EXPECT_EQ(bench.BrandColumn("PERSON", "person_name"), std::vector<std::string>(15, ""));
}

}  // namespace
}  // namespace terravane::testing
