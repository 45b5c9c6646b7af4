// A face as objects of a PDF file: Type0 font, its one descendant by glyph number, the descriptor, the outlines and
// the table by which a text is copied out.
#include <array>
#include <bitset>
#include <cmath>
#include <string_view>

#include <hb-ot.h>

#include "render/pdf_faces.h"

namespace terravane::pdf {

namespace {

/// Characters of a laboratory's reports.
struct Block {
    hb_codepoint_t first, last;
};
constexpr std::array kUsual{
    Block{0x20, 0x7E},     // ASCII
    Block{0xA0, 0xBF},     // degree, plus-minus, powers, micro
    Block{0xD7, 0xD7},     // times
    Block{0x0E01, 0x0E5B}  // Thai
};

/// A document that uses many characters of a face has the whole groups that it uses some of: a font for them is cut out
/// and packed once a process and serves most documents, in place of one for each with just those it uses. What a report
/// seldom has makes half of the font. Of a face that draws a title or the labels of a plot a document has its few
/// glyphs, and the digits, so that the next one's are the same.
enum Group : std::size_t { kPlain, kSigns, kSymbols, kThai, kRareThai, kOtherForms, kGroups };
constexpr std::u16string_view kRareSigns = u"!\"#$&'*;<>?@[\\]_`{|}~";
constexpr std::u16string_view kRareLetters = u"ฃฅฆฌฎฑฒฬฮฯฤฦๆ๏๚๛๐๑๒๓๔๕๖๗๘๙฿ๅ\u0E3A\u0E4E\u0E4D\u0E4A\u0E4B";

constexpr Group GroupOf(char16_t character)
{
    if (character < 0x80) return kRareSigns.find(character) == kRareSigns.npos ? kPlain : kSigns;
    if (character < 0x0E00) return kSymbols;
    return kRareLetters.find(character) == kRareLetters.npos ? kThai : kRareThai;
}

constexpr std::size_t kFew = 64;        // glyphs
constexpr std::size_t kMostParts = 30;  // of a face, remembered
constexpr int kSymbolic = 4;            // glyphs are found by their number, not by a character
constexpr double kThousandths = 1000;
constexpr std::size_t kMostTables = 50;  // from glyphs to texts, remembered: 50 kilobytes

hb_tag_t Tag(const char* name)
{
    return hb_tag_from_string(name, -1);
}

/// What stands in front of the name of a font of which a document holds a part: six letters that differ where the
/// parts do.
std::string PartMark(const hb_set_t& glyphs)
{
    std::string mark;
    for (unsigned hash = hb_set_hash(&glyphs); mark.size() < 6; hash /= 26) mark += static_cast<char>('A' + hash % 26);
    return mark + "+";
}

std::string ToUnicode(const UsedGlyphs& glyphs)
{
    std::string lines;
    for (const auto& [glyph, text] : glyphs) {
        if (text.empty()) continue;
        lines += "1 beginbfchar <";
        AppendHexadecimal(lines, glyph);
        lines += "> <";
        for (const char16_t unit : text) AppendHexadecimal(lines, unit);
        lines += "> endbfchar\n";
    }
    return "/CIDInit /ProcSet findresource begin 12 dict begin begincmap\n"
           "/CIDSystemInfo << /Registry (Adobe) /Ordering (UCS) /Supplement 0 >> def\n"
           "/CMapName /Adobe-Identity-UCS def /CMapType 2 def\n"
           "1 begincodespacerange <0000> <FFFF> endcodespacerange\n" +
           lines + "endcmap CMapName currentdict /CMap defineresource pop end end\n";
}

}  // namespace

std::string Face::Name() const
{
    std::array<char, 64> text{};
    auto size = static_cast<unsigned>(text.size());
    hb_ot_name_get_utf8(face_.get(), HB_OT_NAME_ID_POSTSCRIPT_NAME, nullptr, &size, text.data());
    return {text.data(), size};
}

std::map<GlyphId, char16_t> Face::Characters() const
{
    std::map<GlyphId, char16_t> characters;
    for (const Block& block : kUsual)
        for (hb_codepoint_t character = block.first; character <= block.last; ++character)
            if (hb_codepoint_t glyph = 0; hb_font_get_nominal_glyph(font_.get(), character, &glyph))
                characters.try_emplace(static_cast<GlyphId>(glyph), static_cast<char16_t>(character));
    return characters;
}

/// The usual characters' glyphs and those that the face's own rules put in their places.
hb::Set Face::UsualGlyphs() const
{
    hb::Set glyphs(hb_set_create());
    hb_set_add(glyphs.get(), 0);
    for (const auto& glyph : characters_) hb_set_add(glyphs.get(), glyph.first);
    const hb::Set lookups(hb_set_create());
    hb_ot_layout_collect_lookups(face_.get(), HB_OT_TAG_GSUB, nullptr, nullptr, nullptr, lookups.get());
    hb_ot_layout_lookups_substitute_closure(face_.get(), lookups.get(), glyphs.get());
    return glyphs;
}

Face::Program Face::ProgramOf(const hb_set_t& glyphs) const
{
    const hb::SubsetInput input(hb_subset_input_create_or_fail());
    hb_subset_input_set_flags(
        input.get(), HB_SUBSET_FLAGS_RETAIN_GIDS | HB_SUBSET_FLAGS_NO_HINTING | HB_SUBSET_FLAGS_NOTDEF_OUTLINE);
    hb_set_union(hb_subset_input_glyph_set(input.get()), &glyphs);
    hb_set_t* dropped = hb_subset_input_set(input.get(), HB_SUBSET_SETS_DROP_TABLE_TAG);
    for (const char* table : {"GDEF", "GSUB", "GPOS", "OS/2", "post", "name", "cmap"}) hb_set_add(dropped, Tag(table));
    const hb::Face part(hb_subset_or_fail(face_.get(), input.get()));
    const hb::Blob file(hb_face_reference_blob(part.get()));
    const std::string_view bytes = hb::BytesOf(file);
    return {Deflated(bytes, Packing::Small), bytes.size(), Widths(glyphs)};
}

std::string Face::Widths(const hb_set_t& glyphs) const
{
    std::string widths = "[";
    hb_codepoint_t first = HB_SET_VALUE_INVALID;
    hb_codepoint_t last = HB_SET_VALUE_INVALID;
    while (hb_set_next_range(&glyphs, &first, &last)) {
        AppendNumber(widths, first);
        widths += " [";
        for (hb_codepoint_t glyph = first; glyph <= last; ++glyph)
            AppendNumber(widths, AdvanceOf(static_cast<GlyphId>(glyph)) * kThousandths);
        widths += "]";
    }
    return widths + "]";
}

std::string Face::Descriptor(std::string_view name, int fontFile) const
{
    const auto metric = [&](hb_ot_metrics_tag_t tag) {
        hb_position_t position = 0;
        hb_ot_metrics_get_position(font_.get(), tag, &position);
        return position / unitsPerEm_ * kThousandths;
    };
    std::string text = "<< /Type /FontDescriptor /FontName /" + std::string(name) + " /Flags ";
    text += std::to_string(kSymbolic) + " /FontBBox [-1000 -500 2000 1500] /ItalicAngle";
    AppendNumber(text, hb_style_get_value(font_.get(), HB_STYLE_TAG_SLANT_ANGLE));
    text += " /Ascent";
    AppendNumber(text, metric(HB_OT_METRICS_TAG_HORIZONTAL_ASCENDER));
    text += " /Descent";
    AppendNumber(text, metric(HB_OT_METRICS_TAG_HORIZONTAL_DESCENDER));
    text += " /CapHeight";
    AppendNumber(text, metric(HB_OT_METRICS_TAG_CAP_HEIGHT));
    return text + " /StemV 80 /FontFile2 " + Reference(fontFile) + " >>";
}

/// Of the usual characters' glyphs and those used. Few texts use others, and those the same: the table is packed a few
/// times a process.
std::string Face::PackedToUnicode(const UsedGlyphs& used) const
{
    UsedGlyphs others;
    for (const auto& glyph : used)
        if (!characters_.contains(glyph.first)) others.insert(glyph);

    const std::scoped_lock lock(mutex_);
    if (packedToUnicode_.size() > kMostTables) packedToUnicode_.clear();
    std::string& packed = packedToUnicode_[others];
    if (packed.empty()) {
        for (const auto& [glyph, character] : characters_) others.emplace(glyph, std::u16string(1, character));
        packed = Deflated(ToUnicode(others), Packing::Small);
    }
    return packed;
}

/// Those used, with the digits, and where they are many with the rest of their groups.
hb::Set Face::GlyphsFor(const UsedGlyphs& used) const
{
    hb::Set glyphs(hb_set_create());
    hb_set_add(glyphs.get(), 0);
    if (used.size() > kFew) AddGroupsOf(used, *glyphs);
    for (const auto& [glyph, character] : characters_)
        if (character >= u'0' && character <= u'9') hb_set_add(glyphs.get(), glyph);
    for (const auto& glyph : used) hb_set_add(glyphs.get(), glyph.first);
    return glyphs;
}

void Face::AddGroupsOf(const UsedGlyphs& used, hb_set_t& glyphs) const
{
    const auto groupOf = [this](GlyphId glyph) {
        const auto own = characters_.find(glyph);
        return own == characters_.end() ? kOtherForms : GroupOf(own->second);
    };
    std::bitset<kGroups> groups;
    for (const auto& glyph : used) groups.set(groupOf(glyph.first));
    for (hb_codepoint_t glyph = HB_SET_VALUE_INVALID; hb_set_next(usual_.get(), &glyph);)
        if (groups[groupOf(static_cast<GlyphId>(glyph))]) hb_set_add(&glyphs, glyph);
}

std::shared_ptr<const Face::Program> Face::PartOf(const hb_set_t& glyphs) const
{
    std::vector<GlyphId> numbers;
    for (hb_codepoint_t glyph = HB_SET_VALUE_INVALID; hb_set_next(&glyphs, &glyph);)
        numbers.push_back(static_cast<GlyphId>(glyph));
    const std::scoped_lock lock(mutex_);
    if (programs_.size() > kMostParts) programs_.clear();
    auto& part = programs_[numbers];
    if (!part) part = std::make_shared<const Program>(ProgramOf(glyphs));
    return part;
}

int Face::AddTo(Objects& objects, const UsedGlyphs& used) const
{
    const hb::Set glyphs = GlyphsFor(used);
    const std::shared_ptr<const Program> part = PartOf(*glyphs);
    const Program& program = *part;

    const std::string name = PartMark(*glyphs) + name_;
    const int file =
        objects.AddStream("/Filter /FlateDecode /Length1 " + std::to_string(program.length), program.packed);
    const int descriptor = objects.Add(Descriptor(name, file));
    const int descendant = objects.Add("<< /Type /Font /Subtype /CIDFontType2 /BaseFont /" + name +
                                       " /CIDSystemInfo << /Registry (Adobe) /Ordering (Identity) /Supplement 0 >>"
                                       " /CIDToGIDMap /Identity /DW 0 /FontDescriptor " +
                                       Reference(descriptor) + " /W " + program.widths + " >>");
    const int toUnicode = objects.AddStream("/Filter /FlateDecode", PackedToUnicode(used));
    return objects.Add("<< /Type /Font /Subtype /Type0 /BaseFont /" + name + " /Encoding /Identity-H" +
                       " /DescendantFonts [" + Reference(descendant) + "] /ToUnicode " + Reference(toUnicode) + " >>");
}

}  // namespace terravane::pdf
