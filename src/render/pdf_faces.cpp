#include "render/pdf_faces.h"

#include <QByteArray>
#include <QRawFont>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <tuple>

#include <hb-ot.h>

#include "render/fonts.h"

namespace terravane::pdf {

namespace {

/// What shaping, cutting out glyphs and the font's dictionary read of a font file.
constexpr std::array kTables{"head", "hhea", "hmtx", "maxp", "cmap", "loca", "glyf", "name",
                             "OS/2", "post", "GDEF", "GSUB", "GPOS", "cvt ", "fpgm", "prep"};

constexpr char16_t kSaraAm = u'\u0E33';

constexpr std::size_t kMostTexts = 2000;  // remembered: some projects' reports, a megabyte or two

bool IsThai(char16_t unit) noexcept
{
    return unit >= 0x0E00 && unit <= 0x0E7F;
}

/// The length of the stretch at the start of a text that is of one script.
std::size_t StretchOf(std::u16string_view text)
{
    std::size_t length = 1;
    while (length < text.size() && IsThai(text[length]) == IsThai(text[0])) ++length;
    return length;
}

void AddTable(hb_face_t& builder, const QRawFont& font, const char* name)
{
    const QByteArray table = font.fontTable(name);
    if (table.isEmpty()) return;
    const hb::Blob blob(hb_blob_create(table.constData(), static_cast<unsigned>(table.size()), HB_MEMORY_MODE_DUPLICATE,
                                       nullptr, nullptr));
    hb_face_builder_add_table(&builder, hb_tag_from_string(name, -1), blob.get());
}

hb::Face FaceFrom(const QRawFont& font)
{
    const hb::Face builder(hb_face_builder_create());
    for (const char* table : kTables) AddTable(*builder, font, table);
    const hb::Blob file(hb_face_reference_blob(builder.get()));
    hb::Face face(hb_face_create(file.get(), 0));
    hb_face_make_immutable(face.get());
    return face;
}

hb::Font FontOf(const hb::Face& face)
{
    hb::Font font(hb_font_create(face.get()));
    hb_font_make_immutable(font.get());
    return font;
}

/// Without a language: the machine's own would make its files differ from others'.
hb::Buffer BufferOf(std::u16string_view text)
{
    hb::Buffer buffer(hb_buffer_create());
    hb_buffer_set_cluster_level(buffer.get(), HB_BUFFER_CLUSTER_LEVEL_MONOTONE_GRAPHEMES);
    hb_buffer_add_utf16(buffer.get(), reinterpret_cast<const std::uint16_t*>(text.data()),
                        static_cast<int>(text.size()), 0, static_cast<int>(text.size()));
    hb_buffer_set_direction(buffer.get(), HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer.get(), IsThai(text[0]) ? HB_SCRIPT_THAI : HB_SCRIPT_LATIN);
    return buffer;
}

/// The faces of a process, by family and style.
class Faces {
  public:
    const Face& Find(std::string_view family, const Font& font)
    {
        const std::scoped_lock lock(mutex_);
        auto& face = faces_[{std::string(family), font.bold, font.italic}];
        if (!face) face = std::make_unique<const Face>(QRawFont::fromFont(FaceFor(font, family).font));
        return *face;
    }

  private:
    std::mutex mutex_;
    std::map<std::tuple<std::string, bool, bool>, std::unique_ptr<const Face>> faces_;
};

}  // namespace

Face::Face(const QRawFont& font)
    : face_(FaceFrom(font)),
      font_(FontOf(face_)),
      unitsPerEm_(hb_face_get_upem(face_.get())),
      name_(Name()),
      characters_(Characters()),
      usual_(UsualGlyphs())
{}

ShapedText Face::Shape(const std::u16string& text) const
{
    const std::scoped_lock lock(mutex_);
    if (shaped_.size() > kMostTexts) shaped_.clear();
    ShapedText& shaped = shaped_[text];
    if (!shaped) shaped = std::make_shared<const std::vector<PlacedGlyph>>(GlyphsOf(text));
    return shaped;
}

std::vector<PlacedGlyph> Face::GlyphsOf(std::u16string_view text) const
{
    std::vector<PlacedGlyph> glyphs;
    double x = 0;
    while (!text.empty()) {
        const std::size_t length = StretchOf(text);
        ShapeStretch(text.substr(0, length), glyphs, x);
        text.remove_prefix(length);
    }
    return glyphs;
}

void Face::ShapeStretch(std::u16string_view text, std::vector<PlacedGlyph>& glyphs, double& x) const
{
    const hb::Buffer buffer = BufferOf(text);
    const hb_feature_t noKerning{HB_TAG('k', 'e', 'r', 'n'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END};
    hb_shape(font_.get(), buffer.get(), &noKerning, 1);
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer.get(), &count);
    const hb_glyph_position_t* places = hb_buffer_get_glyph_positions(buffer.get(), nullptr);
    for (unsigned at = 0, start = 0; at < count; ++at) {
        const auto glyph = static_cast<GlyphId>(infos[at].codepoint);
        glyphs.push_back(
            {glyph, {}, x + places[at].x_offset / unitsPerEm_, places[at].y_offset / unitsPerEm_, AdvanceOf(glyph)});
        x += places[at].x_advance / unitsPerEm_;
        const bool isLast = at + 1 == count || infos[at + 1].cluster != infos[at].cluster;
        if (!isLast) continue;
        const std::size_t from = infos[at].cluster;
        const std::size_t end = at + 1 < count ? infos[at + 1].cluster : text.size();
        const std::size_t first = glyphs.size() - (at + 1 - start);
        const std::u16string_view cluster = text.substr(from, end - from);
        if (cluster.ends_with(kSaraAm)) JoinSaraAm(glyphs, first);
        NameCluster(cluster, std::span(glyphs).subspan(first));
        start = at + 1;
    }
}

/// Which glyph of a letter with its marks stands for which character. A glyph that is a character's own is that
/// character wherever it stands; the rest of the letter goes to the rest of the glyphs.
void Face::NameCluster(std::u16string_view cluster, std::span<PlacedGlyph> glyphs) const
{
    std::u16string rest(cluster);
    std::vector<PlacedGlyph*> unnamed;
    for (PlacedGlyph& glyph : glyphs) {
        const auto own = characters_.find(glyph.glyph);
        if (own == characters_.end()) {
            unnamed.push_back(&glyph);
            continue;
        }
        glyph.text.assign(1, own->second);
        if (const std::size_t at = rest.find(own->second); at != std::u16string::npos) rest.erase(at, 1);
    }
    for (std::size_t at = 0; at < unnamed.size(); ++at) {
        const bool isLast = at + 1 == unnamed.size();
        unnamed[at]->text = rest.substr(std::min(at, rest.size()), isLast ? std::u16string::npos : 1);
    }
    if (glyphs.size() > 1) {
        // Marks are drawn in any order, but copied out in the order of the file.
        std::stable_sort(glyphs.begin(), glyphs.end(), [&](const PlacedGlyph& one, const PlacedGlyph& other) {
            return cluster.find(one.text) < cluster.find(other.text);
        });
    }
    SpellOut(cluster, glyphs);
}

/// Shapers draw sara am as its ring and its stroke, neither of which a reader takes for it. Where the ring stands as in
/// the face's own sara am, or as good as there, that glyph is drawn, and the tone above keeps its place over the ring.
void Face::JoinSaraAm(std::vector<PlacedGlyph>& glyphs, std::size_t first) const
{
    constexpr double kHardlySeen = 0.095;  // ems: less than a point in a report's text
    const auto isGlyphOf = [this](const PlacedGlyph& glyph, char16_t character) {
        const auto own = characters_.find(glyph.glyph);
        return own != characters_.end() && own->second == character;
    };
    hb_codepoint_t joined = 0;
    const auto begin = glyphs.begin() + static_cast<std::ptrdiff_t>(first);
    const auto ring = std::find_if(begin, glyphs.end(), [&](const auto& glyph) { return isGlyphOf(glyph, u'\u0E4D'); });
    if (ring == glyphs.end() || !isGlyphOf(glyphs.back(), u'\u0E32') || ring->y != 0 ||
        !hb_font_get_nominal_glyph(font_.get(), kSaraAm, &joined))
        return;
    PlacedGlyph& stroke = glyphs.back();
    const double moved = stroke.x - ring->x;
    if (std::abs(moved) > kHardlySeen) return;
    for (auto tone = std::next(ring); tone + 1 != glyphs.end(); ++tone) tone->x += moved;
    stroke.glyph = static_cast<GlyphId>(joined);
    stroke.step = AdvanceOf(stroke.glyph);
    glyphs.erase(ring);
}

/// A letter with marks is noted as it was typed: readers take a mark that stands over the middle of its letter for the
/// end of a word, and the ring and stroke of sara am for two characters.
void Face::SpellOut(std::u16string_view cluster, std::span<PlacedGlyph> glyphs) const
{
    std::u16string spelt;
    for (const PlacedGlyph& glyph : glyphs) spelt += glyph.text;
    if (spelt == cluster && glyphs.size() == 1) return;
    glyphs.front().letter = cluster;
    glyphs.front().members = glyphs.size();
}

double Face::AdvanceOf(GlyphId glyph) const
{
    return hb_font_get_glyph_h_advance(font_.get(), glyph) / unitsPerEm_;
}

const Face& FaceOf(std::string_view family, const Font& font)
{
    static Faces faces;
    return faces.Find(family, font);
}

}  // namespace terravane::pdf
