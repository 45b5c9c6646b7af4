#include "desktop/grid_view.h"

#include <QAbstractTableModel>
#include <QAccessible>
#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTimer>
#include <algorithm>

#include "controls/visit_control.h"
#include "desktop/appearance.h"
#include "desktop/looks.h"
#include "desktop/qt_text.h"
#include "program/cell_words.h"

namespace terravane {

namespace {

bool IsMerged(const TextGrid& grid, int column)
{
    return grid.MergeCells == Merging::Free && grid.MergeCol(column);
}

}  // namespace

bool HoldsTitles(const TextGrid& grid, int column)
{
    return (column == 0 && grid.TitleColumns() > 0) || IsMerged(grid, column);
}

namespace {

constexpr int kLeastRowsShown = 12;
constexpr int kMostRowsUnscrolled = 20;
constexpr int kLeastColumnWidth = 56;
constexpr int kMostColumnWidth = 110;
constexpr double kHeadTint = 0.06, kWorkedOutTint = 0.03, kHairline = 0.16;  // of the ink in the ground
constexpr std::size_t kMostSizesKept = 10000;
constexpr int kUnbroken = 4000;  // room for any title in one line

/// A width that is read at 100 percent, for the letters of today.
int WithLetters(int pixels)
{
    return static_cast<int>(pixels * TextFactor());
}

/// So much of the ink in the ground.
QColor Tinted(const QPalette& palette, double part)
{
    const QColor ground = palette.color(QPalette::Base), ink = palette.color(QPalette::Text);
    const auto mix = [part](float under, float over) {
        return static_cast<float>(under + (over - under) * static_cast<float>(part));
    };
    return QColor::fromRgbF(mix(ground.redF(), ink.redF()), mix(ground.greenF(), ink.greenF()),
                            mix(ground.blueF(), ink.blueF()));
}

/// The titles of merged groups are as quiet as calculated cells: there are two columns of them.
QColor GroundOf(const TextGrid& grid, int row, int column, const QPalette& palette)
{
    if (row < grid.HeadRows()) return Tinted(palette, kHeadTint);
    if (grid.IsCalculated(row, column) || IsMerged(grid, column)) return Tinted(palette, kWorkedOutTint);
    return HoldsTitles(grid, column) ? Tinted(palette, kHeadTint) : palette.color(QPalette::Base);
}

/// Whether a row is the first of those that the first column tells as one.
bool BeginsGroup(const TextGrid& grid, int row)
{
    return row > 0 && IsMerged(grid, 0) && grid.AreaOf(row, 0).row == row;
}

/// What texts need in a font, for all grids of the program.
TextSizes& SizesIn(const QFont& font)
{
    static std::map<QString, TextSizes> sizes;
    return sizes[font.key()];
}

/// The editor of that kind that floats over the grid, if any.
template <class Editor>
Editor* EditorOver(TextGrid& grid)
{
    const auto editors = ControlsOf<Editor>(grid.Owner());
    const auto found = std::ranges::find_if(editors, [&grid](Editor* editor) { return &editor->Grid() == &grid; });
    return found == editors.end() ? nullptr : *found;
}

/// Heads, worked out and typed cells by three tints of one ground, hairlines, a coloured edge around the current cell
/// where the grid has the focus.
class CellPainter : public QStyledItemDelegate {
  public:
    CellPainter(const TextGrid& grid, const QAbstractItemView& view, QObject* parent)
        : QStyledItemDelegate(parent), grid_(grid), view_(view)
    {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QPalette& palette = option.palette;
        painter->fillRect(option.rect, GroundOf(grid_, index.row(), index.column(), palette));
        PaintText(*painter, option.rect, palette, index);
        const QColor line = Tinted(palette, kHairline);
        const QRect& cell = option.rect;
        painter->fillRect(cell.left(), cell.bottom(), cell.width(), 1, line);
        painter->fillRect(cell.right(), cell.top(), 1, cell.height(), line);
        if (BeginsGroup(grid_, index.row()))
            painter->fillRect(cell.left(), cell.top(), cell.width(), 1, palette.color(QPalette::Mid));
        if (IsCurrent(index)) {
            painter->setPen(QPen(palette.color(QPalette::Highlight), 2));
            painter->drawRect(cell.adjusted(1, 1, -1, -1));
        }
    }

  private:
    bool IsCurrent(const QModelIndex& index) const
    {
        return view_.hasFocus() && index.row() == grid_.Row() && index.column() == grid_.Column() &&
               index.row() >= grid_.HeadRows();
    }

    void PaintText(QPainter& painter, const QRect& cell, const QPalette& palette, const QModelIndex& index) const
    {
        const bool head = index.row() < grid_.HeadRows() || HoldsTitles(grid_, index.column());
        QColor ink = palette.color(QPalette::Active, QPalette::Text);
        if (grid_.IsCalculated(index.row(), index.column())) ink.setAlphaF(0.85F);
        painter.setPen(ink);
        const bool isTitle = index.column() == 0 && grid_.TitleColumns() > 0 && !IsMerged(grid_, 0);
        const int side = isTitle ? Qt::AlignLeft : Qt::AlignHCenter;
        const int margin = isTitle ? 6 : 2;
        const int wrap = head && !isTitle ? Qt::TextWordWrap : 0;
        painter.drawText(cell.adjusted(margin, 0, -margin, 0), side | Qt::AlignVCenter | wrap, index.data().toString());
    }

    const TextGrid& grid_;
    const QAbstractItemView& view_;
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
        if (role == Qt::DisplayRole) return QString::fromStdString(text).trimmed();
        if (role == Qt::AccessibleTextRole) return Spoken(index.row(), index.column(), text);
        if (role == Qt::AccessibleDescriptionRole) return KindWords(index.row(), index.column());
        return {};
    }

    /// What ears hear of a row and of a column.
    QVariant headerData(int section, Qt::Orientation across, int role) const override
    {
        if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
        return ToQt(across == Qt::Horizontal ? ColumnWords(grid_, section) : RowWords(grid_, section));
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
    /// Title, column and text of a cell; a title as it stands.
    QString Spoken(int row, int column, const std::string& text) const
    {
        const QString plain = ToQt(PlainWords(text));
        if (row < grid_.HeadRows() || HoldsTitles(grid_, column)) return plain;
        return ToQt(CellWords(grid_, row, column)) + ": " + (plain.isEmpty() ? QObject::tr("empty") : plain);
    }

    QString KindWords(int row, int column) const
    {
        if (row < grid_.HeadRows() || HoldsTitles(grid_, column)) return QObject::tr("title");
        return grid_.IsCalculated(row, column) ? QObject::tr("worked out") : QObject::tr("typed");
    }

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
    horizontalHeader()->setMinimumSectionSize(WithLetters(kLeastColumnWidth));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setTabKeyNavigation(false);
    setFrameShape(QFrame::StyledPanel);
    setShowGrid(false);
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

QModelIndex GridView::CellAt(int row, int column) const
{
    return model_->index(row, column);
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
    box_->setObjectName(QString::fromStdString(editor_->Name()));
    box_->setProperty("isEditor", true);  // named when it stands over a cell
    box_->hide();
    connect(box_, &QLineEdit::textEdited, this, [this](const QString& text) { editor_->Type(text.toStdString()); });
    TakeTextsOfOthers(*box_, *editor_);
    bindings_.push_back(editor_->Show([this] { ShowEditors(); }));
}

void GridView::MakeEditorList()
{
    list_ = new QComboBox(viewport());
    list_->hide();
    bindings_.push_back(Bind(*listEditor_, *list_));
    list_->lineEdit()->setAlignment(Qt::AlignHCenter);
    list_->setProperty("isEditor", true);
    list_->setObjectName(QString::fromStdString(listEditor_->Name()));
    bindings_.push_back(listEditor_->Show([this] { ShowEditors(); }));
}

/// An editor is called what its cell is called.
void GridView::NameEditors()
{
    if (grid_.Row() >= grid_.Rows()) return;
    const QString words = ToQt(CellWords(grid_, grid_.Row(), grid_.Column()));
    for (QWidget* editor : {static_cast<QWidget*>(box_), static_cast<QWidget*>(list_)})
        if (editor && editor->accessibleName() != words) NameForEars(*editor, words);
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
    NameEditors();
    if (list_) PlaceEditor(*list_, *listEditor_);
    if (!box_ || !PlaceEditor(*box_, *editor_)) return;
    ShowText(*box_, editor_->Text());
    if (editor_->SelectAllRequests() != selectRequestsSeen_) box_->selectAll();
    selectRequestsSeen_ = editor_->SelectAllRequests();
}

/// Layouts ask for the same sizes many times over, sheet after sheet, and breaking texts into lines is slow.
QSize GridView::TextSize(const std::string& text, int room) const
{
    if (!textSizes_) textSizes_ = &SizesIn(font());
    if (textSizes_->size() > kMostSizesKept) textSizes_->clear();
    const auto [known, isNew] = textSizes_->try_emplace({text, room});
    if (isNew) {
        const auto shown = QString::fromStdString(text).trimmed();
        known->second = fontMetrics().boundingRect(QRect(0, 0, room, 1000), Qt::TextWordWrap, shown).size();
    }
    return known->second;
}

/// Until the cells are there, of the width that new columns have.
int GridView::CurrentWidth(int column) const
{
    return std::max(WithLetters(kLeastColumnWidth),
                    model() ? columnWidth(column) : horizontalHeader()->defaultSectionSize());
}

int GridView::MinimumRowHeight(int row) const
{
    int height = std::max(looks::kGridRowHeight, fontMetrics().height() + looks::kGap);
    if (row >= grid_.HeadRows()) return height;
    for (int column = 0; column < grid_.Columns(); ++column) {
        height = std::max(height, TextSize(std::as_const(grid_)(row, column), CurrentWidth(column) - 4).height() + 8);
    }
    return height;
}

bool GridView::IsWhole() const
{
    if (grid_.MergeCells != Merging::Never) return false;
    for (int column = 0; column < grid_.Columns(); ++column)
        if (grid_.ColumnWidth(column) == 0) return true;
    return false;
}

/// The titles' own width, and how many columns share the rest.
int GridView::TitlesWidth() const
{
    int width = 0;
    for (int column = 0; column < grid_.Columns(); ++column)
        if (HoldsTitles(grid_, column)) width += std::max(WithLetters(kLeastColumnWidth), TitleWidth(column));
    return width;
}

QSize GridView::SizeFor(int mostRows, int columnWidth) const
{
    int height = 2 * frameWidth();
    for (int row = 0; row < std::min(grid_.Rows(), mostRows); ++row) height += MinimumRowHeight(row);
    int figures = 0;
    for (int column = 0; column < grid_.Columns(); ++column) figures += HoldsTitles(grid_, column) ? 0 : 1;
    const bool isList = grid_.Rows() > mostRows;
    const int bar = isList ? verticalScrollBar()->sizeHint().width() : 0;
    return {TitlesWidth() + figures * columnWidth + 2 * frameWidth() + bar, height};
}

QSize GridView::minimumSizeHint() const
{
    return IsWhole() ? SizeFor(kLeastRowsShown, WithLetters(kLeastColumnWidth))
                     : SizeFor(4, WithLetters(kLeastColumnWidth));
}

QSize GridView::sizeHint() const
{
    if (IsWhole()) return SizeFor(kMostRowsUnscrolled, WithLetters(kMostColumnWidth));
    double width = 0;
    for (int column = 0; column < grid_.Columns(); ++column) width += grid_.ColumnWidth(column) / looks::kTwipsPerPixel;
    return SizeFor(grid_.Rows(), WithLetters(kLeastColumnWidth)).expandedTo({static_cast<int>(width), 0});
}

void GridView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) textSizes_ = nullptr;
    QTableView::changeEvent(event);
}

/// Qt makes much of a table's cells, and many a grid stands on a tab that is not looked at.
void GridView::AttachModel()
{
    setModel(model_);
    setItemDelegate(new CellPainter(grid_, *this, this));
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

/// Titles as wide as they need, the other columns share the rest.
void GridView::DistributeWidth()
{
    int left = viewport()->width();
    for (int column = 0; column < grid_.Columns(); ++column) {
        const int asked = HoldsTitles(grid_, column) ? TitleWidth(column) : ColumnShare(column, left);
        const int most = IsWhole() && !HoldsTitles(grid_, column) ? WithLetters(kMostColumnWidth) : asked;
        const int width = std::max(WithLetters(kLeastColumnWidth), std::min(asked, most));
        setColumnWidth(column, width);
        left -= width;
    }
    updateGeometry();  // titles may have become longer
}

/// Rows are as high as they ask for, side by side in all grids. Where a list has more rows than room, those that are
/// seen share what is left of it, so that none stands there by half.
void GridView::DistributeHeight()
{
    const int rows = grid_.Rows();
    int spare = viewport()->height(), shown = 0;
    while (shown < rows && spare >= MinimumRowHeight(shown)) spare -= MinimumRowHeight(shown++);
    const int even = IsWhole() || shown == rows ? 0 : std::min(spare / std::max(1, shown), looks::kGridRowHeight / 2);
    for (int row = 0; row < rows; ++row) setRowHeight(row, MinimumRowHeight(row) + even);
}

}  // namespace terravane
