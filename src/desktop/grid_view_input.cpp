// What keys and the mouse do in a grid, and what ears hear of it.
#include <QAccessible>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <utility>

#include "desktop/grid_view.h"

namespace terravane {

void GridView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex cell = indexAt(event->pos());
    if (!cell.isValid()) return;
    if (event->button() == Qt::LeftButton) grid_.PressMouse(MouseButton::Left, cell.row(), cell.column());
    if (event->button() == Qt::RightButton) grid_.PressMouse(MouseButton::Right, cell.row(), cell.column());
}

/// The Tab key enters a grid as a press on its first cell would, Shift+Tab as one on its last.
void GridView::focusInEvent(QFocusEvent* event)
{
    QTableView::focusInEvent(event);
    viewport()->update();
    if (QAccessible::isActive()) QTimer::singleShot(0, this, [this] { SpeakFocus(); });
    if (!editor_) return;
    const CellRange range = editor_->Range();
    if (!CanBeOpened(grid_.Row(), grid_.Column())) grid_.Select(range.firstRow, range.firstColumn);
    if (event->reason() == Qt::TabFocusReason) grid_.PressMouse(MouseButton::Left, range.firstRow, range.firstColumn);
    if (event->reason() == Qt::BacktabFocusReason) ShowCell(range.lastRow, range.lastColumn);
}

void GridView::focusOutEvent(QFocusEvent* event)
{
    QTableView::focusOutEvent(event);
    viewport()->update();
}

bool GridView::IsTyped(int row, int column) const
{
    const auto holds = [&](const auto* editor) { return editor && editor->Range().Holds(row, column); };
    return (holds(editor_) || holds(listEditor_)) && !grid_.IsCalculated(row, column);
}

/// Some cells open something else than the editor, a date its calendar: what a press does there is the form's.
bool GridView::CanBeOpened(int row, int column) const
{
    const bool isPlain = row >= grid_.HeadRows() && !HoldsTitles(grid_, column) && !grid_.IsCalculated(row, column);
    return IsTyped(row, column) || (editor_ && isPlain);
}

void GridView::ShowCell(int row, int column)
{
    if (row < 0 || row >= grid_.Rows() || column < 0 || column >= grid_.Columns()) return;
    if (IsTyped(row, column)) return grid_.PressMouse(MouseButton::Left, row, column);
    if (editor_) editor_->Hide();
    grid_.Select(row, column);
    setFocus(Qt::OtherFocusReason);
    if (model()) scrollTo(CellAt(row, column));
    SpeakCurrent();
    viewport()->update();
}

bool GridView::OpenFirstEmpty()
{
    if (!editor_) return false;
    const CellRange range = editor_->Range();
    for (int column = range.firstColumn; column <= range.lastColumn; ++column) {
        for (int row = range.firstRow; row <= range.lastRow; ++row) {
            const std::string& text = std::as_const(grid_)(row, column);
            if (!IsTyped(row, column) || !QString::fromStdString(text).trimmed().isEmpty()) continue;
            grid_.PressMouse(MouseButton::Left, row, column);
            return true;
        }
    }
    return false;
}

/// Back is the way that Tab came, over what is worked out.
bool GridView::WalkByTab(bool isBack)
{
    if (!editor_ || !editor_->Visible()) return false;
    const int row = grid_.Row(), column = grid_.Column();
    if (!isBack) {
        editor_->PressKey(Key::Tab);
    } else {
        const CellRange range = editor_->Range();
        int backRow = row, backColumn = column;
        do {
            if (--backColumn < range.firstColumn) {
                backColumn = range.lastColumn;
                --backRow;
            }
        } while (backRow >= range.firstRow && grid_.IsCalculated(backRow, backColumn));
        if (backRow >= range.firstRow) grid_.PressMouse(MouseButton::Left, backRow, backColumn);
    }
    if (grid_.Row() != row || grid_.Column() != column) return true;
    editor_->Hide();
    return focusNextPrevChild(!isBack);
}

bool GridView::OpenCurrent()
{
    if (!CanBeOpened(grid_.Row(), grid_.Column())) return false;
    grid_.PressMouse(MouseButton::Left, grid_.Row(), grid_.Column());
    return true;
}

/// To the next typed cell that way.
void GridView::MoveCurrent(int down, int right)
{
    int row = grid_.Row() + down, column = grid_.Column() + right;
    while (row >= 0 && row < grid_.Rows() && column >= 0 && column < grid_.Columns() && !CanBeOpened(row, column)) {
        row += down;
        column += right;
    }
    if (row < 0 || row >= grid_.Rows() || column < 0 || column >= grid_.Columns()) return;
    grid_.Select(row, column);
    scrollTo(CellAt(row, column));
    SpeakCurrent();
    viewport()->update();
}

/// When the grid has taken the focus Qt tells ears of the grid; by then it is a cell or its editor that has it.
void GridView::SpeakFocus()
{
    for (QWidget* editor : {static_cast<QWidget*>(box_), static_cast<QWidget*>(list_)}) {
        if (!editor || !editor->hasFocus()) continue;
        QAccessibleEvent focus(editor, QAccessible::Focus);
        return QAccessible::updateAccessibility(&focus);
    }
    if (hasFocus()) SpeakCurrent();
}

/// Qt tells ears of the cell that it takes for the current one.
void GridView::SpeakCurrent()
{
    if (!model()) return;
    const QModelIndex cell = CellAt(grid_.Row(), grid_.Column());
    selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
}

/// With the grid's own focus, after Esc: arrows move the edge, what types a text or F2 or Enter opens the cell.
void GridView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
        case Qt::Key_Up:
            return MoveCurrent(-1, 0);
        case Qt::Key_Down:
            return MoveCurrent(1, 0);
        case Qt::Key_Left:
            return MoveCurrent(0, -1);
        case Qt::Key_Right:
            return MoveCurrent(0, 1);
        case Qt::Key_F2:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            OpenCurrent();
            return;
        default:
            break;
    }
    const bool isText = !event->text().isEmpty() && event->text().front().isPrint() &&
                        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (!isText || !OpenCurrent()) return event->ignore();
    if (QWidget* box = box_ && box_->isVisible() ? static_cast<QWidget*>(box_) : list_)
        QCoreApplication::sendEvent(box, event);  // the text is selected whole: the key takes its place
}

void GridView::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    for (QWidget* editor : {static_cast<QWidget*>(box_), static_cast<QWidget*>(list_)}) {
        if (editor && editor->isVisible()) editor->setGeometry(visualRect(CellAt(grid_.Row(), grid_.Column())));
    }
}

}  // namespace terravane
