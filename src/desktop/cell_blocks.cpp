#include "desktop/cell_blocks.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "controls/cell_editor.h"
#include "journal/block.h"

namespace terravane {

namespace {

/// The grid that an event belongs to: its own, its viewport's, its editor's.
GridView* GridOf(QObject* watched)
{
    for (; watched; watched = watched->parent())
        if (auto* view = dynamic_cast<GridView*>(watched)) return view;
    return nullptr;
}

}  // namespace

CellBlocks::CellBlocks(QObject* parent, Journal& journal, std::function<void(const Control&)> changed)
    : QObject(parent), journal_(journal), changed_(std::move(changed))
{
    qApp->installEventFilter(this);
}

bool CellBlocks::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (type == QEvent::Resize && view_ && watched == view_->viewport()) Clear();  // its cells stand elsewhere
    const bool isMouse = type == QEvent::MouseButtonPress || type == QEvent::MouseMove;
    if (!isMouse && type != QEvent::KeyPress) return false;
    GridView* view = watched->isWidgetType() ? GridOf(watched) : nullptr;
    if (!view || &view->Grid().Owner() != journal_.Sheet()) return false;
    const bool isInEditor = qobject_cast<QLineEdit*>(watched) != nullptr;
    if (type == QEvent::KeyPress) return Key(*view, isInEditor, static_cast<QKeyEvent&>(*event));
    if (watched != view->viewport()) return false;
    auto& mouse = static_cast<QMouseEvent&>(*event);
    return type == QEvent::MouseMove ? Drag(*view, mouse) : Press(*view, mouse);
}

/// With Shift the block reaches from the current cell to the one that is pressed; without, it may begin here.
bool CellBlocks::Press(GridView& view, QMouseEvent& event)
{
    const QModelIndex cell = view.indexAt(event.pos());
    if (!cell.isValid() || event.button() != Qt::LeftButton) return false;
    if (event.modifiers() & Qt::ShiftModifier) {
        Extend(view, cell.row(), cell.column());
        return true;
    }
    Clear();
    view_ = &view;
    anchor_ = cell;
    return false;
}

bool CellBlocks::Drag(GridView& view, QMouseEvent& event)
{
    if (!(event.buttons() & Qt::LeftButton) || view_ != &view || !anchor_.isValid()) return false;
    const QModelIndex cell = view.indexAt(event.pos());
    if (!cell.isValid() || (cell == anchor_ && !end_.isValid())) return false;
    Extend(view, cell.row(), cell.column());
    return true;
}

/// Sideways within an open cell Shift marks letters, as in every box.
bool CellBlocks::Key(GridView& view, bool isInEditor, QKeyEvent& event)
{
    struct Way {
        int key, down, right;
    };
    constexpr Way kWays[] = {{Qt::Key_Up, -1, 0}, {Qt::Key_Down, 1, 0}, {Qt::Key_Left, 0, -1}, {Qt::Key_Right, 0, 1}};
    const auto* way = std::ranges::find(kWays, event.key(), &Way::key);
    if (!(event.modifiers() & Qt::ShiftModifier)) {
        if (event.key() != Qt::Key_Control && event.modifiers() == Qt::NoModifier) Clear();
        return false;
    }
    if (way == std::end(kWays) || (isInEditor && way->right != 0)) return false;
    const TextGrid& grid = view.Grid();
    const bool goesOn = view_ == &view && end_.isValid();
    const int row = (goesOn ? end_.row() : grid.Row()) + way->down;
    const int column = (goesOn ? end_.column() : grid.Column()) + way->right;
    if (!goesOn) anchor_ = {};
    Extend(view, std::clamp(row, 0, grid.Rows() - 1), std::clamp(column, 0, grid.Columns() - 1));
    return true;
}

/// What was typed into an open cell and not taken is left, as an arrow key leaves it.
void CellBlocks::Extend(GridView& view, int row, int column)
{
    TextGrid& grid = view.Grid();
    if (view_ != &view || !anchor_.isValid()) anchor_ = view.model()->index(grid.Row(), grid.Column());
    view_ = &view;
    end_ = view.model()->index(row, column);
    HideEditors(grid.Owner());
    view.setFocus();
    view.scrollTo(end_);
    if (!band_) band_ = new QRubberBand(QRubberBand::Rectangle, view.viewport());
    band_->setObjectName("block");
    band_->setGeometry(view.visualRect(anchor_).united(view.visualRect(end_)));
    band_->show();
}

void CellBlocks::Clear()
{
    delete band_;
    anchor_ = end_ = {};
}

bool CellBlocks::HasPlace() const
{
    return Meant().has_value();
}

std::optional<CellBlocks::Marked> CellBlocks::Meant() const
{
    auto* view = GridOf(QApplication::focusWidget());
    if (!view || &view->Grid().Owner() != journal_.Sheet() || !view->Grid().Enabled()) return std::nullopt;
    if (view == view_ && end_.isValid()) {
        const auto [top, bottom] = std::minmax({anchor_.row(), end_.row()});
        const auto [left, right] = std::minmax({anchor_.column(), end_.column()});
        return Marked{view, {top, left, bottom, right}};
    }
    const int row = view->Grid().Row(), column = view->Grid().Column();
    return Marked{view, {row, column, row, column}};
}

void CellBlocks::Copy() const
{
    const auto meant = Meant();
    if (!meant) return;
    QApplication::clipboard()->setText(QString::fromStdString(CopyCells(meant->view->Grid(), meant->block)));
}

void CellBlocks::Cut()
{
    Copy();
    Erase();
}

bool CellBlocks::ClipboardHoldsBlock()
{
    const Block block = ReadBlock(QApplication::clipboard()->text().toStdString());
    return block.size() > 1 || (block.size() == 1 && block.front().size() > 1);
}

void CellBlocks::Paste()
{
    const auto meant = Meant();
    if (!meant) return;
    TextGrid& grid = meant->view->Grid();
    const std::string lines = QApplication::clipboard()->text().toStdString();
    if (lines.empty()) return;
    journal_.Paste(grid, meant->block.firstRow, meant->block.firstColumn, lines);
    Clear();
    changed_(grid);
}

void CellBlocks::Erase()
{
    const auto meant = Meant();
    if (!meant) return;
    journal_.Erase(meant->view->Grid(), meant->block);
    Clear();
    changed_(meant->view->Grid());
}

}  // namespace terravane
