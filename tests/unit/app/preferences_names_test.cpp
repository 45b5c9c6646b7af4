// Change Name, Change Logo, Create DB: what reaches the brand folder.
#include <gtest/gtest.h>

#include "unit/app/preferences_bench.h"

namespace terravane::testing {
namespace {

TEST(ChangeName, WritesAllFiveNamesWhicheverButtonIsPressed)
{
    for (const char* button : {"cmdName1", "cmdName2", "cmdName3"}) {
        PreferencesBench bench;
        frmPreferences& form = bench.OpenForm();
        form.txtIsName.Type("Institute of Roads");
        form.txtDname.Type("ฝ่ายทดสอบวัสดุ");
        form.txtCov1.Type("First");
        form.txtCov2.Type("Second");
        form.txtCov3.Type("");
        form.Get<CommandButton>(button).Press();
        EXPECT_EQ(bench.StoredName("logo_ins"), "Institute of Roads") << button;
        EXPECT_EQ(bench.StoredName("logo_dep"), "ฝ่ายทดสอบวัสดุ");
        EXPECT_EQ(bench.StoredName("logo_cov1"), "First");
        EXPECT_EQ(bench.StoredName("logo_cov2"), "Second");
        EXPECT_EQ(bench.StoredName("logo_cov3"), "");
        EXPECT_EQ(bench.StoredName("logo_ID"), " 16");
        EXPECT_TRUE(bench.surroundings.failures.empty());
    }
}

TEST(ChangeName, SendsOneStatementWithoutAWhere)
{
    PreferencesBench bench;
    frmPreferences& form = bench.OpenForm();
    form.txtIsName.Type("a");
    form.txtDname.Type("b");
    form.txtCov1.Type("c");
    form.txtCov2.Type("d");
    form.txtCov3.Type("e");
    form.cmdName2.Press();
    EXPECT_EQ(bench.program.CurrentSql,
              "UPDATE LOGO Set logo_ins ='a',  logo_dep ='b',  logo_cov1 ='c',  logo_cov2 ='d' ,  logo_cov3 ='e'");
}

TEST(ChangeName, AnApostropheBreaksTheStatementAndNothingIsWritten)
{
    PreferencesBench bench;
    frmPreferences& form = bench.OpenForm();
    form.txtIsName.Type("Institute of Roads");
    form.txtDname.Type("Surat's laboratory");
    form.cmdName1.Press();
    EXPECT_EQ(bench.Failure(), -2147217900);
    EXPECT_EQ(bench.StoredName("logo_ins"), "   ");
    EXPECT_EQ(form.txtDname.Text(), "Surat's laboratory") << "What was typed stays to be mended.";
    form.txtDname.Type("Surat laboratory");
    form.cmdName1.Press();
    EXPECT_EQ(bench.StoredName("logo_dep"), "Surat laboratory");
}

// The column takes 100 characters.
TEST(ChangeName, ANameLongerThanItsColumnIsRefused)
{
    PreferencesBench bench;
    frmPreferences& form = bench.OpenForm();
    form.txtIsName.Type(std::string(100, 'n'));
    form.cmdName1.Press();
    EXPECT_TRUE(bench.surroundings.failures.empty());
    form.txtIsName.Type(std::string(101, 'n'));
    form.cmdName1.Press();
    EXPECT_NE(bench.Failure(), 0);
    EXPECT_EQ(bench.StoredName("logo_ins"), std::string(100, 'n'));
}

TEST(ChangeName, AFolderThatTakesNothingIsReported)
{
    PreferencesBench bench;
    frmPreferences& form = bench.OpenForm();
    form.txtIsName.Type("Institute of Roads");
    bench.files.FailAtStep(1, error::kPermissionDenied);
    form.cmdName1.Press();
    EXPECT_NE(bench.Failure(), 0);
    EXPECT_EQ(bench.StoredName("logo_ins"), "   ");
    EXPECT_EQ(form.txtIsName.Text(), "Institute of Roads");
    form.cmdName1.Press();
    EXPECT_TRUE(bench.surroundings.failures.empty()) << "The next press goes through when the folder does.";
    EXPECT_EQ(bench.StoredName("logo_ins"), "Institute of Roads");
}

TEST(ChangeLogo, PicturesAreAskedForByContentAndOnlyShown)
{
    PreferencesBench bench;
    bench.files.Put("/pictures/new.gif", kGif);
    const Bytes before = bench.files.Content(kBrand + "dep_logo.jpg");
    frmPreferences& form = bench.OpenForm();
    bench.Choose(form.cmdOpen1, "/pictures/new.gif");
    ASSERT_EQ(bench.surroundings.questions.size(), 1U);
    const FileQuestion& question = bench.surroundings.questions.front();
    EXPECT_EQ(question.title, "Select Picture");
    EXPECT_EQ(question.kind, FileDialogKind::Open);
    EXPECT_EQ(question.filter, "Picture(*.bmp;*.ico;*.jpg;*.gif)|*.bmp;*.ico;*.jpg;*.gif");
    EXPECT_EQ(question.filterIndex, 2);
    EXPECT_EQ(form.txtLogo.Text(), "/pictures/new.gif");
    EXPECT_EQ(form.imgBrand2.Content()->format, PictureFormat::Gif);
    EXPECT_EQ(form.picDep.Items().size(), 1U) << "The old picture is gone.";
    EXPECT_TRUE(form.cmdLogo2.Enabled());
    EXPECT_FALSE(form.cmdLogo1.Enabled());
    EXPECT_FALSE(form.cmdLogo3.Enabled());
    EXPECT_EQ(bench.files.Content(kBrand + "dep_logo.jpg"), before) << "The store is not yet touched.";
}

TEST(ChangeLogo, CancelChangesNothing)
{
    PreferencesBench bench;
    frmPreferences& form = bench.OpenForm();
    form.cmdOpen.Press();
    EXPECT_EQ(form.txtLogo.Text(), "");
    EXPECT_FALSE(form.cmdLogo1.Enabled());
    EXPECT_TRUE(bench.surroundings.failures.empty());
    EXPECT_TRUE(bench.surroundings.messages.empty());
}

TEST(ChangeLogo, CopiesTheFileAsItIsAndWritesTheNames)
{
    struct Target {
        const char *open, *change, *file;
    };
    for (const Target target :
         {Target{"cmdOpen", "cmdLogo1", "ins_logo.jpg"}, Target{"cmdOpen1", "cmdLogo2", "dep_logo.jpg"},
          Target{"cmdOpen2", "cmdLogo3", "cov_logo.jpg"}}) {
        PreferencesBench bench;
        bench.files.Put("/pictures/new.gif", kGif);
        frmPreferences& form = bench.OpenForm();
        bench.Choose(form.Get<CommandButton>(target.open), "/pictures/new.gif");
        form.txtCov2.Type("Second");
        form.Get<CommandButton>(target.change).Press();
        EXPECT_EQ(bench.files.Content(kBrand + target.file), kGif) << target.file;
        EXPECT_EQ(bench.StoredName("logo_cov2"), "Second");
        EXPECT_TRUE(form.Find(target.change)->Enabled()) << "It stays so until the form is closed.";
    }
}

TEST(ChangeLogo, AGifUnderTheNameOfAJpegLoadsAgain)
{
    PreferencesBench bench;
    bench.files.Put("/pictures/new.gif", kGif);
    frmPreferences& form = bench.OpenForm();
    bench.Choose(form.cmdOpen, "/pictures/new.gif");
    form.cmdLogo1.Press();
    form.cmdClose.Press();
    const frmPreferences& again = bench.OpenForm();
    EXPECT_EQ(again.imgBrand1.Content()->format, PictureFormat::Gif);
    EXPECT_EQ(again.imgBrand1.Content()->name, "ins_logo.jpg");
    EXPECT_EQ(again.txtIsName.Text(), "   ") << "The load went on to the names.";
    EXPECT_FALSE(again.cmdLogo1.Enabled());
}

// One path for all three: it is the last picture chosen that is copied, whichever logo it was chosen for.
TEST(ChangeLogo, TakesThePictureChosenLast)
{
    PreferencesBench bench;
    bench.files.Put("/pictures/new.gif", kGif);
    bench.files.Put("/pictures/new.bmp", kBitmap);
    frmPreferences& form = bench.OpenForm();
    bench.Choose(form.cmdOpen, "/pictures/new.gif");
    bench.Choose(form.cmdOpen1, "/pictures/new.bmp");
    form.cmdLogo1.Press();
    EXPECT_EQ(bench.files.Content(kBrand + "ins_logo.jpg"), kBitmap);
}

TEST(ChangeLogo, APictureThatCannotBeReadLeavesTheFormAsItWas)
{
    PreferencesBench bench;
    bench.files.Put("/pictures/new.gif", kGif);
    bench.files.Put("/pictures/broken.jpg", "\xFF\xD8\xFF");
    bench.files.Put("/pictures/letter.jpg", "Dear Sir");
    frmPreferences& form = bench.OpenForm();
    bench.Choose(form.cmdOpen, "/pictures/new.gif");
    for (const char* path : {"/pictures/broken.jpg", "/pictures/letter.jpg"}) {
        bench.Choose(form.cmdOpen, path);
        ASSERT_EQ(bench.surroundings.failures.size(), 1U);
        EXPECT_EQ(bench.surroundings.failures.front().Description(), "Invalid picture: " + NameOf(path));
        EXPECT_EQ(bench.Failure(), error::kInvalidPicture);
    }
    bench.Choose(form.cmdOpen, "/pictures/nowhere.gif");
    EXPECT_EQ(bench.Failure(), error::kFileNotFound);
    EXPECT_EQ(form.txtLogo.Text(), "/pictures/new.gif") << "Change Logo still means the picture that is shown.";
    EXPECT_EQ(form.imgBrand1.Content()->format, PictureFormat::Gif);
}

// 0x3C00 by 0x1000 is 62.9 million pixels: taken by its header, drawn by whoever shows it. 0x2711 by 0x2710 is above
// a hundred million.
TEST(ChangeLogo, AVeryLargePictureIsTakenByItsHeaderAloneAndATooLargeOneRefused)
{
    PreferencesBench bench;
    Bytes large{'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 40, 0, 0, 0, 0, 0x3C, 0, 0, 0, 0x10, 0, 0};
    bench.files.Put("/pictures/large.bmp", large);
    frmPreferences& form = bench.OpenForm();
    bench.Choose(form.cmdOpen2, "/pictures/large.bmp");
    EXPECT_TRUE(bench.surroundings.failures.empty());
    EXPECT_EQ(form.imgBrand3.Content()->width, 15360);
    large = {'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 40, 0, 0, 0, 0x11, 0x27, 0, 0, 0x10, 0x27, 0, 0};
    bench.files.Put("/pictures/larger.bmp", large);
    bench.Choose(form.cmdOpen2, "/pictures/larger.bmp");
    EXPECT_EQ(bench.Failure(), error::kInvalidPicture);
    EXPECT_EQ(form.imgBrand3.Content()->width, 15360);
}

TEST(ChangeLogo, APictureThatVanishedIsReportedAndTheLogoStays)
{
    PreferencesBench bench;
    bench.files.Put("/pictures/new.gif", kGif);
    const Bytes before = bench.files.Content(kBrand + "ins_logo.jpg");
    frmPreferences& form = bench.OpenForm();
    bench.Choose(form.cmdOpen, "/pictures/new.gif");
    form.txtIsName.Type("Institute of Roads");
    bench.files.TakeAway("/pictures/new.gif");
    form.cmdLogo1.Press();
    EXPECT_EQ(bench.Failure(), error::kFileNotFound);
    EXPECT_EQ(bench.files.Content(kBrand + "ins_logo.jpg"), before);
    EXPECT_EQ(bench.StoredName("logo_ins"), "   ") << "The command stopped at the copy.";
}

TEST(ChangeLogo, AFolderThatTakesNothingKeepsTheOldLogoWhole)
{
    PreferencesBench bench;
    bench.files.Put("/pictures/new.gif", kGif);
    const Bytes before = bench.files.Content(kBrand + "ins_logo.jpg");
    frmPreferences& form = bench.OpenForm();
    bench.Choose(form.cmdOpen, "/pictures/new.gif");
    bench.files.FailAtStep(1, error::kPermissionDenied);
    form.cmdLogo1.Press();
    EXPECT_EQ(bench.Failure(), error::kPermissionDenied);
    EXPECT_EQ(bench.files.Content(kBrand + "ins_logo.jpg"), before);
    EXPECT_EQ(bench.files.Paths().size(), 5U) << "four files of the brand folder and the picture, nothing half-written";
}

TEST(CreateDb, MakesTheStoreThatTheButtonsThenWriteTo)
{
    PreferencesBench bench;
    bench.files.TakeAway(kBrand + "logo.mdb");
    frmPreferences& form = bench.OpenForm(2);
    form.cmdDbase.Press();
    EXPECT_TRUE(bench.surroundings.messages.empty());
    EXPECT_EQ(bench.StoredName("logo_ID"), " 16");
    EXPECT_EQ(bench.BrandColumn("PERSON", "person_ID").size(), 15U);
    form.txtIsName.Type("Institute of Roads");
    form.cmdName1.Press();
    EXPECT_TRUE(bench.surroundings.failures.empty());
    EXPECT_EQ(bench.StoredName("logo_ins"), "Institute of Roads");
}

TEST(CreateDb, ASecondTimeChangesNothingAndReportsNothing)
{
    for (const char* name : {"logo.mdb", "Logo.mdb"}) {
        PreferencesBench bench;
        const Bytes before = bench.files.Content(kBrand + "logo.mdb");
        bench.files.TakeAway(kBrand + "logo.mdb");
        bench.files.Put(kBrand + name, before);
        frmPreferences& form = bench.OpenForm(2);
        form.cmdDbase.Press();
        EXPECT_EQ(bench.files.Content(kBrand + name), before);
        EXPECT_EQ(bench.files.Paths().size(), 4U) << "no second database beside " << name;
        EXPECT_TRUE(bench.surroundings.messages.empty());
        EXPECT_TRUE(bench.surroundings.failures.empty());
    }
}

TEST(CreateDb, WithoutABrandFolderNothingHappensAndNothingIsSaid)
{
    AppBench bench("/elsewhere");
    bench.ShowFrame();
    bench.Frame().mnuOpr.Press();
    bench.program.Get<frmPreferences>("frmPreferences").cmdDbase.Press();
    EXPECT_TRUE(bench.surroundings.messages.empty());
    EXPECT_TRUE(bench.surroundings.failures.empty());
}

}  // namespace
}  // namespace terravane::testing
