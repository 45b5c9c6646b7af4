/// One line for what the program says without a box: an icon, a sentence, at most three buttons, a cross. Information
/// leaves by itself, the rest stays until it is answered or settled. It takes no focus by itself.
#pragma once

#include <QFrame>
#include <QTimer>
#include <functional>

#include "controls/subscription.h"
#include "program/notices.h"

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace terravane {

class NoticeBar : public QFrame {
  public:
    /// lead  shows what a notice leads to
    NoticeBar(Notices& notices, std::function<void(const NoticePlace&)> lead, QWidget* parent);

    /// The words of the notice in the bar, with its kind in front, as ears hear it.
    QString Spoken() const;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Follow();
    void Present(const Notice& notice);
    void AddButton(const QString& name, const QString& text, const std::function<void()>& act);
    void ShowDetails(const Notice& notice);
    void ShowSentence();

    Notices& notices_;
    std::function<void(const NoticePlace&)> lead_;
    QLabel* icon_;
    QLabel* sentence_;
    QHBoxLayout* buttons_;
    QToolButton* cross_;
    QTimer leave_;
    QString whole_;  // the sentence; what does not fit is cut with dots
    int number_ = 0;
    Subscription following_;
};

/// All that was said in this run, the latest first, in a window of its own.
void ShowToldNotices(const Notices& notices, QWidget* parent);

}  // namespace terravane
