#include "batch/csv_line.h"

#include <string_view>

namespace terravane {

namespace {

bool IsFigure(std::string_view text)
{
    constexpr std::string_view kDigits = "0123456789.";
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) text.remove_prefix(1);
    return !text.empty() && text.find_first_not_of(kDigits) == std::string_view::npos;
}

std::string Harmless(const std::string& field)
{
    constexpr std::string_view kRisky = "=+-@\t\r\n'";
    const bool isRisky = !field.empty() && kRisky.find(field[0]) != std::string_view::npos && !IsFigure(field);
    return isRisky ? "'" + field : field;
}

std::string Quoted(const std::string& field)
{
    if (field.find_first_of("\",\r\n") == std::string::npos) return field;
    std::string quoted = "\"";
    for (const char character : field) {
        if (character == '"') quoted += '"';
        quoted += character;
    }
    return quoted + '"';
}

}  // namespace

std::string CsvLine(const std::vector<std::string>& fields)
{
    std::string line;
    for (std::size_t i = 0; i < fields.size(); ++i) line += (i == 0 ? "" : ",") + Quoted(Harmless(fields[i]));
    return line + '\n';
}

}  // namespace terravane
