/// Faces as PDF files need them: texts as glyphs in their places, and the face's outlines to go along.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "drawing/display_list.h"
#include "render/harfbuzz.h"
#include "render/pdf_objects.h"

class QRawFont;

namespace terravane::pdf {

using GlyphId = std::uint16_t;

/// glyph  its number in the face
/// text   the characters it stands for in a text that is copied out, the same wherever it stands
/// letter what was typed, where a letter has marks or its glyph is not its own; on the first of its `members` glyphs
/// x, y   its origin, in ems from the text's start, y upwards
/// step   by how much a reader steps on behind it, in ems
struct PlacedGlyph {
    GlyphId glyph = 0;
    std::u16string text;
    double x = 0, y = 0, step = 0;
    std::u16string letter = {};
    std::size_t members = 0;
};

/// A text's glyphs, in the order in which they are copied out. Whoever draws the text again has the same ones.
using ShapedText = std::shared_ptr<const std::vector<PlacedGlyph>>;

/// The glyphs that a document draws from a face, with the characters they stand for.
using UsedGlyphs = std::map<GlyphId, std::u16string>;

/// One installed face. It remembers what it was asked for, which nothing shows but the time that it takes: most texts
/// of a report stand in the next one too. May be used from several threads.
class Face {
  public:
    explicit Face(const QRawFont& font);

    /// A text with its ligatures and Thai marks as the screen shows them, without kerning.
    ShapedText Shape(const std::u16string& text) const;
    /// Adds the font for a document that uses these glyphs; the number of its dictionary.
    int AddTo(Objects& objects, const UsedGlyphs& used) const;

  private:
    /// The outlines of a document's font file and the widths that go with them.
    /// length  of the file before it was packed
    struct Program {
        std::string packed;
        std::size_t length = 0;
        std::string widths;
    };

    std::vector<PlacedGlyph> GlyphsOf(std::u16string_view text) const;
    double AdvanceOf(GlyphId glyph) const;
    hb::Set UsualGlyphs() const;
    std::map<GlyphId, char16_t> Characters() const;
    void NameCluster(std::u16string_view cluster, std::span<PlacedGlyph> glyphs) const;
    void JoinSaraAm(std::vector<PlacedGlyph>& glyphs, std::size_t first) const;
    void SpellOut(std::u16string_view cluster, std::span<PlacedGlyph> glyphs) const;
    hb::Set GlyphsFor(const UsedGlyphs& used) const;
    void AddGroupsOf(const UsedGlyphs& used, hb_set_t& glyphs) const;
    std::shared_ptr<const Program> PartOf(const hb_set_t& glyphs) const;
    Program ProgramOf(const hb_set_t& glyphs) const;
    std::string PackedToUnicode(const UsedGlyphs& used) const;
    std::string Name() const;
    std::string Descriptor(std::string_view name, int fontFile) const;
    std::string Widths(const hb_set_t& glyphs) const;
    void ShapeStretch(std::u16string_view text, std::vector<PlacedGlyph>& glyphs, double& x) const;

    hb::Face face_;
    hb::Font font_;
    double unitsPerEm_;
    std::string name_;
    std::map<GlyphId, char16_t> characters_;  // of glyphs that stand for one of the usual characters
    hb::Set usual_;

    mutable std::mutex mutex_;  // of what is remembered
    mutable std::unordered_map<std::u16string, ShapedText> shaped_;
    mutable std::map<std::vector<GlyphId>, std::shared_ptr<const Program>> programs_;  // of other parts of the face
    mutable std::map<UsedGlyphs, std::string> packedToUnicode_;  // by the glyphs that are no usual character's own
};

/// The face of an installed family, bold or italic as the font is; made when it is first asked for.
const Face& FaceOf(std::string_view family, const Font& font);

}  // namespace terravane::pdf
