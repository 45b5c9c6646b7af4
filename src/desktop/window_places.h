/// Sizes and places of windows, kept in the program's folder from one run to the next.
#pragma once

#include <QSettings>

class QWidget;

namespace terravane {

class Form;
class Program;

/// The file that keeps them, and what else the user chose of the windows.
QSettings WindowsFile(const Program& program);

/// The window as it stood when it was closed last; nothing happens where none is kept or the screen is another.
void RestorePlace(const Program& program, const Form& form, QWidget& window);
void KeepPlace(const Program& program, const Form& form, const QWidget& window);

}  // namespace terravane
