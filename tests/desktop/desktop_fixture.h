/// The desktop program inside a test: its own home folder, its own answers to what the forms ask, real windows.
#pragma once

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/form_makers.h"
#include "controls/text_grid.h"
#include "desktop/desktop.h"
#include "desktop/qt_surroundings.h"
#include "store/new_stores.h"

namespace terravane {

/// Answers at once what the desktop would ask in a dialog, and keeps what was shown.
class AnsweringSurroundings : public QtSurroundings {
  public:
    explicit AnsweringSurroundings(FileSystem& disk) : QtSurroundings(disk), disk_(disk) {}

    std::deque<std::string> files;             // the next file dialogs' answers; none: cancelled
    std::deque<MessageAnswer> messageAnswers;  // the next message boxes'; none: OK
    std::vector<Message> messages;
    std::vector<RuntimeError> failures;
    std::optional<std::string> printInto;  // where the next print goes; none: cancelled
    bool ended = false;

    MessageAnswer Show(const Message& message) override
    {
        messages.push_back(message);
        if (messageAnswers.empty()) return MessageAnswer::Ok;
        const auto answer = messageAnswers.front();
        messageAnswers.pop_front();
        return answer;
    }

    std::optional<std::string> AskFile(const FileQuestion&) override
    {
        if (files.empty()) return std::nullopt;
        const auto answer = files.front();
        files.pop_front();
        return answer;
    }

    std::optional<PrintTarget> AskPrinter() override;
    void PrintIntoFileNext() override { isForFile = true; }
    Moment Now() const override { return MakeMoment(2026, 11, 21, 12); }
    void OpenDocument(const std::string& path) override { opened = path; }
    void Fail(const std::string&, const RuntimeError& error) override { failures.push_back(error); }
    void End() override { ended = true; }

    std::string opened;
    bool isForFile = false;  // whether the next print was meant for a file, printer or not

  private:
    FileSystem& disk_;
};

/// A running desktop past its splash.
struct DesktopFixture {
    DesktopFixture();

    QTemporaryDir home;
    DiskFileSystem disk;
    AnsweringSurroundings surroundings;
    Program program;
    std::unique_ptr<Desktop> desktop;

    std::string PathOf(const std::string& name) const { return (home.path() + "/").toStdString() + name; }
    Form& FormNamed(const std::string& name) const { return *program.Loaded(name); }
    QWidget* Window(const std::string& form) const { return desktop->WindowOf(FormNamed(form)); }
    /// The widget that shows a control of a form, also on a page that was not looked at yet.
    template <class T = QWidget>
    T* Widget(const std::string& form, const std::string& control) const
    {
        MakePageOf(form, control);
        return Window(form)->findChild<T*>(QString::fromStdString(control));
    }
    void MakePageOf(const std::string& form, const std::string& control) const;
    void PressMenu(const std::string& entry) { FormNamed("mdiBack").Get<MenuEntry>(entry).Press(); }

    /// A new project with its General Data accepted.
    void MakeProject(const std::string& name = "road.mdb");
    void OpenSheet(const std::string& key);
    /// The readings of a standard compaction test, put into the sheet's cells.
    void FillCompaction();
};

}  // namespace terravane
