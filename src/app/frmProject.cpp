#include "app/frmProject.h"

#include <algorithm>
#include <array>

#include "app/mdiBack.h"
#include "store/statements.h"

namespace terravane {

namespace {

constexpr double kDialogWidth = 6600, kDialogHeight = 3600;  // twips

}  // namespace

frmProject::frmProject(Program& owner) : Form(owner, "frmProject", "General Data"), program(owner)
{
    Width = kDialogWidth;
    Height = kDialogHeight;
}

/// The boxes start empty.
bool frmProject::HoldsUnkeptTexts() const
{
    const auto hasText = [](const TextBox* box) { return !box->Text().empty(); };
    return std::ranges::any_of(std::array{&txtProject, &txtLocation, &txtID, &txtClient}, hasText);
}

void frmProject::cmdOK_Click() const
{
    OpenProjectConnection(program);
    Execute(program, program.ProjectConnection,
            UpdateHead(txtClient.Text(), txtProject.Text(), txtLocation.Text(), txtID.Text()));
    program.FlushStores();  // while the texts still stand here: a disk may refuse them
    program.Get<mdiBack>(kFrameName).ShowProjectChosen();
    program.Unload("frmCBR");
    program.Unload(Name());
}

}  // namespace terravane
