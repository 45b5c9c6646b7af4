#include "script/script_surroundings.h"

#include <array>

#include "render/pdf.h"
#include "runtime/machine.h"
#include "runtime/paths.h"

namespace terravane {

namespace {

constexpr std::string_view kCancel = "cancel";

/// What may be answered to a box, and what an unanswered one is taken for.
struct BoxAnswers {
    MessageButtons buttons;
    std::array<MessageAnswer, 2> answers;
    MessageAnswer unanswered;
};

constexpr std::array kBoxAnswers{
    BoxAnswers{MessageButtons::Ok, {MessageAnswer::Ok, MessageAnswer::Ok}, MessageAnswer::Ok},
    BoxAnswers{MessageButtons::OkCancel, {MessageAnswer::Ok, MessageAnswer::Cancel}, MessageAnswer::Cancel},
    BoxAnswers{MessageButtons::YesNo, {MessageAnswer::Yes, MessageAnswer::No}, MessageAnswer::No},
};

MessageAnswer AnswerOf(MessageButtons buttons, std::string_view queued)
{
    const BoxAnswers* box = kBoxAnswers.data();
    while (box->buttons != buttons) ++box;
    for (const MessageAnswer answer : box->answers) {
        if (NameOf(answer) == queued) return answer;
    }
    return box->unanswered;
}

}  // namespace

ScriptSurroundings::ScriptSurroundings(FileSystem& files, AnswerWriter& answers, std::optional<Moment> now)
    : files_(files), answers_(answers), now_(now)
{}

/// A question nobody answers is cancelled.
std::string ScriptSurroundings::NextAnswer()
{
    if (queue_.empty()) return std::string(kCancel);
    std::string answer = std::move(queue_.front());
    queue_.pop_front();
    return answer;
}

MessageAnswer ScriptSurroundings::Show(const Message& message)
{
    const bool isQuestion = message.buttons != MessageButtons::Ok;
    const auto answer = AnswerOf(message.buttons, isQuestion ? NextAnswer() : std::string());
    answers_.Write(MessageAnswered(message, answer));
    return answer;
}

std::optional<std::string> ScriptSurroundings::AskFile(const FileQuestion& question)
{
    const std::string answer = NextAnswer();
    answers_.Write(DialogAnswered(question.title, question.kind == FileDialogKind::Save ? "save" : "open", answer));
    if (answer == kCancel) return std::nullopt;
    return FullPath(answer);
}

std::optional<PrintTarget> ScriptSurroundings::AskPrinter()
{
    const std::string answer = NextAnswer();
    answers_.Write(DialogAnswered("Print", "print", answer));
    if (answer == kCancel) return std::nullopt;
    return [this, path = FullPath(answer)](std::span<const DisplayList> pages, const std::string& title) {
        WritePdf(files_, path, pages, PdfDocument{title, Now(), {}});
    };
}

Moment ScriptSurroundings::Now() const
{
    return now_ ? *now_ : LocalNow();
}

void ScriptSurroundings::Fail(const std::string&, const RuntimeError& error)
{
    hasFailed_ = true;
    answers_.Write(ErrorAnswer(error, line_));
}

}  // namespace terravane
