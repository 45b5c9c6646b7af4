// What the preferences show when they open, and what is missing then.
#include <gtest/gtest.h>

#include "store/brand_pictures.h"
#include "unit/app/preferences_bench.h"

namespace terravane::testing {
namespace {

PictureItem PictureIn(const PictureBox& box)
{
    if (box.Items().size() != 1) return {};
    const auto* picture = std::get_if<PictureItem>(&box.Items().front());
    return picture ? *picture : PictureItem{};
}

TEST(Preferences, EachMenuEntryOpensItsTab)
{
    for (int tab = 0; tab < 3; ++tab) {
        PreferencesBench bench;
        const frmPreferences& form = bench.OpenForm(tab);
        EXPECT_EQ(form.sstPreference.Tab(), tab);
        EXPECT_EQ(form.Caption(), "Preferences");
        EXPECT_EQ(bench.program.ShownForms().back().modality, Modality::Modal);
    }
}

TEST(Preferences, TabsAndButtonsAreCaptioned)
{
    PreferencesBench bench;
    const frmPreferences& form = bench.OpenForm();
    EXPECT_EQ(form.sstPreference.TabCaption(0), "Head Logo and Name");
    EXPECT_EQ(form.sstPreference.TabCaption(1), "Cover Logo and Name");
    EXPECT_EQ(form.sstPreference.TabCaption(2), "Personnel Name");
    EXPECT_EQ(form.fraInstitute.Caption(), "Institute");
    EXPECT_EQ(form.fraDepartment.Caption(), "Testing Department");
    EXPECT_EQ(form.fraInformation.Caption(), "Information");
    EXPECT_EQ(form.txtCov1.Caption(), "Name of Reporter");
    for (const char* name : {"cmdLogo1", "cmdLogo2", "cmdLogo3"}) {
        EXPECT_EQ(form.Find(name)->Caption(), "Change Logo");
        EXPECT_FALSE(form.Find(name)->Enabled()) << "No picture was chosen yet for " << name;
    }
    for (const char* name : {"cmdName1", "cmdName2", "cmdName3"}) EXPECT_EQ(form.Find(name)->Caption(), "Change Name");
    EXPECT_EQ(form.cmdPerson.Caption(), "Save");
    EXPECT_EQ(form.cmdClear.Caption(), "Clear All");
    EXPECT_EQ(form.cmdDbase.Caption(), "Create DB");
    EXPECT_EQ(form.cmdClose.Caption(), "Close");
}

TEST(Preferences, NamesAndPersonsStandAsTheyAreStored)
{
    PreferencesBench bench;
    jet::Connection store;
    store.Open(bench.files, kBrand + "logo.mdb");
    store.Execute("UPDATE LOGO Set logo_ins =' Institute ',  logo_cov3 ='Third'");
    store.Execute("UPDATE PERSON Set person_name ='อนงค์ ใจดี',  person_position ='Tester' Where person_ID =' 15'");
    store.Flush();
    const frmPreferences& form = bench.OpenForm();
    EXPECT_EQ(form.txtIsName.Text(), " Institute ");
    EXPECT_EQ(form.txtDname.Text(), "   ");
    EXPECT_EQ(form.txtCov3.Text(), "Third");
    EXPECT_EQ(form.mshPerson(15, person::kName), "อนงค์ ใจดี");
    EXPECT_EQ(form.mshPerson(15, person::kPosition), "Tester");
    EXPECT_EQ(form.mshPerson(1, person::kName), "   ");
    ExpectSilence(bench);
}

TEST(Preferences, GridIsPreparedWithItsTitlesAndWidths)
{
    PreferencesBench bench;
    const frmPreferences& form = bench.OpenForm();
    EXPECT_EQ(form.mshPerson.Rows(), 16);
    EXPECT_EQ(form.mshPerson.Columns(), 3);
    EXPECT_EQ(form.mshPerson(0, 0), "No.");
    EXPECT_EQ(form.mshPerson(0, 1), "Name - Surname");
    EXPECT_EQ(form.mshPerson(0, 2), "Position");
    EXPECT_EQ(form.mshPerson(1, 0), " 1");
    EXPECT_EQ(form.mshPerson(15, 0), " 15");
    EXPECT_EQ(form.mshPerson.ColumnWidth(0), 800);
    EXPECT_EQ(form.mshPerson.ColumnWidth(1), 3200);
    EXPECT_EQ(form.cboList.List(), (std::vector<std::string>{"Tester", "Checker", "Approver"}));
    EXPECT_FALSE(form.txtData.Visible());
    EXPECT_FALSE(form.cboList.Visible());
}

// 300 by 200 in a box of 3000 by 3000: ten times as large, 2000 high, 500 free above and below. 100 by 400: 7.5 times,
// 750 wide, 1125 free at either side.
TEST(Preferences, PicturesKeepTheirProportionsInTheMiddleOfTheirBoxes)
{
    PreferencesBench bench;
    bench.files.Put(kBrand + "ins_logo.jpg", kGif);
    bench.files.Put(kBrand + "dep_logo.jpg", kBitmap);
    const frmPreferences& form = bench.OpenForm();
    ASSERT_EQ(form.picIns.Width, 3000);
    ASSERT_EQ(form.picIns.Height, 3000);
    const PictureItem institute = PictureIn(form.picIns);
    EXPECT_EQ(institute.name, "ins_logo.jpg");
    EXPECT_DOUBLE_EQ(institute.x, 0);
    EXPECT_DOUBLE_EQ(institute.y, 500);
    EXPECT_DOUBLE_EQ(institute.width, 3000);
    EXPECT_DOUBLE_EQ(institute.height, 2000);
    const PictureItem department = PictureIn(form.picDep);
    EXPECT_DOUBLE_EQ(department.x, 1125);
    EXPECT_DOUBLE_EQ(department.y, 0);
    EXPECT_DOUBLE_EQ(department.width, 750);
    EXPECT_DOUBLE_EQ(department.height, 3000);
    EXPECT_EQ(form.imgBrand1.Content()->width, 300);
    EXPECT_EQ(form.imgBrand2.Content()->height, 400);
}

TEST(Preferences, WithoutABrandDatabaseTheBoxesAreEmptyAndNothingIsSaid)
{
    PreferencesBench bench;
    bench.files.TakeAway(kBrand + "logo.mdb");
    const frmPreferences& form = bench.OpenForm();
    EXPECT_EQ(PictureIn(form.picCover).name, "cov_logo.jpg") << "The pictures come before the database.";
    EXPECT_EQ(form.txtIsName.Text(), "");
    EXPECT_EQ(form.mshPerson(1, person::kName), "");
    EXPECT_EQ(form.mshPerson(0, 1), "Name - Surname");
    ExpectSilence(bench);
}

TEST(Preferences, AMissingPictureStopsTheLoadThere)
{
    PreferencesBench bench;
    bench.files.TakeAway(kBrand + "dep_logo.jpg");
    const frmPreferences& form = bench.OpenForm();
    EXPECT_EQ(PictureIn(form.picIns).name, "ins_logo.jpg");
    EXPECT_TRUE(form.picDep.Items().empty());
    EXPECT_TRUE(form.picCover.Items().empty());
    EXPECT_EQ(form.txtIsName.Text(), "");
    EXPECT_EQ(form.mshPerson(1, person::kName), "");
    ExpectSilence(bench);
}

TEST(Preferences, ADamagedPictureStopsTheLoadThereToo)
{
    PreferencesBench bench;
    bench.files.Put(kBrand + "cov_logo.jpg", "no picture at all");
    const frmPreferences& form = bench.OpenForm();
    EXPECT_EQ(PictureIn(form.picDep).name, "dep_logo.jpg");
    EXPECT_TRUE(form.picCover.Items().empty());
    EXPECT_EQ(form.txtDname.Text(), "");
    ExpectSilence(bench);
}

TEST(Preferences, ADamagedDatabaseStopsTheLoadWithoutAWord)
{
    PreferencesBench bench;
    bench.files.Put(kBrand + "logo.mdb", "no database at all");
    EXPECT_EQ(bench.OpenForm().txtIsName.Text(), "");
    ExpectSilence(bench);
}

// Boxes that were never filled are no names: a sheet that was open before has a connection to the store, and through
// it the empty boxes would be written over all that the laboratory had typed.
TEST(Preferences, WhatWasNotReadIsNotWrittenOver)
{
    PreferencesBench bench;
    frmPreferences* form = &bench.OpenForm();
    form->txtIsName.Type("Institute of Roads");
    form->cmdName1.Press();
    TypePerson(*form, 1, "Anong Jai", "Tester");
    form->cmdPerson.Press();
    form->cmdClose.Press();
    bench.files.TakeAway(kBrand + "ins_logo.jpg");

    form = &bench.OpenForm();
    form->cmdName1.Press();
    EXPECT_NE(bench.Failure(), 0) << "The user is told.";
    form->cmdPerson.Press();
    EXPECT_NE(bench.Failure(), 0);
    EXPECT_EQ(bench.StoredName("logo_ins"), "Institute of Roads");
    EXPECT_EQ(bench.BrandColumn("PERSON", "person_name").front(), "Anong Jai");
}

TEST(Preferences, AMissingPictureIsMendedByChoosingOne)
{
    PreferencesBench bench;
    bench.files.TakeAway(kBrand + "ins_logo.jpg");
    bench.files.Put("/pictures/new.gif", kGif);
    frmPreferences& form = bench.OpenForm();
    bench.Choose(form.cmdOpen, "/pictures/new.gif");
    form.cmdLogo1.Press();
    EXPECT_EQ(bench.Failure(), -2147467259) << "The names, which were not read, are not written.";
    form.cmdClose.Press();
    EXPECT_EQ(bench.OpenForm().txtDname.Text(), "   ") << "The next time all is read.";
    ExpectSilence(bench);
}

TEST(Preferences, CloseUnloadsTheForm)
{
    PreferencesBench bench;
    bench.OpenForm().cmdClose.Press();
    EXPECT_EQ(bench.program.Loaded("frmPreferences"), nullptr);
    EXPECT_NE(bench.program.Loaded("mdiBack"), nullptr);
}

}  // namespace
}  // namespace terravane::testing
