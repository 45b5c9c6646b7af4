// Pictures of every window in its states, to be looked at: screenshots FOLDER. The size of the screen and the scale are
// the platform's (Xvfb, QT_SCALE_FACTOR); tools/screenshots runs it at each.
#include <QScreen>
#include <QTimer>
#include <cstdio>

#include "desktop/desktop_fixture.h"

namespace {

using namespace terravane;

/// Lets the window system finish, then keeps what stands on the screen.
void Keep(const QString& folder, const char* name)
{
    QTest::qWait(150);
    QScreen* screen = QGuiApplication::primaryScreen();
    screen->grabWindow(0).save(folder + "/" + name + ".png");
    std::printf("%s\n", name);
}

void FillScreen(QWidget* window)
{
    window->setGeometry(QGuiApplication::primaryScreen()->geometry());
}

void CompactionPictures(DesktopFixture& running, const QString& folder, const std::string& key, const char* material)
{
    running.OpenSheet(key);
    const QString prefix = QString("compaction_") + material;
    Keep(folder, qPrintable(prefix + "_new"));
    running.FillCompaction();
    Form& sheet = running.FormNamed("frmCompaction");
    sheet.Get<TextGrid>("MSHWt").PressMouse(MouseButton::Left, 2, 3);
    Keep(folder, qPrintable(prefix + "_filled"));
    sheet.Get<CommandButton>("cmdCal").Press();
    Keep(folder, qPrintable(prefix + "_calculated"));
    sheet.Get<TabControl>("SSTData").SetTab(1);
    sheet.Get<CheckBox>("chkSatLine").SetValue(true);
    sheet.Get<TextBox>("txtGs").Type("2.71");
    sheet.Get<CommandButton>("cmdOMC").Press();
    Keep(folder, qPrintable(prefix + "_curve"));
}

/// The box that a failing command shows, over the sheet that keeps what was typed.
void ErrorPicture(DesktopFixture& running, const QString& folder)
{
    QTimer::singleShot(300, [&folder] {
        Keep(folder, "error_shown");
        QApplication::activeModalWidget()->close();
    });
    running.surroundings.QtSurroundings::Fail("frmCompaction.cmdCal_Click", RuntimeError(error::kDivisionByZero));
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc < 2) return 2;
    const QString folder = argv[1];
    DesktopFixture running;
    FillScreen(running.Window("mdiBack"));
    Keep(folder, "frame_new");
    running.surroundings.files.push_back(running.PathOf("road.mdb"));
    running.PressMenu("mnuNew");
    Keep(folder, "general_data_new");
    running.FormNamed("frmProject").Get<TextBox>("txtClient").Type("กรมทางหลวงชนบท");
    Keep(folder, "general_data_filled");
    running.FormNamed("frmProject").Get<CommandButton>("cmdOK").Press();
    CompactionPictures(running, folder, "mnuStd1", "soil");
    ErrorPicture(running, folder);
    running.FormNamed("frmCompaction").Get<CommandButton>("cmdView").Press();
    Keep(folder, "preview");
    running.FormNamed("frmPreview").Get<ComboBox>("cboScale").Choose(0);
    Keep(folder, "preview_50");
    running.FormNamed("frmPreview").Get<Toolbar>("Toolbar1").Press(2);
    CompactionPictures(running, folder, "mnuMod2", "crush");
    for (const char* key : {"mnuAtt1", "mnuSpe2", "mnuSie1", "mnuCBR2"}) {
        running.OpenSheet(key);
        Form& sheet = *running.program.ShownForms().back().form;
        auto& tabs = sheet.Get<TabControl>("SSTData");
        for (int tab = 0; tab < tabs.Count(); ++tab) {
            tabs.SetTabEnabled(tab, true);
            tabs.SetTab(tab);
            Keep(folder, (sheet.Name() + "_" + std::to_string(tab)).c_str());
        }
    }
    running.PressMenu("mnuAbout");
    Keep(folder, "about");
    return 0;
}
