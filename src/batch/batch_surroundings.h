/// The world outside while nobody sits at the machine: messages are heard and kept, dialogs are answered with the
/// project in hand, the clock stands.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "drawing/display_list.h"
#include "program/surroundings.h"
#include "runtime/dates.h"
#include "runtime/runtime_error.h"

namespace terravane {

class BatchSurroundings : public Surroundings {
  public:
    /// project  what a file dialog is answered with
    BatchSurroundings(std::string project, Moment now) : project_(std::move(project)), now_(now) {}

    /// Names what is being done, for the messages that come of it: "Compaction Curve".
    void During(std::string command) { command_ = std::move(command); }

    /// What went wrong so far, a sentence each: "Compaction Curve: Division by zero".
    const std::vector<std::string>& Troubles() const { return troubles_; }

    /// The pages printed last, of the job that AskPrinter let through.
    const std::vector<DisplayList>& Printed() const { return printed_; }

    MessageAnswer Show(const Message& message) override;
    std::optional<std::string> AskFile(const FileQuestion&) override { return project_; }
    std::optional<PrintTarget> AskPrinter() override;
    Moment Now() const override { return now_; }
    void OpenDocument(const std::string&) override {}
    void Fail(const std::string& event, const RuntimeError& error) override;
    void End() override {}

  private:
    std::string project_, command_;
    Moment now_;
    std::vector<std::string> troubles_;
    std::vector<DisplayList> printed_;
};

}  // namespace terravane
