// Colours and letters as the user chose them: windows follow at once, given colours stay, all text can be read.
#include "desktop/appearance.h"

#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <cmath>

#include <gtest/gtest.h>

#include "desktop/desktop_fixture.h"
#include "desktop/looks.h"
#include "laboratory/tests.h"

namespace terravane {
namespace {

/// The application's colours and letters as they were, for the tests that follow.
struct AppearanceKept {
    ~AppearanceKept()
    {
        UseColours(Colours::Desktop);
        UseTextSize(100);
    }
};

double Light(const QColor& colour)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

/// 1 to 21, as the guidelines for accessible contents count it.
double Contrast(const QColor& one, const QColor& other)
{
    const double first = Light(one), second = Light(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

class EveryPalette : public testing::TestWithParam<Colours> {};
INSTANTIATE_TEST_SUITE_P(Palettes, EveryPalette, testing::Values(Colours::Light, Colours::Dark, Colours::HighContrast));

TEST_P(EveryPalette, LettersStandOutFromTheirGround)
{
    const AppearanceKept kept;
    UseColours(GetParam());  // Qt repaints open windows only while the application's own loop runs
    DesktopFixture running;
    const QPalette palette = QApplication::palette();
    const double least = GetParam() == Colours::HighContrast ? 12 : 7;
    EXPECT_GE(Contrast(palette.color(QPalette::Text), palette.color(QPalette::Base)), least);
    EXPECT_GE(Contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)), least);
    EXPECT_GE(Contrast(palette.color(QPalette::ButtonText), palette.color(QPalette::Button)), least);
    EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 4.5);
    EXPECT_EQ(running.Window("mdiBack")->palette().color(QPalette::Window), palette.color(QPalette::Window));
}

TEST_P(EveryPalette, GivenColoursStay)
{
    const AppearanceKept kept;
    DesktopFixture running;
    UseColours(GetParam());
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    const auto* banner = running.Widget<QLabel>("frmCompaction", "txtLabName");
    EXPECT_EQ(banner->palette().color(QPalette::Window), QColor(0, 0, 192));
    const auto* command = running.Widget<QPushButton>("frmCompaction", "cmdCal");
    EXPECT_EQ(command->palette().color(QPalette::Button), QColor(255, 192, 128));
    EXPECT_GE(Contrast(command->palette().color(QPalette::ButtonText), QColor(255, 192, 128)), 7);
}

TEST(Appearance, SignsFollowThePalette)
{
    const AppearanceKept kept;
    const QIcon save = looks::SignIcon(looks::Sign::Save);
    const auto ink = [&save] { return save.pixmap(16, 16).toImage().pixelColor(8, 13); };
    UseColours(Colours::Light);
    const QColor onLight = ink();
    UseColours(Colours::HighContrast);
    EXPECT_GT(Light(ink()), Light(onLight) + 0.5);
}

TEST(Appearance, LettersGrowAtOnceAndLargerOnesStayLarger)
{
    const AppearanceKept kept;
    DesktopFixture running;
    running.MakeProject();
    running.OpenSheet("mnuStd1");
    const auto* banner = running.Widget<QLabel>("frmCompaction", "txtLabName");
    const auto* box = running.Widget("frmCompaction", "txtDia");
    const double before = banner->font().pointSizeF(), plain = box->font().pointSizeF();
    UseTextSize(200);
    QCoreApplication::processEvents();
    EXPECT_NEAR(banner->font().pointSizeF(), 2 * before, 0.01);
    EXPECT_NEAR(box->font().pointSizeF(), 2 * plain, 0.01);
}

/// Boxes, buttons and labels that are lower than their letters.
std::string CutIn(const QWidget& window)
{
    std::string cut;
    for (auto* widget : window.findChildren<QWidget*>()) {
        const bool isText = qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget) ||
                            widget->inherits("QLineEdit") || widget->inherits("QComboBox");
        const bool holdsText =
            isText && widget->isVisible() && widget->height() > 0 && !widget->accessibleName().isEmpty();
        const auto* label = qobject_cast<QLabel*>(widget);
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        if (!holdsText || (label && label->text().isEmpty()) || (button && button->text().isEmpty()) ||
            widget->inherits("QToolBarExtension"))
            continue;
        if (widget->height() < widget->fontMetrics().height())
            cut += widget->accessibleName().toStdString() + " (" + widget->objectName().toStdString() + ")\n";
    }
    return cut;
}

TEST(Appearance, AtThreeHundredPercentNoTextIsCutDown)
{
    const AppearanceKept kept;
    UseTextSize(300);
    DesktopFixture running;
    running.MakeProject();
    running.Window("mdiBack")->setFixedSize(1280, 696);
    for (const laboratory::Description* test : laboratory::Tests()) {
        running.OpenSheet(std::string(test->menu) + "1");
        Form& form = *running.program.ShownForms().back().form;
        auto& tabs = form.Get<TabControl>("SSTData");
        for (int tab = 0; tab < tabs.Count(); ++tab) {
            tabs.SetTabEnabled(tab, true);
            tabs.SetTab(tab);
            QTest::qWait(20);
            EXPECT_EQ(CutIn(*running.Window(form.Name())), "") << test->key << ", tab " << tab;
        }
    }
}

}  // namespace
}  // namespace terravane
