#include "batch/batch_surroundings.h"

namespace terravane {

/// Without a person a question is left at what changes nothing.
MessageAnswer BatchSurroundings::Show(const Message& message)
{
    troubles_.push_back(command_ + ": " + message.text);
    if (message.buttons == MessageButtons::Ok) return MessageAnswer::Ok;
    return message.buttons == MessageButtons::YesNo ? MessageAnswer::No : MessageAnswer::Cancel;
}

std::optional<PrintTarget> BatchSurroundings::AskPrinter()
{
    return
        [this](std::span<const DisplayList> pages, const std::string&) { printed_.assign(pages.begin(), pages.end()); };
}

void BatchSurroundings::Fail(const std::string&, const RuntimeError& error)
{
    troubles_.push_back(command_ + ": " + error.Description());
}

}  // namespace terravane
