/// The main frame: the menu, the toolbar of the tests and the commands that choose the project file and the
/// test. It holds no test data.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "controls/form.h"
#include "controls/furniture.h"
#include "laboratory/tests.h"
#include "program/common_dialog.h"
#include "program/program.h"

namespace terravane {

inline constexpr std::string_view kFrameName = "mdiBack";

/// The strip under the menu tells whether a project is chosen; once green it stays green.
inline constexpr Colour kNoProjectColour{255, 0, 0};
inline constexpr Colour kProjectColour{50, 205, 50};

/// The banner's ground on a sheet.
inline constexpr Colour kSoilColour{0, 0, 192};
inline constexpr Colour kCrushedRockColour{128, 0, 128};

/// The path of new files and copies: the folder of what was chosen, "TRVN_", its title. The prefix is added
/// also where the title has it already.
std::string ProjectPathFor(std::string_view fileName, std::string_view fileTitle);

struct mdiBack : Form {
    explicit mdiBack(Program& program);

    Program& program;

    MenuEntry mnuFile{*this, "mnuFile", "File"};
    MenuEntry mnuNew{*this, "mnuNew", "New File", "mnuFile", {.Click = [this] { mnuNew_Click(); }}};
    MenuEntry mnuOpen{*this, "mnuOpen", "Open File", "mnuFile", {.Click = [this] { mnuOpen_Click(); }}};
    MenuEntry mnuDash1{*this, "mnuDash1", "-", "mnuFile"};
    MenuEntry mnuAs{*this, "mnuAs", "Save File As...", "mnuFile", {.Click = [this] { mnuAs_Click(); }}};
    MenuEntry mnuTo{*this, "mnuTo", "Save File To...", "mnuFile", {.Click = [this] { mnuTo_Click(); }}};
    MenuEntry mnuD1{*this, "mnuD1", "-", "mnuFile"};
    MenuEntry mnuSum{*this, "mnuSum", "Overall Results", "mnuFile", {.Click = [this] { mnuSum_Click(); }}};
    MenuEntry mnuD{*this, "mnuD", "-", "mnuFile"};
    MenuEntry mnuRecent{*this, "mnuRecent", "", "mnuFile", {.Click = [this] {
                            mnuRecent_Click();
                        }}};                            // its caption is the last project's path
    MenuEntry mnuDot{*this, "mnuDot", "-", "mnuFile"};  // comes and goes with it
    MenuEntry mnuExit{*this, "mnuExit", "Exit", "mnuFile", {.Click = [this] { mnuExit_Click(); }}};
    MenuEntry mnuData{*this, "mnuData", "Setting"};
    MenuEntry mnuLogoT{*this, "mnuLogoT", "Head Logo and Name", "mnuData", {.Click = [this] { mnuLogoT_Click(); }}};
    MenuEntry mnuLogoC{*this, "mnuLogoC", "Cover Logo and Name", "mnuData", {.Click = [this] { mnuLogoC_Click(); }}};
    MenuEntry mnuDott{*this, "mnuDott", "-", "mnuData"};
    MenuEntry mnuOpr{*this, "mnuOpr", "Personnel Name", "mnuData", {.Click = [this] { mnuOpr_Click(); }}};
    MenuEntry mnuUtility{*this, "mnuUtility", "Help"};
    MenuEntry mnuManual{*this, "mnuManual", "User's Guide", "mnuUtility", {.Click = [this] { mnuManual_Click(); }}};
    MenuEntry mnuDash2{*this, "mnuDash2", "-", "mnuUtility"};
    MenuEntry mnuAbout{*this, "mnuAbout", "About Terravane", "mnuUtility", {.Click = [this] { mnuAbout_Click(); }}};

    Frame CoolBar1{*this, "CoolBar1"};  // StatusBar1 in its first band, tbrLab in its second
    StatusBar StatusBar1{*this, "StatusBar1", 0};
    Toolbar tbrLab;  // a drop-down button a test, of an item a material; disabled until a project is chosen

    void Form_Load() override;
    /// The frame closed in any way: the project is remembered and the program ends.
    void Form_Unload() override;

    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuAs_Click();
    void mnuTo_Click() const;
    void mnuSum_Click() const;
    void mnuRecent_Click();
    void mnuExit_Click() const;
    void mnuLogoT_Click() const { ShowPreferences(0); }
    void mnuLogoC_Click() const { ShowPreferences(1); }
    void mnuOpr_Click() const { ShowPreferences(2); }
    void mnuManual_Click() const;
    void mnuAbout_Click() const;
    /// Opens the sheet of an item, "mnuStd1", and fills it from the project file. The sheet that was open is
    /// closed without a question. Errors of the sheet's load and of the store; an unknown key closes only.
    void tbrLab_ButtonMenuClick(std::string_view key);

    /// Opens a project file that was named when the program was started, or opened from the desktop. One that can't be
    /// opened is told in a message and is not remembered.
    void OpenFile(const std::string& path);

    /// Makes the recent entry the current project's.
    void ShowRecentEntry();
    /// The strip turns green and the tests can be opened.
    void ShowProjectChosen();
    void UnloadAllSheets() const;

  private:
    void ReadRecentLine();
    void RememberProject() const;
    void SetRecentCaption(const std::string& path);
    void ChooseProject();
    CommonDialog ProjectDialog(const std::string& title) const;
    bool TakeRecentAsSource() const;
    std::string CopyProject(const std::string& dialogTitle) const;
    void Unload(std::span<const laboratory::Sheet* const> sheets) const;
    void UnloadSheetsOfTests() const;
    void ShowPreferences(int tab) const;
    void ReportFailure(const RuntimeError& error) const;

    std::string recentLine_;  // of FileRecent.txt
};

}  // namespace terravane
