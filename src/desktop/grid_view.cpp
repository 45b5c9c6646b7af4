#include "desktop/grid_view.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "desktop/looks.h"

namespace terravane {

namespace {

constexpr int kLeastRowsShown = 4;
constexpr int kMostRowsUnscrolled = 12;
constexpr int kLeastColumnWidth = 56;

bool IsHead(const TextGrid& grid, int row, int column)
{
    return row < grid.HeadRows() || (column == 0 && grid.TitleColumns() > 0);
}

/// Heads in the palette's mid-light, calculated cells in the button face with quieter ink, thin lines.
class CellPainter : public QStyledItemDelegate {
  public:
    CellPainter(const TextGrid& grid, QObject* parent) : QStyledItemDelegate(parent), grid_(grid) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QPalette& palette = option.palette;
        const bool head = IsHead(grid_, index.row(), index.column());
        const bool calculated = grid_.IsCalculated(index.row(), index.column());
        const auto role = head ? QPalette::Midlight : calculated ? QPalette::Button : QPalette::Base;
        painter->fillRect(option.rect, palette.color(role));
        QColor ink = palette.color(QPalette::Active, head || calculated ? QPalette::ButtonText : QPalette::Text);
        if (calculated) ink.setAlphaF(0.85F);
        painter->setPen(ink);
        const bool isTitle = index.column() == 0 && grid_.TitleColumns() > 0;
        const int side = isTitle ? Qt::AlignLeft : Qt::AlignHCenter;
        const int margin = isTitle ? 6 : 2;
        const int wrap = head && !isTitle ? Qt::TextWordWrap : 0;
        painter->drawText(option.rect.adjusted(margin, 0, -margin, 0), side | Qt::AlignVCenter | wrap,
                          index.data().toString());
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
    bool TakeUp()
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

GridView::GridView(TextGrid& grid, QWidget* parent) : QTableView(parent), grid_(grid), model_(new GridModel(grid, this))
{
    setModel(model_);
    setItemDelegate(new CellPainter(grid, this));
    horizontalHeader()->hide();
    verticalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(kLeastColumnWidth);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setTabKeyNavigation(false);
    setFrameShape(QFrame::StyledPanel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerItem);  // a grid never shows half a row
    if (CellEditor* editor = grid.Editor()) {
        box_ = new QLineEdit(viewport());
        box_->setAlignment(Qt::AlignHCenter);
        box_->setTextMargins(0, 0, 0, 0);
        box_->setStyleSheet("QLineEdit { border: 2px solid palette(highlight); padding: 0px; }");
        box_->setAccessibleName(QObject::tr("Cell"));
        box_->hide();
        connect(box_, &QLineEdit::textEdited, this,
                [editor](const QString& text) { editor->Type(text.toStdString()); });
        bindings_.push_back(editor->Show([this] { ShowEditor(); }));
    }
    bindings_.push_back(grid.Show([this] {
        if (model_->TakeUp()) ShareRoom();
        ShowEditor();
    }));
}

void GridView::ShowEditor()
{
    if (!box_) return;
    CellEditor& editor = *grid_.Editor();
    if (!editor.Visible()) {
        const bool had = box_->hasFocus();
        box_->hide();
        if (had) setFocus(Qt::OtherFocusReason);
        return;
    }
    const QModelIndex cell = model_->index(grid_.Row(), grid_.Column());
    scrollTo(cell);
    horizontalScrollBar()->setValue(0);  // columns share the width: there is nothing to scroll to at the side
    box_->setGeometry(visualRect(cell));
    if (const auto text = QString::fromStdString(editor.Text()); text != box_->text()) box_->setText(text);
    box_->show();
    if (editor.HasFocus() && !box_->hasFocus()) box_->setFocus(Qt::OtherFocusReason);
    if (editor.SelectAllRequests() != selectRequestsSeen_) box_->selectAll();
    selectRequestsSeen_ = editor.SelectAllRequests();
}

int GridView::LeastRowHeight(int row) const
{
    int height = looks::kGridRowHeight;
    if (row >= grid_.HeadRows()) return height;
    for (int column = 0; column < grid_.Columns(); ++column) {
        const QRect room(0, 0, std::max(kLeastColumnWidth, columnWidth(column)) - 4, 1000);
        const auto text = model_->index(row, column).data().toString();
        height = std::max(height, fontMetrics().boundingRect(room, Qt::TextWordWrap, text).height() + 8);
    }
    return height;
}

QSize GridView::SizeFor(int mostRows) const
{
    int height = 2 * frameWidth();
    for (int row = 0; row < std::min(grid_.Rows(), mostRows); ++row) height += LeastRowHeight(row);
    return {kLeastColumnWidth * grid_.Columns() + (grid_.TitleColumns() > 0 ? 2 * kLeastColumnWidth : 0), height};
}

QSize GridView::minimumSizeHint() const
{
    return SizeFor(kLeastRowsShown);
}

QSize GridView::sizeHint() const
{
    return SizeFor(kMostRowsUnscrolled);
}

void GridView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    ShareRoom();
    ShowEditor();
}

/// Titles as wide as they need, the other columns share the rest; rows of equal height fill the view.
void GridView::ShareRoom()
{
    const int columns = grid_.Columns(), rows = grid_.Rows();
    int title = 0;
    if (grid_.TitleColumns() > 0) {
        for (int row = 0; row < rows; ++row) {
            const auto text = model_->index(row, 0).data().toString();
            title = std::max(title, fontMetrics().boundingRect(QRect(0, 0, 4000, 400), 0, text).width() + 20);
        }
        setColumnWidth(0, title);
    }
    const int first = grid_.TitleColumns() > 0 ? 1 : 0;
    int left = viewport()->width() - title;
    for (int column = first; column < columns; ++column) {
        const int width = left / (columns - column);
        setColumnWidth(column, std::max(kLeastColumnWidth, width));
        left -= width;
    }
    int least = 0;
    for (int row = 0; row < rows; ++row) least += LeastRowHeight(row);
    const bool headsAlone = grid_.HeadRows() == rows;  // are never scrolled; rows may come later
    setMinimumHeight(headsAlone ? least + 2 * frameWidth() : 0);
    setMaximumHeight(headsAlone ? least + 2 * frameWidth() : QWIDGETSIZE_MAX);
    const int spare = std::max(0, viewport()->height() - least);
    for (int row = 0; row < rows; ++row) {
        setRowHeight(row, LeastRowHeight(row) + std::min(spare / std::max(1, rows), looks::kGridRowHeight / 2));
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
    if (!byKey || !grid_.Editor()) return;
    const CellRange range = grid_.Editor()->Range();
    grid_.PressMouse(MouseButton::Left, range.firstRow, range.firstColumn);
}

void GridView::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    if (box_ && box_->isVisible()) box_->setGeometry(visualRect(model_->index(grid_.Row(), grid_.Column())));
}

}  // namespace terravane
