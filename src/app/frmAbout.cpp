#include "app/frmAbout.h"

namespace terravane {

frmAbout::frmAbout(Program& owner) : Form(owner, "frmAbout", "About Terravane"), program(owner)
{
    cmdClose.Click = [this] { cmdClose_Click(); };
}

}  // namespace terravane
