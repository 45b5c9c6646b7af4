/// "Report Preview": the report of the open test drawn at full size on a hidden page, a copy of that page
/// shown at a chosen zoom, and the print command.
#pragma once

#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/picture_box.h"
#include "controls/text_controls.h"
#include "program/program.h"

namespace terravane {

/// The state of a report run stands in the controls: cmdNext's caption tells the page ("Next>>" on page 1,
/// "<<Back" on page 2), cboScale's text tells the surface in view (empty: picView, else picPreview).
struct frmPreview : Form {
    explicit frmPreview(Program& owner);

    Program& program;

    Toolbar Toolbar1{*this,
                     "Toolbar1",
                     {{.key = "mn2", .caption = "Print", .toolTip = "Print the report", .icon = Icon::Print},
                      {.key = "mn3", .caption = "Close", .toolTip = "Close the preview", .icon = Icon::Close}},
                     {.ButtonClick = [this](int number) { Toolbar1_ButtonClick(number); }}};
    ComboBox cboScale{
        *this, "cboScale", "Preview Scale", {"50%", "75%", "100%"}, {.Click = [this] { cboScale_Click(); }}};
    CommandButton cmdNext{*this, "cmdNext", "Next>>", {.Click = [this] { cmdNext_Click(); }}};
    PictureBox Picture1{*this,
                        "Picture1",
                        0,
                        0,
                        11000,
                        7500,  // the viewport
                        {.ViewResized = [this](double width, double height) { ResizeViewport(width, height); }}};
    PictureBox picView{*this, "picView", 0, 0, kA4Short, kA4Long};  // the page
    PictureBox picPreview{*this, "picPreview", 0, 0, 6000, 7000};   // its zoomed copy
    ScrollBar HScroll1{*this, "HScroll1", {.Change = [this] { HScroll1_Change(); }}};
    ScrollBar VScroll1{*this, "VScroll1", {.Change = [this] { VScroll1_Change(); }}};
    Image Image1{*this, "Image1"};  // the pictures loaded last: institute, department, cover
    Image Image2{*this, "Image2"};
    Image Image6{*this, "Image6"};
    Image imgPoint{*this, "imgPoint"};  // holds the hand cursor that Toolbar1 shows under the mouse

    void Form_Load() override;
    void Form_Unload() override;

    void cboScale_Click();
    void cmdNext_Click();
    void HScroll1_Change();
    void VScroll1_Change();
    void Toolbar1_ButtonClick(int number);

    /// The surface in view.
    PictureBox& ShownPage();

    /// A window whose viewport has another size, in twips, tells it here; the page in view is placed anew.
    void ResizeViewport(double width, double height);

  private:
    void ShowFirstPage();
    void ShowSecondPage();
    void ShowPageAtFullSize();
    void BeginPage(bool onItsSide);
    void BringCopyToFront();
    void CopyPage(double width, double height);
    void CentreAcross(PictureBox& page);
    void Place(PictureBox& page);
    void SetScrollMaxima(double width, double height);
    void PrintPages();
    void TellViews();
};

}  // namespace terravane
