// The three logos: shown, chosen, put into the brand folder. A picture is taken by what is in it: the folder's names
// end in .jpg whatever was chosen.
#include <algorithm>

#include "app/frmPreferences.h"
#include "store/brand_pictures.h"

namespace terravane {

const frmPreferences::Logo frmPreferences::kInstitute{kInstituteLogo, &frmPreferences::imgBrand1,
                                                      &frmPreferences::picIns, &frmPreferences::cmdLogo1};
const frmPreferences::Logo frmPreferences::kDepartment{kDepartmentLogo, &frmPreferences::imgBrand2,
                                                       &frmPreferences::picDep, &frmPreferences::cmdLogo2};
const frmPreferences::Logo frmPreferences::kCover{kCoverLogo, &frmPreferences::imgBrand3, &frmPreferences::picCover,
                                                  &frmPreferences::cmdLogo3};

void frmPreferences::LoadLogo(const Logo& logo)
{
    ShowPicture(logo, LoadPicture(program.Files(), program.BrandFolder + std::string(logo.file)));
}

/// As large as the box takes it in its own proportions, in the middle.
void frmPreferences::ShowPicture(const Logo& logo, const std::shared_ptr<const Picture>& picture)
{
    PictureBox& box = this->*logo.box;
    const double scale = std::min(box.Width / picture->width, box.Height / picture->height);
    const double width = picture->width * scale, height = picture->height * scale;
    (this->*logo.image).SetContent(picture);
    box.Cls();
    box.PaintPicture(picture, (box.Width - width) / 2, (box.Height - height) / 2, width, height);
    box.Changed();
}

/// Only shows the picture. One that can't be read changes nothing: the path of the one before stays with its logo.
void frmPreferences::ChoosePicture(const Logo& logo)
{
    ComDialog.DialogTitle = "Select Picture";
    ComDialog.Filter = "Picture(*.bmp;*.ico;*.jpg;*.gif)|*.bmp;*.ico;*.jpg;*.gif";
    ComDialog.FilterIndex = 2;  // behind the only entry: the last one is meant
    ComDialog.CancelError = true;
    try {
        ComDialog.ShowOpen();
    } catch (const RuntimeError& error) {
        if (error.Number() == error::kDialogCancelled) return;
        throw;
    }
    const auto picture = LoadPicture(program.Files(), ComDialog.FileName);
    txtLogo.SetText(ComDialog.FileName);
    ShowPicture(logo, picture);
    (this->*logo.change).SetEnabled(true);
}

void frmPreferences::ChangeLogo(const Logo& logo)
{
    program.Files().Copy(txtLogo.Text(), program.BrandFolder + std::string(logo.file));
    ChangeNames();
}

}  // namespace terravane
