// The profile, all numbers big-endian:
//
//     size:4 0:4 version:4 "mntr" "RGB " "XYZ " date:12 "acsp" 0:28 D50:12 0:48
//     count:4, a tag each: name:4 place:4 size:4      then the tags' contents, each at a multiple of four
#include "render/pdf_archive.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include "runtime/text.h"

namespace terravane::pdf {

namespace {

constexpr std::size_t kProfileHead = 128;
constexpr std::uint32_t kVersion4 = 0x04200000;

void AppendBig(std::string& out, std::uint32_t number, int bytes)
{
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8) out += static_cast<char>(number >> shift & 0xFFU);
}

/// 16 bits before the point, 16 behind it.
void AppendFixed(std::string& out, double number)
{
    AppendBig(out, static_cast<std::uint32_t>(static_cast<std::int32_t>(std::lround(number * 65536))), 4);
}

template <std::size_t count>
std::string NumbersOf(std::string_view kind, const std::array<double, count>& numbers)
{
    std::string content(kind);
    content.append(4, '\0');
    for (const double number : numbers) AppendFixed(content, number);
    return content;
}

/// A text in one language.
std::string TextOf(std::string_view text)
{
    std::string content("mluc");
    for (const std::uint32_t number : {0U, 1U, 12U}) AppendBig(content, number, 4);
    content += "enUS";
    AppendBig(content, static_cast<std::uint32_t>(2 * text.size()), 4);
    AppendBig(content, 28, 4);  // where the text begins
    for (const char letter : text) AppendBig(content, static_cast<unsigned char>(letter), 2);
    return content;
}

/// The curve of sRGB: a straight foot, then a power of 2.4.
std::string Curve()
{
    std::string content("para");
    content.append(4, '\0');
    AppendBig(content, 3, 2);
    content.append(2, '\0');
    for (const double number : {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045}) AppendFixed(content, number);
    return content;
}

struct ProfilePart {
    std::string_view name;
    std::string content;
};

/// White and primaries as D50 shows them, and the matrix that took them there from D65.
std::vector<ProfilePart> ProfileParts()
{
    return {
        {"desc", TextOf("sRGB")},
        {"cprt", TextOf("No rights reserved")},
        {"wtpt", NumbersOf("XYZ ", std::array{0.9642, 1.0, 0.8249})},
        {"chad", NumbersOf("sf32", std::array{1.04788, 0.02292, -0.05022, 0.02959, 0.99048, -0.01707, -0.00925, 0.01508,
                                              0.75168})},
        {"rXYZ", NumbersOf("XYZ ", std::array{0.43607, 0.22249, 0.01392})},
        {"gXYZ", NumbersOf("XYZ ", std::array{0.38515, 0.71687, 0.09708})},
        {"bXYZ", NumbersOf("XYZ ", std::array{0.14307, 0.06061, 0.71410})},
        {"rTRC", Curve()},
        {"gTRC", Curve()},
        {"bTRC", Curve()},
    };
}

std::string ProfileHead(std::size_t size)
{
    std::string head;
    AppendBig(head, static_cast<std::uint32_t>(size), 4);
    AppendBig(head, 0, 4);
    AppendBig(head, kVersion4, 4);
    head += "mntrRGB XYZ ";
    for (const std::uint32_t part : {2026U, 1U, 1U, 0U, 0U, 0U}) AppendBig(head, part, 2);
    head += "acsp";
    head.append(28, '\0');
    for (const double number : {0.9642, 1.0, 0.8249}) AppendFixed(head, number);
    head.append(kProfileHead - head.size(), '\0');
    return head;
}

std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (const char letter : text) {
        if (letter == '&')
            escaped += "&amp;";
        else if (letter == '<')
            escaped += "&lt;";
        else if (letter == '>')
            escaped += "&gt;";
        else if (static_cast<unsigned char>(letter) >= ' ')
            escaped += letter;
    }
    return escaped;
}

/// A page's name where it has one; else the pages count from 1 behind the last named one.
std::string PageLabels(std::span<const DisplayList> pages)
{
    std::string labels;
    bool isCounting = false;
    for (std::size_t at = 0; at < pages.size(); ++at) {
        const std::string& name = pages[at].label;
        if (name.empty() && isCounting) continue;
        isCounting = name.empty();
        labels += " " + std::to_string(at);
        labels += isCounting ? " << /S /D >>" : " << /P " + TextString(name) + " >>";
    }
    return " /PageLabels << /Nums [" + labels + " ] >>";
}

std::string Intent(Objects& objects)
{
    const int profile = objects.AddStream("/N 3 /Filter /FlateDecode", Deflated(ColourProfile(), Packing::Small));
    return " /OutputIntents [ << /Type /OutputIntent /S /GTS_PDFA1 /OutputConditionIdentifier (sRGB)"
           " /Info (sRGB IEC61966-2.1) /DestOutputProfile " +
           Reference(profile) + " >> ]";
}

}  // namespace

std::string ColourProfile()
{
    const auto parts = ProfileParts();
    std::string table, contents;
    AppendBig(table, static_cast<std::uint32_t>(parts.size()), 4);
    const std::size_t begin = kProfileHead + 4 + 12 * parts.size();
    for (const ProfilePart& part : parts) {
        table += part.name;
        AppendBig(table, static_cast<std::uint32_t>(begin + contents.size()), 4);
        AppendBig(table, static_cast<std::uint32_t>(part.content.size()), 4);
        contents += part.content;
        contents.append((4 - contents.size() % 4) % 4, '\0');
    }
    return ProfileHead(begin + contents.size()) + table + contents;
}

std::string Description(std::string_view title, Moment created)
{
    const std::string maker(kMaker);
    return "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
           "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
           "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
           "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\""
           " xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\""
           " xmlns:pdfaid=\"http://www.aiim.org/pdfa/ns/id/\">\n"
           "<pdfaid:part>2</pdfaid:part>\n<pdfaid:conformance>U</pdfaid:conformance>\n"
           "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">" +
           Escaped(title) + "</rdf:li></rdf:Alt></dc:title>\n<xmp:CreatorTool>" + maker +
           "</xmp:CreatorTool>\n<xmp:CreateDate>" + XmpDate(created) + "</xmp:CreateDate>\n<pdf:Producer>" + maker +
           "</pdf:Producer>\n</rdf:Description>\n</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"r\"?>";
}

std::string ArchiveEntries(Objects& objects, std::span<const DisplayList> pages, std::string_view description)
{
    const int metadata = objects.AddStream("/Type /Metadata /Subtype /XML", description);
    return " /Metadata " + Reference(metadata) + Intent(objects) + " /Lang (th)" + PageLabels(pages) +
           " /ViewerPreferences << /DisplayDocTitle true >>";
}

}  // namespace terravane::pdf
