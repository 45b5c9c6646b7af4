/// The surroundings of the forms as windows: message boxes, the platform's file and print dialogs, the machine's clock.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "program/surroundings.h"
#include "runtime/dates.h"
#include "runtime/file_system.h"
#include "runtime/runtime_error.h"

namespace terravane {

class QtSurroundings : public Surroundings {
  public:
    explicit QtSurroundings(FileSystem& files) : files_(files) {}

    MessageAnswer Show(const Message& message) override;
    std::optional<std::string> AskFile(const FileQuestion& question) override;
    std::optional<PrintTarget> AskPrinter() override;
    Moment Now() const override;
    void OpenDocument(const std::string& path) override;
    /// A box, as long as no window tells failures in its bar.
    void Fail(const std::string& event, const RuntimeError& error) override;
    void End() override;

    /// The next print command asks for a PDF file in place of a printer.
    virtual void PrintIntoFileNext() { intoFile_ = true; }

    /// From here on windows show what the program's notices say of a failure.
    void LeaveFailuresToNotices() { failuresAreNotices_ = true; }
    /// The name that a PDF is proposed, with its folder; asked at each question.
    std::function<std::string()> ProposedPdf;

  private:
    std::optional<PrintTarget> AskPdfFile();

    FileSystem& files_;
    bool intoFile_ = false;
    bool failuresAreNotices_ = false;
};

}  // namespace terravane
