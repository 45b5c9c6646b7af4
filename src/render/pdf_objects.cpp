#include "render/pdf_objects.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "runtime/text.h"

namespace terravane::pdf {

namespace {

constexpr std::int64_t kParts = 1000;  // of a unit, in numbers
constexpr double kFarOff = 1e9;        // beyond every page; a curve that failed may go there
constexpr int kSmall = 6;              // zlib's levels
constexpr int kFair = 4;
constexpr int kQuick = 2;
constexpr std::size_t kMostTogether = 500;  // objects in a stream: a reader unpacks all of it for one
constexpr std::size_t kPlaceBytes = 4;      // of an entry of the cross-reference
constexpr std::size_t kEntryBytes = 1 + kPlaceBytes + 2;
constexpr qsizetype kLengthInFront = 4;  // Qt writes the length of the content before the compressed bytes

QByteArray View(std::string_view text)
{
    return QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()));
}

int LevelOf(Packing packing)
{
    switch (packing) {
        case Packing::Small:
            return kSmall;
        case Packing::Fair:
            return kFair;
        case Packing::Quick:
            return kQuick;
    }
    return kSmall;
}

void AppendBigEndian(std::string& out, std::size_t number, std::size_t bytes)
{
    while (bytes-- > 0) out += static_cast<char>(number >> (8 * bytes) & 0xFFU);
}

/// Rows of bytes as the differences to the row above, which pack well where rows count up; a 2 in front of each says
/// so.
std::string Differences(std::string_view rows, std::size_t width)
{
    std::string result;
    for (std::size_t at = 0; at < rows.size(); ++at) {
        if (at % width == 0) result += '\2';
        const int above = at < width ? 0 : static_cast<unsigned char>(rows[at - width]);
        result += static_cast<char>(static_cast<unsigned char>(rows[at]) - above);
    }
    return result;
}

bool HasHour(Moment moment)
{
    return Format(moment, "hhnnss") != "000000";
}

std::string IdentifierOf(std::string_view identity)
{
    return "<" + QCryptographicHash::hash(View(identity), QCryptographicHash::Md5).toHex().toStdString() + ">";
}

}  // namespace

std::string Reference(int object)
{
    return std::to_string(object) + " 0 R";
}

std::string TextString(std::string_view text)
{
    const bool isPlain = std::ranges::all_of(text, [](char letter) { return letter >= ' ' && letter <= '~'; });
    if (!isPlain) return TextString(std::u16string_view(ToUtf16(text)));
    std::string result = "(";
    for (const char letter : text) {
        if (letter == '(' || letter == ')' || letter == '\\') result += '\\';
        result += letter;
    }
    return result + ")";
}

std::string TextString(std::u16string_view text)
{
    std::string result = "<FEFF";
    for (const char16_t unit : text) AppendHexadecimal(result, unit);
    return result + ">";
}

void AppendHexadecimal(std::string& out, std::uint16_t unit)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    for (const int shift : {12, 8, 4, 0}) out += kDigits[(unsigned{unit} >> shift) & 15U];
}

std::string DateString(Moment moment)
{
    return "(D:" + Format(moment, "yyyymmdd") + (HasHour(moment) ? Format(moment, "hhnnss") : "") + ")";
}

std::string XmpDate(Moment moment)
{
    return Format(moment, "yyyy-mm-dd") + (HasHour(moment) ? "T" + Format(moment, "hh:nn:ss") : "");
}

void AppendNumber(std::string& out, double value)
{
    const double bounded = std::isfinite(value) ? std::clamp(value, -kFarOff, kFarOff) : 0;
    const std::int64_t parts = std::llround(bounded * static_cast<double>(kParts));
    std::array<char, 32> text{' ', '-'};
    char* at = text.data() + (parts < 0 ? 2 : 1);
    const std::int64_t size = std::llabs(parts);
    at = std::to_chars(at, text.data() + text.size(), size / kParts).ptr;
    if (std::int64_t rest = size % kParts; rest > 0) {
        *at++ = '.';
        for (std::int64_t digit = kParts / 10; rest > 0; rest %= digit, digit /= 10)
            *at++ = static_cast<char>('0' + rest / digit);
    }
    out.append(text.data(), at);
}

void AppendBytes(std::string& out, std::uint16_t unit)
{
    for (const int shift : {8, 0}) {
        const char byte = static_cast<char>(unsigned{unit} >> shift & 0xFFU);
        if (byte == '(' || byte == ')' || byte == '\\' || byte == '\r') out += '\\';
        out += byte == '\r' ? 'r' : byte;  // a reader takes a bare one for the end of a line
    }
}

std::string Deflated(std::string_view content, Packing packing)
{
    const QByteArray packed = qCompress(View(content), LevelOf(packing));
    return packed.mid(kLengthInFront).toStdString();
}

Objects::Objects()
{
    Append("%PDF-1.7\n%\xE2\xE3\xCF\xD3\n");  // high bytes tell transfer programs that this is no text
}

int Objects::Reserve()
{
    places_.push_back({});
    return static_cast<int>(places_.size());
}

void Objects::Put(int object, std::string_view body)
{
    waiting_.push_back({object, bodies_.size()});
    bodies_ += body;
    bodies_ += '\n';
}

int Objects::Add(std::string_view body)
{
    const int object = Reserve();
    Put(object, body);
    return object;
}

int Objects::AddStream(std::string_view dictionary, std::string_view content)
{
    const int object = Reserve();
    PlaceOf(object) = {bytes_.size()};
    Append(std::to_string(object) + " 0 obj\n<< " + std::string(dictionary) + " /Length " +
           std::to_string(content.size()) + " >>\nstream\n");
    Append(content);
    Append("\nendstream\nendobj\n");
    return object;
}

Bytes Objects::Finish(int catalog, int information, std::string_view identity)
{
    const std::span<const Waiting> all(waiting_);
    for (std::size_t from = 0; from < all.size(); from += kMostTogether) {
        const auto some = all.subspan(from, std::min(kMostTogether, all.size() - from));
        PutTogether(some, from + some.size() < all.size() ? all[from + some.size()].begin : bodies_.size());
    }
    const std::size_t table = bytes_.size();
    const int own = Reserve();
    PlaceOf(own) = {table};
    const std::string entries = Deflated(Differences(CrossReference(), kEntryBytes), Packing::Small);
    const std::string identifier = IdentifierOf(identity);
    Append(std::to_string(own) + " 0 obj\n<< /Type /XRef /Size " + std::to_string(places_.size() + 1) + " /Root " +
           Reference(catalog) + " /Info " + Reference(information) + " /ID [" + identifier + identifier +
           "] /W [1 4 2] /Filter /FlateDecode /DecodeParms << /Predictor 12 /Columns " + std::to_string(kEntryBytes) +
           " >> /Length " + std::to_string(entries.size()) + " >>\nstream\n");
    Append(entries);
    Append("\nendstream\nendobj\nstartxref\n" + std::to_string(table) + "\n%%EOF\n");
    return std::move(bytes_);
}

/// end  of the last one's body
void Objects::PutTogether(std::span<const Waiting> objects, std::size_t end)
{
    const std::size_t begin = objects.front().begin;
    const int stream = static_cast<int>(places_.size()) + 1;
    std::string content;
    for (std::size_t at = 0; at < objects.size(); ++at) {
        content += std::to_string(objects[at].object) + " " + std::to_string(objects[at].begin - begin) + " ";
        PlaceOf(objects[at].object) = {at, stream};
    }
    const std::size_t first = content.size();
    content.append(bodies_, begin, end - begin);
    AddStream("/Type /ObjStm /N " + std::to_string(objects.size()) + " /First " + std::to_string(first) +
                  " /Filter /FlateDecode",
              Deflated(content, Packing::Fair));
}

/// An entry an object: its kind (1 in the file, 2 in a stream), then its place or its stream and its number in it.
std::string Objects::CrossReference() const
{
    std::string entries;
    const auto append = [&](std::size_t kind, std::size_t place, std::size_t number) {
        AppendBigEndian(entries, kind, 1);
        AppendBigEndian(entries, place, kPlaceBytes);
        AppendBigEndian(entries, number, 2);
    };
    append(0, 0, 0xFFFF);
    for (const Place& place : places_) {
        if (place.in == 0)
            append(1, place.place, 0);
        else
            append(2, static_cast<std::size_t>(place.in), place.place);
    }
    return entries;
}

void Objects::Append(std::string_view text)
{
    bytes_.insert(bytes_.end(), text.begin(), text.end());
}

}  // namespace terravane::pdf
