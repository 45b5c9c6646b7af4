/// A form of nothing but what a test puts on it; its handlers run as they are and their events are noted.
#pragma once

#include <string>
#include <vector>

#include "controls/form.h"

namespace terravane {

struct NotingBoundary : EventBoundary {
    std::vector<std::string> events;

    void Run(std::string_view event, const std::function<void()>& handler) override
    {
        events.emplace_back(event);
        handler();
    }
};

struct PlainForm : NotingBoundary, Form {
    PlainForm() : Form(static_cast<NotingBoundary&>(*this), "frmPlain", "Plain") {}
};

}  // namespace terravane
