/// Colours and size of letters, as the user chose them: the desktop's own, or light, dark and high contrast; 100 to 300
/// percent. Kept beside the places of the windows.
#pragma once

#include <QString>
#include <QStringList>
#include <array>

class QMenu;
class QWidget;

namespace terravane {

class Program;

enum class Colours { Desktop, Light, Dark, HighContrast };

/// A choice of colours as arguments and the file name it, and as the menu shows it.
struct NamedColours {
    Colours colours;
    const char* key;
    const char* title;
};
inline constexpr std::array kColours{
    NamedColours{Colours::Desktop, "desktop", "As the &Desktop"},
    NamedColours{Colours::Light, "light", "&Light"},
    NamedColours{Colours::Dark, "dark", "&Dark"},
    NamedColours{Colours::HighContrast, "contrast", "&High Contrast"},
};
inline constexpr std::array kTextSizes{100, 125, 150, 200, 250, 300};  // percent

/// All windows take the colours at once; those that a method gives stay.
void UseColours(Colours colours);
/// All letters take the size at once, in percent of what they had when the program was started.
void UseTextSize(int percent);

/// How much larger letters are than when the program was started.
double TextFactor();

/// Letters of a widget that are larger or bolder than the others, and stay so at every size.
void ScaleLetters(QWidget& widget, double factor, bool bold = false);

/// What was chosen last, unless the arguments "--palette KEY" and "--text PERCENT" say otherwise.
void RestoreAppearance(const Program& program, const QStringList& arguments);
/// The choices, of which each is kept.
void AddAppearance(const Program& program, QMenu& view);

}  // namespace terravane
