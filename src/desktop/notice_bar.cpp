#include "desktop/notice_bar.h"

#include <QAccessible>
#include <QAccessibleEvent>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QResizeEvent>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <chrono>
#include <cstddef>

#include "desktop/looks.h"
#include "desktop/qt_text.h"

namespace terravane {

namespace {

constexpr std::chrono::seconds kInformationStays{8};
constexpr int kIcon = 18;  // pixels
constexpr std::size_t kMostButtons = 3;

QStyle::StandardPixmap PictureOf(NoticeKind kind)
{
    switch (kind) {
        case NoticeKind::Information:
            return QStyle::SP_MessageBoxInformation;
        case NoticeKind::Attention:
            return QStyle::SP_MessageBoxWarning;
        case NoticeKind::Failure:
            break;
    }
    return QStyle::SP_MessageBoxCritical;
}

QString KindWords(NoticeKind kind)
{
    switch (kind) {
        case NoticeKind::Information:
            return QObject::tr("Information");
        case NoticeKind::Attention:
            return QObject::tr("Attention");
        case NoticeKind::Failure:
            break;
    }
    return QObject::tr("Failure");
}

/// Told to a screen reader without moving the focus.
void Announce(QWidget& bar, const QString& words)
{
    bar.setAccessibleName(words);
    QAccessibleEvent told(&bar, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

}  // namespace

NoticeBar::NoticeBar(Notices& notices, std::function<void(const NoticePlace&)> lead, QWidget* parent)
    : QFrame(parent),
      notices_(notices),
      lead_(std::move(lead)),
      icon_(new QLabel(this)),
      sentence_(new QLabel(this)),
      buttons_(new QHBoxLayout),
      cross_(new QToolButton(this))
{
    setObjectName("noticeBar");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setFixedHeight(looks::kBannerHeight);
    sentence_->setObjectName("noticeSentence");
    sentence_->setTextFormat(Qt::PlainText);
    sentence_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    cross_->setObjectName("noticeClose");
    cross_->setIcon(looks::SignIcon(looks::Sign::Cross));
    cross_->setAutoRaise(true);
    cross_->setToolTip(tr("Close this notice"));
    cross_->setAccessibleName(cross_->toolTip());
    cross_->setFocusPolicy(Qt::TabFocus);
    connect(cross_, &QToolButton::clicked, this, [this] { notices_.Answer(number_); });
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(looks::kMargin, 0, looks::kGap, 0);
    row->setSpacing(looks::kGap);
    row->addWidget(icon_);
    row->addWidget(sentence_, 1);
    row->addLayout(buttons_);
    row->addWidget(cross_);
    leave_.setSingleShot(true);
    connect(&leave_, &QTimer::timeout, this, [this] { notices_.Answer(number_); });
    hide();
    following_ = notices.Show([this] { Follow(); });
    Follow();
}

QString NoticeBar::Spoken() const
{
    return accessibleName();
}

void NoticeBar::Follow()
{
    const Notice* current = notices_.Current();
    if (current && current->number == number_) return;
    leave_.stop();
    number_ = current ? current->number : 0;
    if (!current) return hide();
    Present(*current);
    if (current->kind == NoticeKind::Information) leave_.start(kInformationStays);
    show();
    raise();
    Announce(*this, KindWords(current->kind) + ": " + whole_);
}

void NoticeBar::Present(const Notice& notice)
{
    icon_->setPixmap(looks::StandardIcon(PictureOf(notice.kind)).pixmap(kIcon, kIcon));
    icon_->setAccessibleName(KindWords(notice.kind));
    icon_->setToolTip(KindWords(notice.kind));
    whole_ = ToQt(notice.sentence);
    sentence_->setToolTip(whole_);
    sentence_->setAccessibleName(whole_);
    while (QLayoutItem* old = buttons_->takeAt(0)) {
        old->widget()->hide();
        old->widget()->deleteLater();  // it may be the one that is pressed
        delete old;
    }
    const std::size_t room = kMostButtons - (notice.details.empty() ? 0 : 1);
    std::size_t count = 0;
    if (notice.place.IsGiven()) {
        ++count;
        AddButton("noticeLead", tr("Show the place"), [this, place = notice.place] { lead_(place); });
    }
    for (const NoticeAction& action : notice.actions) {
        if (++count > room) break;
        AddButton("noticeAction", ToQt(action.caption), [this, act = action.act, number = notice.number] {
            notices_.Answer(number);
            act();
        });
    }
    if (!notice.details.empty()) AddButton("noticeDetails", tr("Details"), [this, notice] { ShowDetails(notice); });
    ShowSentence();
}

void NoticeBar::AddButton(const QString& name, const QString& text, const std::function<void()>& act)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, act);
    buttons_->addWidget(button);
}

/// A leaf below the bar, closed by a click or a key anywhere.
void NoticeBar::ShowDetails(const Notice& notice)
{
    auto* leaf = new QFrame(this, Qt::Popup);
    leaf->setAttribute(Qt::WA_DeleteOnClose);
    leaf->setObjectName("noticeLeaf");
    leaf->setFrameShape(QFrame::StyledPanel);
    leaf->setAccessibleName(tr("Details"));
    auto* column = new QVBoxLayout(leaf);
    auto* words = new QLabel(ToQt(notice.sentence + "\n\n" + notice.details), leaf);
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    words->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    words->setMinimumWidth(std::min(640, width() - 2 * looks::kMargin));
    column->addWidget(words);
    leaf->adjustSize();
    leaf->move(mapToGlobal(QPoint(width() - leaf->width(), height())));
    leaf->show();
    words->setFocus();
}

void NoticeBar::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    ShowSentence();
}

void NoticeBar::ShowSentence()
{
    layout()->activate();
    sentence_->setText(sentence_->fontMetrics().elidedText(whole_, Qt::ElideRight, sentence_->width()));
}

void ShowToldNotices(const Notices& notices, QWidget* parent)
{
    auto* window = new QDialog(parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setObjectName("toldNotices");
    window->setWindowTitle(QObject::tr("Notices"));
    auto* column = new QVBoxLayout(window);
    auto* list = new QListWidget(window);
    list->setAccessibleName(window->windowTitle());
    list->setWordWrap(true);
    for (const Notice& notice : notices.Told()) {
        const std::string time = Format(notice.at, "hh:mm");
        list->insertItem(0, ToQt(time) + "  " + KindWords(notice.kind) + ": " + ToQt(notice.sentence));
    }
    if (list->count() == 0) list->addItem(QObject::tr("Nothing was said yet."));
    list->setCurrentRow(0);
    column->addWidget(list);
    window->resize(720, 360);
    window->show();
}

}  // namespace terravane
