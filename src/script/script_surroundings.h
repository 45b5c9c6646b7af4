/// The world outside as a script sets it up: answers are queued before they are asked for, and every question
/// is told at the moment it is put.
#pragma once

#include <deque>
#include <optional>
#include <string>

#include "program/surroundings.h"
#include "runtime/file_system.h"
#include "script/answers.h"

namespace terravane {

class ScriptSurroundings : public Surroundings {
  public:
    /// now  the fixed clock of the run; nothing: the machine's
    ScriptSurroundings(FileSystem& files, AnswerWriter& answers, std::optional<Moment> now);

    /// Queues the answer of the next question.
    void QueueAnswer(std::string answer) { queue_.push_back(std::move(answer)); }

    /// The line that runs now, as it is written; errors name it.
    void BeginLine(std::string line) { line_ = std::move(line); }

    bool HasFailed() const { return hasFailed_; }
    bool HasEnded() const { return hasEnded_; }

    /// A message box without a choice is answered "ok" and takes nothing from the queue.
    MessageAnswer Show(const Message& message) override;
    /// The full path of the queued one, told as it was queued.
    std::optional<std::string> AskFile(const FileQuestion& question) override;
    /// The queued answer is the PDF to print into.
    std::optional<PrintTarget> AskPrinter() override;
    Moment Now() const override;
    /// Nothing is opened: a script has no screen.
    void OpenDocument(const std::string&) override {}
    void Fail(const std::string& event, const RuntimeError& error) override;
    void End() override { hasEnded_ = true; }

  private:
    std::string NextAnswer();

    FileSystem& files_;
    AnswerWriter& answers_;
    std::optional<Moment> now_;
    std::deque<std::string> queue_;
    std::string line_;
    bool hasFailed_ = false, hasEnded_ = false;
};

}  // namespace terravane
