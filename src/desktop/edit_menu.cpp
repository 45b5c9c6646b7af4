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
    : QObject(&window), journal_(journal), restored_(std::move(restored))
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Edit"));
    menu->setObjectName("edit");
    undo_ = menu->addAction(tr("&Undo"), this, [this] { Walk(&Journal::Undo); });
    undo_->setObjectName("undo");
    undo_->setShortcut(KeysOf(Shortcut::Undo));
    redo_ = menu->addAction(tr("&Redo"), this, [this] { Walk(&Journal::Redo); });
    redo_->setObjectName("redo");
    redo_->setShortcut(KeysOf(Shortcut::Redo));
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

/// A box would take the keys for the letters typed into it; they are the sheet's, but for a cell that is being typed.
bool EditMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride || !watched->isWidgetType()) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const QKeySequence pressed(key->keyCombination());
    const bool isOurs = pressed == undo_->shortcut() || pressed == redo_->shortcut();
    const QWidget* window = static_cast<QWidget*>(watched)->window();
    if (!isOurs || window != parent() || journal_.HoldsUncommitted()) return false;
    event->ignore();
    return true;
}

}  // namespace terravane
