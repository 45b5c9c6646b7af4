/// The keys of the shell: one table that binds them and that the window "Keys" shows.
#pragma once

#include <QKeySequence>
#include <QSet>
#include <QString>
#include <functional>

class QToolBar;
class QWidget;

namespace terravane {

enum class Shortcut { Save, NextCommand, Preview, Menu, Undo, Redo, NextTab, TabBefore, Close, Keys };

QKeySequence KeysOf(Shortcut key);

/// Runs `act` where the key is pressed anywhere in the window.
void BindKey(QWidget& window, Shortcut key, std::function<void()> act);

/// All keys, in a window of its own.
void ShowKeys(QWidget* parent);

/// Letters that open menus and buttons with Alt, each once: the first of a text that is not taken.
class Mnemonics {
  public:
    QString Mark(const QString& text);
    void Take(QChar letter) { taken_.insert(letter.toLower()); }

  private:
    QSet<QChar> taken_;
};

/// Gives each button of a bar its letter, beside those of the menu.
void MarkTools(QToolBar& bar);

}  // namespace terravane
