#include "desktop/grid_view.h"

#include <QAbstractTableModel>
#include <QComboBox>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>

#include "controls/visit_control.h"
#include "desktop/looks.h"

namespace terravane {

namespace {

constexpr int kLeastRowsShown = 4;
constexpr int kMostRowsUnscrolled = 12;
constexpr int kLeastColumnWidth = 56;
constexpr int kUnbroken = 4000;  // room for any title in one line

bool IsMerged(const TextGrid& grid, int column)
{
    return grid.MergeCells == Merging::Free && grid.MergeCol(column);
}

bool HoldsTitles(const TextGrid& grid, int column)
{
    return (column == 0 && grid.TitleColumns() > 0) || IsMerged(grid, column);
}

/// The titles of merged groups are as quiet as calculated cells: there are two columns of them.
QPalette::ColorRole GroundOf(const TextGrid& grid, int row, int column)
{
    if (row < grid.HeadRows()) return QPalette::Midlight;
    if (grid.IsCalculated(row, column) || IsMerged(grid, column)) return QPalette::Button;
    return HoldsTitles(grid, column) ? QPalette::Midlight : QPalette::Base;
}

/// Whether a row is the first of those that the first column tells as one.
bool BeginsGroup(const TextGrid& grid, int row)
{
    return row > 0 && IsMerged(grid, 0) && grid.AreaOf(row, 0).row == row;
}

/// The editor of that kind that floats over the grid, if any.
template <class Editor>
Editor* EditorOver(TextGrid& grid)
{
    const auto editors = ControlsOf<Editor>(grid.Owner());
    const auto found = std::ranges::find_if(editors, [&grid](Editor* editor) { return &editor->Grid() == &grid; });
    return found == editors.end() ? nullptr : *found;
}

/// Heads in the palette's mid-light, calculated cells in the button face with quieter ink, thin lines.
class CellPainter : public QStyledItemDelegate {
  public:
    CellPainter(const TextGrid& grid, QObject* parent) : QStyledItemDelegate(parent), grid_(grid) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QPalette& palette = option.palette;
        const bool head = index.row() < grid_.HeadRows() || HoldsTitles(grid_, index.column());
        const bool calculated = grid_.IsCalculated(index.row(), index.column());
        painter->fillRect(option.rect, palette.color(GroundOf(grid_, index.row(), index.column())));
        QColor ink = palette.color(QPalette::Active, head || calculated ? QPalette::ButtonText : QPalette::Text);
        if (calculated) ink.setAlphaF(0.85F);
        painter->setPen(ink);
        const bool isTitle = index.column() == 0 && grid_.TitleColumns() > 0 && !IsMerged(grid_, 0);
        const int side = isTitle ? Qt::AlignLeft : Qt::AlignHCenter;
        const int margin = isTitle ? 6 : 2;
        const int wrap = head && !isTitle ? Qt::TextWordWrap : 0;
        painter->drawText(option.rect.adjusted(margin, 0, -margin, 0), side | Qt::AlignVCenter | wrap,
                          index.data().toString());
        if (BeginsGroup(grid_, index.row())) {
            const QRect top(option.rect.topLeft(), QSize(option.rect.width(), 1));
            painter->fillRect(top, palette.color(QPalette::Mid));
        }
    }

  private:
    const TextGrid& grid_;
};

}  // namespace

/// The grid's texts as Qt's views ask for them.
class GridModel : public QAbstractTableModel {
  public:
    GridModel(TextGrid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid), rows_(grid.Rows()) {}

    int rowCount(const QModelIndex& = {}) const override { return rows_; }
    int columnCount(const QModelIndex& = {}) const override { return grid_.Columns(); }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid() || index.row() >= grid_.Rows()) return {};
        const std::string& text = std::as_const(grid_)(index.row(), index.column());
        if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) return QString::fromStdString(text).trimmed();
        return {};
    }

    Qt::ItemFlags flags(const QModelIndex&) const override { return Qt::ItemIsEnabled; }

    /// True where the number of rows is another than before.
    bool Refresh()
    {
        if (rows_ == grid_.Rows()) {
            emit dataChanged(index(0, 0), index(rows_ - 1, grid_.Columns() - 1));
            return false;
        }
        beginResetModel();
        rows_ = grid_.Rows();
        endResetModel();
        return true;
    }

  private:
    TextGrid& grid_;
    int rows_;
};

GridView::GridView(TextGrid& grid, QWidget* parent)
    : QTableView(parent),
      grid_(grid),
      model_(new GridModel(grid, this)),
      editor_(EditorOver<CellEditor>(grid)),
      listEditor_(EditorOver<ListCellEditor>(grid))
{
    horizontalHeader()->hide();
    verticalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(kLeastColumnWidth);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setTabKeyNavigation(false);
    setFrameShape(QFrame::StyledPanel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerItem);  // a grid never shows half a row
    if (editor_) MakeEditorBox();
    if (listEditor_) MakeEditorList();
    bindings_.push_back(grid.Show([this] {
        if (model_->Refresh() && model()) DistributeRoom();
        ShowMerged();
        ShowEditors();
    }));
}

/// Cells that merge stand as one, their text in its middle.
void GridView::ShowMerged()
{
    if (!model() || grid_.MergeCells == Merging::Never) return;
    clearSpans();
    for (int row = 0; row < grid_.Rows(); ++row) {
        for (int column = 0; column < grid_.Columns(); ++column) {
            const CellArea area = grid_.AreaOf(row, column);
            if (area.row != row || area.column != column || area.rows * area.columns == 1) continue;
            setSpan(row, column, area.rows, area.columns);
        }
    }
}

void GridView::MakeEditorBox()
{
    box_ = new QLineEdit(viewport());
    box_->setAlignment(Qt::AlignHCenter);
    KeepAlignedToBaseline(*box_);
    box_->setStyleSheet("QLineEdit { border: 2px solid palette(highlight); padding: 0px; }");
    box_->setAccessibleName(QObject::tr("Cell"));
    box_->hide();
    connect(box_, &QLineEdit::textEdited, this, [this](const QString& text) { editor_->Type(text.toStdString()); });
    bindings_.push_back(editor_->Show([this] { ShowEditors(); }));
}

void GridView::MakeEditorList()
{
    list_ = new QComboBox(viewport());
    list_->hide();
    bindings_.push_back(Bind(*listEditor_, *list_));
    list_->lineEdit()->setAlignment(Qt::AlignHCenter);
    list_->setAccessibleName(QObject::tr("Cell"));
    list_->setObjectName(QString::fromStdString(listEditor_->Name()));
    bindings_.push_back(listEditor_->Show([this] { ShowEditors(); }));
}

/// Over the current cell, or hidden; false where it is hidden.
bool GridView::PlaceEditor(QWidget& view, const Control& editor)
{
    if (!editor.Visible()) {
        const bool had = view.hasFocus();
        view.hide();
        if (had) setFocus(Qt::OtherFocusReason);
        return false;
    }
    const QModelIndex cell = model_->index(grid_.Row(), grid_.Column());
    scrollTo(cell);
    horizontalScrollBar()->setValue(0);  // columns share the width: there is nothing to scroll to at the side
    view.setGeometry(visualRect(cell));
    view.show();
    if (editor.HasFocus() && !view.hasFocus()) view.setFocus(Qt::OtherFocusReason);
    return true;
}

/// The list's text is its binding's.
void GridView::ShowEditors()
{
    if (list_) PlaceEditor(*list_, *listEditor_);
    if (!box_ || !PlaceEditor(*box_, *editor_)) return;
    ShowText(*box_, editor_->Text());
    if (editor_->SelectAllRequests() != selectRequestsSeen_) box_->selectAll();
    selectRequestsSeen_ = editor_->SelectAllRequests();
}

/// Layouts ask for the same sizes many times over, and breaking texts into lines is slow.
QSize GridView::TextSize(const std::string& text, int room) const
{
    const auto [known, isNew] = textSizes_.try_emplace({text, room});
    if (isNew) {
        const auto shown = QString::fromStdString(text).trimmed();
        known->second = fontMetrics().boundingRect(QRect(0, 0, room, 1000), Qt::TextWordWrap, shown).size();
    }
    return known->second;
}

/// Until the cells are there, of the width that new columns have.
int GridView::CurrentWidth(int column) const
{
    return std::max(kLeastColumnWidth, model() ? columnWidth(column) : horizontalHeader()->defaultSectionSize());
}

int GridView::MinimumRowHeight(int row) const
{
    int height = looks::kGridRowHeight;
    if (row >= grid_.HeadRows()) return height;
    for (int column = 0; column < grid_.Columns(); ++column) {
        height = std::max(height, TextSize(std::as_const(grid_)(row, column), CurrentWidth(column) - 4).height() + 8);
    }
    return height;
}

QSize GridView::SizeFor(int mostRows) const
{
    int height = 2 * frameWidth();
    for (int row = 0; row < std::min(grid_.Rows(), mostRows); ++row) height += MinimumRowHeight(row);
    return {kLeastColumnWidth * grid_.Columns() + (grid_.TitleColumns() > 0 ? 2 * kLeastColumnWidth : 0), height};
}

QSize GridView::minimumSizeHint() const
{
    return SizeFor(kLeastRowsShown);
}

QSize GridView::sizeHint() const
{
    if (grid_.MergeCells == Merging::Never) return SizeFor(kMostRowsUnscrolled);
    double width = 0;
    for (int column = 0; column < grid_.Columns(); ++column) width += grid_.ColumnWidth(column) / looks::kTwipsPerPixel;
    return SizeFor(grid_.Rows()).expandedTo({static_cast<int>(width), 0});
}

void GridView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) textSizes_.clear();
    QTableView::changeEvent(event);
}

/// Qt makes much of a table's cells, and many a grid stands on a tab that is not looked at.
void GridView::AttachModel()
{
    setModel(model_);
    setItemDelegate(new CellPainter(grid_, this));
    ShowMerged();
    executeDelayedItemsLayout();  // else a timer does it after the first painting, which then comes twice
}

/// The first one comes when the view is first seen.
void GridView::resizeEvent(QResizeEvent* event)
{
    if (!model()) AttachModel();
    QTableView::resizeEvent(event);
    DistributeRoom();
    ShowEditors();
}

/// The width of a column, of what is left for it and those behind it: by the widths that the form gave its columns,
/// where it gave all of them one; else evenly.
int GridView::ColumnShare(int column, int left) const
{
    double sum = 0;
    for (int other = column; other < grid_.Columns(); ++other) {
        if (grid_.ColumnWidth(other) == 0) return left / (grid_.Columns() - column);
        sum += grid_.ColumnWidth(other);
    }
    return static_cast<int>(left * grid_.ColumnWidth(column) / sum);
}

int GridView::TitleWidth(int column) const
{
    int width = 0;
    for (int row = 0; row < grid_.Rows(); ++row) {
        width = std::max(width, TextSize(std::as_const(grid_)(row, column), kUnbroken).width() + 20);
    }
    return width;
}

/// The headers keep quiet meanwhile: what they tell, Qt's table takes up one by one, after the next painting, and
/// paints again.
void GridView::DistributeRoom()
{
    {
        const QSignalBlocker quietAcross(horizontalHeader()), quietDown(verticalHeader());
        DistributeWidth();
        DistributeHeight();
    }
    const int width = viewport()->width();
    updateGeometries();
    if (viewport()->width() != width) updateGeometries();  // a scroll bar came or went, and all was shared anew
    viewport()->update();
}

/// Titles as wide as they need, the other columns share the rest; rows of equal height fill the view.
void GridView::DistributeWidth()
{
    const int rows = grid_.Rows();
    int left = viewport()->width();
    for (int column = 0; column < grid_.Columns(); ++column) {
        const int asked = HoldsTitles(grid_, column) ? TitleWidth(column) : ColumnShare(column, left);
        const int width = std::max(kLeastColumnWidth, asked);
        setColumnWidth(column, width);
        left -= width;
    }
    int least = 0;
    for (int row = 0; row < rows; ++row) least += MinimumRowHeight(row);
    const bool headsAlone = grid_.HeadRows() == rows;  // are never scrolled; rows may come later
    setMinimumHeight(headsAlone ? least + 2 * frameWidth() : 0);
    setMaximumHeight(headsAlone ? least + 2 * frameWidth() : QWIDGETSIZE_MAX);
}

/// The rows that have room share what is left of it, so that none stands there by half.
void GridView::DistributeHeight()
{
    const int rows = grid_.Rows();
    int spare = viewport()->height(), shown = 0;
    while (shown < rows && spare >= MinimumRowHeight(shown)) spare -= MinimumRowHeight(shown++);
    const int even = spare / std::max(1, shown), most = looks::kGridRowHeight / 2;
    for (int row = 0; row < rows; ++row) {
        const bool takesRest = even < most && row < spare - even * shown;  // the pixels that do not divide
        setRowHeight(row, MinimumRowHeight(row) + std::min(even, most) + (takesRest ? 1 : 0));
    }
}

void GridView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex cell = indexAt(event->pos());
    if (!cell.isValid()) return;
    if (event->button() == Qt::LeftButton) grid_.PressMouse(MouseButton::Left, cell.row(), cell.column());
    if (event->button() == Qt::RightButton) grid_.PressMouse(MouseButton::Right, cell.row(), cell.column());
}

/// The Tab key enters a grid as a press on its first cell would.
void GridView::focusInEvent(QFocusEvent* event)
{
    QTableView::focusInEvent(event);
    const bool byKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (!byKey || !editor_) return;
    const CellRange range = editor_->Range();
    grid_.PressMouse(MouseButton::Left, range.firstRow, range.firstColumn);
}

void GridView::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    for (QWidget* editor : {static_cast<QWidget*>(box_), static_cast<QWidget*>(list_)}) {
        if (editor && editor->isVisible()) editor->setGeometry(visualRect(model_->index(grid_.Row(), grid_.Column())));
    }
}

}  // namespace terravane
