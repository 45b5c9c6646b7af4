#include "drawing/font_metrics.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "drawing/font_advances.h"
#include "runtime/text.h"

namespace terravane {

namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kSmallLetters = 0.6 * kTwipsPerPoint;  // the Thai faces' letters are small for their size

// The first row also stands for every font that is not listed.
constexpr std::array kSubstitutes{
    FontSubstitute{"MS Sans Serif", "Liberation Sans", "Loma", kTwipsPerPoint, 23.6, 20.0},
    FontSubstitute{"DilleniaUPC", "Loma", "Loma", kSmallLetters, 26.1, 17.7},
    FontSubstitute{"Cordia New", "Loma", "Loma", kSmallLetters, 26.1, 17.7},
    FontSubstitute{"Times New Roman", "Liberation Serif", "Loma", kTwipsPerPoint, 22.14, 17.82},
};

/// faces   regular, bold, italic, bold and italic
struct Family {
    std::string_view name;
    std::array<const FaceAdvances*, 4> faces;
};

constexpr std::array kFamilies{
    Family{"Loma", {&kLoma, &kLomaBold, &kLoma, &kLomaBold}},
    Family{"Liberation Sans",
           {&kLiberationSans, &kLiberationSansBold, &kLiberationSansItalic, &kLiberationSansBoldItalic}},
    Family{"Liberation Serif",
           {&kLiberationSerif, &kLiberationSerifBold, &kLiberationSerifItalic, &kLiberationSerifBoldItalic}},
};

const FaceAdvances& FaceOf(std::string_view family, const Font& font)
{
    const auto found = std::find_if(kFamilies.begin(), kFamilies.end(),
                                    [&](const Family& candidate) { return candidate.name == family; });
    return *found->faces[(font.bold ? 1u : 0u) + (font.italic ? 2u : 0u)];
}

/// Where characters are looked for, in this order: the font's own family, the Thai one, and one that knows
/// what a Thai family lacks (Greek letters, "≥").
struct Faces {
    std::array<std::string_view, 3> families;
    std::array<const FaceAdvances*, 3> advances;

    Faces(const FontSubstitute& substitute, const Font& font)
        : families{substitute.family, substitute.thaiFamily, "Liberation Sans"},
          advances{&FaceOf(families[0], font), &FaceOf(families[1], font), &FaceOf(families[2], font)}
    {}
};

/// One character's face, counted along `Faces`, and advance in design units.
struct Measured {
    std::size_t face;
    double advance;
};

Measured Measure(const Faces& faces, char32_t character)
{
    if (const auto place = AdvancePlace(character))
        for (std::size_t face = 0; face < faces.advances.size(); ++face)
            if (faces.advances[face]->Has(*place))
                return {face, static_cast<double>(faces.advances[face]->advances[*place])};
    return {0, static_cast<double>(faces.advances[0]->unknown)};
}

bool IsPlainAscii(std::string_view text) noexcept
{
    return std::all_of(text.begin(), text.end(), [](char unit) { return unit >= ' ' && unit <= '~'; });
}

/// The character at a place of a UTF-16 text, which then moves on behind it.
char32_t TakeCharacter(std::u16string_view text, std::size_t& at) noexcept
{
    const char32_t first = text[at++];
    const bool pair = first >= 0xD800 && first < 0xDC00 && at < text.size();
    if (!pair) return first;
    const char32_t second = text[at++];
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

double AsciiUnits(const FaceAdvances& face, std::string_view text)
{
    unsigned long units = 0;  // every face has these characters, and they are the first of its table
    for (const char unit : text) units += face.advances[static_cast<std::size_t>(unit - ' ')];
    return static_cast<double>(units);
}

double UnitsOf(const Faces& faces, std::u16string_view text)
{
    double units = 0;
    for (std::size_t at = 0; at < text.size();) units += Measure(faces, TakeCharacter(text, at)).advance;
    return units;
}

double TwipsPerUnit(const FontSubstitute& substitute, const Font& font) noexcept
{
    return substitute.unitsPerPoint * font.size / kUnitsPerEm;
}

}  // namespace

const FontSubstitute& SubstituteFor(std::string_view fontName) noexcept
{
    const auto found = std::find_if(kSubstitutes.begin(), kSubstitutes.end(), [&](const FontSubstitute& substitute) {
        return SameName(substitute.asked, fontName);
    });
    return found == kSubstitutes.end() ? kSubstitutes.front() : *found;
}

double TextWidth(const Font& font, std::string_view text)
{
    const FontSubstitute& substitute = SubstituteFor(font.name);
    const double units = IsPlainAscii(text) ? AsciiUnits(FaceOf(substitute.family, font), text)
                                            : UnitsOf(Faces(substitute, font), ToUtf16(text));
    return units * TwipsPerUnit(substitute, font);
}

std::vector<FontRun> FontRuns(const Font& font, std::string_view text)
{
    const FontSubstitute& substitute = SubstituteFor(font.name);
    const Faces faces(substitute, font);
    const std::u16string units = ToUtf16(text);
    std::vector<FontRun> runs;
    for (std::size_t at = 0; at < units.size();) {
        const std::size_t start = at;
        const Measured measured = Measure(faces, TakeCharacter(units, at));
        const std::string_view family = faces.families[measured.face];
        if (runs.empty() || runs.back().family != family) runs.push_back({{}, family, 0});
        runs.back().text.append(units, start, at - start);
        runs.back().width += measured.advance * TwipsPerUnit(substitute, font);
    }
    return runs;
}

double TextHeight(const Font& font) noexcept
{
    return SubstituteFor(font.name).lineHeight * font.size;
}

}  // namespace terravane
