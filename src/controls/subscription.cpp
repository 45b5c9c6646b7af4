#include "controls/subscription.h"

namespace terravane {

Subscription Announcement::Listen(std::function<void()> listener)
{
    auto shared = std::make_shared<std::function<void()>>(std::move(listener));
    listeners_.push_back(shared);
    return Subscription(std::move(shared));
}

void Announcement::Announce()
{
    if (listeners_.empty()) return;
    std::erase_if(listeners_, [](const auto& listener) { return listener.expired(); });
    const auto present = listeners_;  // a listener may add or end others
    for (const auto& weak : present) {
        if (const auto listener = weak.lock()) (*listener)();
    }
}

}  // namespace terravane
