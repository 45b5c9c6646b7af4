// The desktop program.
#include <QApplication>
#include <QFileInfo>
#include <QStandardPaths>

#include "app/form_makers.h"
#include "app/mdiBack.h"
#include "desktop/desktop.h"
#include "desktop/looks.h"
#include "desktop/qt_surroundings.h"
#include "render/fonts.h"
#include "store/new_stores.h"

namespace {

/// A program that a package brought stands beside its entry in the desktop's menu.
bool IsInstalled(const QString& folder)
{
    return QFileInfo::exists(folder + "/../share/applications/terravane.desktop");
}

/// The program's own folder where it may be written, else, and for an installed program whoever starts it, the user's
/// data folder.
std::string ApplicationPath(const terravane::FileSystem& files)
{
    const QString own = QCoreApplication::applicationDirPath();
    if (!IsInstalled(own) && files.IsWritableFolder(own.toStdString())) return own.toStdString();
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString();
}

/// Beside the program's folder, in a build as in an installation.
std::string GuidePath()
{
    return (QCoreApplication::applicationDirPath() + "/../share/terravane/UserGuide.pdf").toStdString();
}

/// The splash; a project that the desktop or the command line names goes straight to the frame.
void ShowFirstForm(terravane::Program& program, const QStringList& arguments)
{
    if (arguments.size() < 2) {
        program.Show("frmTitle");
        return;
    }
    program.Show(terravane::kFrameName);
    const QString path = QFileInfo(arguments.at(1)).absoluteFilePath();
    program.Get<terravane::mdiBack>(terravane::kFrameName).OpenFile(path.toStdString());
}

}  // namespace

int main(int argc, char** argv)
{
    using namespace terravane;
    QApplication application(argc, argv);
    QApplication::setApplicationName("terravane");
    QApplication::setWindowIcon(looks::ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);

    DiskFileSystem files;
    QtSurroundings surroundings(files);
    Program program(surroundings, files, ApplicationPath(files));
    AddForms(program);
    program.Run("Start", [&] {
        RequireFonts();
        WriteFirstContent(files, program.BrandFolderNow());
        WriteGuide(files, GuidePath(), program.BrandFolderNow());
    });
    Desktop desktop(program, surroundings);
    program.Run("Start", [&] { ShowFirstForm(program, QCoreApplication::arguments()); });
    return QApplication::exec();
}
