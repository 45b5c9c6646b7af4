#include "desktop/preview_window.h"

#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>

#include "controls/form.h"
#include "desktop/keys.h"
#include "desktop/looks.h"
#include "desktop/notice_bar.h"
#include "desktop/qt_surroundings.h"
#include "desktop/window_places.h"
#include "desktop/windows.h"
#include "drawing/overruns.h"
#include "render/painter.h"

namespace terravane {

namespace {

constexpr int kShadow = 6;  // pixels, in fading steps
constexpr int kPrintButton = 1;

/// The neighbour of the zoom in force; the page unzoomed counts as the largest.
void StepZoom(ComboBox& scale, int by)
{
    const auto& list = scale.List();
    const auto found = std::ranges::find(list, scale.Text());
    const auto present = found == list.end() ? static_cast<std::ptrdiff_t>(list.size()) - 1 : found - list.begin();
    const auto next = std::clamp<std::ptrdiff_t>(present + by, 0, static_cast<std::ptrdiff_t>(list.size()) - 1);
    scale.Choose(static_cast<std::size_t>(next));
}

}  // namespace

PageView::PageView(Form& preview, QWidget* parent)
    : QWidget(parent), form_(preview), viewport_(preview.Get<PictureBox>("Picture1"))
{
    setAccessibleName(tr("Report page"));
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(480, 320);
    for (const auto* name : {"picView", "picPreview", "Picture1"}) {
        bindings_.push_back(preview.Get<PictureBox>(name).Show([this] { update(); }));
    }
}

void PageView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().mid());
    for (const auto* name : {"picView", "picPreview"}) {
        const auto& page = form_.Get<PictureBox>(name);
        if (page.Visible()) PaintPage(painter, page);
    }
}

void PageView::PaintPage(QPainter& painter, const PictureBox& page)
{
    const double scale = 1 / looks::kTwipsPerPixel;
    const QRectF paper(page.Left * scale, page.Top * scale, page.Width * scale, page.Height * scale);
    for (int step = kShadow; step > 0; --step) {
        painter.fillRect(paper.translated(2, 2).adjusted(-step, -step, step, step), QColor(0, 0, 0, 10));
    }
    painter.fillRect(paper, Qt::white);
    painter.save();
    painter.setClipRect(paper);
    painter.translate(paper.topLeft());
    painter.scale(scale, scale);
    PaintList(painter, *page.Image());
    painter.restore();
}

void PageView::resizeEvent(QResizeEvent*)
{
    if (viewport_.ViewResized) {
        viewport_.ViewResized(width() * looks::kTwipsPerPixel, height() * looks::kTwipsPerPixel);
    }
}

void PageView::wheelEvent(QWheelEvent* event)
{
    const int steps = event->angleDelta().y() > 0 ? 1 : -1;
    if (event->modifiers() & Qt::ControlModifier) return StepZoom(form_.Get<ComboBox>("cboScale"), steps);
    auto& bar = form_.Get<ScrollBar>(event->modifiers() & Qt::ShiftModifier ? "HScroll1" : "VScroll1");
    bar.SetValue(bar.Value() - steps * 900);
}

PreviewWindow::PreviewWindow(Program& program, QtSurroundings& surroundings, Form& preview, QWidget* parent)
    : QDialog(parent), program_(program), surroundings_(surroundings), form_(preview)
{
    setWindowTitle(QString::fromStdString(preview.Caption()));
    setWindowModality(Qt::ApplicationModal);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* bar = new QToolBar(this);
    BuildBar(*bar);
    column->addWidget(bar);
    column->addWidget(new NoticeBar(
        program.notices, [this](const NoticePlace& place) { LeadTo(program_, place); }, this));
    BindKey(*this, Shortcut::Save, [this] { SaveAsPdf(); });
    BindKey(*this, Shortcut::Preview, [this] { form_.Get<Toolbar>("Toolbar1").Press(kPrintButton); });
    auto* pages = new QGridLayout;
    pages->setSpacing(0);
    auto* across = new QScrollBar(Qt::Horizontal, this);
    auto* down = new QScrollBar(Qt::Vertical, this);
    across->setObjectName("HScroll1");
    down->setObjectName("VScroll1");
    pages->addWidget(new PageView(preview, this), 0, 0);
    pages->addWidget(down, 0, 1);
    pages->addWidget(across, 1, 0);
    column->addLayout(pages, 1);
    column->addWidget(MakeStatusLine());
    bindings_.push_back(Bind(preview.Get<ScrollBar>("HScroll1"), *across));
    bindings_.push_back(Bind(preview.Get<ScrollBar>("VScroll1"), *down));
    resize(1000, 680);
    RestorePlace(program, preview, *this);
}

/// Tells which texts of the page in view will be cut or run over others on paper; nothing is there where all fit.
QLabel* PreviewWindow::MakeStatusLine()
{
    auto* status = new QLabel(this);
    status->setObjectName("status");
    status->setContentsMargins(8, 3, 8, 3);
    status->setTextFormat(Qt::PlainText);
    status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto& page = form_.Get<PictureBox>("picView");
    bindings_.push_back(page.Show([&page, status] {
        const std::string told = StatusOf(OverrunsOf(*page.Image()));
        status->setText(QString::fromStdString(told));
        status->setVisible(!told.empty());
    }));
    return status;
}

void PreviewWindow::BuildBar(QToolBar& bar)
{
    bar.setMovable(false);
    bar.setObjectName("Toolbar1");
    bindings_.push_back(Bind(form_.Get<Toolbar>("Toolbar1"), bar));
    auto* pdf = new QToolButton(&bar);
    pdf->setText(tr("Save as PDF"));
    pdf->setAccessibleName(pdf->text());
    pdf->setObjectName("savePdf");
    pdf->setIcon(looks::SignIcon(looks::Sign::Save));
    pdf->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(pdf, &QToolButton::clicked, this, [this] { SaveAsPdf(); });
    bar.addWidget(pdf);
    bar.addSeparator();
    bar.addWidget(new QLabel(PlainCaption(form_.Get<Control>("cboScale")) + "  ", &bar));
    bar.addWidget(MakeScaleBox());
    bar.addSeparator();
    auto& next = form_.Get<CommandButton>("cmdNext");
    auto* turn = new QPushButton(&bar);
    QAction* turning = bar.addWidget(turn);
    bindings_.push_back(Bind(next, *turn));
    bindings_.push_back(next.Show([&next, turning] { turning->setVisible(next.Visible()); }));
    turn->setObjectName("cmdNext");
}

QComboBox* PreviewWindow::MakeScaleBox()
{
    auto& scale = form_.Get<ComboBox>("cboScale");
    auto* box = new QComboBox(this);
    box->setObjectName("cboScale");
    box->setAccessibleName(PlainCaption(scale));
    for (const auto& entry : scale.List()) box->addItem(QString::fromStdString(entry));
    connect(box, &QComboBox::activated, this, [&scale](int index) { scale.Choose(static_cast<std::size_t>(index)); });
    bindings_.push_back(scale.Show([&scale, box] {
        const QSignalBlocker quiet(box);
        box->setCurrentIndex(box->findText(QString::fromStdString(scale.Text())));
    }));
    return box;
}

void PreviewWindow::SaveAsPdf()
{
    surroundings_.PrintIntoFileNext();
    form_.Get<Toolbar>("Toolbar1").Press(kPrintButton);
}

void PreviewWindow::reject()
{
    KeepPlace(program_, form_, *this);
    CloseForm(program_, form_);
}

}  // namespace terravane
