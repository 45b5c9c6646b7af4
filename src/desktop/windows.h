/// The windows around the forms' views: the frame with its area of sheets, sheets, dialogs, the splash.
#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QMainWindow>
#include <QMdiSubWindow>

#include "desktop/form_view.h"
#include "program/program.h"

class QMdiArea;

namespace terravane {

/// Asks the program to take a form away, as the form's title bar does.
void CloseForm(Program& program, const Form& form);

/// A window that is painted when its layouts have settled. A change is told from layout to layout, outwards, an event a
/// step, and Qt would paint the steps.
template <class Window>
class SettledWindow : public Window {
  public:
    using Window::Window;

  protected:
    bool event(QEvent* event) override
    {
        constexpr int kMostSteps = 16;  // deeper than windows are nested
        if (event->type() == QEvent::UpdateRequest) {
            for (int step = 0; step < kMostSteps; ++step) {
                QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            }
        }
        return Window::event(event);
    }
};

/// The main window: menu, the two bands, the area of sheets.
class FrameWindow : public SettledWindow<QMainWindow> {
  public:
    FrameWindow(Program& program, Form& frame);

    /// Puts a sheet into the area.
    QWidget* ShowSheet(Form& sheet);

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void KeepTitle();
    void BuildMenu();
    void BuildBands();

    Program& program_;
    Form& form_;
    QMdiArea* area_;
    Bindings bindings_;
};

/// A test sheet: its toolbar, its view, its status bar.
class SheetWindow : public QMdiSubWindow {
  public:
    SheetWindow(Program& program, Form& sheet);

    /// Makes what stands in the window. It waits until the window stands in its area: moved there full, all of it would
    /// be styled twice.
    void Fill();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    Program& program_;
    Form& form_;
    Bindings bindings_;
};

/// A form of its own above the frame.
class DialogWindow : public SettledWindow<QDialog> {
  public:
    DialogWindow(Program& program, Form& form, Modality modality, QWidget* parent);

    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void ChooseDefault();
    void MoveInto(const QRect& screen, Modality modality);

    Program& program_;
    Form& form_;
};

/// The program's name beside its picture until the time is up or a key is pressed.
class SplashWindow : public QWidget {
  public:
    explicit SplashWindow(Form& form);

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void PaintPicture(QPainter& painter) const;

    Form& form_;
    Bindings bindings_;
};

}  // namespace terravane
