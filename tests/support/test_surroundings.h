/// The world outside as a test sets it: answers given beforehand, questions kept for looking at.
#pragma once

#include <deque>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "program/surroundings.h"

namespace terravane::support {

/// A run-time error that no handler trapped.
struct Untrapped {
    std::string event;
    int number;
    std::string description;

    friend bool operator==(const Untrapped&, const Untrapped&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Untrapped& error)
    {
        return out << error.event << ": error " << error.number << " " << error.description;
    }
};

class TestSurroundings : public Surroundings {
  public:
    /// Set by the test.
    Moment now = MakeMoment(2026, 11, 21, 12, 0, 0);
    MessageAnswer answer = MessageAnswer::Ok;
    std::deque<std::optional<std::string>> paths;  // what file dialogs answer; none left: cancelled
    std::optional<PrintTarget> paper;

    /// Looked at by the test.
    std::vector<Message> messages;
    std::vector<FileQuestion> questions;
    std::vector<std::string> opened;
    std::vector<Untrapped> errors;
    bool ended = false;

    MessageAnswer Show(const Message& message) override
    {
        messages.push_back(message);
        return answer;
    }

    std::optional<std::string> AskFile(const FileQuestion& question) override
    {
        questions.push_back(question);
        if (paths.empty()) return std::nullopt;
        auto path = paths.front();
        paths.pop_front();
        return path;
    }

    std::optional<PrintTarget> AskPrinter() override { return paper; }
    Moment Now() const override { return now; }
    void OpenDocument(const std::string& path) override { opened.push_back(path); }

    void Fail(const std::string& event, const RuntimeError& error) override
    {
        errors.push_back({event, error.Number(), error.Description()});
    }

    void End() override { ended = true; }
};

}  // namespace terravane::support
