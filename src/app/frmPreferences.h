/// Preferences: the only editor of the brand store, of what belongs to the laboratory and not to a project. The logos
/// and names that head the reports, those of the cover, the persons who test, check and approve.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/cell_editor.h"
#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/list_cell_editor.h"
#include "controls/picture_box.h"
#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "program/common_dialog.h"
#include "program/program.h"
#include "store/schema.h"

namespace terravane {

/// The grid of the persons: a row of heads, a row a person.
namespace person {
inline constexpr int kNumber = 0;
inline constexpr int kName = 1;
inline constexpr int kPosition = 2;
inline constexpr int kColumns = 3;
inline constexpr int kRows = kPersons + 1;
inline constexpr CellRange kNames{1, kPersons, kName, kName};
inline constexpr CellRange kPositions{1, kPersons, kPosition, kPosition};
}  // namespace person

/// The box over the names. Its keys are this form's own and not those of the readings' editors.
class PersonNameEditor : public CellEditor {
  public:
    using CellEditor::CellEditor;
    bool PressKey(Key key) override { return Control::PressKey(key); }
};

struct frmPreferences : Form {
    explicit frmPreferences(Program& program);

    Program& program;

    TabControl sstPreference{*this, "sstPreference", {"Head Logo and Name", "Cover Logo and Name", "Personnel Name"}};

    Frame fraInstitute{*this, "fraInstitute", "Institute"};
    PictureBox picIns{*this, "picIns", 240, 360, kBoxWidth, kBoxHeight};
    Image imgBrand1{*this, "imgBrand1"};
    CommandButton cmdOpen{*this, "cmdOpen", "Open Picture...", {.Click = [this] { cmdOpen_Click(); }}};
    CommandButton cmdLogo1{*this, "cmdLogo1", "Change Logo", {.Click = [this] { cmdLogo1_Click(); }}};
    TextBox txtIsName{*this, "txtIsName", "Name"};
    CommandButton cmdName1{*this, "cmdName1", "Change Name", {.Click = [this] { cmdName1_Click(); }}};

    Frame fraDepartment{*this, "fraDepartment", "Testing Department"};
    PictureBox picDep{*this, "picDep", 240, 360, kBoxWidth, kBoxHeight};
    Image imgBrand2{*this, "imgBrand2"};
    CommandButton cmdOpen1{*this, "cmdOpen1", "Open Picture...", {.Click = [this] { cmdOpen1_Click(); }}};
    CommandButton cmdLogo2{*this, "cmdLogo2", "Change Logo", {.Click = [this] { cmdLogo2_Click(); }}};
    TextBox txtDname{*this, "txtDname", "Name"};
    CommandButton cmdName2{*this, "cmdName2", "Change Name", {.Click = [this] { cmdName2_Click(); }}};

    Frame fraCover{*this, "fraCover", "Cover"};
    PictureBox picCover{*this, "picCover", 240, 360, kBoxWidth, kBoxHeight};
    Image imgBrand3{*this, "imgBrand3"};
    CommandButton cmdOpen2{*this, "cmdOpen2", "Open Picture...", {.Click = [this] { cmdOpen2_Click(); }}};
    CommandButton cmdLogo3{*this, "cmdLogo3", "Change Logo", {.Click = [this] { cmdLogo3_Click(); }}};
    Frame fraInformation{*this, "fraInformation", "Information"};
    TextBox txtCov1{*this, "txtCov1", "Name of Reporter"};
    TextBox txtCov2{*this, "txtCov2", "Second line"};
    TextBox txtCov3{*this, "txtCov3", "Third line"};
    CommandButton cmdName3{*this, "cmdName3", "Change Name", {.Click = [this] { cmdName3_Click(); }}};

    Frame Frame7{*this, "Frame7", "", {.Click = [this] { Frame7_Click(); }}};  // around the grid
    TextGrid mshPerson{*this,
                       "mshPerson",
                       person::kRows,
                       person::kColumns,
                       {.MouseDown = [this](MouseButton button, int row, int column) {
                           if (button == MouseButton::Left) mshPerson_Click(row, column);
                       }}};
    PersonNameEditor txtData{*this,
                             "txtData",
                             mshPerson,
                             [] { return person::kNames; },
                             {},
                             {.KeyPress = [this](Key key) { return txtData_KeyDown(key); }, .GotFocus = [this] { cboList.Hide(); }}};
    ListCellEditor cboList{
        *this,
        "cboList",
        mshPerson,
        person::kPositions,
        {"Tester", "Checker", "Approver"},
        {.KeyPress = [this](Key key) { return cboList_KeyDown(key); }, .GotFocus = [this] { txtData.Hide(); }}};
    CommandButton cmdPerson{*this, "cmdPerson", "Save", {.Click = [this] { cmdPerson_Click(); }}};
    CommandButton cmdClear{*this, "cmdClear", "Clear All", {.Click = [this] { cmdClear_Click(); }}};
    CommandButton cmdDbase{*this, "cmdDbase", "Create DB", {.Click = [this] { cmdDbase_Click(); }}};

    TextBox txtLogo{*this, "txtLogo",
                    "Chosen picture"};  // the path of the picture chosen last, whichever logo it was for
    CommandButton cmdClose{*this, "cmdClose", "Close", {.Click = [this] { cmdClose_Click(); }}};
    CommonDialog ComDialog;

    /// What fails ends the load without a word, and what was not yet filled stays empty: a first start has no brand
    /// store, and the form is where it is made.
    void Form_Load() override;
    /// Names and persons that the store does not have, and a name that is being typed over its cell.
    bool HoldsUnkeptTexts() const override;

    void cmdOpen_Click() { ChoosePicture(kInstitute); }
    void cmdOpen1_Click() { ChoosePicture(kDepartment); }
    void cmdOpen2_Click() { ChoosePicture(kCover); }
    void cmdLogo1_Click() { ChangeLogo(kInstitute); }
    void cmdLogo2_Click() { ChangeLogo(kDepartment); }
    void cmdLogo3_Click() { ChangeLogo(kCover); }
    /// All five names are written, whichever tab the button stands on. Errors of the store, an apostrophe's among them.
    void cmdName1_Click() { ChangeNames(); }
    void cmdName2_Click() { ChangeNames(); }
    void cmdName3_Click() { ChangeNames(); }

    void mshPerson_Click(int row, int column);
    bool txtData_KeyDown(Key key);
    bool cboList_KeyDown(Key key);
    void Frame7_Click();
    /// Stores the fifteen rows, one statement each; refused with a message where two persons approve.
    void cmdPerson_Click();
    /// Empties the grid alone: the store keeps its persons until they are saved.
    void cmdClear_Click();
    /// Makes the brand database; without a word where it is there already.
    void cmdDbase_Click();
    void cmdClose_Click() const { program.Unload(Name()); }

  private:
    static constexpr double kBoxWidth = 3000, kBoxHeight = 3000;  // twips

    /// A logo: its file in the brand folder and the controls that show and change it.
    struct Logo {
        std::string_view file;
        Image frmPreferences::*image;
        PictureBox frmPreferences::*box;
        CommandButton frmPreferences::*change;
    };
    static const Logo kInstitute, kDepartment, kCover;

    void PreparePersonGrid();

    void LoadLogo(const Logo& logo);
    void ShowPicture(const Logo& logo, const std::shared_ptr<const Picture>& picture);
    void ChoosePicture(const Logo& logo);
    void ChangeLogo(const Logo& logo);

    void LoadStore();
    void ConnectStore();
    void Write(std::string statement);
    void LoadNames();
    void ChangeNames();

    void LoadPersons();
    int Approvers() const;
    void OpenEditor(int row, int column);
    void CommitAndGoOn(std::string_view text);
    void HidePersonEditors();

    std::vector<std::string> NamesShown() const;
    std::vector<std::string> PersonsShown() const;
    bool IsTypingPerson() const;

    std::vector<std::string> keptNames_, keptPersons_;  // as the store has them; as shown where it was not read
    bool isConnected_ = false;  // whether the form came as far as its own connection to the store
};

}  // namespace terravane
