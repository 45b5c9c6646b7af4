#include "render/fonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QString>
#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <string>

#include "drawing/font_metrics.h"
#include "runtime/file_system.h"
#include "runtime/machine.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

struct InstalledFamily {
    std::string_view name;
    std::string_view package;
};

constexpr std::array kFamilies{
    InstalledFamily{"Loma", "fonts-tlwg-loma-ttf"},
    InstalledFamily{"Liberation Sans", "fonts-liberation"},
    InstalledFamily{"Liberation Serif", "fonts-liberation"},
};

QString QtName(std::string_view name)
{
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

void RequireFamily(const InstalledFamily& family)
{
    if (QFontInfo(QFont(QtName(family.name))).family() == QtName(family.name)) return;
    throw RuntimeError(error::kPrinter, "The font " + std::string(family.name) +
                                            " is not installed; it comes with the Debian package " +
                                            std::string(family.package) + ".");
}

}  // namespace

FaceAtSize FaceFor(const Font& font, std::string_view family)
{
    const double exact = SubstituteFor(font.name).unitsPerPoint * font.size;
    const int pixels = std::max(1, static_cast<int>(std::lround(exact)));
    QFont face(QtName(family));
    face.setPixelSize(pixels);
    face.setBold(font.bold);
    face.setItalic(font.italic);
    face.setKerning(false);
    face.setHintingPreference(QFont::PreferNoHinting);
    face.setStyleStrategy(QFont::NoFontMerging);
    return {face, exact / pixels};
}

std::size_t TakeFontsBeside()
{
    const DiskFileSystem disk;
    const std::string folder = ShareFolder() + "fonts";
    if (!disk.IsFolder(folder)) return 0;
    std::size_t taken = 0;
    for (const std::string& name : disk.Names(folder)) {
        const int number = QFontDatabase::addApplicationFont(QString::fromStdString(WithMark(folder) + name));
        if (number >= 0) ++taken;
    }
    return taken;
}

void RequireFonts()
{
    static std::atomic<bool> found = false;
    if (found) return;
    TakeFontsBeside();
    std::for_each(kFamilies.begin(), kFamilies.end(), RequireFamily);
    found = true;
}

}  // namespace terravane
