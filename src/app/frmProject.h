/// General Data: the four headings of a new project file.
#pragma once

#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/text_controls.h"
#include "program/program.h"

namespace terravane {

/// Closed by its title bar it does nothing: the new file then stands with its blank headings.
struct frmProject : Form {
    explicit frmProject(Program& program);

    Program& program;

    Frame fraGeneral{*this, "fraGeneral", "General Data"};
    TextBox txtProject{*this, "txtProject", "Project Name"};  // the order of declaration is the tab order
    TextBox txtLocation{*this, "txtLocation", "Location"};
    TextBox txtID{*this, "txtID", "Task No."};
    TextBox txtClient{*this, "txtClient", "Client Name"};
    CommandButton cmdOK{*this, "cmdOK", "Accept", {.Click = [this] { cmdOK_Click(); }}};

    void Form_Load() override { Top = Height / 2; }
    void Form_Activate() override { txtID.SetFocus(); }
    bool HoldsUnkeptTexts() const override;

    /// Accept: the texts go into the file, the frame turns green, the form closes. Errors of the store, an
    /// apostrophe's and a full disk's among them: then the form stays with its texts.
    void cmdOK_Click() const;
};

}  // namespace terravane
