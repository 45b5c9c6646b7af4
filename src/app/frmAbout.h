/// The About box.
#pragma once

#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "program/program.h"
#include "program/version.h"

namespace terravane {

struct frmAbout : Form {
    explicit frmAbout(Program& program);

    Program& program;

    Image imgMark{*this, "imgMark"};
    Image imgRoad{*this, "imgRoad"};
    Label lblName{*this, "lblName", "Terravane"};
    Label lblVersion{*this, "lblVersion", "Version " TERRAVANE_VERSION};
    Label lblInstitution{*this, "lblInstitution", "For laboratories that test road materials"};
    Label lblDepartment{*this, "lblDepartment", "Soil, crushed rock and field control sections"};
    Label lblDeveloper{*this, "lblDeveloper", "Written by the Terravane developers"};
    CommandButton cmdClose{*this, "cmdClose", "Close", {.Click = [this] { cmdClose_Click(); }}};

    void cmdClose_Click() const { program.Unload(Name()); }
};

}  // namespace terravane
