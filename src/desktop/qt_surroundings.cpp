#include "desktop/qt_surroundings.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QUrl>
#include <memory>

#include "desktop/looks.h"
#include "desktop/qt_text.h"
#include "render/pdf.h"

namespace terravane {

namespace {

QMessageBox::Icon IconOf(MessageStyle style)
{
    switch (style) {
        case MessageStyle::Information:
            return QMessageBox::Information;
        case MessageStyle::Critical:
            return QMessageBox::Critical;
        case MessageStyle::Question:
            return QMessageBox::Question;
        case MessageStyle::Plain:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons)
{
    switch (buttons) {
        case MessageButtons::Ok:
            return QMessageBox::Ok;
        case MessageButtons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case MessageButtons::YesNo:
            break;
    }
    return QMessageBox::Yes | QMessageBox::No;
}

MessageAnswer AnswerOf(int button)
{
    if (button == QMessageBox::Ok) return MessageAnswer::Ok;
    if (button == QMessageBox::Yes) return MessageAnswer::Yes;
    return button == QMessageBox::No ? MessageAnswer::No : MessageAnswer::Cancel;
}

/// "Terravane File(*.mdb)|TRVN*.mdb" as Qt's dialogs want it: "Terravane File (TRVN*.mdb)".
QString FilterOf(const std::string& filter)
{
    const QStringList parts = ToQt(filter).split('|');
    if (parts.size() < 2) return {};
    QString patterns = parts[1];
    return parts[0].section('(', 0, 0).trimmed() + " (" + patterns.replace(';', ' ') + ")";
}

QWidget* Above()
{
    return QApplication::activeWindow();
}

}  // namespace

MessageAnswer QtSurroundings::Show(const Message& message)
{
    QMessageBox box(IconOf(message.style), ToQt(message.title), ToQt(message.text), ButtonsOf(message.buttons),
                    Above());
    box.setTextFormat(Qt::PlainText);  // a file may have a name that looks like marked-up text
    if (message.buttons == MessageButtons::OkCancel) box.setDefaultButton(QMessageBox::Cancel);
    return AnswerOf(box.exec());
}

std::optional<std::string> QtSurroundings::AskFile(const FileQuestion& question)
{
    const bool save = question.kind == FileDialogKind::Save;
    const QString filter = FilterOf(question.filter);
    const QString path =
        save ? QFileDialog::getSaveFileName(Above(), ToQt(question.title), {}, filter, nullptr,
                                            QFileDialog::DontConfirmOverwrite)  // the name is given a prefix first
             : QFileDialog::getOpenFileName(Above(), ToQt(question.title), {}, filter);
    if (path.isEmpty()) return std::nullopt;
    QString full = QFileInfo(path).absoluteFilePath();
    if (save && QFileInfo(full).suffix().isEmpty() && filter.contains(".mdb")) full += ".mdb";
    return FullPath(full.toStdString());
}

std::optional<PrintTarget> QtSurroundings::AskPdfFile()
{
    QString path = QFileDialog::getSaveFileName(Above(), QObject::tr("Save as PDF"),
                                                ProposedPdf ? ToQt(ProposedPdf()) : QString(), "PDF (*.pdf)");
    if (path.isEmpty()) return std::nullopt;
    if (QFileInfo(path).suffix().isEmpty()) path += ".pdf";
    return [this, path = FullPath(path.toStdString())](std::span<const DisplayList> pages, const std::string& title) {
        WritePdf(files_, path, pages, PdfDocument{title, Now(), {}});
    };
}

std::optional<PrintTarget> QtSurroundings::AskPrinter()
{
    const bool intoFile = std::exchange(intoFile_, false);
    if (intoFile || QPrinterInfo::availablePrinterNames().isEmpty()) return AskPdfFile();
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setPageSize(QPageSize(QPageSize::A4));
    printer->setFullPage(true);
    QPrintDialog dialog(printer.get(), Above());
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return [printer](std::span<const DisplayList> pages, const std::string& title) {
        printer->setDocName(ToQt(title));
        PrintPages(*printer, pages);
    };
}

Moment QtSurroundings::Now() const
{
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return MakeMoment(date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second());
}

void QtSurroundings::OpenDocument(const std::string& path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(ToQt(path)).absoluteFilePath()));
}

void QtSurroundings::Fail(const std::string& event, const RuntimeError& error)
{
    if (failuresAreNotices_) return;
    QMessageBox box(QMessageBox::Critical, QObject::tr("Run-time error %1").arg(error.Number()),
                    ToQt(error.Description()), QMessageBox::Ok, Above());
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(QObject::tr("The command %1 stopped here. What you typed stays as it is, and so does what "
                                       "was saved before.")
                               .arg(ToQt(event)));
    box.exec();
}

void QtSurroundings::End()
{
    QCoreApplication::quit();
}

}  // namespace terravane
