#include "render/pdf_objects.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <algorithm>
#include <array>
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
constexpr int kQuick = 3;
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
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string result = "<FEFF";
    for (const char16_t unit : ToUtf16(text))
        for (const int shift : {12, 8, 4, 0}) result += kDigits[(static_cast<unsigned>(unit) >> shift) & 15U];
    return result + ">";
}

std::string DateString(Moment moment)
{
    return "(D:" + Format(moment, "yyyymmdd") + Format(moment, "hhnnss") + ")";
}

void AppendNumber(std::string& out, double value)
{
    const double bounded = std::isfinite(value) ? std::clamp(value, -kFarOff, kFarOff) : 0;
    const std::int64_t parts = std::llround(bounded * static_cast<double>(kParts));
    out += parts < 0 ? " -" : " ";
    const std::int64_t size = std::llabs(parts);
    out += std::to_string(size / kParts);
    std::int64_t rest = size % kParts;
    if (rest == 0) return;
    out += '.';
    for (std::int64_t digit = kParts / 10; rest > 0; rest %= digit, digit /= 10)
        out += static_cast<char>('0' + rest / digit);
}

std::string Deflated(std::string_view content, Packing packing)
{
    const QByteArray packed = qCompress(View(content), packing == Packing::Small ? kSmall : kQuick);
    return packed.mid(kLengthInFront).toStdString();
}

Objects::Objects()
{
    Append("%PDF-1.5\n%\xE2\xE3\xCF\xD3\n");  // high bytes tell transfer programs that this is no text
}

int Objects::Reserve()
{
    places_.push_back(0);
    return static_cast<int>(places_.size());
}

void Objects::Put(int object, std::string_view body)
{
    places_[static_cast<std::size_t>(object - 1)] = bytes_.size();
    Append(std::to_string(object) + " 0 obj\n");
    Append(body);
    Append("\nendobj\n");
}

int Objects::Add(std::string_view body)
{
    const int object = Reserve();
    Put(object, body);
    return object;
}

int Objects::AddStream(std::string_view dictionary, std::string_view content)
{
    std::string body = "<< " + std::string(dictionary) + " /Length " + std::to_string(content.size()) + " >>\nstream\n";
    body += content;
    return Add(body += "\nendstream");
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

void Objects::Append(std::string_view text)
{
    bytes_.insert(bytes_.end(), text.begin(), text.end());
}

}  // namespace terravane::pdf
