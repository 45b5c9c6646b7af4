/// The number of the failure that an action ends in.
#pragma once

#include <string>

#include "runtime/runtime_error.h"

namespace terravane {

/// 0 when nothing fails.
template <typename Action>
int ErrorOf(Action action)
{
    try {
        action();
        return 0;
    } catch (const RuntimeError& failure) {
        return failure.Number();
    }
}

template <typename Action>
std::string DescriptionOf(Action action)
{
    try {
        action();
        return "nothing failed";
    } catch (const RuntimeError& failure) {
        return failure.Description();
    }
}

}  // namespace terravane
