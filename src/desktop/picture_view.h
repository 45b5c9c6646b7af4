/// A picture box that shows one picture: its drawing on a checked ground, so that a white picture has an edge.
#pragma once

#include <QWidget>

#include "controls/picture_box.h"
#include "desktop/bindings.h"

namespace terravane {

class PictureView : public QWidget {
  public:
    PictureView(PictureBox& box, const QString& name, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    PictureBox& box_;
    Bindings bindings_;
};

}  // namespace terravane
