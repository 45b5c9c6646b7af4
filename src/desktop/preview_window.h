/// "Report Preview": the page on a neutral ground with a soft shadow, zoom, page turning, print and PDF.
#pragma once

#include <QDialog>

#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/picture_box.h"
#include "controls/text_controls.h"
#include "desktop/bindings.h"
#include "program/program.h"

class QComboBox;
class QLabel;

namespace terravane {

class QtSurroundings;

/// The viewport: shows whichever of the two pages is in view, where the form put it.
class PageView : public QWidget {
  public:
    PageView(Form& preview, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    static void PaintPage(QPainter& painter, const PictureBox& page);

    Form& form_;
    PictureBox& viewport_;
    Bindings bindings_;
};

class PreviewWindow : public QDialog {
  public:
    PreviewWindow(Program& program, QtSurroundings& surroundings, Form& preview, QWidget* parent);

    void reject() override;

    /// Asks for a file and prints the report into it, without a printer.
    void SaveAsPdf();

  private:
    void BuildBar(class QToolBar& bar);
    QComboBox* MakeScaleBox();
    QLabel* MakeStatusLine();

    Program& program_;
    QtSurroundings& surroundings_;
    Form& form_;
    Bindings bindings_;
};

}  // namespace terravane
