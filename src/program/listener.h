/// What the program announces to rooms of its own that keep a record of it: which forms come and go, which commands
/// run, what reached a project file. The program knows none of them.
#pragma once

#include <string_view>

#include "jet/connection.h"

namespace terravane {

class Form;

class ProgramListener {
  public:
    virtual ~ProgramListener() = default;

    /// A form was made; it has not been loaded yet.
    virtual void FormOpened(Form&) {}
    /// It is gone for the user; its controls live until the running command has ended.
    virtual void FormClosed(Form&) {}
    /// A person set something off: "frmCompaction.cmdCal_Click". Whatever runs until the end belongs to it.
    virtual void CommandBegan(std::string_view /*event*/) {}
    /// What it changed in the stores has reached their files.
    virtual void CommandEnded(std::string_view /*event*/, bool /*hasSucceeded*/) {}
    /// A project file holds other bytes now. Told while the file is still locked, so that what listeners write beside
    /// it stands in the order of the saves. They must not throw.
    virtual void ProjectSaved(const jet::SavedFile&) {}
    /// A new project file is there, made as a copy of `source`; empty: made anew.
    virtual void ProjectMade(std::string_view /*path*/, std::string_view /*source*/) {}
};

}  // namespace terravane
