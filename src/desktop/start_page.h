/// What stands in the frame before a project is open: New, Open, the file of the last time, the sample. The commands
/// are the menu's.
#pragma once

#include <QWidget>

#include "desktop/bindings.h"
#include "program/program.h"

class QPushButton;
class QVBoxLayout;

namespace terravane {

class StartPage : public QWidget {
  public:
    StartPage(Program& program, Form& frame, QWidget* parent);

    /// Stands the page in the upper middle of a room of its parent, as high as it has to be.
    void Settle(const QRect& room);

  private:
    QPushButton* Add(QVBoxLayout& column, const QString& name, const QString& text);
    void AddRecent(QVBoxLayout& column);
    void AddSample(QVBoxLayout& column);
    void Follow();

    Program& program_;
    Form& form_;
    QPushButton* recent_ = nullptr;
    QRect room_;
    Bindings bindings_;
};

}  // namespace terravane
