/// Picture boxes on the screen: what they hold, as vectors, at any scale. The boxes keep their sizes in twips; the view
/// shows them as large as it can in their own proportions.
#pragma once

#include <QWidget>

#include "controls/picture_box.h"
#include "desktop/bindings.h"

namespace terravane {

class PlotView : public QWidget {
  public:
    /// frame  the outer box; plot stands on it where its Left and Top say, and may be nothing
    PlotView(PictureBox& frame, PictureBox* plot, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    PictureBox& frame_;
    PictureBox* plot_;
    Bindings bindings_;
};

}  // namespace terravane
