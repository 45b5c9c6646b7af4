#include "desktop/window_places.h"

#include <QByteArray>
#include <QWidget>

#include "controls/form.h"
#include "desktop/qt_text.h"
#include "program/program.h"

namespace terravane {

namespace {

constexpr std::string_view kFile = "Windows.ini";

}  // namespace

QSettings WindowsFile(const Program& program)
{
    return {ToQt(WithMark(program.ApplicationPath()).append(kFile)), QSettings::IniFormat};
}

void RestorePlace(const Program& program, const Form& form, QWidget& window)
{
    const QByteArray kept = WindowsFile(program).value(ToQt(form.Name())).toByteArray();
    if (!kept.isEmpty()) window.restoreGeometry(kept);
}

void KeepPlace(const Program& program, const Form& form, const QWidget& window)
{
    WindowsFile(program).setValue(ToQt(form.Name()), window.saveGeometry());
}

}  // namespace terravane
