/// The bar that a person watches: how many of how many, how fast, how long still.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace terravane {

class Progress {
  public:
    using Seconds = std::chrono::duration<double>;

    explicit Progress(std::size_t total) : total_(total) {}

    /// Those that an earlier run did take no time and count for no rate.
    void Done(bool wasThere)
    {
        ++done_;
        if (!wasThere) ++worked_;
    }
    std::size_t Count() const { return done_; }

    /// "[#######-------------]  350/1000  35 %  21.4/s  0:31 left" after that time.
    std::string Bar(Seconds elapsed) const;

  private:
    std::size_t total_, done_ = 0, worked_ = 0;
};

}  // namespace terravane
