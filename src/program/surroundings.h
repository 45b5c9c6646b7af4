/// What a form asks of the world outside: messages, dialogs, the clock, paper. The desktop answers with
/// windows, the script runner with queued answers, a test with what it wants to see. These and the disk are
/// all that is replaced.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>

#include "drawing/display_list.h"
#include "runtime/dates.h"
#include "runtime/runtime_error.h"

namespace terravane {

enum class MessageStyle { Plain, Information, Critical, Question };
enum class MessageButtons { Ok, OkCancel, YesNo };
enum class MessageAnswer { Ok, Cancel, Yes, No };

struct Message {
    std::string text;
    std::string title;
    MessageStyle style = MessageStyle::Plain;
    MessageButtons buttons = MessageButtons::Ok;
};

enum class FileDialogKind { Save, Open };

/// filter       "Terravane File(*.mdb)|TRVN*.mdb": what is shown, a bar, the patterns
/// filterIndex  as the forms set it; an index behind the last entry means the last
struct FileQuestion {
    std::string title;
    FileDialogKind kind = FileDialogKind::Open;
    std::string filter;
    int filterIndex = 1;
};

/// Takes the finished pages of a job to paper or into a file; throws RuntimeError 482 or a file error.
using PrintTarget = std::function<void(std::span<const DisplayList> pages, const std::string& title)>;

class Surroundings {
  public:
    virtual ~Surroundings() = default;

    /// Shows a message box and waits.
    virtual MessageAnswer Show(const Message& message) = 0;
    /// Shows a file dialog and waits; the full path, or nothing where the user cancels.
    virtual std::optional<std::string> AskFile(const FileQuestion& question) = 0;
    /// Shows the print dialog and waits; nothing where the user cancels.
    virtual std::optional<PrintTarget> AskPrinter() = 0;
    virtual Moment Now() const = 0;
    /// Opens a document with the program that the machine has for it; nothing is reported where that fails.
    virtual void OpenDocument(const std::string& path) = 0;
    /// Tells of a run-time error that no handler trapped. `event` is what failed,
    /// "frmCompaction.cmdCal_Click".
    virtual void Fail(const std::string& event, const RuntimeError& error) = 0;
    /// The user's "Exit": the program ends when the running command has ended.
    virtual void End() = 0;
};

}  // namespace terravane
