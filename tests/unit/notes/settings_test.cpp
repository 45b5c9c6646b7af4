// What a laboratory says in its notes.conf.
#include "notes/settings.h"

#include <gtest/gtest.h>

#include "notes/find_notes.h"
#include "support/open_sheet.h"

namespace terravane::notes {
namespace {

const Rule& RuleNamed(std::string_view key)
{
    for (const RuleGroup& group : RuleGroups())
        for (const Rule& rule : group.rules)
            if (rule.key == key) return rule;
    throw std::logic_error("no such rule");
}

TEST(NoteSettings, SwitchANoteOff)
{
    const Settings settings = Settings::FromText("# ours\n\n compaction.hammer = off \r\n");
    EXPECT_TRUE(settings.Complaints().empty());
    EXPECT_FALSE(settings.IsOn(RuleNamed("compaction.hammer")));
    EXPECT_TRUE(settings.IsOn(RuleNamed("compaction.layers")));
}

TEST(NoteSettings, SetLimits)
{
    const Settings settings = Settings::FromText(
        "\xEF\xBB\xBF"
        "compaction.water-steps=3.5\natterberg.blows = 10\t40");
    EXPECT_TRUE(settings.Complaints().empty());
    EXPECT_EQ(settings.LimitsOf(RuleNamed("compaction.water-steps"))[0], 3.5);
    EXPECT_EQ(settings.LimitsOf(RuleNamed("atterberg.blows")), (LimitValues{10, 40}));
    EXPECT_EQ(settings.LimitsOf(RuleNamed("atterberg.above-u-line")), (LimitValues{0.9, 8})) << "as it stands";
}

TEST(NoteSettings, TellABadLineAndTakeTheOthers)
{
    const Settings settings = Settings::FromText(
        "nonsense\n"
        "compaction.watersteps = 3\n"
        "compaction.water-steps = few\n"
        "atterberg.blows = 10\n"
        "compaction.hammer = 3\n"
        "compaction.layers =\n"
        "\x1b[2J = off\n"
        "sieve.gain = 0.5\n");
    const std::vector<std::string> told{
        "notes.conf, line 1: there is no \"=\" in \"nonsense\".",
        "notes.conf, line 2: there is no note \"compaction.watersteps\".",
        "notes.conf, line 3: \"few\" is no number.",
        "notes.conf, line 4: the note \"atterberg.blows\" takes two limits, or \"off\".",
        "notes.conf, line 5: the note \"compaction.hammer\" takes no limit, or \"off\".",
        "notes.conf, line 6: the note \"compaction.layers\" takes no limit, or \"off\".",
        "notes.conf, line 7: there is no note \"\\x1b[2J\".",
    };
    EXPECT_EQ(settings.Complaints(), told);
    EXPECT_EQ(settings.LimitsOf(RuleNamed("sieve.gain"))[0], 0.5);
    EXPECT_EQ(settings.LimitsOf(RuleNamed("compaction.water-steps"))[0], 4);
}

TEST(NoteSettings, StandBesideTheBrandFolder)
{
    support::OpenSheet open(terravane::Test::StdSoil);
    open.Put("cboWt", "4.5 kg");
    EXPECT_EQ(Checker(open.TheProgram()).NotesNow().size(), 1u);
    const std::string_view text = "compaction.hammer = off";
    open.Files().ReplaceWhole("/lab/notes.conf", Bytes(text.begin(), text.end()));
    EXPECT_TRUE(Checker(open.TheProgram()).NotesNow().empty());
}

TEST(NoteSettings, SetTheLimitThatTheSentenceNames)
{
    support::OpenSheet open(terravane::Test::AttSoil);
    open.Put("MSHLL 1 1", "38");
    const auto found = NotesOn(open.Sheet(), laboratory::Describe(terravane::Test::AttSoil), Material::Soil, nullptr,
                               Settings::FromText("atterberg.blows = 20 37"));
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found.front().sentence, "Trial 1 closed at 38 blows, outside of 20 to 37.");
}

TEST(Checker, SeesWhatWasSavedByAnotherSheetMeanwhile)
{
    support::OpenSheet open(terravane::Test::StdSoil);
    open.Put("txtDmax", "2.10");
    Checker checker(open.TheProgram());
    EXPECT_TRUE(checker.NotesNow().empty());
    jet::Connection project;
    project.Open(open.Files(), std::string(support::OpenSheet::kProject));
    project.Execute("UPDATE MODSOIL Set mod_mdd='2.00'");
    project.Flush();
    const auto found = checker.NotesNow();
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found.front().key, "compaction.modified-lighter");
}

TEST(Checker, GoesOnWithoutTheProjectFile)
{
    support::OpenSheet open(terravane::Test::StdSoil);
    open.Put("cboLayer", "5");
    open.TheProgram().CurrentProjectPath = "/lab/gone.mdb";
    EXPECT_EQ(Checker(open.TheProgram()).NotesNow().size(), 1u);
}

}  // namespace
}  // namespace terravane::notes
