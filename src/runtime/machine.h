/// What differs from one operating system to the next and is no file: each function has a source a system.
#pragma once

#include <string>
#include <vector>

#include "runtime/dates.h"

namespace terravane {

/// A number that no other process has at the same time.
unsigned long ProcessNumber();

/// The date and time on the wall, to the second.
Moment LocalNow();

/// The name under which the person is logged in, as the system knows it; a name, and no proof of who sits there. Empty
/// where the system has none.
std::string LoginName();

/// What the person typed behind the program's name, in UTF-8. The two parameters are main's.
std::vector<std::string> Arguments(int count, const char* const* texts);

/// The running program's own file.
std::string ProgramFile();

/// What came with the program beside its executables, fonts and guide, with a mark at the end. Need not be there.
std::string ShareFolder();

/// Whether the program was installed, as opposed to built here or carried on a stick: an installed one keeps what it
/// writes in the user's data folder.
bool IsInstalled();

/// The user's folder for what the program keeps, without a mark at the end. Need not be there.
std::string DataFolder();

/// A new folder in the machine's place for temporary files that nobody else can enter: "NAME-Xy3k2c". RuntimeError 75.
std::string MakePrivateFolder(const std::string& name);

/// For programs that are called by others: texts go in and out as bytes, in UTF-8, and no failure, not even a crash,
/// shows a box that waits for a person.
void BecomeTool();

}  // namespace terravane
