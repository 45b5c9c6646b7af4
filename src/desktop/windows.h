/// The windows around the forms' views but for the frame: dialogs, the splash, and what all windows share.
#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>

#include "desktop/form_view.h"
#include "program/program.h"

class QToolBar;

namespace terravane {

/// Asks the program to take a form away, as the form's title bar does.
void CloseForm(Program& program, const Form& form);

/// Shows what a notice leads to: the tab, the box with the focus, the cell with its editor.
void LeadTo(const Program& program, const NoticePlace& place);

/// A bar that stays where it is.
QToolBar* MakeBar(QWidget* parent);

/// Where words end in Thai Qt looks up in a dictionary, which it reads with the first text of such letters; and each
/// letter's shape is made for its first text. That takes some milliseconds: better before a sheet is opened than while
/// it is.
void PreloadGlyphs(const QFont& font);

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
