/// What a run says: one JSON object a line, its keys in a fixed order.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "controls/control_properties.h"
#include "controls/text_grid.h"
#include "jet/recordset.h"
#include "program/surroundings.h"

namespace terravane {

using Json = nlohmann::ordered_json;

Json TextAnswer(const std::string& asked, const std::string& text);
Json ValueAnswer(const std::string& asked, const PropertyValue& value);
Json CellAnswer(const std::string& grid, int row, int column, const std::string& text);
Json GridRowAnswer(const std::string& asked, const TextGrid& grid, int row);
Json MessageAnswered(const Message& message, MessageAnswer answer);
Json DialogAnswered(const std::string& title, std::string_view kind, const std::string& answer);
Json ErrorAnswer(const RuntimeError& error, const std::string& line);
Json RefusedAnswer(const std::string& asked, std::string_view why);
/// The current row; `number` counts from 1. A null is a JSON null.
Json RowAnswer(int number, const jet::Recordset& rows);

std::string_view NameOf(MessageAnswer answer);

/// Writes answers as they come; a reader at the other end of a pipe gets each at once.
class AnswerWriter {
  public:
    explicit AnswerWriter(std::ostream& out) : out_(out) {}

    /// Bytes that are no UTF-8 come out as U+FFFD.
    void Write(const Json& answer);

  private:
    std::ostream& out_;
};

}  // namespace terravane
