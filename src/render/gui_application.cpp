#include "render/gui_application.h"

#include <QDir>
#include <QGuiApplication>
#include <algorithm>

#include "runtime/machine.h"
#include "runtime/paths.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

/// Qt itself would tell of a missing platform in a box, which nobody sees where a program calls the tool.
void RequirePlatform()
{
    QStringList folders = QCoreApplication::libraryPaths();
    folders.append(QString::fromStdString(FolderOf(ProgramFile())));
    const auto has = [](const QString& folder) {
        return !QDir(folder + "/platforms").entryList({"*qoffscreen*"}, QDir::Files).isEmpty();
    };
    if (std::ranges::none_of(folders, has))
        throw RuntimeError(error::kPrinter, "Qt's platform without a screen (qoffscreen) is not installed.");
}

QGuiApplication* MakeApplication()
{
    RequirePlatform();
    qputenv("QT_FORCE_STDERR_LOGGING", "1");  // what ends the program is told where its caller reads it
    static char name[] = "terravane";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static char* arguments[] = {name, option, platform, nullptr};
    static int count = 3;
    return new QGuiApplication(count, arguments);
}

}  // namespace

void EnsureGuiApplication()
{
    if (QCoreApplication::instance()) return;
    static const QGuiApplication* const application = MakeApplication();
    static_cast<void>(application);
}

}  // namespace terravane
