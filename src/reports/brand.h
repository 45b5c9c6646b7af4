/// What the reports take from the brand store: the row of names, the pictures, the approver.
#pragma once

#include <memory>
#include <string_view>

#include "drawing/picture.h"
#include "program/program.h"

namespace terravane {

/// Opens the brand store and reads LOGO. What comes back stands at its one row; an empty table fails at the
/// first field that is asked for.
jet::Recordset OpenLogoRow(Program& program);

/// Loads a picture of the brand folder; where the preview is open, its holder of that name keeps it. Error 53
/// names a missing file, 481 one that is no picture.
std::shared_ptr<const Picture> LoadBrandPicture(Program& program, std::string_view holder, std::string_view file);

/// Reads PERSON and leaves the first approver's trimmed name in ApproverName. Where none is found the name
/// stays as it was.
void LoadApproverName(Program& program);

}  // namespace terravane
