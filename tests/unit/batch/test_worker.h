/// Work for the tests of worker processes: by name, since a worker may be this program started anew.
#pragma once

#include <string>
#include <string_view>

namespace terravane {

/// The argument that makes this test program a worker.
inline constexpr std::string_view kWorkerArgument = "--worker";

/// "square 7" is 49, "letters 0" five million letters, "crash-at-three 3" the end.
std::string TestWork(const std::string& request);

}  // namespace terravane
