#include "desktop/window_places.h"

#include <QByteArray>
#include <QSettings>
#include <QWidget>

#include "controls/form.h"
#include "desktop/qt_text.h"
#include "program/program.h"

namespace terravane {

namespace {

constexpr std::string_view kFile = "Windows.ini";

QSettings FileOf(const Program& program)
{
    return {ToQt(WithMark(program.ApplicationPath()).append(kFile)), QSettings::IniFormat};
}

}  // namespace

void RestorePlace(const Program& program, const Form& form, QWidget& window)
{
    const QByteArray kept = FileOf(program).value(ToQt(form.Name())).toByteArray();
    if (!kept.isEmpty()) window.restoreGeometry(kept);
}

void KeepPlace(const Program& program, const Form& form, const QWidget& window)
{
    FileOf(program).setValue(ToQt(form.Name()), window.saveGeometry());
}

}  // namespace terravane
