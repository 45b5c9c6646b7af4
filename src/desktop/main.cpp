// The desktop program.
#include <QApplication>
#include <QDir>
#include <QStandardPaths>

#include "app/form_makers.h"
#include "desktop/desktop.h"
#include "desktop/looks.h"
#include "desktop/qt_surroundings.h"
#include "render/fonts.h"
#include "store/new_stores.h"

namespace {

/// The program's own folder where it may be written, else the user's data folder.
std::string ApplicationPath(const terravane::FileSystem& files)
{
    const std::string own = QCoreApplication::applicationDirPath().toStdString();
    if (files.IsWritableFolder(own)) return own;
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString();
}

}  // namespace

int main(int argc, char** argv)
{
    using namespace terravane;
    QApplication application(argc, argv);
    QApplication::setApplicationName("terravane");
    QApplication::setApplicationDisplayName("Terravane");
    QApplication::setWindowIcon(looks::ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);

    DiskFileSystem files;
    QtSurroundings surroundings(files);
    Program program(surroundings, files, ApplicationPath(files));
    AddForms(program);
    program.Run("Start", [&] {
        RequireFonts();
        WriteFirstContent(files, program.BrandFolderNow());
    });
    Desktop desktop(program, surroundings);
    program.Run("Start", [&] { program.Show("frmTitle"); });
    return QApplication::exec();
}
