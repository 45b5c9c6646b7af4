#include "app/frmTitle.h"

#include "app/mdiBack.h"

namespace terravane {

frmTitle::frmTitle(Program& owner) : Form(owner, "frmTitle", "Terravane", WindowKind::Splash), program(owner) {}

void frmTitle::ShowFrame() const
{
    program.Unload(Name());
    program.Show(kFrameName);
}

}  // namespace terravane
