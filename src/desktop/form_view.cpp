#include "desktop/form_view.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/cell_editor.h"
#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/list_cell_editor.h"
#include "controls/picture_box.h"
#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "controls/visit_control.h"
#include "desktop/appearance.h"
#include "desktop/grid_view.h"
#include "desktop/looks.h"
#include "desktop/picture_view.h"
#include "desktop/plot_view.h"
#include "desktop/qt_text.h"
#include "program/cell_words.h"
#include "program/next_command.h"
#include "render/decoded_pictures.h"

namespace terravane {

namespace {

constexpr int kImageSide = 96;  // pixels

/// Its parts above each other where the height allows it, else beside each other: a screen of 720 lines shows two
/// grids without scrolling, a taller one shows the trials in line.
class PairBox : public QWidget {
  public:
    explicit PairBox(QWidget* parent) : QWidget(parent), box_(new QBoxLayout(QBoxLayout::LeftToRight, this))
    {
        box_->setSizeConstraint(QLayout::SetNoConstraint);
    }

    QBoxLayout* Box() const { return box_; }
    QSize minimumSizeHint() const override { return Beside(&QWidget::minimumSizeHint); }
    QSize sizeHint() const override { return Beside(&QWidget::sizeHint); }

  protected:
    void resizeEvent(QResizeEvent*) override
    {
        int needed = 0;
        for (int i = 0; i < box_->count(); ++i) needed += box_->itemAt(i)->widget()->sizeHint().height() + looks::kGap;
        box_->setDirection(needed <= height() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    }

  private:
    QSize Beside(QSize (QWidget::*hint)() const) const
    {
        QSize size(0, 0);
        for (int i = 0; i < box_->count(); ++i) {
            const QSize part = (box_->itemAt(i)->widget()->*hint)();
            size = {size.width() + part.width() + looks::kGap, std::max(size.height(), part.height())};
        }
        return size;
    }

    QBoxLayout* box_;
};

/// A page of tabs; what a small screen has no room for scrolls. In a sheet, which fills its frame, its size is asked
/// only when it is looked at: a page is measured box by box.
class PageRoom : public QScrollArea {
  public:
    PageRoom(bool fillsFrame, QWidget* parent) : QScrollArea(parent), fillsFrame_(fillsFrame)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        viewport()->setAutoFillBackground(false);
        setFocusPolicy(Qt::NoFocus);
    }

    QSize sizeHint() const override { return fillsFrame_ ? kSheetPage : QScrollArea::sizeHint(); }

  private:
    static constexpr QSize kSheetPage{960, 400};
    bool fillsFrame_;
};

/// A list that never shows half a row.
class WholeRowList : public QListWidget {
  public:
    using QListWidget::QListWidget;

  protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QListWidget::resizeEvent(event);
        const int row = sizeHintForRow(0), room = height() - 2 * frameWidth();
        const int left = row > 0 ? room % row : 0;
        if (viewportMargins().bottom() != left) setViewportMargins(0, 0, 0, left);
    }
};

void Collect(const Place& place, Place::Kind kind, std::vector<const Place*>& into)
{
    if (place.kind == kind) into.push_back(&place);
    for (const Place& part : place.parts) Collect(part, kind, into);
}

QLabel* MakeCaption(const Control& control, QWidget* buddy, QWidget* parent)
{
    auto* label = new QLabel(PlainCaption(control), parent);
    label->setBuddy(buddy);
    return label;
}

}  // namespace

FormView::FormView(Form& form, const Place& layout, QWidget* parent) : QWidget(parent), form_(form)
{
    auto* box = new QVBoxLayout(this);
    const bool hasBanner = !layout.parts.empty() && layout.parts.front().kind == Place::Kind::Banner;
    if (hasBanner)
        box->setContentsMargins(looks::kGap, 0, looks::kGap, 4);
    else
        box->setContentsMargins(looks::kMargin, looks::kMargin, looks::kMargin, looks::kMargin);
    box->setSpacing(looks::kGap);
    box->addWidget(Make(layout, *this), 1);
    for (Timer* timer : ControlsOf<Timer>(form)) {
        bindings_.push_back(Bind(*timer, *new QTimer(this)));
        timer->Tick();  // the clock is right from the start
    }
    placed_ = PlacedControls(layout);
    bindings_.push_back(form.Show([this] { FollowFocus(); }));
}

FormView::~FormView() = default;

void FormView::Unbind()
{
    bindings_.clear();
    controls_.clear();
    frames_.clear();
    views_.clear();
    pages_.clear();
}

QWidget* FormView::MadeViewOf(const Control& control) const
{
    const auto found = views_.find(&control);
    return found == views_.end() ? nullptr : found->second;
}

QWidget* FormView::ViewOf(const Control& control)
{
    for (std::size_t page = 0; page < pages_.size(); ++page)
        if (std::ranges::find(pages_[page].names, control.Name()) != pages_[page].names.end()) FillPage(page);
    return MadeViewOf(control);
}

QWidget* FormView::Make(const Place& place, QWidget& parent)
{
    switch (place.kind) {
        case Place::Kind::Row:
        case Place::Kind::Column:
        case Place::Kind::Fields:
            return MakeBox(place, parent);
        case Place::Kind::Pair:
            return MakePair(place, parent);
        case Place::Kind::Group:
            return MakeGroup(place, parent);
        case Place::Kind::Tabs:
            return MakeTabs(place, parent);
        case Place::Kind::Field:
            return MakeField(place, parent);
        case Place::Kind::Result:
            return MakeResult(place, parent);
        case Place::Kind::Banner:
            return MakeBanner(place, parent);
        case Place::Kind::Plot:
            return MakePlot(place, parent);
        case Place::Kind::Picture:
            return MakePicture(place, parent);
        case Place::Kind::Control: {
            QWidget* view = MakeControl(form_.Get<Control>(place.control), parent);
            if (!place.text.empty()) NameForEars(*view, ToQt(place.text));
            return view;
        }
        case Place::Kind::Space:
            break;
    }
    return new QWidget(&parent);
}

void FormView::Add(QBoxLayout& box, const Place& place)
{
    if (place.kind == Place::Kind::Space) return box.addStretch(place.stretch);
    QWidget* part = Make(place, *box.parentWidget());
    const auto* grid = dynamic_cast<GridView*>(part);
    box.addWidget(part, place.stretch, grid && grid->IsWhole() ? Qt::AlignTop | Qt::AlignLeft : Qt::Alignment());
}

void FormView::AddAll(QBoxLayout& box, const std::vector<Place>& parts)
{
    box.setContentsMargins(0, 0, 0, 0);
    box.setSpacing(box.direction() == QBoxLayout::LeftToRight ? looks::kWideGap : looks::kGap);
    for (const Place& part : parts) Add(box, part);
}

QWidget* FormView::MakeBox(const Place& place, QWidget& parent)
{
    auto* widget = new QWidget(&parent);
    if (place.kind == Place::Kind::Fields) {
        auto* fields = new QFormLayout(widget);
        fields->setContentsMargins(0, 0, 0, 0);
        fields->setSpacing(looks::kGap);
        fields->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        for (const Place& part : place.parts) AddFieldRow(*fields, part);
        return widget;
    }
    const bool isRow = place.kind == Place::Kind::Row;
    auto* box = new QBoxLayout(isRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, widget);
    AddAll(*box, place.parts);
    return widget;
}

QWidget* FormView::MakePair(const Place& place, QWidget& parent)
{
    auto* pair = new PairBox(&parent);
    AddAll(*pair->Box(), place.parts);
    pair->Box()->setSpacing(looks::kGap);
    return pair;
}

void FormView::AddFieldRow(QFormLayout& fields, const Place& place)
{
    auto& control = form_.Get<Control>(place.control);
    QWidget& parent = *fields.parentWidget();
    QWidget* view = MakeControl(control, parent);
    auto* caption = MakeCaption(control, view, &parent);
    if (!place.text.empty()) {
        caption->setText(ToQt(place.text));
        NameForEars(*view, caption->text());
    }
    fields.addRow(caption, view);
}

QWidget* FormView::MakeGroup(const Place& place, QWidget& parent)
{
    auto& frame = form_.Get<Frame>(place.control);
    auto* group = new QGroupBox(PlainCaption(frame), &parent);
    auto* box = new QVBoxLayout(group);
    AddAll(*box, place.parts);
    box->setContentsMargins(looks::kGap, looks::kGap, looks::kGap, looks::kGap);
    bindings_.push_back(BindFurniture(frame, *group));
    const QString caption = PlainCaption(frame);
    if (caption.isEmpty()) group->setAccessibleName(tr("Group"));
    for (auto* list : group->findChildren<QAbstractItemView*>())
        if (!caption.isEmpty()) list->setAccessibleName(caption);
    bindings_.push_back(frame.Show([&frame, group] { group->setTitle(PlainCaption(frame)); }));
    views_[&frame] = group;
    if (frame.Click) {
        frames_[group] = &frame;
        group->installEventFilter(this);
    }
    return group;
}

QWidget* FormView::MakeTabs(const Place& place, QWidget& parent)
{
    auto& control = form_.Get<TabControl>(place.control);
    auto* tabs = new QTabWidget(&parent);
    for (std::size_t i = 0; i < place.parts.size(); ++i) {
        auto* room = new PageRoom(form_.Window() == WindowKind::Sheet, tabs);
        tabs->addTab(room, QString::fromStdString(control.TabCaption(static_cast<int>(i))));
        auto* page = new QWidget(room);
        page->setAutoFillBackground(false);
        room->setWidget(page);
        pages_.push_back({&place.parts[i], page, PlacedControls(place.parts[i])});
        const bool canWait = form_.Window() == WindowKind::Sheet && static_cast<int>(i) != control.Tab();
        if (!canWait) FillPage(pages_.size() - 1);
    }
    connect(tabs, &QTabWidget::currentChanged, this, [this, tabs](int tab) {
        for (std::size_t page = 0; page < pages_.size(); ++page)
            if (auto* room = tabs->widget(tab); room && room->isAncestorOf(pages_[page].page)) FillPage(page);
    });
    bindings_.push_back(BindFurniture(control, *tabs));
    tabs->setAccessibleName(tr("Tabs"));
    bindings_.push_back(Bind(control, *tabs));
    Watch(control, *tabs);
    return tabs;
}

/// The page stands hidden meanwhile: what is made in sight is shown, and laid out, part by part.
void FormView::FillPage(std::size_t number)
{
    auto& [place, page, names, isMade] = pages_[number];
    if (isMade) return;
    isMade = true;
    page->hide();
    auto* box = new QVBoxLayout(page);
    box->setContentsMargins(looks::kGap, looks::kGap, looks::kGap, looks::kGap);
    box->addWidget(Make(*place, *page));
    NamePlots(*place);
    page->show();
    if (PageMade) PageMade();
}

QWidget* FormView::MakeField(const Place& place, QWidget& parent)
{
    auto& control = form_.Get<Control>(place.control);
    auto* widget = new QWidget(&parent);
    auto* box = new QHBoxLayout(widget);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(looks::kGap);
    QWidget* view = MakeControl(control, *widget);
    box->addWidget(MakeCaption(control, view, widget));
    box->addWidget(view, 1);
    if (!place.text.empty()) box->addWidget(new QLabel(ToQt(place.text), widget));
    bindings_.push_back(control.Show([&control, widget] { widget->setVisible(control.Visible()); }));
    return widget;
}

QWidget* FormView::MakeResult(const Place& place, QWidget& parent)
{
    auto& box = form_.Get<TextBox>(place.control);
    auto* widget = new QWidget(&parent);
    auto* column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    QWidget* figure = MakeControl(box, *widget);
    ScaleLetters(*figure, looks::kFigureSize, true);
    auto* caption = MakeCaption(box, figure, widget);
    ScaleLetters(*caption, looks::kCaptionSize);
    column->addWidget(caption);
    auto* row = new QHBoxLayout;
    row->setSpacing(looks::kGap);
    row->addWidget(figure, 1);
    row->addWidget(new QLabel(ToQt(place.text), widget));
    column->addLayout(row);
    return widget;
}

/// The test's Thai and English names in white on the material's colour, on one line.
QWidget* FormView::MakeBanner(const Place& place, QWidget& parent)
{
    auto& box = form_.Get<TextBox>(place.control);
    auto* banner = new QLabel(&parent);
    banner->setAlignment(Qt::AlignCenter);
    ScaleLetters(*banner, looks::kBannerSize, true);
    banner->setMinimumHeight(looks::kBannerHeight);
    banner->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    bindings_.push_back(BindFurniture(box, *banner));
    bindings_.push_back(box.Show([&box, banner] {
        const QString lines = QString::fromStdString(box.Text()).remove('\r');
        banner->setText(QString(lines).replace('\n', "   "));
        banner->setAccessibleName(banner->text());
    }));
    views_[&box] = banner;
    return banner;
}

/// Ears hear a curve by the results that stand beside it: "Curve: OMC 11.2 %, MDD 2.01 g/cm^3".
void FormView::NamePlots(const Place& page)
{
    std::vector<const Place*> plots, results;
    Collect(page, Place::Kind::Plot, plots);
    Collect(page, Place::Kind::Result, results);
    const auto name = [this, plots, results] {
        QStringList words;
        for (const Place* result : results) {
            const auto& box = form_.Get<TextBox>(result->control);
            const QString text = ToQt(box.Text()).trimmed();
            if (!text.isEmpty()) words << (PlainCaption(box) + " " + text + " " + ToQt(result->text)).trimmed();
        }
        for (const Place* plot : plots)
            if (QWidget* view = MadeViewOf(form_.Get<Control>(plot->control)))
                view->setAccessibleName(words.isEmpty() ? tr("Curve, no result yet")
                                                        : tr("Curve: ") + words.join(", "));
    };
    TellWhatDraws(page, plots);
    for (const Place* result : results) bindings_.push_back(form_.Get<TextBox>(result->control).Show(name));
    name();
}

/// Of the commands on the page the one that comes last in the method's order.
void FormView::TellWhatDraws(const Place& page, const std::vector<const Place*>& plots)
{
    const laboratory::Sheet* sheet = SheetOfForm(form_.Name());
    if (!sheet || plots.empty()) return;
    const auto names = PlacedControls(page);
    std::string_view drawing;
    for (const std::string_view command : sheet->commands)
        if (std::ranges::find(names, command) != names.end()) drawing = command;
    if (drawing.empty()) return;
    const QString sentence = tr("%1 draws the curve here").arg(PlainCaption(form_.Get<Control>(drawing)));
    for (const Place* plot : plots) {
        auto* view = dynamic_cast<PlotView*>(MadeViewOf(form_.Get<Control>(plot->control)));
        if (!view) continue;
        view->WaitFor(sentence);
        view->setAccessibleDescription(sentence);
    }
}

QWidget* FormView::MakePlot(const Place& place, QWidget& parent)
{
    auto& frame = form_.Get<PictureBox>(place.control);
    PictureBox* plot = place.text.empty() ? nullptr : &form_.Get<PictureBox>(place.text);
    auto* view = new PlotView(frame, plot, &parent);
    views_[&frame] = view;
    if (plot) views_[plot] = view;
    return view;
}

QWidget* FormView::MakePicture(const Place& place, QWidget& parent)
{
    auto& box = form_.Get<PictureBox>(place.control);
    auto* view = new PictureView(box, ToQt(place.text), &parent);
    views_[&box] = view;
    return view;
}

/// A picture of the control's own, else the program's mark.
QWidget* FormView::MakeImage(Image& image, QWidget& parent)
{
    auto* view = new QLabel(&parent);
    const QImage own = image.Content() ? Decoded(image.Content()) : QImage();
    view->setPixmap(own.isNull() ? looks::ProgramIcon().pixmap(kImageSide, kImageSide)
                                 : QPixmap::fromImage(own.scaled(kImageSide, kImageSide, Qt::KeepAspectRatio,
                                                                 Qt::SmoothTransformation)));
    bindings_.push_back(BindFurniture(image, *view));
    view->setAccessibleName(tr("Picture"));
    views_[&image] = view;
    return view;
}

template <class View, class Kind>
QWidget* FormView::MakeBound(Kind& control, QWidget& parent)
{
    auto* view = new View(&parent);
    bindings_.push_back(BindFurniture(control, *view));
    bindings_.push_back(Bind(control, *view));
    Watch(control, *view);
    return view;
}

/// The widget of a control that stands alone in its place.
struct FormView::WidgetMaker {
    FormView& form;
    QWidget& parent;

    QWidget* operator()(TextBox& box) const { return form.MakeBound<QLineEdit>(box, parent); }
    QWidget* operator()(OneOf<ComboBox, ListCellEditor> auto& combo) const
    {
        return form.MakeBound<QComboBox>(static_cast<ComboBox&>(combo), parent);
    }
    QWidget* operator()(DatePicker& picker) const { return form.MakeBound<QDateEdit>(picker, parent); }
    QWidget* operator()(CommandButton& button) const
    {
        QWidget* view = form.MakeBound<QPushButton>(button, parent);
        QObject::connect(static_cast<QPushButton*>(view), &QPushButton::clicked, &form, [&form = form, &button] {
            if (form.CommandPressed && !form.views_.empty()) form.CommandPressed(button);
        });
        return view;
    }
    QWidget* operator()(OptionButton& option) const { return form.MakeBound<QRadioButton>(option, parent); }
    QWidget* operator()(CheckBox& check) const { return form.MakeBound<QCheckBox>(check, parent); }
    QWidget* operator()(ListBox& list) const
    {
        QWidget* view = form.MakeBound<WholeRowList>(list, parent);
        view->setMinimumHeight(2 * looks::kGridRowHeight);
        return view;
    }
    QWidget* operator()(Label& label) const { return form.MakeBound<QLabel>(label, parent); }
    QWidget* operator()(Image& image) const { return form.MakeImage(image, parent); }
    QWidget* operator()(TextGrid& grid) const { return form.MakeGrid(grid, parent); }
    /// These stand around others, over a grid or in a bar, and those that draw have places of their own.
    QWidget* operator()(OneOf<CellEditor, Frame, MenuEntry, PictureBox, ScrollBar, StatusBar, TabControl, Timer,
                              Toolbar> auto& control) const
    {
        return Fail(control);
    }
    QWidget* Fail(const Control& control) const { form.form_.FailMissing(control.Name()); }
};

QWidget* FormView::MakeControl(Control& control, QWidget& parent)
{
    return VisitControl(WidgetMaker{*this, parent}, control);
}

QWidget* FormView::MakeGrid(TextGrid& grid, QWidget& parent)
{
    auto* view = new GridView(grid, &parent);
    bindings_.push_back(BindFurniture(grid, *view));
    QStringList heads;  // of a grid that no frame names
    for (int column = 0; column < grid.Columns(); ++column) heads << ToQt(ColumnWords(grid, column));
    view->setAccessibleName(heads.join(", "));
    Watch(grid, *view);
    if (view->EditorBox()) Watch(*view->Editor(), *view->EditorBox());
    if (view->EditorList()) Watch(*view->ListEditor(), *view->EditorList());
    return view;
}

}  // namespace terravane
