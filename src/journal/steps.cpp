#include "journal/steps.h"

#include <utility>

namespace terravane {

void Steps::Add(Step step, bool continues)
{
    undone_.clear();
    const bool isSameBox = continues && !done_.empty() && done_.back().IsOneBox() && step.IsOneBox() &&
                           done_.back().Place() == step.Place();
    if (isSameBox) return done_.back().Continue(step);
    done_.push_back(std::move(step));
    if (done_.size() > kMost) done_.pop_front();
}

void Steps::Clear()
{
    done_.clear();
    undone_.clear();
}

const Step* Steps::Undo()
{
    if (done_.empty()) return nullptr;
    undone_.push_back(std::move(done_.back()));
    done_.pop_back();
    undone_.back().Undo();
    return &undone_.back();
}

const Step* Steps::Redo()
{
    if (undone_.empty()) return nullptr;
    done_.push_back(std::move(undone_.back()));
    undone_.pop_back();
    done_.back().Redo();
    return &done_.back();
}

}  // namespace terravane
