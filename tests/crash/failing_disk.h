/// The system's calls, made to fail one by one. The test program is linked so that every open, write, fsync... of the
/// program under test comes here first (CMakeLists.txt: --wrap).
#pragma once

#include <functional>
#include <string_view>

namespace terravane::support {

/// What becomes of a call.
enum class Fault {
    Fails,         // once, with the error number
    KeepsFailing,  // it and all later ones of its kind
    Halves,        // a write that takes half of the bytes and succeeds
    Dies,          // the process is killed before the call
    DiesBehind,    // ... when the call has returned
    ComesLate,     // `meanwhile` happens first, then the call as it is
};

/// The calls that a save makes: "open", "read", "write", "fchmod", "fsync", "rename", "flock".
struct ArmedFault {
    std::string_view call;
    int number = 0;  // which of them, from 1
    Fault fault = Fault::Fails;
    int error = 0;  // errno
    std::function<void()> meanwhile = nullptr;
};

/// From now on; the calls are counted anew.
void Arm(const ArmedFault& fault);
/// No call fails any more; whether the fault came to pass.
bool Disarm();

}  // namespace terravane::support
