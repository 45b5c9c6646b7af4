// Pictures of every window in its states, to be looked at: screenshots FOLDER [--palette KEY] [--text PERCENT]. The
// size of the screen and the scale are the platform's (Xvfb, QT_SCALE_FACTOR); tools/screenshots runs it at each.
#include <QDir>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <cstdio>
#include <sstream>
#include <utility>

#include "desktop/appearance.h"
#include "desktop/desktop_fixture.h"
#include "laboratory/tests.h"
#include "script/script_program.h"
#include "source_folder.h"
#include "support/road_project.h"

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

/// What the sheets of both materials may have posted, the rock sieved wet.
void FillResults(DesktopFixture& running)
{
    constexpr const char* kResults[] = {
        "UPDATE SUMMARY Set sum_LL ='25.01',  sum_PL ='15.07',  sum_PI ='9.94',  sum_swelling ='25.48',  "
        "sum_gravel =' 14',  sum_sand =' 65',  sum_finer =' 21',  sum_USCS ='SC',  sum_AASHTO ='A-2-4(0)',  "
        "sum_Gs ='2.68',  sum_omcS ='11.2',  sum_mddS ='2.01',  sum_omcM ='7.8',  sum_mddM ='2.18',  "
        "sum_CBR ='6.8',  sum_compaction =' 97.4'",
        "UPDATE SUMMARY Set sum_USCS ='GW-GM',  sum_AASHTO ='A-1-a(0)',  sum_CBR ='88.9' Where sum_ID =' 2'",
        "UPDATE HEAD Set project_name ='ถนนสาย ก-ข ตอน 1',  project_location ='จ.เชียงใหม่'",
        "UPDATE SIECRUSH Set sie_pwash ='1'",
    };
    jet::Connection file;
    file.Open(running.disk, running.program.CurrentProjectPath);
    for (const char* statement : kResults) file.Execute(statement);
    file.Flush();
}

void ResultsPictures(DesktopFixture& running, const QString& folder)
{
    running.PressMenu("mnuSum");
    Keep(folder, "results_few");
    running.FormNamed("frmSummary").Get<CommandButton>("cmdClose").Press();
    FillResults(running);
    running.PressMenu("mnuSum");
    Keep(folder, "results_filled");
    running.FormNamed("frmSummary").Get<CommandButton>("cmdClose").Press();
}

/// The names of a laboratory and its people, tab by tab, with each editor of the grid over a cell.
void PreferencesPictures(DesktopFixture& running, const QString& folder)
{
    running.PressMenu("mnuLogoT");
    Form& form = running.FormNamed("frmPreferences");
    form.Get<TextBox>("txtIsName").Type("สถาบันวิจัยและพัฒนาทางหลวง");
    form.Get<TextBox>("txtDname").Type("Materials Testing Section");
    form.Get<TextBox>("txtCov1").Type("นายสมชาย ดีมาก");
    form.Get<TextBox>("txtCov2").Type("วิศวกรโยธาชำนาญการ");
    form.Get<TextBox>("txtCov3").Type("Materials Testing Section");
    Keep(folder, "preferences_0");
    form.Get<TabControl>("sstPreference").SetTab(1);
    QImage wide(420, 160, QImage::Format_RGB32);
    wide.fill(QColor(31, 63, 79));
    wide.save(QString::fromStdString(running.PathOf("wide.bmp")));
    running.surroundings.files.push_back(running.PathOf("wide.bmp"));
    form.Get<CommandButton>("cmdOpen2").Press();
    Keep(folder, "preferences_1");
    form.Get<TabControl>("sstPreference").SetTab(2);
    auto& persons = form.Get<TextGrid>("mshPerson");
    persons(1, 1) = "อนงค์ ใจดี";
    persons(1, 2) = "Tester";
    persons(2, 1) = "Boon Dee";
    persons(2, 2) = "Checker";
    persons(3, 1) = "Chai Somsak";
    persons.PressMouse(MouseButton::Left, 3, 1);
    Keep(folder, "preferences_2_name");
    persons.PressMouse(MouseButton::Left, 3, 2);
    Keep(folder, "preferences_2_position");
    form.Get<CommandButton>("cmdClose").Press();
}

/// The sheets that are not filled, each tab of them, of soil and of crushed rock by turns.
void EmptySheetPictures(DesktopFixture& running, const QString& folder)
{
    const char* material = "1";
    for (const laboratory::Description* test : laboratory::Tests()) {
        if (test->sheet.form == "frmCompaction") continue;
        running.OpenSheet(std::string(test->menu).append(std::exchange(material, *material == '1' ? "2" : "1")));
        Form& sheet = *running.program.ShownForms().back().form;
        auto& tabs = sheet.Get<TabControl>("SSTData");
        for (int tab = 0; tab < tabs.Count(); ++tab) {
            tabs.SetTabEnabled(tab, true);
            tabs.SetTab(tab);
            Keep(folder, (sheet.Name() + "_" + std::to_string(tab)).c_str());
        }
    }
}

/// Every sheet and tab of the sample's soil, as it is loaded and when all its commands were pressed.
void RoadPictures(DesktopFixture& running, const QString& folder)
{
    ScriptOptions options;
    for (const auto& script : support::RoadScripts(kSourceFolder)) options.files.push_back(script.string());
    QDir(running.home.path()).mkdir("sample");  // another project stands beside it
    QDir::setCurrent(running.home.path() + "/sample");
    std::istringstream nothing;
    std::ostringstream told;
    RunScripts(options, nothing, told, told);
    running.surroundings.files.push_back(running.PathOf("sample/TRVN_road.mdb"));
    running.PressMenu("mnuOpen");
    for (const laboratory::Description* test : laboratory::Tests()) {
        running.OpenSheet(std::string(test->menu) + "1");
        Form& sheet = *running.program.ShownForms().back().form;
        auto& tabs = sheet.Get<TabControl>("SSTData");
        for (const char* state : {"loaded", "calculated"}) {
            for (int tab = 0; tab < tabs.Count(); ++tab) {
                tabs.SetTabEnabled(tab, true);
                tabs.SetTab(tab);
                Keep(folder, (std::string(test->key) + "_" + std::to_string(tab) + "_" + state).c_str());
            }
            for (const std::string_view command : test->sheet.commands) sheet.Get<CommandButton>(command).Press();
        }
    }
}

/// The bar after a command that failed, over the sheet that keeps what was typed.
void ErrorPicture(DesktopFixture& running, const QString& folder)
{
    Form& sheet = running.FormNamed("frmCompaction");
    sheet.Get<TabControl>("SSTData").SetTab(0);
    sheet.Get<TextBox>("txtDia").Type("");
    sheet.Get<CommandButton>("cmdCal").Press();
    Keep(folder, "error_shown");
    running.Window("mdiBack")->findChild<QPushButton*>("noticeDetails")->click();
    Keep(folder, "error_details");
    if (QWidget* leaf = QApplication::activePopupWidget()) leaf->close();
    running.Window("mdiBack")->findChild<QToolButton*>("noticeClose")->click();
    sheet.Get<TextBox>("txtDia").Type("10.16");
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc < 2) return 2;
    const QString folder = argv[1];
    DesktopFixture running;
    RestoreAppearance(running.program, QApplication::arguments());
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
    EmptySheetPictures(running, folder);
    ResultsPictures(running, folder);
    PreferencesPictures(running, folder);
    RoadPictures(running, folder);
    running.PressMenu("mnuAbout");
    Keep(folder, "about");
    return 0;
}
