// The windows of the user guide, full of a real project: guide_pictures HOME PROJECT FOLDER. HOME is the program's
// folder with its brand store, PROJECT a project file with every test saved. Each picture is FOLDER/<name>.png. It
// wants no screen: QT_QPA_PLATFORM=offscreen does. The clock stands still, so that the same project gives the same
// pictures.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPixmap>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <cstdio>
#include <functional>

#include "desktop/desktop_fixture.h"
#include "desktop/looks.h"
#include "program/failure_notice.h"

namespace {

using namespace terravane;

constexpr QSize kFrameSize{1280, 700};
constexpr QSize kMenuSize{760, 250};  // what of the frame a menu's picture shows
constexpr QSize kPreviewSize{900, 640};
constexpr QSize kResultsSize{680, 780};
constexpr QSize kPreferencesSize{760, 470};

/// A tab of a sheet, and what is pressed before it is photographed.
/// height  of the window, the least that shows every row
struct Shot {
    const char* name;
    int tab;
    int height;
    std::vector<const char*> presses = {};
};

/// A test's sheet and its pictures, in the order in which a technician works.
/// width  of the window, the least that shows every column
struct SheetPictures {
    const char* key;
    const char* form;
    int width;
    std::vector<Shot> shots;
};

const std::vector<SheetPictures> kSheets{
    {"mnuAtt1",
     "frmAtterberg",
     1280,
     {{"atterberg-data", 0, 740, {"cmdCal"}}, {"atterberg-curve", 1, 700, {"cmdPlot"}}}},
    {"mnuSie1",
     "frmSieve",
     1280,
     {{"sieve-masses", 0, 830, {"cmdCal"}},
      {"sieve-curve", 1, 700, {"cmdgraph"}},
      {"sieve-classes", 2, 700, {"cmdAtt", "cmdClass"}}}},
    {"mnuSpe1",
     "frmSpecific",
     1280,
     {{"specific-curve", 0, 700, {"cmdgraph"}}, {"specific-trials", 1, 800, {"cmdCal"}}}},
    {"mnuStd1",
     "frmCompaction",
     1280,
     {{"compaction-data", 0, 740, {"cmdCal"}}, {"compaction-curve", 1, 740, {"chkSatLine", "cmdOMC"}}}},
    {"mnuCBR1",
     "frmCBR",
     1280,
     {{"cbr-molds", 0, 770, {"optStd", "cmdCal"}},
      {"cbr-readings", 1, 840},
      {"cbr-curves", 2, 760, {"cmdLPen"}},
      {"cbr-value", 3, 740, {"cmdCBR"}}}},
    {"mnuDen1",
     "frmDensity",
     1280,
     {{"density-sand", 0, 740, {"cmdCal"}}, {"density-holes", 1, 740}, {"density-results", 2, 740}}},
};

/// The parts of the window that the guide's tour numbers, in that order.
struct TourStop {
    const char* form;
    const char* control;
};
constexpr TourStop kTour[] = {
    {"mdiBack", "menu"},
    {"mdiBack", "strip"},
    {"mdiBack", "tbrLab"},
    {"frmCompaction", "tblMenu"},
    {"frmCompaction", "txtLabName"},
    {"frmCompaction", "fraGeneral"},
    {"frmCompaction", "SSTData"},
    {"frmCompaction", "MSHWt"},
    {"frmCompaction", "cmdCal"},
    {"frmCompaction", "stbDes"},
};

/// The desktop over a folder and a project that are there already.
class Guide {
  public:
    Guide(const std::string& home, std::string project, QString folder)
        : surroundings_(disk_),
          program_(surroundings_, disk_, home),
          project_(std::move(project)),
          folder_(std::move(folder))
    {
        AddForms(program_);
        desktop_ = std::make_unique<Desktop>(program_, surroundings_);
        program_.Run("Start", [this] { program_.Show("mdiBack"); });
        Window("mdiBack").setFixedSize(kFrameSize);
    }

    void TakeAll()
    {
        Frame();
        GeneralData();
        Tour();
        for (const SheetPictures& sheet : kSheets) Sheet(sheet);
        Boxes();
        Preview();
        Dialogs();
    }

    /// Tells what failed and whether anything did.
    bool HasFailed() const
    {
        for (const RuntimeError& failure : surroundings_.failures) std::fprintf(stderr, "%s\n", failure.what());
        return hasFailed_ || !surroundings_.failures.empty();
    }

  private:
    Form& FormNamed(const std::string& name) { return *program_.Loaded(name); }
    QWidget& Window(const std::string& form) { return *desktop_->WindowOf(FormNamed(form)); }
    void PressMenu(const char* entry) { FormNamed("mdiBack").Get<MenuEntry>(entry).Press(); }

    void Settle()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
    }

    void Keep(QWidget& window, const char* name) { Keep(window.grab(), name); }
    void Keep(const QPixmap& picture, const char* name)
    {
        if (picture.save(folder_ + "/" + name + ".png")) return;
        std::fprintf(stderr, "The picture %s can't be written.\n", name);
        hasFailed_ = true;
    }

    void OpenProject()
    {
        surroundings_.files.push_back(project_);
        PressMenu("mnuOpen");
        Settle();
    }

    /// The window with the menu that hangs from it, as they stand on a screen.
    void KeepWithMenu(QWidget& window, QMenu& menu, QPoint at, const char* name)
    {
        QPixmap picture = window.grab();
        menu.adjustSize();
        QPainter(&picture).drawPixmap(at, menu.grab());
        const double scale = picture.devicePixelRatio();
        Keep(picture.copy(QRect({0, 0}, kMenuSize * scale)), name);
    }

    void Frame()
    {
        QWidget& frame = Window("mdiBack");
        Settle();
        OpenProject();
        auto* bar = static_cast<QMainWindow&>(frame).menuBar();
        QAction* file = bar->actions().front();
        KeepWithMenu(frame, *file->menu(), bar->actionGeometry(file).bottomLeft(), "frame-file-menu");
        auto* tests = frame.findChild<QToolBar*>("tbrLab");
        auto* button = tests->findChildren<QToolButton*>().at(ButtonWithMenu(*tests));
        KeepWithMenu(frame, *button->menu(), button->mapTo(&frame, button->rect().bottomLeft()), "frame-test-menu");
    }

    static qsizetype ButtonWithMenu(const QToolBar& tests)
    {
        const auto buttons = tests.findChildren<QToolButton*>();
        for (qsizetype i = 0; i < buttons.size(); ++i) {
            if (buttons[i]->menu() && buttons[i]->text() == "Std. Compaction") return i;
        }
        return 0;
    }

    void GeneralData()
    {
        surroundings_.files.push_back("new.mdb");
        PressMenu("mnuNew");
        Form& form = FormNamed("frmProject");
        const char* const texts[][2] = {{"txtID", "ลบ-214/69"},
                                        {"txtProject", "ก่อสร้างถนนสายบ้านโคกตูม - บ้านนาโสม"},
                                        {"txtLocation", "อ.เมือง จ.ลพบุรี"},
                                        {"txtClient", "แขวงทางหลวงชนบทลพบุรี"}};
        for (const auto& [name, text] : texts) form.Get<TextBox>(name).Type(text);
        Settle();
        Keep(Window("frmProject"), "general-data");
        program_.Run("Close", [this] { program_.Unload("frmProject"); });
        OpenProject();
    }

    void Press(Form& sheet, const char* name)
    {
        Control& control = *sheet.Find(name);
        if (auto* button = dynamic_cast<CommandButton*>(&control)) return button->Press();
        if (auto* box = dynamic_cast<CheckBox*>(&control)) return box->SetValue(!box->Value());
        dynamic_cast<OptionButton&>(control).Choose();
    }

    void Sheet(const SheetPictures& sheet)
    {
        FormNamed("mdiBack").Get<Toolbar>("tbrLab").PressItem(sheet.key);
        Form& form = FormNamed(sheet.form);
        auto& tabs = form.Get<TabControl>("SSTData");
        for (const Shot& shot : sheet.shots) {
            Window("mdiBack").setFixedSize(sheet.width, shot.height);
            tabs.SetTab(shot.tab);
            for (const char* name : shot.presses) Press(form, name);
            Settle();
            Keep(Part(form, "SSTData"), shot.name);
        }
        Window("mdiBack").setFixedSize(kFrameSize);
    }

    QWidget& Part(Form& form, const char* control)
    {
        for (QWidget* window : {desktop_->WindowOf(form), &Window("mdiBack")})
            if (auto* part = window->findChild<QWidget*>(control)) return *part;
        throw RuntimeError(error::kObjectRequired, form.Name() + " shows no " + control);
    }

    /// A sheet with an editor open, and the numbers of the tour at its parts.
    void Tour()
    {
        FormNamed("mdiBack").Get<Toolbar>("tbrLab").PressItem("mnuStd1");
        FormNamed("frmCompaction").Get<TextGrid>("MSHWt").PressMouse(MouseButton::Left, 2, 3);
        Settle();
        QWidget& frame = Window("mdiBack");
        QPixmap picture = frame.grab();
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        int number = 0;
        for (const TourStop& stop : kTour) PaintNumber(painter, PlaceOf(stop), ++number);
        painter.end();
        Keep(picture, "window-tour");
    }

    /// Where a stop's number goes: inside the upper right corner of the part, beside a button, in the middle of a line.
    QPoint PlaceOf(const TourStop& stop)
    {
        QWidget& frame = Window("mdiBack");
        const std::string control = stop.control;
        if (control == "menu") return {170, static_cast<QMainWindow&>(frame).menuBar()->geometry().center().y()};
        QWidget& part = control == "strip" ? Strip() : Part(FormNamed(stop.form), stop.control);
        const QRect place(part.mapTo(&frame, QPoint(0, 0)), part.size());
        if (control == "cmdCal") return {place.left() - 18, place.center().y()};
        if (control == "stbDes") return place.center();
        if (place.height() < 44) return {place.right() - 30, place.center().y()};
        return place.topRight() + QPoint(-26, 14);
    }

    QWidget& Strip()
    {
        for (auto* label : Window("mdiBack").findChildren<QLabel*>()) {
            if (label->minimumHeight() == label->maximumHeight()) return *label;
        }
        throw RuntimeError(error::kObjectRequired, "The frame has no strip.");
    }

    static void PaintNumber(QPainter& painter, QPoint at, int number)
    {
        constexpr int kRadius = 11;
        const QRect disc(at.x() - kRadius, at.y() - kRadius, 2 * kRadius, 2 * kRadius);
        painter.setPen(QPen(Qt::white, 2));
        painter.setBrush(QColor(31, 63, 79));
        painter.drawEllipse(disc);
        painter.setFont(looks::Scaled(QApplication::font(), 1.1, true));
        painter.drawText(disc, Qt::AlignCenter, QString::number(number));
    }

    /// What a box shows, photographed while it waits for its answer.
    void KeepBox(const char* name, const std::function<void()>& show)
    {
        QTimer::singleShot(200, [this, name] {
            if (QWidget* box = QApplication::activeModalWidget()) {
                Keep(*box, name);
                box->close();
            }
        });
        show();
    }

    /// The bar with what a compaction calculation says that has no mold.
    void Notice()
    {
        FormNamed("mdiBack").Get<Toolbar>("tbrLab").PressItem("mnuStd1");
        Form& sheet = FormNamed("frmCompaction");
        for (const char* box : {"txtDia", "txtHeight"}) sheet.Get<TextBox>(box).SetText("");
        sheet.Get<TextGrid>("MSHDensity")(4, 1);  // the cell that the calculation comes to
        program_.notices.Tell(FailureNotice({"frmCompaction.cmdCal_Click", RuntimeError(error::kDivisionByZero),
                                             program_.Loaded("frmCompaction"), Test::StdSoil}));
        Settle();
        Keep(*Window("mdiBack").findChild<QWidget*>("noticeBar"), "notice-failure");
        program_.notices.Settle("frmCompaction.cmdCal_Click");
    }

    void Boxes()
    {
        Notice();
        KeepBox("box-erase", [this] {
            surroundings_.QtSurroundings::Show(
                {"คุณต้องการลบข้อมูลคอมลัมภ์นี้ใช่หรือไม่?", "ยืนยันการลบ", MessageStyle::Plain, MessageButtons::OkCancel});
        });
    }

    void Preview()
    {
        FormNamed("mdiBack").Get<Toolbar>("tbrLab").PressItem("mnuAtt1");
        Form& sheet = FormNamed("frmAtterberg");
        for (const char* name : {"cmdCal", "cmdPlot", "cmdView"}) Press(sheet, name);
        Window("frmPreview").setFixedSize(kPreviewSize);
        FormNamed("frmPreview").Get<ComboBox>("cboScale").Choose(1);
        Settle();
        Keep(Window("frmPreview"), "preview");
        FormNamed("frmPreview").Get<Toolbar>("Toolbar1").Press(2);
        Settle();
    }

    void Dialogs()
    {
        Dialog("mnuSum", "frmSummary", "overall-results", kResultsSize);
        Dialog("mnuLogoT", "frmPreferences", "preferences-head", kPreferencesSize);
        Dialog("mnuLogoC", "frmPreferences", "preferences-cover", kPreferencesSize);
        Dialog("mnuOpr", "frmPreferences", "preferences-persons", kPreferencesSize);
    }

    void Dialog(const char* entry, const char* form, const char* name, QSize size)
    {
        PressMenu(entry);
        Window(form).resize(size);
        Settle();
        Keep(Window(form), name);
        Press(FormNamed(form), "cmdClose");
        Settle();
    }

    DiskFileSystem disk_;
    AnsweringSurroundings surroundings_;
    Program program_;
    std::string project_;
    QString folder_;
    std::unique_ptr<Desktop> desktop_;
    bool hasFailed_ = false;
};

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setFont(QFont("Liberation Sans", 10));
    if (argc != 4) {
        std::fprintf(stderr, "guide_pictures HOME PROJECT FOLDER\n");
        return 2;
    }
    try {
        Guide guide(argv[1], argv[2], argv[3]);
        guide.TakeAll();
        return guide.HasFailed() ? 1 : 0;
    } catch (const RuntimeError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
