// The platform's file dialogs, answered as a user does who types a name and presses Enter.
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "program/printer.h"

namespace terravane {
namespace {

constexpr int kLook = 20;  // ms between two looks for the dialog

/// The dialog that opens next gets that name.
class DialogAnswer {
  public:
    explicit DialogAnswer(const QString& name)
    {
        QObject::connect(&timer_, &QTimer::timeout, [this, name] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            timer_.stop();
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(name);
            static_cast<QDialog*>(dialog)->accept();
        });
        timer_.start(kLook);
    }

  private:
    QTimer timer_;
};

struct Dialogs : testing::Test {
    QTemporaryDir folder;
    DiskFileSystem disk;
    QtSurroundings surroundings{disk};

    QString PathOf(const char* name) const { return QDir::toNativeSeparators(folder.path() + "/" + name); }

    QString NewFile(const char* name)
    {
        const DialogAnswer answer(PathOf(name));
        const auto path =
            surroundings.AskFile({"New File", FileDialogKind::Save, "Terravane File(*.mdb)|TRVN*.mdb", 1});
        return QString::fromStdString(path.value_or(""));
    }
};

TEST_F(Dialogs, ANewProjectTypedWithoutAnEndingIsAnMdbFile)
{
    EXPECT_EQ(NewFile("road"), PathOf("road.mdb"));
    EXPECT_EQ(NewFile("road.mdb"), PathOf("road.mdb"));
}

TEST_F(Dialogs, AQuestionIsAnsweredByTheButtonThatIsPressed)
{
    const auto answer = [this](MessageButtons buttons, QMessageBox::StandardButton pressed) {
        QTimer::singleShot(kLook, [pressed] {
            qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->button(pressed)->click();
        });
        return surroundings.Show({.text = "Replace?", .buttons = buttons});
    };
    EXPECT_EQ(answer(MessageButtons::YesNo, QMessageBox::Yes), MessageAnswer::Yes);
    EXPECT_EQ(answer(MessageButtons::YesNo, QMessageBox::No), MessageAnswer::No);
    EXPECT_EQ(answer(MessageButtons::OkCancel, QMessageBox::Ok), MessageAnswer::Ok);
    EXPECT_EQ(answer(MessageButtons::OkCancel, QMessageBox::Cancel), MessageAnswer::Cancel);
}

TEST_F(Dialogs, WhereNoPrinterIsThePagesGoIntoAPdf)
{
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "This machine has a printer to ask for.";
    const DialogAnswer answer(PathOf("report.pdf"));
    const auto target = surroundings.AskPrinter();
    ASSERT_TRUE(target);
    (*target)(std::vector{DisplayList{kA4Short, kA4Long, {}}}, "Report");
    QFile pdf(PathOf("report.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdf.readAll().startsWith("%PDF-"));
}

}  // namespace
}  // namespace terravane
