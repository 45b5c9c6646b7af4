#include "desktop/windows.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/visit_control.h"
#include "desktop/layouts.h"
#include "desktop/looks.h"
#include "desktop/notice_bar.h"
#include "desktop/qt_text.h"
#include "render/painter.h"

namespace terravane {

namespace {

constexpr int kSplashPicture = 240;  // pixels, both ways

}  // namespace

void PreloadGlyphs(const QFont& font)
{
    QString letters;
    for (char16_t letter = u' '; letter <= u'~'; ++letter) letters.append(QChar(letter));
    for (char16_t letter = u'\u0e01'; letter <= u'\u0e4c'; ++letter) letters.append(QChar(letter));
    QImage unseen(1, 1, QImage::Format_RGB32);  // as a window is
    QPainter painter(&unseen);
    for (const QFont& used : {font, looks::Scaled(font, looks::kBannerSize, true)}) {
        painter.setFont(used);
        painter.drawText(QRect(0, 0, 1, 1), Qt::TextWordWrap | Qt::TextDontClip, letters);
    }
}

QToolBar* MakeBar(QWidget* parent)
{
    auto* bar = new QToolBar(parent);
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setIconSize({18, 18});
    return bar;
}

void CloseForm(Program& program, const Form& form)
{
    program.Run(form.Name() + ".Close", [&program, name = form.Name()] { program.Unload(name); });
}

void LeadTo(const Program& program, const NoticePlace& place)
{
    const Form* form = program.Loaded(place.form);
    if (!form) return;
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* view = dynamic_cast<FormView*>(widget);
        if (view && &view->Shown() == form && view->isVisible()) return view->LeadTo(place);
    }
}

DialogWindow::DialogWindow(Program& program, Form& form, Modality modality, QWidget* parent)
    : SettledWindow(parent), program_(program), form_(form)
{
    setWindowTitle(ToQt(form.Caption()));
    if (modality == Modality::Modal) setWindowModality(Qt::ApplicationModal);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(new NoticeBar(
        program.notices, [this](const NoticePlace& place) { LeadTo(program_, place); }, this));
    column->addWidget(new FormView(form, LayoutOf(form.Name()), this));
    const QSize asked(static_cast<int>(form.Width / looks::kTwipsPerPixel),
                      static_cast<int>(form.Height / looks::kTwipsPerPixel));
    resize(sizeHint().expandedTo({480, 200}).expandedTo(asked).boundedTo(screen()->availableSize()));
    MoveInto(screen()->geometry(), modality);
    ChooseDefault();
}

/// A single command is what Enter presses anywhere; of several only the one that has the focus.
void DialogWindow::ChooseDefault()
{
    const auto commands = findChildren<QPushButton*>();
    if (commands.size() == 1) return commands.front()->setDefault(true);
    for (QPushButton* command : commands) command->setAutoDefault(false);
}

/// Enter presses the command that has the focus. Esc closes, but takes nothing away that was typed.
void DialogWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel) && form_.HoldsUnkeptTexts()) return;
    auto* command = qobject_cast<QPushButton*>(focusWidget());
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && command) return command->click();
    QDialog::keyPressEvent(event);
}

/// Half-way across the screen; down it a modal form leaves a third of the room above it, another half its own height.
void DialogWindow::MoveInto(const QRect& screen, Modality modality)
{
    const int above = modality == Modality::Modal ? (screen.height() - height()) / 3 : height() / 2;
    move(screen.left() + (screen.width() - width()) / 2, screen.top() + std::max(0, above));
}

void DialogWindow::reject()
{
    CloseForm(program_, form_);
}

/// A plain window without a frame: to one that calls itself a splash window managers give no keyboard.
SplashWindow::SplashWindow(Form& form) : QWidget(nullptr, Qt::FramelessWindowHint), form_(form)
{
    setWindowTitle(ToQt(form.Caption()));
    setWindowIcon(looks::ProgramIcon());
    setAttribute(Qt::WA_DeleteOnClose, false);
    setFixedSize(560, 320);
    move(screen()->geometry().center() - rect().center());
    for (Timer* timer : ControlsOf<Timer>(form)) bindings_.push_back(Bind(*timer, *new QTimer(this)));
}

void SplashWindow::showEvent(QShowEvent*)
{
    activateWindow();
}

/// Image1 with four lines around it.
void SplashWindow::PaintPicture(QPainter& painter) const
{
    if (!form_.Get<terravane::Image>("Image1").Visible()) return;
    const QRect picture(looks::kMargin * 2, (height() - kSplashPicture) / 2, kSplashPicture, kSplashPicture);
    const DisplayList mark = looks::ProgramMark();
    painter.save();
    painter.translate(picture.topLeft());
    painter.scale(kSplashPicture / mark.width, kSplashPicture / mark.height);
    PaintList(painter, mark);
    painter.restore();
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(picture.adjusted(-looks::kGap, -looks::kGap, looks::kGap, looks::kGap));
}

void SplashWindow::paintEvent(QPaintEvent*)
{
    const auto text = [this](std::string_view label) { return PlainCaption(form_.Get<Label>(label)); };
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    PaintPicture(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setFont(looks::Scaled(font(), 2.6, true));
    painter.drawText(QRect(288, 96, 260, 56), Qt::AlignLeft | Qt::AlignVCenter, text("lblName"));
    painter.setFont(looks::Scaled(font(), 1.1));
    painter.drawText(QRect(288, 152, 260, 28), Qt::AlignLeft | Qt::AlignVCenter, text("lblSubject"));
    painter.setFont(font());
    painter.drawText(QRect(288, 184, 260, 24), Qt::AlignLeft | Qt::AlignVCenter, text("lblVersion"));
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(QRect(288, 256, 260, 24), Qt::AlignLeft | Qt::AlignVCenter, text("lblPress"));
}

void SplashWindow::keyPressEvent(QKeyEvent*)
{
    form_.Get<Control>("txtLoad").PressKey(Key::Enter);
}

}  // namespace terravane
