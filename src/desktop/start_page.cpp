#include "desktop/start_page.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>
#include <string>

#include "app/mdiBack.h"
#include "desktop/appearance.h"
#include "desktop/looks.h"
#include "desktop/qt_text.h"
#include "runtime/machine.h"
#include "runtime/text.h"

namespace terravane {

namespace {

constexpr int kWidth = 420, kButtonHeight = 48, kMark = 64;  // pixels
constexpr std::string_view kSample = "samples/TRVN_road.mdb";

/// Where the sample stands, beside an installed program or in the folder that it was built in; empty: nowhere.
std::string SampleProject(const FileSystem& files)
{
    const std::string built = FolderOf(ProgramFile()) + "../" + std::string(kSample);
    for (const std::string& path : {ShareFolder().append(kSample), built})
        if (files.Exists(path)) return QDir::cleanPath(ToQt(path)).toStdString();
    return {};
}

/// "TRVN_road.mdb", its folder and when it was changed last, in two lines.
QString RecentWords(const QFileInfo& file)
{
    const QString day = file.exists() ? QLocale().toString(file.lastModified(), QLocale::ShortFormat)
                                      : QObject::tr("not there any more");
    return file.fileName() + "\n" + QDir::toNativeSeparators(file.path()) + ", " + day;
}

}  // namespace

StartPage::StartPage(Program& program, Form& frame, QWidget* parent) : QWidget(parent), program_(program), form_(frame)
{
    setObjectName("startPage");
    setMinimumWidth(kWidth);
    setAccessibleName(tr("Start"));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(looks::kMargin);
    auto* mark = new QLabel(this);
    mark->setPixmap(looks::ProgramIcon().pixmap(kMark, kMark));
    mark->setAlignment(Qt::AlignCenter);
    mark->setAccessibleName(tr("Picture"));
    column->addWidget(mark);
    for (const char* entry : {"mnuNew", "mnuOpen"}) {
        auto& command = form_.Get<MenuEntry>(entry);
        auto* button = Add(*column, QString("start_") + entry, ToQt(command.Caption()));
        ScaleLetters(*button, looks::kFigureSize, true);
        connect(button, &QPushButton::clicked, this, [&command] { command.Press(); });
    }
    AddRecent(*column);
    AddSample(*column);
    bindings_.push_back(form_.Get<Toolbar>("tbrLab").Show([this] { Follow(); }));
}

void StartPage::Settle(const QRect& room)
{
    room_ = room;
    layout()->activate();
    adjustSize();
    move(room.left() + (room.width() - width()) / 2, room.top() + (room.height() - height()) / 3);
}

QPushButton* StartPage::Add(QVBoxLayout& column, const QString& name, const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setMinimumHeight(kButtonHeight);
    button->setAutoDefault(true);  // Enter presses it
    column.addWidget(button);
    return button;
}

void StartPage::AddRecent(QVBoxLayout& column)
{
    recent_ = Add(column, "start_mnuRecent", {});
    auto& command = form_.Get<MenuEntry>("mnuRecent");
    connect(recent_, &QPushButton::clicked, this, [&command] { command.Press(); });
    bindings_.push_back(command.Show([this, &command] {
        recent_->setText(RecentWords(QFileInfo(ToQt(Printable(command.Caption())))));
        recent_->setVisible(command.Visible());
        Settle(room_);
    }));
}

void StartPage::AddSample(QVBoxLayout& column)
{
    const std::string sample = SampleProject(program_.Files());
    if (sample.empty()) return;
    auto* button = Add(column, "start_sample", tr("Open the sample project"));
    connect(button, &QPushButton::clicked, this, [this, sample] {
        program_.Run("mdiBack.start_sample", [&] { program_.Get<mdiBack>(kFrameName).OpenFile(sample); });
    });
}

/// Once a project is chosen the tests are what comes next.
void StartPage::Follow()
{
    setVisible(!form_.Get<Toolbar>("tbrLab").Enabled());
}

}  // namespace terravane
