#include "app/frmTitle.h"

#include "app/mdiBack.h"

namespace terravane {

frmTitle::frmTitle(Program& owner) : Form(owner, "frmTitle", "Terravane"), program(owner)
{
    Timer1.Ticked = [this] { Timer1_Timer(); };
    txtLoad.Change = [this] { txtLoad_KeyPress(); };  // a key that types
    txtLoad.KeyPress = [this](Key) {
        txtLoad_KeyPress();
        return true;
    };
}

void frmTitle::ShowFrame()
{
    program.Unload(Name());
    program.Show(kFrameName);
}

}  // namespace terravane
