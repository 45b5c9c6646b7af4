/// The steps of a sheet that can be undone, and those that were undone. Memory is bounded: of more than kMost the
/// oldest are forgotten.
#pragma once

#include <cstddef>
#include <deque>
#include <vector>

#include "journal/step.h"

namespace terravane {

class Steps {
  public:
    static constexpr std::size_t kMost = 20'000;

    /// A later step; what was undone before can't come again.
    /// continues  whether it goes on where the last one stopped, letter by letter in one box
    void Add(Step step, bool continues = false);
    void Clear();

    std::size_t Undoable() const { return done_.size(); }
    std::size_t Redoable() const { return undone_.size(); }

    /// The step that was taken back or brought again, which lives until the next Add; nullptr where there is none.
    const Step* Undo();
    const Step* Redo();

  private:
    std::deque<Step> done_;
    std::vector<Step> undone_;
};

}  // namespace terravane
