#include "jet/column_value.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <map>

#include "jet/long_value.h"
#include "jet/text_codec.h"
#include "runtime/dates.h"
#include "runtime/numbers.h"

namespace terravane::jet {

namespace {

std::string Hexadecimal(ByteView bytes)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text.push_back(kDigits[byte >> 4]);
        text.push_back(kDigits[byte & 0x0F]);
    }
    return text;
}

std::string Identifier(ByteView bytes)
{
    constexpr std::array kOrder{3, 2, 1, 0, -1, 5, 4, -1, 7, 6, -1, 8, 9, -1, 10, 11, 12, 13, 14, 15};
    std::string text = "{";
    for (const int i : kOrder) text += i < 0 ? "-" : Hexadecimal(Part(bytes, static_cast<std::size_t>(i), 1));
    return text + "}";
}

/// Currency is a whole number of ten-thousandths.
std::string Money(ByteView bytes)
{
    const auto value = static_cast<std::int64_t>(Get<std::uint64_t>(bytes, 0));
    const std::string whole = std::to_string(std::abs(value / 10000));
    std::string places = std::to_string(10000 + std::abs(value % 10000)).substr(1);
    places.erase(places.find_last_not_of('0') + 1);
    return (value < 0 ? "-" : "") + whole + (places.empty() ? "" : "." + places);
}

double DoubleOf(ByteView bytes)
{
    return std::bit_cast<double>(Get<std::uint64_t>(bytes, 0));
}

/// Days since 1899-12-30; before it the fraction still counts forward from the day. Years 100 to 9999.
std::string Date(ByteView bytes)
{
    using namespace std::chrono;
    const double value = DoubleOf(bytes);
    if (!(value > -657435.0 && value < 2958466.0)) throw Damaged("a date is out of range");
    const double day = std::trunc(value);
    const long second = std::lround(std::abs(value - day) * 86400);
    const Moment midnight = local_days{1899y / December / 30} + days{static_cast<int>(day)};
    const Moment moment = midnight + seconds{second};
    return second == 0 ? ShortDate(moment) : ShortDate(moment) + " " + Format(moment, "hh:nn:ss");
}

using ValueReader = std::string (*)(ByteView);

const std::map<ColumnType, ValueReader> kReaders{
    {ColumnType::Boolean, [](ByteView b) { return std::string(b[0] != 0 ? "True" : "False"); }},
    {ColumnType::Byte, [](ByteView b) { return std::to_string(Get<std::uint8_t>(b, 0)); }},
    {ColumnType::Int16, [](ByteView b) { return std::to_string(static_cast<std::int16_t>(Get<std::uint16_t>(b, 0))); }},
    {ColumnType::Int32, [](ByteView b) { return std::to_string(static_cast<std::int32_t>(Get<std::uint32_t>(b, 0))); }},
    {ColumnType::Currency, Money},
    {ColumnType::Float, [](ByteView b) { return NumberText(std::bit_cast<float>(Get<std::uint32_t>(b, 0))); }},
    {ColumnType::Double, [](ByteView b) { return NumberText(DoubleOf(b)); }},
    {ColumnType::Date, Date},
    {ColumnType::Text, DecodeText},
    {ColumnType::Guid, Identifier},
};

bool IsLong(ColumnType type)
{
    return type == ColumnType::Memo || type == ColumnType::LongBinary;
}

std::string LongText(const Image& image, ColumnType type, ByteView inRow)
{
    const Bytes value = ReadLongValue(image, inRow);
    return type == ColumnType::Memo ? DecodeText(value) : Hexadecimal(value);
}

}  // namespace

std::optional<std::string> TextOf(const Image& image, const Column& column, const RowView& row)
{
    const std::optional<ByteView> bytes = row.BytesOf(column);
    if (!bytes) return std::nullopt;
    if (IsLong(column.type)) return LongText(image, column.type, *bytes);
    const auto reader = kReaders.find(column.type);
    return reader == kReaders.end() ? Hexadecimal(*bytes) : reader->second(*bytes);
}

}  // namespace terravane::jet
