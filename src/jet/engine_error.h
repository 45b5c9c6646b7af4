/// The numbers and sentences of what the database engine refuses. They reach the person at the machine as
/// they stand.
#pragma once

#include <string>

#include "runtime/runtime_error.h"

namespace terravane::jet {

namespace engine {
inline constexpr int kFile = -2147467259;    // no database, a damaged one, or one that can't be changed safely
inline constexpr int kSyntax = -2147217900;  // a statement that can't be read or names something that exists
inline constexpr int kNoSuchTable = -2147217865;
inline constexpr int kNoSuchColumn = -2147217904;
inline constexpr int kTextTooLong = -2147217833;
inline constexpr int kTypeMismatch = -2147217913;
inline constexpr int kNoCurrentRecord = 3021;
inline constexpr int kPathNotValid = 3044;
inline constexpr int kDatabaseExists = 3204;
inline constexpr int kItemNotFound = 3265;
}  // namespace engine

/// A file whose bytes contradict each other; `what` is a sentence without its full stop.
inline RuntimeError Damaged(const std::string& what)
{
    return RuntimeError(engine::kFile, "The database is damaged: " + what + ".");
}

/// A change that would need more than this engine keeps up; `what` is a whole sentence.
inline RuntimeError Refused(const std::string& what)
{
    return RuntimeError(engine::kFile, what);
}

}  // namespace terravane::jet
