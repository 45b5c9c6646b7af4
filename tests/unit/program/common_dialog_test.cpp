#include "program/common_dialog.h"

#include <gtest/gtest.h>

#include "support/test_surroundings.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

TEST(CommonDialog, AsksWhatItWasSetUpFor)
{
    support::TestSurroundings ask;
    ask.paths = {"/home/user/งานทาง/road.mdb"};
    CommonDialog dialog(ask);
    dialog.DialogTitle = "New File";
    dialog.Filter = "Terravane File(*.mdb)|TRVN*.mdb";
    dialog.FilterIndex = 2;
    dialog.ShowSave();
    ASSERT_EQ(ask.questions.size(), 1U);
    EXPECT_EQ(ask.questions[0].title, "New File");
    EXPECT_EQ(ask.questions[0].kind, FileDialogKind::Save);
    EXPECT_EQ(ask.questions[0].filter, "Terravane File(*.mdb)|TRVN*.mdb");
    EXPECT_EQ(ask.questions[0].filterIndex, 2);
    EXPECT_EQ(dialog.FileName, "/home/user/งานทาง/road.mdb");
    EXPECT_EQ(dialog.FileTitle, "road.mdb");
}

TEST(CommonDialog, FailsOnCancelWhereTheCommandWantsItSo)
{
    support::TestSurroundings ask;
    CommonDialog dialog(ask);
    dialog.FileName = "before";
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName, "before") << "Without the wish a cancelled dialog changes nothing.";
    dialog.CancelError = true;
    EXPECT_EQ(ErrorOf([&] { dialog.ShowOpen(); }), error::kDialogCancelled);
    EXPECT_EQ(DescriptionOf([&] { dialog.ShowOpen(); }), "Cancel was selected.");
    EXPECT_EQ(ask.questions.back().kind, FileDialogKind::Open);
}

}  // namespace
}  // namespace terravane
