#include "desktop/desktop_fixture.h"

#include "desktop/form_view.h"
#include "render/pdf.h"

namespace terravane {

namespace {

/// Can + wet, can + dry, can, mold + wet soil, mold, in g: a baseball infield mix, standard effort.
struct Trial {
    const char* wet;
    const char* dry;
    const char* can;
    const char* soilAndMold;
    const char* mold;
};
constexpr Trial kTrialReadings[] = {
    {"31.61", "29.71", "1.28", "3325", "1484.5"},   {"21.56", "20.04", "1.54", "3439.926", "1484.5"},
    {"39.79", "36.26", "1.00", "3541", "1484.5"},   {"41.87", "37.62", "0.28", "3583.5", "1484.5"},
    {"49.36", "43.63", "1.29", "3534.5", "1484.5"},
};

}  // namespace

std::optional<PrintTarget> AnsweringSurroundings::AskPrinter()
{
    if (!printInto) return std::nullopt;
    return [this, path = *printInto](std::span<const DisplayList> pages, const std::string& title) {
        WritePdf(disk_, path, pages, title);
    };
}

DesktopFixture::DesktopFixture() : surroundings(disk), program(surroundings, disk, home.path().toStdString())
{
    AddForms(program);
    WriteFirstContent(disk, program.BrandFolderNow());
    desktop = std::make_unique<Desktop>(program, surroundings);
    program.Run("Start", [this] { program.Show("mdiBack"); });
    (void)QTest::qWaitForWindowExposed(Window("mdiBack"));
}

void DesktopFixture::MakePageOf(const std::string& form, const std::string& control) const
{
    const Control* shown = FormNamed(form).Find(control);
    for (QObject* part : Window(form)->findChildren<QObject*>())
        if (auto* view = dynamic_cast<FormView*>(part); view && shown) view->ViewOf(*shown);
}

void DesktopFixture::MakeProject(const std::string& name)
{
    surroundings.files.push_back(PathOf(name));
    PressMenu("mnuNew");
    FormNamed("frmProject").Get<TextBox>("txtID").Type("12/2569");
    FormNamed("frmProject").Get<TextBox>("txtClient").Type("กรมทางหลวงชนบท");
    FormNamed("frmProject").Get<TextBox>("txtProject").Type("ถนนสาย ก-ข ตอน 1");
    FormNamed("frmProject").Get<TextBox>("txtLocation").Type("จ.เชียงใหม่");
    FormNamed("frmProject").Get<CommandButton>("cmdOK").Press();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // a dialog that is gone holds no focus
    QCoreApplication::processEvents();
}

void DesktopFixture::OpenSheet(const std::string& key)
{
    FormNamed("mdiBack").Get<Toolbar>("tbrLab").PressItem(key);
    Window("mdiBack")->activateWindow();
    (void)QTest::qWaitForWindowActive(Window("mdiBack"));
}

void DesktopFixture::FillCompaction()
{
    Form& sheet = FormNamed("frmCompaction");
    sheet.Get<TextBox>("txtDia").Type("10.16");
    sheet.Get<TextBox>("txtHeight").Type("11.562");
    sheet.Get<TextBox>("txtSoil").Type("Infield mix");
    sheet.Get<ComboBox>("cboWt").Choose(0);
    sheet.Get<ComboBox>("cboBlow").Choose(0);
    sheet.Get<ComboBox>("cboLayer").Choose(0);
    auto& water = sheet.Get<TextGrid>("MSHWt");
    auto& density = sheet.Get<TextGrid>("MSHDensity");
    int column = 0;
    for (const Trial& trial : kTrialReadings) {
        ++column;
        water(1, column) = "C" + std::to_string(column);
        water(2, column) = trial.wet;
        water(3, column) = trial.dry;
        water(4, column) = trial.can;
        density(1, column) = trial.soilAndMold;
        density(2, column) = trial.mold;
    }
    QCoreApplication::processEvents();
}

}  // namespace terravane
