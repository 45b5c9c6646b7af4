#include "runtime/folder_marks.h"

namespace terravane {

const std::string_view kFolderMarks = "/";

}  // namespace terravane
