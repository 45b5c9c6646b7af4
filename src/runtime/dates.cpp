#include "runtime/dates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <vector>

#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {
namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::hours;

constexpr std::array<std::string_view, 12> kMonths{"January",   "February", "March",    "April",
                                                   "May",       "June",     "July",     "August",
                                                   "September", "October",  "November", "December"};
constexpr std::size_t kShortMonth = 3;

struct Fields {
    int year, month, day, hour, minute, second;
};

Fields FieldsOf(Moment moment)
{
    const auto midnight = floor<days>(moment);
    const std::chrono::year_month_day date(midnight);
    const std::chrono::hh_mm_ss time(moment - midnight);
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(time.hours().count()),
            static_cast<int>(time.minutes().count()),
            static_cast<int>(time.seconds().count())};
}

std::optional<Moment> MomentOf(const Fields& fields)
{
    const auto isWithin = [](int value, int first, int last) { return value >= first && value <= last; };
    if (!isWithin(fields.year, 100, 9999) || !isWithin(fields.month, 1, 12) || !isWithin(fields.day, 1, 31) ||
        !isWithin(fields.hour, 0, 23) || !isWithin(fields.minute, 0, 59) || !isWithin(fields.second, 0, 59)) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date(std::chrono::year(fields.year),
                                           std::chrono::month(static_cast<unsigned>(fields.month)),
                                           std::chrono::day(static_cast<unsigned>(fields.day)));
    if (!date.ok()) return std::nullopt;
    return Moment(std::chrono::local_days(date)) + hours(fields.hour) + std::chrono::minutes(fields.minute) +
           std::chrono::seconds(fields.second);
}

std::string Padded(int value, std::size_t width)
{
    const std::string digits = std::to_string(value);
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

std::string_view MonthName(const Fields& fields)
{
    return kMonths[static_cast<std::size_t>(fields.month - 1)];
}

/// A mark of a mask; the first that fits stands for its field, so a longer mark comes before its beginning.
struct Mark {
    std::string_view text;
    std::string (*field)(const Fields&);
};
constexpr std::array kMarks{
    Mark{"yyyy", [](const Fields& f) { return Padded(f.year, 4); }},
    Mark{"mmmm", [](const Fields& f) { return std::string(MonthName(f)); }},
    Mark{"mm", [](const Fields& f) { return Padded(f.month, 2); }},
    Mark{"dd", [](const Fields& f) { return Padded(f.day, 2); }},
    Mark{"hh", [](const Fields& f) { return Padded(f.hour, 2); }},
    Mark{"nn", [](const Fields& f) { return Padded(f.minute, 2); }},
    Mark{"ss", [](const Fields& f) { return Padded(f.second, 2); }},
};

/// The parts of a date between its marks: "21/11/2026" is three.
std::vector<std::string_view> Split(std::string_view text, char mark)
{
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(mark);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

/// A whole number of at least and at most so many digits; -1, which no date has, for all else.
int Number(std::string_view text, std::size_t fewest, std::size_t most)
{
    int number = 0;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (text.size() < fewest || text.size() > most || !std::ranges::all_of(text, isDigit)) return -1;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

int DayOrMonth(std::string_view text)
{
    return Number(text, 1, 2);
}
int Year(std::string_view text)
{
    return Number(text, 4, 4);
}

int NamedMonth(std::string_view text)
{
    const auto isNamed = [&](std::string_view name) {
        return SameName(text, name) || SameName(text, name.substr(0, kShortMonth));
    };
    const auto month = std::ranges::find_if(kMonths, isNamed);
    return month == kMonths.end() ? -1 : static_cast<int>(month - kMonths.begin()) + 1;
}

/// The ways a date may be written: the mark between its parts, and what the parts are.
struct Form {
    char mark;
    Fields (*fields)(std::string_view, std::string_view, std::string_view);
};
constexpr std::array kForms{
    Form{'/', [](auto a, auto b, auto c) { return Fields{Year(c), DayOrMonth(b), DayOrMonth(a), 0, 0, 0}; }},
    Form{'-', [](auto a, auto b, auto c) { return Fields{Year(a), DayOrMonth(b), DayOrMonth(c), 0, 0, 0}; }},
    Form{' ', [](auto a, auto b, auto c) { return Fields{Year(c), NamedMonth(b), DayOrMonth(a), 0, 0, 0}; }},
};

}  // namespace

Moment MakeMoment(int year, int month, int day, int hour, int minute, int second)
{
    const auto moment = MomentOf({year, month, day, hour, minute, second});
    if (!moment) throw RuntimeError(error::kInvalidProcedureCall);
    return *moment;
}

std::string ShortDate(Moment moment)
{
    return Format(moment, "dd/mm/yyyy");
}

std::string Format(Moment moment, std::string_view mask)
{
    const Fields fields = FieldsOf(moment);
    std::string text;
    bool isBehindHour = false;
    while (!mask.empty()) {
        const auto mark = std::ranges::find_if(kMarks, [&](const Mark& m) { return mask.starts_with(m.text); });
        if (mark == kMarks.end()) {
            text.push_back(mask.front());
            mask.remove_prefix(1);
            continue;
        }
        text += isBehindHour && mark->text == "mm" ? Padded(fields.minute, 2) : mark->field(fields);
        isBehindHour = mark->text == "hh";
        mask.remove_prefix(mark->text.size());
    }
    return text;
}

Moment ParseDate(std::string_view text)
{
    const std::string_view date = Trim(text);
    for (const Form& form : kForms) {
        const auto parts = Split(date, form.mark);
        if (parts.size() != 3) continue;
        if (const auto moment = MomentOf(form.fields(parts[0], parts[1], parts[2]))) return *moment;
    }
    throw RuntimeError(error::kTypeMismatch);
}

long HoursBetween(Moment from, Moment to) noexcept
{
    return static_cast<long>((floor<hours>(to) - floor<hours>(from)).count());
}

}  // namespace terravane
