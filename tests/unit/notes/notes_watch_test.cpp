// The notes of the open sheet while somebody works on it.
#include "notes/notes_watch.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "support/open_sheet.h"

namespace terravane::notes {
namespace {

using support::OpenSheet;

std::size_t OpenNotices(const Program& program)
{
    return static_cast<std::size_t>(std::ranges::count_if(program.notices.Told(), &Notice::isOpen));
}

TEST(NotesWatch, LooksAnewBehindEveryCommand)
{
    OpenSheet open(terravane::Test::StdSoil);
    NotesWatch watch(open.TheProgram());
    int told = 0;
    const Subscription following = watch.Show([&told] { ++told; });
    EXPECT_TRUE(watch.Notes().empty());
    open.Put("MSHWt 2 1", "40");
    open.Put("MSHWt 3 1", "42");
    open.Sheet().RunEvent("frmCompaction.txtData1_KeyPress", [] {});
    EXPECT_EQ(told, 1);
    ASSERT_EQ(watch.Notes().size(), 1u);
    EXPECT_EQ(watch.Notes().front().place, "Mass of Can + Dry Soil, (g), trial 1");
    ASSERT_EQ(watch.On("MSHWt", 3, 1).size(), 1u);
    EXPECT_TRUE(watch.On("MSHWt", 3, 2).empty());
    EXPECT_TRUE(watch.On("MSHDensity", 3, 1).empty());
}

TEST(NotesWatch, TellsTheWorstOfACellFirst)
{
    OpenSheet open(terravane::Test::SpcSoil);
    NotesWatch watch(open.TheProgram());
    open.Put("MSHSpecific 10 1", "3.60");
    open.Sheet().RunEvent("frmSpecific.cmdCal_Click", [] {});
    const auto told = watch.On("MSHSpecific", 10, 1);
    ASSERT_EQ(told.size(), 2u);
    EXPECT_EQ(told[0]->note.level, Level::Impossible);
    EXPECT_EQ(told[1]->note.level, Level::Doubtful);
}

TEST(NotesWatch, TellsDoubtsWhenThePageIsLookedAt)
{
    OpenSheet open(terravane::Test::StdSoil);
    NotesWatch watch(open.TheProgram());
    open.Put("cboWt", "4.5 kg");
    open.Put("cboLayer", "5");
    open.Sheet().RunEvent("frmCompaction.cboLayer_Click", [] {});
    EXPECT_EQ(OpenNotices(open.TheProgram()), 0u) << "Nothing is in the way while it is typed.";
    open.Sheet().cmdView.SetEnabled(true);
    open.Sheet().cmdView.Press();
    const Notice* notice = open.TheProgram().notices.Current();
    ASSERT_NE(notice, nullptr);
    EXPECT_EQ(notice->kind, NoticeKind::Attention);
    EXPECT_EQ(
        notice->sentence,
        "For the checker: A hammer of 4.5 kg is noted; the standard compaction has one of 2.5 kg. And 1 more, see "
        "View, Notes.");
    EXPECT_EQ(notice->place.control, "cboWt");
}

TEST(NotesWatch, SaysNothingOverASheetWithoutDoubts)
{
    OpenSheet open(terravane::Test::StdSoil);
    NotesWatch watch(open.TheProgram());
    open.Sheet().cmdView.SetEnabled(true);
    open.Sheet().cmdView.Press();
    EXPECT_EQ(OpenNotices(open.TheProgram()), 0u);
}

TEST(NotesWatch, HasNoneOnceTheSheetIsClosed)
{
    OpenSheet open(terravane::Test::StdSoil);
    NotesWatch watch(open.TheProgram());
    open.Put("cboWt", "4.5 kg");
    open.Sheet().RunEvent("frmCompaction.cboWt_Click", [] {});
    ASSERT_EQ(watch.Notes().size(), 1u);
    open.Sheet().tblMenu.Press(2);
    EXPECT_TRUE(watch.Notes().empty());
}

}  // namespace
}  // namespace terravane::notes
