/// How windows look: measures, colours that are given, type by role. Everything else is the platform's palette, so that
/// dark and high-contrast themes work.
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QStyle>

#include "drawing/display_list.h"

class QWidget;

namespace terravane {

/// Device-independent pixels.
namespace looks {
inline constexpr int kMargin = 12;
inline constexpr int kGap = 8;
inline constexpr int kWideGap = 16;
inline constexpr int kGridRowHeight = 28;
inline constexpr int kBannerHeight = 40;
inline constexpr int kStripHeight = 4;
inline constexpr double kTwipsPerPixel = 15;

inline constexpr double kBannerSize = 1.3;
inline constexpr double kFigureSize = 1.2;
inline constexpr double kCaptionSize = 0.9;

QColor ToQt(Colour colour);
/// Black or white, whichever reads better on the colour.
QColor InkOn(const QColor& ground);
/// The platform's font, with Thai letters from the fonts that came with the program where it has none of its own: what
/// another font in their place shows is tone marks without their letters.
QFont WithThaiLetters(QFont font);
/// The platform's font at a multiple of its size.
QFont Scaled(QFont font, double factor, bool bold = false);
/// Gives a widget its own ground, with readable ink; an invalid colour restores the platform's.
void SetGround(QWidget& widget, const QColor& ground);
/// The program's own mark.
QIcon ProgramIcon();
/// What stands on the tools, drawn in the palette's ink, whichever palette that is at the time.
enum class Sign { Save, Page, Cross };
QIcon SignIcon(Sign sign);
/// One of the platform's, in its own colours.
QIcon StandardIcon(QStyle::StandardPixmap which);
/// The mark as a drawing, in twips: a compaction curve over a soil profile.
DisplayList ProgramMark();
}  // namespace looks

}  // namespace terravane
