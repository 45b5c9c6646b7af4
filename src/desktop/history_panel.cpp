#include "desktop/history_panel.h"

#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/looks.h"
#include "desktop/qt_text.h"
#include "laboratory/tests.h"
#include "program/cell_words.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {

namespace {

constexpr int kPanelWidth = 320;

using TextRows = std::vector<std::vector<std::string>>;

/// A window of texts in columns, which keeps nothing waiting.
void ShowTextRows(QWidget* parent, const QString& title, const QStringList& heads, const TextRows& rows)
{
    auto* window = new QDialog(parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setObjectName("texts");
    window->setWindowTitle(title);
    auto* table = new QTableWidget(static_cast<int>(rows.size()), static_cast<int>(heads.size()), window);
    table->setAccessibleName(title);
    table->setHorizontalHeaderLabels(heads);
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    for (int row = 0; row < table->rowCount(); ++row)
        for (int column = 0; column < table->columnCount(); ++column)
            table->setItem(row, column,
                           new QTableWidgetItem(
                               ToQt(Printable(rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]))));
    table->resizeColumnsToContents();
    table->horizontalHeader()->setStretchLastSection(true);
    auto* column = new QVBoxLayout(window);
    column->addWidget(table);
    window->resize(760, 460);
    window->show();
}

QString Shown(const std::string& at)
{
    return ToQt(at).replace('T', ' ').left(16);
}

bool IsOf(const HistoryLine& line, const Program& program)
{
    const PlaceWords words = WordsOf(line.place);
    return words.test == "job" || (words.test == laboratory::Describe(program.CurrentTest).key &&
                                   words.material == laboratory::Describe(program.CurrentMaterial).key);
}

void AddLine(QTreeWidget& list, const HistoryLine& line, std::size_t number)
{
    const QString words = ToQt(Printable(WordsOf(line.place).words));
    const QString change = ToQt("\"" + Printable(line.before) + "\" > \"" + Printable(line.now) + "\"");
    const QString login = ToQt(Printable(line.login));
    auto* item = new QTreeWidgetItem(&list, {words + '\n' + change, Shown(line.at).replace(' ', '\n') + ' ' + login});
    item->setData(0, Qt::UserRole, static_cast<qulonglong>(number + 1));
    const QString found = line.kind == LineKind::Found ? QObject::tr("found changed, ") : QString();
    for (int column = 0; column < list.columnCount(); ++column)
        item->setToolTip(column, found + words + ": " + change + ", " + Shown(line.at) + ", " + login);
}

}  // namespace

HistoryPanel::HistoryPanel(QWidget* parent, Program& program, Journal& journal)
    : QDockWidget(tr("History"), parent), program_(program), journal_(journal)
{
    setObjectName("history");
    setAllowedAreas(Qt::RightDockWidgetArea);
    setFeatures(DockWidgetClosable);
    auto* content = new QWidget(this);
    content->setMinimumWidth(kPanelWidth);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(looks::kMargin, looks::kGap, looks::kMargin, looks::kMargin);
    about_ = new QLabel(content);
    about_->setWordWrap(true);
    list_ = new QTreeWidget(content);
    list_->setHeaderLabels({tr("What, from and to"), tr("When, by whom")});
    list_->setRootIsDecorated(false);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    list_->setAccessibleName(tr("Changes of this test"));
    asItStood_ = new QPushButton(tr("The Sheet As It &Stood"), content);
    column->addWidget(about_);
    column->addWidget(list_, 1);
    column->addWidget(asItStood_);
    setWidget(content);
    hide();
    connect(this, &QDockWidget::visibilityChanged, this, [this] { Refresh(); });
    connect(asItStood_, &QPushButton::clicked, this, [this] { ShowAsItStood(); });
    connect(list_, &QTreeWidget::itemSelectionChanged, this,
            [this] { asItStood_->setEnabled(!list_->selectedItems().isEmpty()); });
    following_ = journal.Show([this] { Refresh(); });
}

void HistoryPanel::Refresh()
{
    if (!isVisible()) return;
    list_->clear();
    lines_.clear();
    asItStood_->setEnabled(false);
    about_->setText(tr("Open a test to see what was changed in it."));
    if (!journal_.Sheet() || program_.CurrentTest == Test::None) return;
    std::vector<std::string> faults;
    try {
        ReadHistory read = LoadHistory(program_.Files(), program_.CurrentProjectPath);
        lines_ = std::move(read.lines);
        faults = std::move(read.faults);
    } catch (const RuntimeError& error) {
        faults.push_back(error.Description());
    }
    for (std::size_t number = lines_.size(); number-- > 0;)
        if (lines_[number].IsChange() && IsOf(lines_[number], program_)) AddLine(*list_, lines_[number], number);
    const QString said = list_->topLevelItemCount() == 0 ? tr("No Save has changed this test yet.")
                                                         : tr("The latest change stands first.");
    about_->setText(faults.empty() ? said : said + " " + ToQt(faults.front()));
}

/// All texts of the test behind the save that is chosen, beside those in the file now.
void HistoryPanel::ShowAsItStood()
{
    const auto chosen = list_->selectedItems();
    if (chosen.isEmpty()) return;
    auto count = static_cast<std::size_t>(chosen.front()->data(0, Qt::UserRole).toULongLong());
    const std::string at = lines_.at(count - 1).at;
    while (count < lines_.size() && lines_[count].at == at) ++count;  // all that one save changed
    const FileTexts then = StateAfter(lines_, count), now = StateAfter(lines_, lines_.size());
    TextRows rows;
    for (const auto& [place, text] : then) {
        if (!IsOf({.place = place}, program_)) continue;
        const auto found = now.find(place);
        rows.push_back({WordsOf(place).words, text, found == now.end() ? std::string() : found->second});
    }
    ShowTextRows(window(), tr("The sheet as it stood at %1").arg(Shown(at)), {tr("What"), tr("Then"), tr("Now")}, rows);
}

void ShowDraftTexts(QWidget* parent, const Form& sheet, const Draft& draft)
{
    TextRows rows;
    for (const DraftText& text : draft.texts) {
        const Control* control = sheet.Find(text.control);
        if (!control || text.row == kRowsPlace) continue;
        const auto* grid = dynamic_cast<const TextGrid*>(control);
        const bool isIn = grid && text.row < grid->Rows() && text.column < grid->Columns();
        const std::string words = isIn ? CellWords(*grid, text.row, text.column) : PlainWords(control->Caption());
        const std::string here = isIn ? (*grid)(text.row, text.column) : control->Text();
        if (here != text.text) rows.push_back({words.empty() ? text.control : words, here, text.text});
    }
    ShowTextRows(parent, QObject::tr("Typed and not saved"),
                 {QObject::tr("What"), QObject::tr("In the sheet"), QObject::tr("Typed")}, rows);
}

}  // namespace terravane
