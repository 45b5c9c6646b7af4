#include "program/common_dialog.h"

#include "runtime/file_system.h"

namespace terravane {

void CommonDialog::Ask(FileDialogKind kind)
{
    const auto path = surroundings_.AskFile({DialogTitle, kind, Filter, FilterIndex});
    if (path) {
        FileName = *path;
        FileTitle = NameOf(*path);
    } else if (CancelError) {
        throw RuntimeError(error::kDialogCancelled);
    }
}

}  // namespace terravane
