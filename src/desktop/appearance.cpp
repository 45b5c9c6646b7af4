#include "desktop/appearance.h"

#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QPalette>
#include <QSettings>
#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <iterator>

#include "desktop/looks.h"
#include "desktop/window_places.h"

namespace terravane {

namespace {

constexpr const char* kFactor = "letterFactor";
constexpr const char* kBold = "letterBold";
constexpr const char* kColoursKey = "colours";
constexpr const char* kTextKey = "text";

/// The few colours that a palette is made of.
struct Ground {
    QColor window, base, button, ink, faint, highlight, onHighlight, line;
};

QPalette PaletteOf(const Ground& ground)
{
    QPalette palette(ground.ink, ground.button, ground.button.lighter(130), ground.button.darker(140), ground.line,
                     ground.ink, ground.ink, ground.base, ground.window);
    palette.setColor(QPalette::AlternateBase, ground.button);
    palette.setColor(QPalette::ButtonText, ground.ink);
    palette.setColor(QPalette::ToolTipBase, ground.base);
    palette.setColor(QPalette::ToolTipText, ground.ink);
    palette.setColor(QPalette::PlaceholderText, ground.faint);
    palette.setColor(QPalette::Highlight, ground.highlight);
    palette.setColor(QPalette::HighlightedText, ground.onHighlight);
    palette.setColor(QPalette::Link, ground.highlight);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, ground.faint);
    return palette;
}

QPalette PaletteOf(Colours colours)
{
    switch (colours) {
        case Colours::Light:
            return PaletteOf({QColor(239, 239, 239), Qt::white, QColor(239, 239, 239), Qt::black, QColor(110, 110, 110),
                              QColor(48, 110, 190), Qt::white, QColor(180, 180, 180)});
        case Colours::Dark:
            return PaletteOf({QColor(45, 45, 48), QColor(30, 30, 32), QColor(58, 58, 62), QColor(235, 235, 235),
                              QColor(150, 150, 150), QColor(90, 160, 240), Qt::black, QColor(90, 90, 94)});
        case Colours::HighContrast:
            // Boxes stand out from the ground by their own: the style draws edges darker than the ground, which here is
            // black.
            return PaletteOf({Qt::black, QColor(50, 50, 50), QColor(50, 50, 50), Qt::white, QColor(190, 190, 190),
                              QColor(255, 255, 0), Qt::black, Qt::white});
        case Colours::Desktop:
            break;
    }
    return QApplication::style()->standardPalette();
}

/// The letters before any were scaled.
const QFont& FirstFont()
{
    static const QFont font = QApplication::font();
    return font;
}

void Rescale(QWidget& widget)
{
    const QVariant factor = widget.property(kFactor);
    if (factor.isValid())
        widget.setFont(looks::Scaled(QApplication::font(), factor.toDouble(), widget.property(kBold).toBool()));
}

Colours ColoursOf(const QString& key)
{
    const auto found = std::ranges::find_if(kColours, [&key](const NamedColours& named) { return key == named.key; });
    return found == kColours.end() ? Colours::Desktop : found->colours;
}

/// What follows an option; empty where it was not given.
QString Given(const QStringList& arguments, const QString& option)
{
    const qsizetype at = arguments.indexOf(option);
    return at >= 0 && at + 1 < arguments.size() ? arguments.at(at + 1) : QString();
}

/// A menu of choices, of which one is marked.
template <class Choose>
void AddChoice(QActionGroup& group, QMenu& menu, const QString& title, bool isChosen, const Choose& choose)
{
    QAction* action = menu.addAction(title);
    action->setCheckable(true);
    action->setChecked(isChosen);
    group.addAction(action);
    QObject::connect(action, &QAction::triggered, &menu, choose);
}

}  // namespace

void UseColours(Colours colours)
{
    QApplication::setPalette(PaletteOf(colours));
}

void UseTextSize(int percent)
{
    QApplication::setFont(looks::Scaled(FirstFont(), percent / 100.0, FirstFont().bold()));
    for (QWidget* widget : QApplication::allWidgets()) Rescale(*widget);
}

double TextFactor()
{
    return QApplication::font().pointSizeF() / FirstFont().pointSizeF();
}

void ScaleLetters(QWidget& widget, double factor, bool bold)
{
    widget.setProperty(kFactor, factor);
    widget.setProperty(kBold, bold);
    Rescale(widget);
}

void RestoreAppearance(const Program& program, const QStringList& arguments)
{
    const QSettings kept = WindowsFile(program);
    const QString colours = Given(arguments, "--palette"), text = Given(arguments, "--text");
    const Colours chosen = ColoursOf(colours.isEmpty() ? kept.value(kColoursKey).toString() : colours);
    if (chosen != Colours::Desktop) UseColours(chosen);
    const int percent = (text.isEmpty() ? kept.value(kTextKey, 100) : QVariant(text)).toInt();
    if (percent != 100 && std::ranges::find(kTextSizes, percent) != kTextSizes.end()) UseTextSize(percent);
}

void AddAppearance(const Program& program, QMenu& view)
{
    const QSettings kept = WindowsFile(program);
    QMenu* colours = view.addMenu(QObject::tr("&Colours"));
    auto* ofColours = new QActionGroup(colours);
    const Colours now = ColoursOf(kept.value(kColoursKey).toString());
    for (const NamedColours& named : kColours)
        AddChoice(*ofColours, *colours, QObject::tr(named.title), named.colours == now, [&program, named] {
            UseColours(named.colours);
            WindowsFile(program).setValue(kColoursKey, QString::fromLatin1(named.key));
        });
    QMenu* sizes = view.addMenu(QObject::tr("&Text Size"));
    auto* ofSizes = new QActionGroup(sizes);
    const int size = kept.value(kTextKey, 100).toInt();
    for (const int percent : kTextSizes)
        AddChoice(*ofSizes, *sizes, QObject::tr("%1 %").arg(percent), percent == size, [&program, percent] {
            UseTextSize(percent);
            WindowsFile(program).setValue(kTextKey, percent);
        });
}

}  // namespace terravane
