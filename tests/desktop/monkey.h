/// Random hands on the whole desktop program: real windows, keys and mouse buttons as the window system hands them
/// over, boxes that wait for an answer. A seed gives the same acts again, as far as the clock of the windows allows.
#pragma once

#include <QEventLoop>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "desktop/desktop_fixture.h"

namespace terravane {

/// Half of the boxes are real ones, which the hands have to press away; files are answered as the hands say.
class MonkeySurroundings : public AnsweringSurroundings {
  public:
    using AnsweringSurroundings::AnsweringSurroundings;

    std::function<bool()> showsBox;  // whether the next box is a real one
    std::set<std::string> failures;  // what was told of commands that failed, each once
    std::string unheardOf;           // a failure that no person can bring about

    MessageAnswer Show(const Message& message) override;
    void Fail(const std::string& event, const RuntimeError& error) override;
};

/// The program as its main starts it, in a folder of its own that outlives it.
class MonkeyDesk {
  public:
    explicit MonkeyDesk(DiskFileSystem& disk, const std::string& folder);
    ~MonkeyDesk();

    MonkeySurroundings surroundings;
    Program program;
    std::unique_ptr<Desktop> desktop;

    /// From the splash to the frame, with the project of that path.
    void OpenProject(const std::string& path);
    bool HasForm(std::string_view name) const { return program.Loaded(name) != nullptr; }
    void Press(const std::string& form, const std::string& control);
};

class Monkey : public QObject {
  public:
    /// folder  with a mark at its end: where the files are that it chooses
    Monkey(unsigned seed, std::string folder);

    /// So many acts, or fewer where one of them ended the program. Comes back when nothing waits for an answer any
    /// more.
    void Play(MonkeyDesk& desk, int acts);

    int Acts() const { return acted_; }
    /// What was wrong with the windows, if anything.
    const std::string& Complaint() const { return complaint_; }
    int Pick(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

  private:
    void Expect();
    void Next();
    void Act();
    void Calm();
    void Watch();

    QWidget* TopWindow() const;
    QWidget* PartOf(QWidget& window);
    QPoint PlaceIn(QWidget& window);
    QWindow* KeyWindow() const;

    void ClickSomewhere();
    void DragSomewhere();
    void TurnWheel();
    void PressButton();
    void PressKey();
    void PressShortcut();
    void TypeText();
    void TypeCells();
    void ChooseMenu();
    void OpenSheet();
    void ChangeWindow();
    void ThinkOfFile();

    std::mt19937 random_;
    std::string folder_;
    MonkeyDesk* desk_ = nullptr;
    QEventLoop* loop_ = nullptr;
    int left_ = 0, acted_ = 0;
    int level_ = 0;  // of the loops that wait inside each other, in which the present act runs
    std::string complaint_;
};

}  // namespace terravane
