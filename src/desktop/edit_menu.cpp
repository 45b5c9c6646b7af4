#include "desktop/edit_menu.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <utility>

#include "desktop/keys.h"

namespace terravane {

EditMenu::EditMenu(QMainWindow& window, Journal& journal, std::function<void(const Control&)> restored)
    : QObject(&window),
      journal_(journal),
      restored_(std::move(restored)),
      blocks_(new CellBlocks(this, journal, restored_))
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Edit"));
    menu->setObjectName("edit");
    undo_ = menu->addAction(tr("&Undo"), this, [this] { Walk(&Journal::Undo); });
    undo_->setObjectName("undo");
    undo_->setShortcut(KeysOf(Shortcut::Undo));
    redo_ = menu->addAction(tr("&Redo"), this, [this] { Walk(&Journal::Redo); });
    redo_->setObjectName("redo");
    redo_->setShortcut(KeysOf(Shortcut::Redo));
    menu->addSeparator();
    const auto add = [&](const QString& name, const char* object, QKeySequence::StandardKey keys, auto act) {
        QAction* action = menu->addAction(name, this, act);
        action->setObjectName(object);
        action->setShortcuts(keys);
        return action;
    };
    add(tr("Cu&t Cells"), "cut", QKeySequence::Cut, [this] { blocks_->Cut(); });
    add(tr("&Copy Cells"), "copy", QKeySequence::Copy, [this] { blocks_->Copy(); });
    paste_ = add(tr("&Paste Cells"), "paste", QKeySequence::Paste, [this] { blocks_->Paste(); });
    add(tr("&Erase Cells"), "erase", QKeySequence::Delete, [this] { blocks_->Erase(); });
    qApp->installEventFilter(this);
    following_ = journal.Show([this] { Follow(); });
    Follow();
}

void EditMenu::Follow()
{
    undo_->setEnabled(journal_.Undoable() > 0);
    redo_->setEnabled(journal_.Redoable() > 0);
}

void EditMenu::Walk(std::optional<TextPlace> (Journal::*way)())
{
    if (const auto place = (journal_.*way)()) restored_(*place->control);
}

/// A box would take these keys for the letters typed into it. They are the sheet's, but for a cell that is being typed;
/// a block goes into cells also from there.
bool EditMenu::TakesOver(const QKeyEvent& key) const
{
    const QKeySequence pressed(key.keyCombination());
    if (paste_->shortcuts().contains(pressed)) return blocks_->HasPlace() && CellBlocks::ClipboardHoldsBlock();
    const bool walks = pressed == undo_->shortcut() || pressed == redo_->shortcut();
    return walks && !journal_.HoldsUncommitted();
}

bool EditMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride || !watched->isWidgetType()) return false;
    const QWidget* window = static_cast<QWidget*>(watched)->window();
    if (window != parent() || !TakesOver(*static_cast<QKeyEvent*>(event))) return false;
    event->ignore();
    return true;
}

}  // namespace terravane
