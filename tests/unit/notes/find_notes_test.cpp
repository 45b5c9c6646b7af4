// Each note: silent at its limit, told a hair beyond it, at the place that it is about.
#include "notes/find_notes.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "support/open_sheet.h"
#include "unit/notes/note_cases.h"

namespace terravane {
namespace {

using notes::Note;
using support::NoteCase;
using support::OpenSheet;

std::vector<Note> NotesWith(const NoteCase& of, std::string_view text, const notes::Settings& settings = {})
{
    std::vector<std::string> statements;
    if (of.place == "sql") statements.emplace_back(text);
    OpenSheet open(of.test, of.digit, statements);
    for (const auto& [place, reading] : of.readings) open.Put(place, reading);
    if (of.place != "sql") open.Put(of.place, text);
    const ProjectTexts job = open.Job();
    return notes::NotesOn(open.Sheet(), laboratory::Describe(of.test), open.TheProgram().CurrentMaterial, &job,
                          settings);
}

auto Find(const std::vector<Note>& found, std::string_view key)
{
    return std::ranges::find(found, key, &Note::key);
}

class EachNote : public testing::TestWithParam<NoteCase> {};

TEST_P(EachNote, IsSilentAtItsLimitAndToldAHairBeyond)
{
    const NoteCase& of = GetParam();
    const auto silent = NotesWith(of, of.silent);
    const auto said = Find(silent, of.key);
    EXPECT_EQ(said, silent.end()) << of.silent << ": " << said->sentence;

    const auto told = NotesWith(of, of.firing);
    const auto note = Find(told, of.key);
    ASSERT_NE(note, told.end()) << of.firing;
    EXPECT_EQ(note->sentence.find("{}"), std::string::npos) << note->sentence;
    EXPECT_FALSE(note->source.empty());
    const OpenSheet open(of.test, of.digit);
    EXPECT_NE(open.Sheet().Find(note->at.control), nullptr) << "It leads to a place of the sheet.";
}

std::string NameOf(const testing::TestParamInfo<NoteCase>& info)
{
    std::string name(info.param.key);
    std::erase_if(name, [](char letter) { return letter == '.' || letter == '-'; });
    return name + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Notes, EachNote, testing::ValuesIn(support::NoteCases()), NameOf);

std::vector<const notes::Rule*> AllRules()
{
    std::vector<const notes::Rule*> rules;
    for (const notes::RuleGroup& group : notes::RuleGroups())
        for (const notes::Rule& rule : group.rules) rules.push_back(&rule);
    return rules;
}

TEST(NoteRules, AreAllTriedHere)
{
    const auto cases = support::NoteCases();
    for (const notes::Rule* rule : AllRules())
        EXPECT_NE(std::ranges::find(cases, rule->key, &NoteCase::key), cases.end()) << rule->key;
}

TEST(NoteRules, SayAllThatTheGuideNeeds)
{
    std::set<std::string_view> keys;
    for (const notes::Rule* rule : AllRules()) {
        EXPECT_TRUE(keys.insert(rule->key).second) << rule->key << " stands twice.";
        for (const std::string_view text : {rule->looksAt, rule->source, rule->sentence, rule->advice})
            EXPECT_FALSE(text.empty()) << rule->key;
        EXPECT_EQ(rule->sentence.back(), '.') << rule->key;
        EXPECT_EQ(rule->advice.back(), '.') << rule->key;
        EXPECT_TRUE(rule->limits > 0 || rule->unit.empty()) << rule->key;
    }
    EXPECT_GE(keys.size(), 38u);
}

TEST(NotesOnASheet, AreNoneOfAnEmptyOne)
{
    for (const laboratory::Description* test : laboratory::Tests()) {
        const OpenSheet open(test->test);
        const ProjectTexts job = open.Job();
        const auto found = notes::NotesOn(open.Sheet(), *test, Material::Soil, &job, {});
        EXPECT_TRUE(found.empty()) << test->key << ": " << found.front().sentence;
    }
}

TEST(NotesOnASheet, TakeBlowsOverLayersHammersAndNamesForWhatTheyAre)
{
    OpenSheet bearing(terravane::Test::CBRSoil);
    bearing.Put("MSHCompaction 2 1", "56/5");
    bearing.Put("MSHWater 1 1", "A-7");
    EXPECT_TRUE(
        notes::NotesOn(bearing.Sheet(), laboratory::Describe(terravane::Test::CBRSoil), Material::Soil, nullptr, {})
            .empty());
    OpenSheet compaction(terravane::Test::StdSoil);
    compaction.Put("cboWt", "2.5 kg");
    EXPECT_TRUE(
        notes::NotesOn(compaction.Sheet(), laboratory::Describe(terravane::Test::StdSoil), Material::Soil, nullptr, {})
            .empty());
}

TEST(NotesOnASheet, NameTheFiguresOfThePoint)
{
    OpenSheet open(terravane::Test::StdSoil);
    open.Put("txtGs", "2.65");
    open.Put("MSHDensity 3 3", "12.00");
    open.Put("MSHDensity 6 3", "2.05");
    const auto found =
        notes::NotesOn(open.Sheet(), laboratory::Describe(terravane::Test::StdSoil), Material::Soil, nullptr, {});
    ASSERT_EQ(found.size(), 1u);
    // 12 * 2.05 * 2.65 / (2.65 - 2.05) = 108.65
    EXPECT_EQ(found.front().sentence,
              "Point 3 lies above the zero-air-voids line (saturation 108.7 %, Gs 2.65, limit 100 %): gravity, mold "
              "volume or "
              "a mass is wrong.");
    EXPECT_EQ(found.front().level, notes::Level::Impossible);
    EXPECT_EQ(found.front().at, (notes::Place{"MSHDensity", 6, 3}));
}

TEST(NotesOnASheet, CorrectTheMaximumDensityForOversize)
{
    OpenSheet open(terravane::Test::StdSoil);
    open.Put("txtOMC", "10");
    open.Put("txtDmax", "2.00");
    open.Put("txtGs", "2.60");
    jet::Connection project;
    project.Open(open.Files(), std::string(OpenSheet::kProject));
    project.Execute("UPDATE SUMMARY Set sum_gravel=' 20' Where sum_ID=' 1'");
    project.Flush();
    const ProjectTexts job = open.Job();
    const auto found =
        notes::NotesOn(open.Sheet(), laboratory::Describe(terravane::Test::StdSoil), Material::Soil, &job, {});
    const auto note = Find(found, "compaction.oversize");
    ASSERT_NE(note, found.end());
    // 1 / (0.8 / 2.00 + 0.2 / 2.60) = 2.0968
    EXPECT_NE(note->sentence.find("(2.10 g/cm^3 with Gs 2.6)"), std::string::npos) << note->sentence;
}

}  // namespace
}  // namespace terravane
