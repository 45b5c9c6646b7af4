/// How a control tells whoever shows it that something to be seen has changed, without knowing who that is.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace terravane {

/// Ends the listening when it goes away. It may outlive the control and the control may outlive it.
class [[nodiscard]] Subscription {
  public:
    Subscription() = default;
    explicit Subscription(std::shared_ptr<std::function<void()>> listener) : listener_(std::move(listener)) {}

  private:
    std::shared_ptr<std::function<void()>> listener_;
};

/// Everyone who wants to know of one thing. Listeners may come and go while they are being told.
class Announcement {
  public:
    /// Runs the listener at every later Announce, as long as the subscription lives.
    Subscription Listen(std::function<void()> listener);
    void Announce();

  private:
    std::vector<std::weak_ptr<std::function<void()>>> listeners_;
};

}  // namespace terravane
