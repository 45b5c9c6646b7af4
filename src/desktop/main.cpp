// The desktop program.
#include <QApplication>

#include "app/form_makers.h"
#include "app/mdiBack.h"
#include "desktop/appearance.h"
#include "desktop/desktop.h"
#include "desktop/looks.h"
#include "desktop/qt_surroundings.h"
#include "render/fonts.h"
#include "runtime/machine.h"
#include "store/new_stores.h"

namespace {

/// The program's own folder where it may be written, else, and for an installed program whoever starts it, the user's
/// data folder.
std::string ApplicationPath(const terravane::FileSystem& files)
{
    const std::string own = terravane::FolderOf(terravane::ProgramFile());
    return !terravane::IsInstalled() && files.IsWritableFolder(own) ? terravane::WithoutMark(own)
                                                                    : terravane::DataFolder();
}

/// The splash; a project that the desktop or the command line names goes straight to the frame.
void ShowFirstForm(terravane::Program& program, const QStringList& arguments)
{
    if (arguments.size() < 2 || arguments.at(1).startsWith("--")) {
        program.Show("frmTitle");
        return;
    }
    program.Show(terravane::kFrameName);
    program.Get<terravane::mdiBack>(terravane::kFrameName).OpenFile(terravane::FullPath(arguments.at(1).toStdString()));
}

}  // namespace

int main(int argc, char** argv)
{
    using namespace terravane;
    QApplication application(argc, argv);
    QApplication::setApplicationName("terravane");
    QApplication::setWindowIcon(looks::ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);
    if (TakeFontsBeside() > 0) QApplication::setFont(looks::WithThaiLetters(QApplication::font()));

    DiskFileSystem files;
    QtSurroundings surroundings(files);
    Program program(surroundings, files, ApplicationPath(files));
    AddForms(program);
    program.Run("Start", [&] {
        RequireFonts();
        WriteFirstContent(files, program.BrandFolderNow());
        WriteGuide(files, ShareFolder().append(kGuideFile), program.BrandFolderNow());
    });
    RestoreAppearance(program, QCoreApplication::arguments());
    Desktop desktop(program, surroundings);
    desktop.KeepDrafts(WithMark(DataFolder()) + "Drafts");
    program.Run("Start", [&] { ShowFirstForm(program, QCoreApplication::arguments()); });
    return QApplication::exec();
}
