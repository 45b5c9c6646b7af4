/// The main window and the sheets in it: menu, the row of tools, the strip, the notices, the area of sheets.
#pragma once

#include <QMainWindow>
#include <QMdiSubWindow>
#include <QPointer>
#include <functional>

#include "desktop/form_view.h"
#include "desktop/windows.h"
#include "notes/notes_watch.h"
#include "program/next_command.h"
#include "program/program.h"

class QHBoxLayout;
class QLabel;
class QMdiArea;
class QMenu;
class QToolBar;

namespace terravane {

class Journal;
class NoticeBar;
class SheetWindow;
class StartPage;

class FrameWindow : public SettledWindow<QMainWindow> {
  public:
    FrameWindow(Program& program, Journal& journal, notes::NotesWatch& watch, Form& frame);

    /// Puts a sheet into the area.
    QWidget* ShowSheet(Form& sheet);
    /// The sheet that is open; nullptr where none is.
    SheetWindow* OpenSheet() const;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void KeepTitle();
    void BuildMenu();
    void BuildViewMenu();
    void AddHistoryPanel(Journal& journal);
    void AddNotesPanel();
    void BuildTools(QWidget& content);
    void BuildStrip(QWidget& content);
    void BuildKeys();
    void FollowProject();

    Program& program_;
    Form& form_;
    notes::NotesWatch& watch_;
    QMdiArea* area_ = nullptr;
    QHBoxLayout* tools_ = nullptr;
    QLabel* project_ = nullptr;
    NoticeBar* notices_ = nullptr;
    StartPage* start_ = nullptr;
    Bindings bindings_;
};

/// A test sheet: its bar in the frame's row of tools, its view, its status bar.
class SheetWindow : public QMdiSubWindow {
  public:
    SheetWindow(Program& program, Form& sheet);
    ~SheetWindow() override;

    /// Makes what stands in the window. It waits until the window stands in its area: moved there full, all of it would
    /// be styled twice.
    /// tools  the frame's row, which the sheet's bar joins
    void Fill(QHBoxLayout& tools);
    /// Ends all traffic of the bar with the form, and takes it out of the row.
    void TakeBarAway();

    /// A page of the sheet was made, which happens when it is first looked at.
    std::function<void()> PageMade;

    void Save();
    /// Presses the command that is next, on its tab.
    void PressNext();
    void Preview();
    /// The next tab that is not shut, or the one before.
    void TurnTab(int by);
    /// Closes the sheet where nothing would be lost; else says so.
    void CloseUnlessUnsaved();
    /// A text was put back, or brought again.
    void Restored(const Control& control) { Typed(control); }
    /// Stands the focus where typing goes on.
    void FocusFirstEmpty();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void AddChip();
    void Typed(const Control& control);
    void CommandPressed(Control& command);
    void ShowNext();
    void FollowNotices();

    Program& program_;
    Form& form_;
    FormView* view_ = nullptr;
    QPointer<QToolBar> bar_;
    NextCommand next_;
    bool holdsUnsaved_ = false;
    int noticesSeen_ = 0;
    Bindings bindings_;
};

}  // namespace terravane
