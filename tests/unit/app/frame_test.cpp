// The frame's furniture and its start and end.
#include <gtest/gtest.h>

#include "app/frmAbout.h"
#include "app/frmTitle.h"
#include "unit/app/app_bench.h"

namespace terravane::testing {
namespace {

struct EntryLine {
    std::string name, caption, parent;
    bool operator==(const EntryLine&) const = default;
};

std::ostream& operator<<(std::ostream& out, const EntryLine& line)
{
    return out << line.parent << '/' << line.name << " \"" << line.caption << '"';
}

TEST(Frame, MenuTreeStandsInItsOrder)
{
    AppBench bench;
    std::vector<EntryLine> lines;
    for (const Control* control : bench.ShowFrame().Controls()) {
        if (const auto* entry = dynamic_cast<const MenuEntry*>(control)) {
            lines.push_back({entry->Name(), entry->Caption(), entry->Parent()});
        }
    }
    const std::vector<EntryLine> expected{
        {"mnuFile", "File", ""},
        {"mnuNew", "New File", "mnuFile"},
        {"mnuOpen", "Open File", "mnuFile"},
        {"mnuDash1", "-", "mnuFile"},
        {"mnuAs", "Save File As...", "mnuFile"},
        {"mnuTo", "Save File To...", "mnuFile"},
        {"mnuD1", "-", "mnuFile"},
        {"mnuSum", "Overall Results", "mnuFile"},
        {"mnuD", "-", "mnuFile"},
        {"mnuRecent", "", "mnuFile"},
        {"mnuDot", "-", "mnuFile"},
        {"mnuExit", "Exit", "mnuFile"},
        {"mnuData", "Setting", ""},
        {"mnuLogoT", "Head Logo and Name", "mnuData"},
        {"mnuLogoC", "Cover Logo and Name", "mnuData"},
        {"mnuDott", "-", "mnuData"},
        {"mnuOpr", "Personnel Name", "mnuData"},
        {"mnuUtility", "Help", ""},
        {"mnuManual", "User's Guide", "mnuUtility"},
        {"mnuDash2", "-", "mnuUtility"},
        {"mnuAbout", "About Terravane", "mnuUtility"},
    };
    EXPECT_EQ(lines, expected);
}

// Of sieve analysis alone the button's key is not the stem of its items.
TEST(Frame, ToolbarOffersEachTestForTwoMaterials)
{
    AppBench bench;
    const std::vector<ToolButton>& buttons = bench.ShowFrame().tbrLab.Buttons();
    ASSERT_EQ(buttons.size(), laboratory::Tests().size());
    for (std::size_t at = 0; at < buttons.size(); ++at) {
        const laboratory::Description& test = *laboratory::Tests()[at];
        const std::string stem(test.menu);
        EXPECT_EQ(buttons[at].key, stem == "mnuSie" ? "mnuSei" : stem);
        EXPECT_EQ(buttons[at].caption, test.names.button);
        ASSERT_EQ(buttons[at].items.size(), 2U) << stem;
        EXPECT_EQ(buttons[at].items[0].key + " " + buttons[at].items[0].caption, stem + "1 Soil");
        EXPECT_EQ(buttons[at].items[1].key + " " + buttons[at].items[1].caption, stem + "2 Crushed Rock");
    }
}

TEST(Frame, FirstStartIsRedWithoutAMessage)
{
    AppBench bench;
    const mdiBack& frame = bench.ShowFrame();
    EXPECT_EQ(frame.Caption(), "Terravane Program : Version 1.0 -  [Materials for Road Construction]");
    EXPECT_EQ(frame.StatusBar1.BackColor(), (Colour{255, 0, 0}));
    EXPECT_FALSE(frame.tbrLab.Enabled());
    EXPECT_FALSE(frame.mnuRecent.Visible()) << "There is no recent file to show.";
    EXPECT_FALSE(frame.mnuDot.Visible());
    EXPECT_TRUE(bench.surroundings.messages.empty());
    EXPECT_TRUE(bench.surroundings.failures.empty());
    EXPECT_EQ(bench.program.AppFolder, "/home/");
}

TEST(Frame, LaterStartShowsTheLastProjectAndOpensNone)
{
    for (const std::string lineEnd : {"\r\n", "\n", ""}) {
        AppBench bench;
        bench.files.Put("/home/FileRecent.txt", "/jobs/TRVN_a.mdb" + lineEnd);
        const mdiBack& frame = bench.ShowFrame();
        EXPECT_EQ(frame.mnuRecent.Caption(), "/jobs/TRVN_a.mdb");
        EXPECT_TRUE(frame.mnuRecent.Visible());
        EXPECT_TRUE(frame.mnuDot.Visible());
        EXPECT_EQ(bench.program.CurrentProjectPath, "");
        EXPECT_FALSE(frame.tbrLab.Enabled());
        EXPECT_EQ(frame.StatusBar1.BackColor(), kNoProjectColour);
    }
}

// The mark is only appended where it is missing, and the assignment belongs to that.
TEST(Frame, AppFolderStaysEmptyWhereTheApplicationStandsInADriveRoot)
{
    AppBench bench("/home/");
    bench.files.Put("/home/FileRecent.txt", "/jobs/TRVN_a.mdb\r\n");
    EXPECT_EQ(bench.ShowFrame().mnuRecent.Caption(), "") << "The file is looked for in the current folder.";
    EXPECT_EQ(bench.program.AppFolder, "");
}

TEST(Splash, EndsAfterThreeSecondsOrWithAKey)
{
    using End = void (*)(frmTitle&);
    for (const End end : {End([](frmTitle& splash) { splash.Timer1.Tick(); }),
                          End([](frmTitle& splash) { splash.txtLoad.PressKey(Key::Enter); }),
                          End([](frmTitle& splash) { splash.txtLoad.Type("x"); })}) {
        AppBench bench;
        bench.program.Show("frmTitle");
        auto& splash = bench.program.Get<frmTitle>("frmTitle");
        EXPECT_EQ(splash.Timer1.Interval(), std::chrono::seconds(3));
        EXPECT_TRUE(splash.txtLoad.HasFocus());
        end(splash);
        EXPECT_EQ(bench.program.Loaded("frmTitle"), nullptr);
        ASSERT_EQ(bench.program.ShownForms().size(), 1U);
        EXPECT_EQ(bench.program.ShownForms().front().form->Name(), "mdiBack");
    }
}

TEST(Exit, WritesTheProjectAsOneLineAndEnds)
{
    AppBench bench;
    bench.ShowFrame();
    bench.program.CurrentProjectPath = "/jobs/TRVN_ถนน.mdb";
    bench.Press(bench.Frame().mnuExit);
    EXPECT_EQ(bench.RecentFile(), "/jobs/TRVN_ถนน.mdb\r\n");
    EXPECT_TRUE(bench.surroundings.hasEnded);
    EXPECT_EQ(bench.program.Loaded("mdiBack"), nullptr);
}

TEST(Exit, WithoutAProjectLeavesTheRecentFileAsItWas)
{
    AppBench bench;
    bench.files.Put("/home/FileRecent.txt", "/jobs/TRVN_a.mdb\n");
    bench.ShowFrame();
    bench.Press(bench.Frame().mnuExit);
    EXPECT_EQ(bench.RecentFile(), "/jobs/TRVN_a.mdb\n");
    EXPECT_TRUE(bench.surroundings.hasEnded);
}

TEST(Exit, ClosingTheFrameRemembersTheProjectToo)
{
    AppBench bench;
    bench.ShowFrame();
    bench.program.CurrentProjectPath = "/jobs/TRVN_a.mdb";
    bench.program.Run("close", [&] { bench.program.Unload("mdiBack"); });
    EXPECT_EQ(bench.RecentFile(), "/jobs/TRVN_a.mdb\r\n");
    EXPECT_TRUE(bench.surroundings.hasEnded);
}

TEST(Exit, FullDiskIsToldAndKeepsTheFrame)
{
    AppBench bench;
    bench.files.Put("/home/FileRecent.txt", "/jobs/TRVN_a.mdb\r\n");
    bench.ShowFrame();
    bench.program.CurrentProjectPath = "/jobs/TRVN_b.mdb";
    bench.files.FailAtStep(1, error::kDiskFull);
    bench.Press(bench.Frame().mnuExit);
    ASSERT_EQ(bench.surroundings.failures.size(), 1U);
    EXPECT_EQ(bench.surroundings.failures.front().Number(), error::kDiskFull);
    EXPECT_EQ(bench.RecentFile(), "/jobs/TRVN_a.mdb\r\n");
    EXPECT_NE(bench.program.Loaded("mdiBack"), nullptr);
}

TEST(Help, GuideIsSoughtInTheBrandFolderBehindTwoMarks)
{
    for (const std::string path : {"/home", "/home/"}) {
        AppBench bench(path);
        bench.Press(bench.ShowFrame().mnuManual);
        EXPECT_EQ(bench.surroundings.documents, std::vector<std::string>{"/home//BrandList/UserGuide.pdf"});
    }
}

TEST(About, IsModalAndClosesByItsButton)
{
    AppBench bench;
    bench.Press(bench.ShowFrame().mnuAbout);
    EXPECT_EQ(bench.program.ShownForms().back().modality, Modality::Modal);
    auto& about = bench.program.Get<frmAbout>("frmAbout");
    EXPECT_EQ(about.cmdClose.Caption(), "Close");
    about.cmdClose.Press();
    EXPECT_EQ(bench.program.Loaded("frmAbout"), nullptr);
}

struct ResultsForm : Form {
    explicit ResultsForm(Program& program) : Form(program, "frmSummary", "Overall Results") {}
    void Form_Load() override { throw RuntimeError(error::kFileNotFound); }
};

TEST(OverallResults, AnyErrorEndsTheCommandWithoutAWord)
{
    AppBench bench;
    bench.program.AddForm("frmSummary", [](Program& owner) { return std::make_unique<ResultsForm>(owner); });
    bench.Press(bench.ShowFrame().mnuSum);
    EXPECT_TRUE(bench.surroundings.messages.empty());
    EXPECT_TRUE(bench.surroundings.failures.empty());
    EXPECT_EQ(bench.program.Loaded("frmSummary"), nullptr);
}

struct PreferencesForm : Form {
    explicit PreferencesForm(Program& program) : Form(program, "frmPreferences", "Preferences") {}
    TabControl sstPreference{*this, "sstPreference", {"Head", "Cover", "Personnel"}};
    int tabAtShow = -1;
    void Form_Activate() override { tabAtShow = sstPreference.Tab(); }
};

TEST(Preferences, EachEntryShowsItsTabModally)
{
    AppBench bench;
    bench.program.AddForm("frmPreferences", [](Program& owner) { return std::make_unique<PreferencesForm>(owner); });
    mdiBack& frame = bench.ShowFrame();
    int tab = 0;
    for (MenuEntry* entry : {&frame.mnuLogoT, &frame.mnuLogoC, &frame.mnuOpr}) {
        bench.Press(*entry);
        EXPECT_EQ(bench.program.Get<PreferencesForm>("frmPreferences").tabAtShow, tab++);
        EXPECT_EQ(bench.program.ShownForms().back().modality, Modality::Modal);
        bench.program.Unload("frmPreferences");
    }
}

}  // namespace
}  // namespace terravane::testing
