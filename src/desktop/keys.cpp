#include "desktop/keys.h"

#include <QDialog>
#include <QHeaderView>
#include <QKeySequence>
#include <QShortcut>
#include <QTableWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <utility>

namespace terravane {

namespace {

struct KeyRow {
    const char* keys;
    const char* does;
};

/// In the order of Shortcut.
constexpr std::array kShortcuts{
    KeyRow{"Ctrl+S", "saves the sheet; in the preview, saves it as a PDF"},
    KeyRow{"F5", "presses the next command, the one with the coloured edge"},
    KeyRow{"Ctrl+P", "shows the report; in the preview, prints it"},
    KeyRow{"F10", "goes to the menu"},
    KeyRow{"Ctrl+Z", "takes back what was typed, chosen, pasted or erased last"},
    KeyRow{"Ctrl+Shift+Z", "does again what was taken back"},
    KeyRow{"Ctrl+PgDown", "shows the next tab"},
    KeyRow{"Ctrl+PgUp", "shows the tab before"},
    KeyRow{"Ctrl+W", "closes the sheet, unless something typed is not saved"},
    KeyRow{"Ctrl+/", "shows these keys"},
};

/// What controls take by themselves.
constexpr std::array kInPlaces{
    KeyRow{"Enter", "in a cell: takes the text and goes down; in a box: goes on to the next; on a button: presses it"},
    KeyRow{"Esc", "leaves the cell as it was"},
    KeyRow{"digit, letter, F2, Enter", "opens the cell with the coloured edge"},
    KeyRow{"Tab", "in a cell: goes to the right; behind the last cell it leaves the grid"},
    KeyRow{"Shift+Tab", "goes back the same way"},
    KeyRow{"Shift+arrows, mouse",
           "marks a block of cells; Ctrl+C, Ctrl+X, Ctrl+V and Del copy, cut, paste and erase it"},
    KeyRow{"Alt and a letter", "presses the button or opens the menu with that letter underlined"},
};

QString Spelled(const KeyRow& row)
{
    const QKeySequence keys(QString::fromLatin1(row.keys));
    return row.keys[0] == 'd' || row.keys[0] == 'A' || std::string_view(row.keys).ends_with("mouse")
               ? QString::fromLatin1(row.keys)
               : keys.toString(QKeySequence::NativeText);
}

}  // namespace

QKeySequence KeysOf(Shortcut key)
{
    return QKeySequence(QString::fromLatin1(kShortcuts[static_cast<std::size_t>(key)].keys));
}

void BindKey(QWidget& window, Shortcut key, std::function<void()> act)
{
    auto* shortcut = new QShortcut(KeysOf(key), &window);
    QObject::connect(shortcut, &QShortcut::activated, &window, std::move(act));
}

void ShowKeys(QWidget* parent)
{
    auto* window = new QDialog(parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setObjectName("keys");
    window->setWindowTitle(QObject::tr("Keys"));
    auto* table = new QTableWidget(static_cast<int>(kShortcuts.size() + kInPlaces.size()), 2, window);
    table->setAccessibleName(window->windowTitle());
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setShowGrid(false);
    int line = 0;
    const auto add = [&](const KeyRow& row) {
        table->setItem(line, 0, new QTableWidgetItem(Spelled(row)));
        table->setItem(line++, 1, new QTableWidgetItem(QObject::tr(row.does)));
    };
    std::ranges::for_each(kShortcuts, add);
    std::ranges::for_each(kInPlaces, add);
    table->resizeColumnToContents(0);
    table->horizontalHeader()->setStretchLastSection(true);
    auto* column = new QVBoxLayout(window);
    column->addWidget(table);
    window->resize(760, 460);
    window->show();
}

QString Mnemonics::Mark(const QString& text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar letter = text[i].toLower();
        if (!letter.isLetter() || taken_.contains(letter)) continue;
        taken_.insert(letter);
        return text.left(i) + '&' + text.mid(i);
    }
    return text;
}

void MarkTools(QToolBar& bar)
{
    Mnemonics letters;
    for (const char taken : {'F', 'S', 'H', 'E', 'V'}) letters.Take(QLatin1Char(taken));  // the menus'
    for (auto* button : bar.findChildren<QToolButton*>()) {
        if (button->text().isEmpty()) continue;
        const QString name = button->text();
        button->setText(letters.Mark(name));
    }
}

}  // namespace terravane
