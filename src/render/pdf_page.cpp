// The operators used: q Q keep and restore, cm placing, w d J j width, dash, cap and join, RG rg ink and filling,
// m l c re h paths, S f B their ink, W n clip, BT ET text, Do picture. All of a page is in twips, y downwards.
#include "render/pdf_page.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>

#include "drawing/font_metrics.h"
#include "render/decoded_pictures.h"
#include "render/drawing_rules.h"
#include "render/pdf_pictures.h"
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

class PageWriter {
  public:
    explicit PageWriter(Resources& resources) : resources_(resources) {}

    std::string Write(const DisplayList& page)
    {
        Numbers({kPointsPerTwip, 0, 0, -kPointsPerTwip, 0, PaperPoints(page.height)}, "cm");
        Draw(page);
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
        Use({item.pen, Cap::Flat, Join::Miter});
        Numbers({item.x1, item.y1}, "m");
        Numbers({item.x2, item.y2}, "l S");
    }

    void operator()(const PolylineItem& item)
    {
        if (item.points.size() < 2) return;
        Use({item.pen, Cap::Flat, Join::Round});
        const auto points = Simplified(item.points, kFlatness / scale_);
        Numbers({points.front().x, points.front().y}, "m");
        for (std::size_t at = 1; at < points.size(); ++at) Numbers({points[at].x, points[at].y}, "l");
        out_ += " S";
    }

    void operator()(const BoxItem& item)
    {
        Use({item.pen, Cap::Flat, Join::Miter});
        Rectangle(item.x1, item.y1, item.x2, item.y2);
        out_ += " S";
    }

    void operator()(const FillItem& item)
    {
        FillWith(item.colour);
        Rectangle(item.x1, item.y1, item.x2, item.y2);
        out_ += " f";
    }

    void operator()(const CircleItem& item)
    {
        Use({item.pen, Cap::Flat, Join::Miter});
        if (item.filled) FillWith(item.fill);
        const double x = item.x;
        const double y = item.y;
        const double r = item.radius;
        const double a = r * kArc;
        Numbers({x + r, y}, "m");
        Numbers({x + r, y + a, x + a, y + r, x, y + r}, "c");
        Numbers({x - a, y + r, x - r, y + a, x - r, y}, "c");
        Numbers({x - r, y - a, x - a, y - r, x, y - r}, "c");
        Numbers({x + a, y - r, x + r, y - a, x + r, y}, "c h");
        out_ += item.filled ? " B" : " S";
    }

    void operator()(const PointItem& item)
    {
        Use({Pen{item.width, 0, item.colour}, Cap::Round, Join::Round});
        Numbers({item.x, item.y}, "m");
        Numbers({item.x, item.y}, "l S");
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
        double scale;
    };

    void Draw(const DisplayList& list)
    {
        for (const DrawnItem& item : list.items) std::visit(*this, item);
    }

    void Numbers(std::initializer_list<double> numbers, std::string_view operation)
    {
        for (const double number : numbers) AppendNumber(out_, number);
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
        Numbers({std::min(x1, x2), std::min(y1, y2), std::abs(x2 - x1), std::abs(y2 - y1)}, "re");
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
        Numbers({std::max(stroke.pen.width * kTwipsPerDrawWidth, 1 / scale_)}, "w");
        Numbers({static_cast<double>(stroke.cap)}, "J");
        Numbers({static_cast<double>(stroke.join)}, "j");
        const Dash& dash = DashOf(stroke.pen);
        out_ += " [";
        if (dash.ink > 0) Numbers({dash.ink, dash.gap}, "");
        out_ += "] 0 d";
    }

    void WriteRun(const TextItem& item, const FontRun& run, double x)
    {
        const Face& face = FaceOf(run.family, item.font);
        const ShapedText glyphs = face.Shape(run.text);
        const double size = SubstituteFor(item.font.name).unitsPerPoint * item.font.size;
        FillWith(item.colour);
        out_ += " BT " + resources_.NameOf(face, *glyphs);
        Numbers({size}, "Tf");
        PlaceText(item, x);
        WriteGlyphs(*glyphs, size);
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
        Numbers({across, down, down, -across, item.x + x * across - y * down, item.y + x * down + y * across}, "Tm");
    }

    /// One string as far as each glyph stands where the reader's step from the last one leads.
    void WriteGlyphs(const std::vector<PlacedGlyph>& glyphs, double size)
    {
        constexpr double kStraight = 1e-4;  // ems
        double startX = 0;
        double startY = 0;
        double nextX = 0;
        bool isOpen = false;
        for (const PlacedGlyph& glyph : glyphs) {
            const bool follows = std::abs(glyph.x - nextX) < kStraight && std::abs(glyph.y - startY) < kStraight;
            if (isOpen && !follows) out_ += "> Tj";
            if (!follows) {
                Numbers({(glyph.x - startX) * size, (glyph.y - startY) * size}, "Td");
                startX = glyph.x;
                startY = glyph.y;
            }
            if (!isOpen || !follows) out_ += " <";
            isOpen = true;
            AppendHexadecimal(out_, glyph.glyph);
            nextX = glyph.x + glyph.step;
        }
        if (isOpen) out_ += "> Tj";
    }

    void WritePicture(const PictureItem& item)
    {
        out_ += " q";
        Numbers({item.width, 0, 0, -item.height, item.x, item.y + item.height}, "cm ");
        out_ += resources_.NameOf(item.picture) + " Do Q";
    }

    void WriteDrawing(const PictureItem& item, const DisplayList& drawing)
    {
        if (drawing.width <= 0 || drawing.height <= 0 || item.width <= 0 || item.height <= 0) return;
        const double right = std::ceil(item.x + item.width);
        const double bottom = std::ceil(item.y + item.height);
        const State outside{stroke_, fill_, scale_};
        const double sx = item.width / drawing.width;
        const double sy = item.height / drawing.height;
        out_ += " q";
        FillWith(kWhite);
        Rectangle(std::floor(item.x), std::floor(item.y), right, bottom);
        out_ += " W f";
        Numbers({sx, 0, 0, sy, item.x, item.y}, "cm");
        scale_ *= sx;
        stroke_.reset();
        Draw(drawing);
        out_ += " Q";
        stroke_ = outside.stroke;
        fill_ = outside.fill;
        scale_ = outside.scale;
    }

    std::string out_;
    Resources& resources_;
    std::optional<Stroke> stroke_;
    std::optional<Colour> fill_;
    double scale_ = 1;  // twips of the page to one of the drawing, across
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

std::string Resources::NameOf(const std::shared_ptr<const Picture>& picture)
{
    auto found = std::find_if(pictures_.begin(), pictures_.end(),
                              [&](const auto& known) { return known == picture || AreCopies(*known, *picture); });
    if (found == pictures_.end()) found = pictures_.insert(found, picture);
    return Named("P", static_cast<std::size_t>(found - pictures_.begin()));
}

int Resources::AddTo(Objects& objects) const
{
    std::string text = "<< /Font <<";
    for (std::size_t at = 0; at < faces_.size(); ++at)
        text += Named("F", at) + " " + Reference(faces_[at].face->AddTo(objects, faces_[at].glyphs));
    text += " >> /XObject <<";
    for (std::size_t at = 0; at < pictures_.size(); ++at)
        text += Named("P", at) + " " + Reference(AddPicture(objects, pictures_[at]));
    return objects.Add(text + " >> >>");
}

double PaperPoints(double twips)
{
    return std::round(twips * kPointsPerTwip);
}

std::string PageContent(const DisplayList& page, Resources& resources)
{
    return PageWriter(resources).Write(page);
}

}  // namespace terravane::pdf
