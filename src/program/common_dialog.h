/// The common file dialog as the commands know it: set up, shown, and read back.
#pragma once

#include <string>

#include "program/surroundings.h"

namespace terravane {

struct CommonDialog {
    explicit CommonDialog(Surroundings& surroundings) : surroundings_(surroundings) {}

    std::string DialogTitle;
    std::string Filter;  // as in FileQuestion
    int FilterIndex = 1;
    bool CancelError = false;

    /// What the user chose, with its folder and without. They keep what they had where the user cancels.
    std::string FileName;
    std::string FileTitle;

    /// Waits for the user. Error 32755 "Cancel was selected." where the user cancels and CancelError is set.
    void ShowSave() { Ask(FileDialogKind::Save); }
    void ShowOpen() { Ask(FileDialogKind::Open); }

  private:
    void Ask(FileDialogKind kind);

    Surroundings& surroundings_;
};

}  // namespace terravane
