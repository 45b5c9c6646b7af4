// The operators used: q Q keep and restore, cm placing, w d J j width, dash, cap and join, RG rg ink and filling,
// m l c re h paths, S f B their ink, W n clip, BT ET text, Do picture. All of a page is in points, y downwards: a
// reader that draws with one ink takes wide lines in smaller units for hairlines. BMC BDC EMC stand around what is one
// to somebody who reads the page.
#include "render/pdf_page.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <span>
#include <utility>

#include "drawing/font_metrics.h"
#include "render/decoded_pictures.h"
#include "render/drawing_rules.h"
#include "render/simplified.h"

namespace terravane::pdf {

namespace {

constexpr double kPointsPerTwip = 0.05;

/// Of a quarter circle's control points, in radii from its ends: the curve that is nearest to the arc.
constexpr double kArc = 0.5522847498;

enum class Cap { Flat = 0, Round = 1 };
enum class Join { Miter = 0, Round = 1 };

/// What lines are drawn with: an operator is written where it differs from what stands.
struct Stroke {
    Pen pen;
    Cap cap = Cap::Flat;
    Join join = Join::Miter;
    bool operator==(const Stroke&) const = default;
};

/// Glyphs one behind the other in as few strings as they can stand in.
class GlyphString {
  public:
    GlyphString(std::string& out, double size) : out_(out), size_(size) {}

    void Add(const PlacedGlyph& glyph)
    {
        constexpr double kStraight = 1e-4;  // ems
        const bool follows = std::abs(glyph.x - nextX_) < kStraight && std::abs(glyph.y - startY_) < kStraight;
        if (!follows) {
            Close();
            AppendNumber(out_, (glyph.x - startX_) * size_);
            AppendNumber(out_, (glyph.y - startY_) * size_);
            out_ += " Td";
            startX_ = glyph.x;
            startY_ = glyph.y;
        }
        if (!isOpen_) out_ += '(';
        isOpen_ = true;
        AppendBytes(out_, glyph.glyph);
        nextX_ = glyph.x + glyph.step;
    }

    void Close()
    {
        if (isOpen_) out_ += ")Tj";
        isOpen_ = false;
    }

  private:
    std::string& out_;
    double size_;
    double startX_ = 0, startY_ = 0, nextX_ = 0;
    bool isOpen_ = false;
};

class PageWriter {
  public:
    explicit PageWriter(Resources& resources) : resources_(resources) {}

    std::string Write(const DisplayList& page, PageStructure& structure)
    {
        Numbers({1, 0, 0, -1, 0, PaperPoints(page.height)}, "cm");
        width_ = page.width;
        height_ = page.height;
        for (std::size_t first = 0, last = 0; first < page.items.size(); first = last) {
            const int element = structure.ElementOf(first);
            while (last < page.items.size() && structure.ElementOf(last) == element) ++last;
            WriteStretch(std::span(page.items).subspan(first, last - first), structure, element);
        }
        return std::move(out_);
    }

    void operator()(const TextItem& item)
    {
        double x = 0;
        for (const FontRun& run : FontRuns(item.font, item.text)) {
            WriteRun(item, run, x);
            x += run.width;
        }
    }

    void operator()(const LineItem& item)
    {
        if (!IsSeen(item.x1, item.y1, item.x2, item.y2, Ink(item.pen))) return;
        Use({item.pen, Cap::Flat, Join::Miter});
        Lengths({item.x1, item.y1}, "m");
        Lengths({item.x2, item.y2}, "l S");
    }

    void operator()(const PolylineItem& item)
    {
        if (item.points.size() < 2) return;
        bool isBegun = false, isOpen = false;
        const auto points = Simplified(item.points, kFlatness / scale_);
        for (std::size_t at = 1; at < points.size(); ++at) {
            const DrawnPoint &from = points[at - 1], &to = points[at];
            const bool wasOpen = std::exchange(isOpen, IsSeen(from.x, from.y, to.x, to.y, Ink(item.pen)));
            if (!isOpen) continue;
            if (!std::exchange(isBegun, true)) Use({item.pen, Cap::Flat, Join::Round});
            if (!wasOpen) Lengths({from.x, from.y}, "m");
            Lengths({to.x, to.y}, "l");
        }
        if (isBegun) out_ += " S";
    }

    void operator()(const BoxItem& item)
    {
        if (!IsSeen(item.x1, item.y1, item.x2, item.y2, Ink(item.pen))) return;
        Use({item.pen, Cap::Flat, Join::Miter});
        Rectangle(item.x1, item.y1, item.x2, item.y2);
        out_ += " S";
    }

    void operator()(const FillItem& item)
    {
        if (!IsSeen(item.x1, item.y1, item.x2, item.y2, 0)) return;
        FillWith(item.colour);
        Rectangle(item.x1, item.y1, item.x2, item.y2);
        out_ += " f";
    }

    void operator()(const CircleItem& item)
    {
        if (!IsSeen(item.x, item.y, item.x, item.y, item.radius + Ink(item.pen))) return;
        Use({item.pen, Cap::Flat, Join::Miter});
        if (item.filled) FillWith(item.fill);
        const double x = item.x;
        const double y = item.y;
        const double r = item.radius;
        const double a = r * kArc;
        Lengths({x + r, y}, "m");
        Lengths({x + r, y + a, x + a, y + r, x, y + r}, "c");
        Lengths({x - a, y + r, x - r, y + a, x - r, y}, "c");
        Lengths({x - r, y - a, x - a, y - r, x, y - r}, "c");
        Lengths({x + a, y - r, x + r, y - a, x + r, y}, "c h");
        out_ += item.filled ? " B" : " S";
    }

    void operator()(const PointItem& item)
    {
        if (!IsSeen(item.x, item.y, item.x, item.y, Ink({item.width}))) return;
        Use({Pen{item.width, 0, item.colour}, Cap::Round, Join::Round});
        Lengths({item.x, item.y}, "m");
        Lengths({item.x, item.y}, "l S");
    }

    void operator()(const PictureItem& item)
    {
        if (item.drawing)
            WriteDrawing(item, *item.drawing);
        else if (item.picture && !Decoded(item.picture).isNull())
            WritePicture(item);
        else
            for (const DrawnItem& line : MissingPicture(item)) std::visit(*this, line);
    }

  private:
    /// What Q takes back.
    struct State {
        std::optional<Stroke> stroke;
        std::optional<Colour> fill;
        const Face* face;
        double size;
        double scale;
    };

    /// Items of one element, marked so; nothing where none of them is seen.
    void WriteStretch(std::span<const DrawnItem> items, PageStructure& structure, int element)
    {
        const std::size_t before = out_.size();
        out_ += structure.Begin(element);
        const std::size_t begun = out_.size();
        for (const DrawnItem& item : items) std::visit(*this, item);
        if (out_.size() == begun) return out_.resize(before);
        structure.Keep(element);
        out_ += " EMC";
    }

    void Draw(const DisplayList& list)
    {
        const double width = std::exchange(width_, list.width), height = std::exchange(height_, list.height);
        for (const DrawnItem& item : list.items) std::visit(*this, item);
        width_ = width;
        height_ = height;
    }

    /// Whether ink between two corners, and as far around them, is seen at all. What is no number is left to the
    /// reader.
    bool IsSeen(double x1, double y1, double x2, double y2, double around) const
    {
        const auto isOff = [&](double one, double other, double size) {
            return std::max(one, other) + around < 0 || std::min(one, other) - around > size;
        };
        return !isOff(x1, x2, width_) && !isOff(y1, y2, height_);
    }
    double Ink(const Pen& pen) const { return std::max(pen.width * kTwipsPerDrawWidth, 1 / scale_); }

    void Numbers(std::initializer_list<double> numbers, std::string_view operation)
    {
        for (const double number : numbers) AppendNumber(out_, number);
        out_ += ' ';
        out_ += operation;
    }

    /// Twips, as points.
    void Lengths(std::initializer_list<double> twips, std::string_view operation)
    {
        for (const double length : twips) AppendNumber(out_, length * kPointsPerTwip);
        out_ += ' ';
        out_ += operation;
    }

    void ColourAs(Colour colour, std::string_view operation)
    {
        constexpr double kFull = 255;
        Numbers({colour.red / kFull, colour.green / kFull, colour.blue / kFull}, operation);
    }

    void Rectangle(double x1, double y1, double x2, double y2)
    {
        Lengths({std::min(x1, x2), std::min(y1, y2), std::abs(x2 - x1), std::abs(y2 - y1)}, "re");
    }

    void FillWith(Colour colour)
    {
        if (fill_ == colour) return;
        fill_ = colour;
        ColourAs(colour, "rg");
    }

    void Use(const Stroke& stroke)
    {
        if (stroke_ == stroke) return;
        stroke_ = stroke;
        ColourAs(stroke.pen.colour, "RG");
        Lengths({std::max(stroke.pen.width * kTwipsPerDrawWidth, 1 / scale_)}, "w");
        Numbers({static_cast<double>(stroke.cap)}, "J");
        Numbers({static_cast<double>(stroke.join)}, "j");
        out_ += " [";
        for (const double length : DashOf(stroke.pen)) AppendNumber(out_, length * kPointsPerTwip);
        out_ += " ] 0 d";
    }

    void WriteRun(const TextItem& item, const FontRun& run, double x)
    {
        const Face& face = FaceOf(run.family, item.font);
        const ShapedText glyphs = face.Shape(run.text);
        const double size = SubstituteFor(item.font.name).unitsPerPoint * item.font.size;
        FillWith(item.colour);
        const std::string& name = resources_.NameOf(face, *glyphs);
        out_ += " BT";
        if (face_ != &face || size_ != size) {
            face_ = &face;
            size_ = size;
            out_ += name;
            Lengths({size}, "Tf");
        }
        PlaceText(item, x);
        WriteGlyphs(*glyphs, size * kPointsPerTwip);
        out_ += " ET";
    }

    /// The origin on the base line, turned about the text's upper left corner; letters stand upright on a page
    /// whose y runs downwards.
    void PlaceText(const TextItem& item, double x)
    {
        const double turn = -item.angle * std::numbers::pi / 180;
        const double across = std::cos(turn);
        const double down = std::sin(turn);
        const double y = SubstituteFor(item.font.name).ascent * item.font.size;
        Numbers({across, down, down, -across}, "");
        Lengths({item.x + x * across - y * down, item.y + x * down + y * across}, "Tm");
    }

    /// One string as far as each glyph stands where the reader's step from the last one leads. A letter with marks is
    /// told as it was typed.
    void WriteGlyphs(const std::vector<PlacedGlyph>& glyphs, double size)
    {
        GlyphString string{out_, size};
        for (std::size_t at = 0; at < glyphs.size();) {
            const std::size_t members = std::max<std::size_t>(glyphs[at].members, 1);
            const std::span<const PlacedGlyph> letter(&glyphs[at], members);
            glyphs[at].letter.empty() ? string.Add(letter.front()) : WriteLetter(string, letter, size);
            at += members;
        }
        string.Close();
    }

    /// Behind the letter's last mark the reader is told to step to the letter's end: it would take a mark that hangs
    /// over the left of a tall letter for the end of a word.
    void WriteLetter(GlyphString& string, std::span<const PlacedGlyph> letter, double size)
    {
        string.Close();
        out_ += "/Span<</ActualText" + TextString(letter.front().letter) + ">>BDC";
        for (const PlacedGlyph& glyph : letter.first(letter.size() - 1)) string.Add(glyph);
        const PlacedGlyph& last = letter.back();
        double end = last.x + last.step;
        for (const PlacedGlyph& glyph : letter) end = std::max(end, glyph.x + glyph.step);
        const double gap = end - last.x - last.step;
        constexpr double kReadsAsBlank = 0.05;  // ems
        if (gap > kReadsAsBlank) {
            string.Close();
            Numbers({gap * size}, "Tc");
        }
        string.Add(last);
        string.Close();
        out_ += gap > kReadsAsBlank ? " 0 Tc EMC" : " EMC";
    }

    void WritePicture(const PictureItem& item)
    {
        out_ += " q";
        Lengths({item.width, 0, 0, -item.height, item.x, item.y + item.height}, "cm ");
        out_ += resources_.NameOf(item.picture, PixelsFor(item.width * scale_, item.height * scale_)) + " Do Q";
    }

    void WriteDrawing(const PictureItem& item, const DisplayList& drawing)
    {
        if (drawing.width <= 0 || drawing.height <= 0 || item.width <= 0 || item.height <= 0) return;
        const double right = std::ceil(item.x + item.width);
        const double bottom = std::ceil(item.y + item.height);
        const State outside{stroke_, fill_, face_, size_, scale_};
        const double sx = item.width / drawing.width;
        const double sy = item.height / drawing.height;
        out_ += " q";
        FillWith(kWhite);
        Rectangle(std::floor(item.x), std::floor(item.y), right, bottom);
        out_ += " W f";
        Numbers({sx, 0, 0, sy}, "");
        Lengths({item.x, item.y}, "cm");
        scale_ *= sx;
        stroke_.reset();
        Draw(drawing);
        out_ += " Q";
        stroke_ = outside.stroke;
        fill_ = outside.fill;
        face_ = outside.face;
        size_ = outside.size;
        scale_ = outside.scale;
    }

    std::string out_;
    Resources& resources_;
    std::optional<Stroke> stroke_;
    std::optional<Colour> fill_;
    const Face* face_ = nullptr;
    double size_ = 0;                // of its letters, twips
    double scale_ = 1;               // twips of the page to one of the drawing, across
    double width_ = 0, height_ = 0;  // of the page or drawing being written
};

std::string Named(const char* kind, std::size_t index)
{
    return " /" + std::string(kind) + std::to_string(index + 1);
}

}  // namespace

std::string Resources::NameOf(const Face& face, const std::vector<PlacedGlyph>& glyphs)
{
    auto found = std::find_if(faces_.begin(), faces_.end(), [&](const UsedFace& used) { return used.face == &face; });
    if (found == faces_.end()) found = faces_.insert(found, {&face, {}});
    for (const PlacedGlyph& glyph : glyphs) found->glyphs.try_emplace(glyph.glyph, glyph.text);
    return Named("F", static_cast<std::size_t>(found - faces_.begin()));
}

std::string Resources::NameOf(const std::shared_ptr<const Picture>& picture, PixelSize needed)
{
    auto found = std::find_if(pictures_.begin(), pictures_.end(), [&](const UsedPicture& known) {
        return known.picture == picture || AreCopies(*known.picture, *picture);
    });
    if (found == pictures_.end()) found = pictures_.insert(found, {picture, {}});
    found->needed = {std::max(found->needed.width, needed.width), std::max(found->needed.height, needed.height)};
    return Named("P", static_cast<std::size_t>(found - pictures_.begin()));
}

int Resources::AddTo(Objects& objects) const
{
    std::string text = "<< /Font <<";
    for (std::size_t at = 0; at < faces_.size(); ++at)
        text += Named("F", at) + " " + Reference(faces_[at].face->AddTo(objects, faces_[at].glyphs));
    text += " >> /XObject <<";
    for (std::size_t at = 0; at < pictures_.size(); ++at)
        text += Named("P", at) + " " + Reference(AddPicture(objects, pictures_[at].picture, pictures_[at].needed));
    return objects.Add(text + " >> >>");
}

double PaperPoints(double twips)
{
    constexpr std::array kA4{210.0, 297.0};              // mm
    constexpr double kMillimetres = 25.4, kPoints = 72;  // of an inch
    for (const double side : kA4)
        if (const double points = side / kMillimetres * kPoints;
            std::abs(twips * kPointsPerTwip - points) < kPointsPerTwip)
            return points;
    return twips * kPointsPerTwip;
}

std::string PageContent(const DisplayList& page, Resources& resources, PageStructure& structure)
{
    return PageWriter(resources).Write(page, structure);
}

}  // namespace terravane::pdf
