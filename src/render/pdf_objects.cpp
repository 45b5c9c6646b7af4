#include "render/pdf_objects.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "runtime/text.h"

namespace terravane::pdf {

namespace {

constexpr std::int64_t kParts = 1000;  // of a unit, in numbers
constexpr double kFarOff = 1e9;        // beyond every page; a curve that failed may go there
constexpr int kSmall = 6;              // zlib's levels
constexpr int kQuick = 1;
constexpr qsizetype kLengthInFront = 4;  // Qt writes the length of the content before the compressed bytes

QByteArray View(std::string_view text)
{
    return QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()));
}

std::string CrossReference(std::size_t place)
{
    std::array<char, 32> line{};
    const int length = std::snprintf(line.data(), line.size(), "%010zu 00000 n \n", place);
    return {line.data(), static_cast<std::size_t>(length)};
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
    return TextString(std::u16string_view(ToUtf16(text)));
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

std::string Deflated(std::string_view content, Packing packing)
{
    const QByteArray packed = qCompress(View(content), packing == Packing::Small ? kSmall : kQuick);
    return packed.mid(kLengthInFront).toStdString();
}

Objects::Objects()
{
    Append("%PDF-1.7\n%\xE2\xE3\xCF\xD3\n");  // high bytes tell transfer programs that this is no text
}

int Objects::Reserve()
{
    places_.push_back(0);
    return static_cast<int>(places_.size());
}

void Objects::Put(int object, std::string_view body)
{
    Begin(object);
    Append(body);
    End();
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
    Begin(object);
    Append("<< " + std::string(dictionary) + " /Length " + std::to_string(content.size()) + " >>\nstream\n");
    Append(content);
    Append("\nendstream");
    End();
    return object;
}

Bytes Objects::Finish(int catalog, int information, std::string_view identity)
{
    const std::size_t table = bytes_.size();
    const std::string count = std::to_string(places_.size() + 1);
    Append("xref\n0 " + count + "\n0000000000 65535 f \n");
    for (const std::size_t place : places_) Append(CrossReference(place));
    const std::string identifier = IdentifierOf(identity);
    Append("trailer\n<< /Size " + count + " /Root " + Reference(catalog) + " /Info " + Reference(information) +
           " /ID [" + identifier + identifier + "] >>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n");
    return std::move(bytes_);
}

void Objects::Begin(int object)
{
    places_[static_cast<std::size_t>(object - 1)] = bytes_.size();
    Append(std::to_string(object) + " 0 obj\n");
}

void Objects::End()
{
    Append("\nendobj\n");
}

void Objects::Append(std::string_view text)
{
    bytes_.insert(bytes_.end(), text.begin(), text.end());
}

}  // namespace terravane::pdf
