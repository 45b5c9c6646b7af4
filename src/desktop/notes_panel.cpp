#include "desktop/notes_panel.h"

#include <QEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QToolTip>
#include <QVBoxLayout>

#include "desktop/grid_view.h"
#include "desktop/looks.h"
#include "desktop/qt_text.h"
#include "desktop/windows.h"
#include "runtime/text.h"

namespace terravane {

namespace {

constexpr int kNotesWidth = 320, kCorner = 8;

QString LevelWords(notes::Level level)
{
    return ToQt(std::string(notes::Words(level)));
}

/// Lies over a grid's cells, takes no mouse, and paints what is marked.
class MarkedCells : public QWidget {
  public:
    MarkedCells(GridView& grid, notes::NotesWatch& watch) : QWidget(grid.viewport()), grid_(grid), watch_(watch)
    {
        setObjectName("noteMarks");
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        grid.viewport()->installEventFilter(this);
        following_ = watch.Show([this] { update(); });
        Cover();
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize) Cover();
        if (event->type() == QEvent::ToolTip && Tell(*static_cast<QHelpEvent*>(event))) return true;
        return QWidget::eventFilter(watched, event);
    }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        for (const notes::SaidNote& said : watch_.Notes()) {
            const notes::Place& at = said.note.at;
            if (at.control != grid_.Grid().Name() || !at.IsCell()) continue;
            const QRect cell = grid_.visualRect(grid_.model()->index(at.row, at.column));
            if (!cell.isValid()) continue;
            const bool isLoud = said.note.level != notes::Level::Information;
            painter.setBrush(palette().color(isLoud ? QPalette::Highlight : QPalette::Mid));
            const QPoint corner = cell.topRight();
            painter.drawPolygon(QPolygon({corner, corner - QPoint(kCorner, 0), corner + QPoint(0, kCorner)}));
        }
    }

  private:
    void Cover()
    {
        setGeometry(grid_.viewport()->rect());
        show();  // made after the grid was
        raise();
    }

    bool Tell(const QHelpEvent& event)
    {
        const QModelIndex cell = grid_.indexAt(event.pos());
        QString words;
        for (const notes::SaidNote* said : watch_.On(grid_.Grid().Name(), cell.row(), cell.column()))
            words += (words.isEmpty() ? "" : "\n") + ToQt(Printable(said->note.sentence));
        if (!words.isEmpty()) QToolTip::showText(event.globalPos(), words, &grid_);
        return !words.isEmpty();
    }

    GridView& grid_;
    notes::NotesWatch& watch_;
    Subscription following_;
};

}  // namespace

void MarkNotes(QWidget& sheet, notes::NotesWatch& watch)
{
    for (GridView* grid : sheet.findChildren<GridView*>())
        if (!grid->viewport()->findChild<QWidget*>("noteMarks")) new MarkedCells(*grid, watch);
}

NotesPanel::NotesPanel(QWidget* parent, Program& program, notes::NotesWatch& watch)
    : QDockWidget(parent), program_(program), watch_(watch)
{
    setObjectName("notes");
    setAllowedAreas(Qt::RightDockWidgetArea);
    setFeatures(DockWidgetClosable);
    auto* content = new QWidget(this);
    content->setMinimumWidth(kNotesWidth);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(looks::kMargin, looks::kGap, looks::kMargin, looks::kMargin);
    about_ = new QLabel(content);
    about_->setWordWrap(true);
    list_ = new QListWidget(content);
    list_->setWordWrap(true);
    list_->setResizeMode(QListView::Adjust);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setSpacing(looks::kGap / 4);
    list_->setAlternatingRowColors(true);
    list_->setAccessibleName(tr("Notes on this sheet"));
    column->addWidget(about_);
    column->addWidget(list_, 1);
    setWidget(content);
    hide();
    connect(list_, &QListWidget::itemActivated, this, [this] { LeadToChosen(); });
    connect(list_, &QListWidget::itemClicked, this, [this] { LeadToChosen(); });
    following_ = watch.Show([this] { Refresh(); });
    Refresh();
}

void NotesPanel::Refresh()
{
    const auto& found = watch_.Notes();
    setWindowTitle(tr("Notes (%1)").arg(found.size()));
    toggleViewAction()->setText(tr("&Checker's Notes (%1)").arg(found.size()));
    const bool isOpen = notes::OpenSheet(program_) != nullptr;
    QString about = !isOpen         ? tr("Open a test to see what an experienced eye would say of it.")
                    : found.empty() ? tr("Nothing to say of this sheet.")
                                    : tr("Reported for the checker; no result was changed.");
    for (const std::string& complaint : watch_.Complaints()) about += "\n" + ToQt(complaint);
    about_->setText(about);
    list_->clear();
    for (const notes::SaidNote& said : found) {
        const QString level = LevelWords(said.note.level);
        const QString sentence = ToQt(Printable(said.note.sentence));
        auto* item = new QListWidgetItem(level + ": " + sentence, list_);
        item->setToolTip(ToQt(Printable(said.place)) + "\n" +
                         tr("Source: %1").arg(ToQt(std::string(said.note.source))));
    }
}

void NotesPanel::LeadToChosen()
{
    const int chosen = list_->currentRow();
    const Form* sheet = notes::OpenSheet(program_);
    if (chosen < 0 || !sheet) return;
    const notes::Place& at = watch_.Notes().at(static_cast<std::size_t>(chosen)).note.at;
    if (!at.control.empty()) LeadTo(program_, {sheet->Name(), std::string(at.control), at.row, at.column});
}

}  // namespace terravane
