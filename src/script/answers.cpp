#include "script/answers.h"

#include <array>

namespace terravane {

namespace {

template <class T>
struct Named {
    T value;
    std::string_view name;
};

constexpr std::array kStyles{
    Named{MessageStyle::Plain, "plain"},
    Named{MessageStyle::Information, "information"},
    Named{MessageStyle::Critical, "critical"},
    Named{MessageStyle::Question, "question"},
};

constexpr std::array kAnswers{
    Named{MessageAnswer::Ok, "ok"},
    Named{MessageAnswer::Cancel, "cancel"},
    Named{MessageAnswer::Yes, "yes"},
    Named{MessageAnswer::No, "no"},
};

/// The name in a table that has a row for every value.
template <class Table, class T>
std::string_view NameIn(const Table& table, T value)
{
    const auto* row = table.data();
    while (row->value != value) ++row;
    return row->name;
}

Json JsonOf(const jet::Recordset& rows, const std::string& column)
{
    if (rows.IsNull(column)) return nullptr;
    return rows.Fields(column);
}

}  // namespace

std::string_view NameOf(MessageAnswer answer)
{
    return NameIn(kAnswers, answer);
}

Json TextAnswer(const std::string& asked, const std::string& text)
{
    return {{"get", asked}, {"text", text}};
}

Json ValueAnswer(const std::string& asked, const PropertyValue& value)
{
    Json answer{{"get", asked}};
    std::visit([&answer](const auto& held) { answer["value"] = held; }, value);
    return answer;
}

Json CellAnswer(const std::string& grid, int row, int column, const std::string& text)
{
    return {{"cell", grid}, {"row", row}, {"col", column}, {"text", text}};
}

Json GridRowAnswer(const std::string& asked, const TextGrid& grid, int row)
{
    Json cells = Json::array();
    for (int column = 0; column < grid.Columns(); ++column) cells.push_back(grid(row, column));
    return {{"dump", asked}, {"row", row}, {"cells", std::move(cells)}};
}

Json MessageAnswered(const Message& message, MessageAnswer answer)
{
    return {{"message", message.text},
            {"title", message.title},
            {"style", NameIn(kStyles, message.style)},
            {"answer", NameOf(answer)}};
}

Json DialogAnswered(const std::string& title, std::string_view kind, const std::string& answer)
{
    return {{"dialog", title}, {"kind", kind}, {"answer", answer}};
}

Json ErrorAnswer(const RuntimeError& error, const std::string& line)
{
    return {{"error", error.Number()}, {"description", error.Description()}, {"line", line}};
}

Json RefusedAnswer(const std::string& asked, std::string_view why)
{
    return {{"refused", asked}, {"why", why}};
}

Json RowAnswer(int number, const jet::Recordset& rows)
{
    Json values = Json::array();
    for (const std::string& column : rows.ColumnNames()) values.push_back(JsonOf(rows, column));
    return {{"row", number}, {"columns", rows.ColumnNames()}, {"values", std::move(values)}};
}

void AnswerWriter::Write(const Json& answer)
{
    out_ << answer.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n' << std::flush;
}

}  // namespace terravane
