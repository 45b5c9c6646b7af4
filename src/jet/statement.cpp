#include "jet/statement.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "jet/lexer.h"
#include "runtime/text.h"

namespace terravane::jet {

namespace {

RuntimeError SyntaxError(const std::string& description)
{
    return RuntimeError(engine::kSyntax, description);
}

/// Reads a statement from its first token to its last.
class Reader {
  public:
    explicit Reader(std::string_view statement) : statement_(statement), next_(NextToken(statement, 0)) {}

    Statement Read();

  private:
    // what stands next
    bool NextIsKeyword(std::string_view word) const;
    bool NextIsSign(char sign) const;
    bool NextEndsValue() const;

    // taking it, or the error of what stands there instead
    Token Take();
    bool TakeIfSign(char sign);
    void TakeKeyword(std::string_view word);
    void TakeSign(char sign);
    std::string TakeName();
    std::string TakeText();
    std::size_t TakeLength();
    void TakeStrayApostrophe();
    void TakeEnd() const;

    SelectStatement ReadSelect();
    UpdateStatement ReadUpdate();
    CreateTableStatement ReadCreateTable();
    InsertStatement ReadInsert();

    std::vector<std::string> ReadNames();
    std::vector<std::string> ReadTexts();
    ColumnText ReadEquation();
    std::vector<ColumnText> ReadAssignments();
    std::vector<ColumnText> ReadWhere();
    NewColumn ReadColumn();

    RuntimeError Unexpected() const;
    RuntimeError MissingOperator(std::size_t literal, std::size_t literalEnd) const;

    std::string_view statement_;
    Token next_;
    std::string_view kind_;  // the statement's keyword, for its errors
};

// --- errors

/// Quotes from the part that can't be read on, or the whole statement where that ends too early.
RuntimeError Reader::Unexpected() const
{
    const std::size_t from = next_.kind == TokenKind::End ? 0 : next_.begin;
    return SyntaxError("Syntax error in " + std::string(kind_) + " statement: '" +
                       std::string(statement_.substr(from)) + "'.");
}

/// A text that goes on behind its closing apostrophe, as 'O'Brien' does; quoted to the next apostrophe.
RuntimeError Reader::MissingOperator(std::size_t literal, std::size_t literalEnd) const
{
    const std::size_t close = statement_.find('\'', literalEnd);
    const std::size_t end = close == std::string_view::npos ? statement_.size() : close + 1;
    return SyntaxError("Syntax error (missing operator) in query expression '" +
                       std::string(statement_.substr(literal, end - literal)) + "'.");
}

// --- tokens

bool Reader::NextIsKeyword(std::string_view word) const
{
    return next_.kind == TokenKind::Word && SameName(next_.text, word);
}

bool Reader::NextIsSign(char sign) const
{
    return next_.kind == TokenKind::Sign && next_.text[0] == sign;
}

bool Reader::NextEndsValue() const
{
    return next_.kind == TokenKind::End || NextIsSign(',') || NextIsSign(')') || NextIsKeyword("Where") ||
           NextIsKeyword("And");
}

Token Reader::Take()
{
    const std::size_t end = next_.end;
    return std::exchange(next_, NextToken(statement_, end));
}

bool Reader::TakeIfSign(char sign)
{
    const bool there = NextIsSign(sign);
    if (there) Take();
    return there;
}

void Reader::TakeKeyword(std::string_view word)
{
    if (!NextIsKeyword(word)) throw Unexpected();
    Take();
}

void Reader::TakeSign(char sign)
{
    if (!TakeIfSign(sign)) throw Unexpected();
}

std::string Reader::TakeName()
{
    if (next_.kind != TokenKind::Word && next_.kind != TokenKind::Name) throw Unexpected();
    return Take().text;
}

std::string Reader::TakeText()
{
    if (next_.kind == TokenKind::Unclosed) {
        throw SyntaxError("Syntax error in string in query expression '" + std::string(statement_.substr(next_.begin)) +
                          "'.");
    }
    if (next_.kind != TokenKind::Text) throw Unexpected();
    Token literal = Take();
    if (!NextEndsValue()) throw MissingOperator(literal.begin, literal.end);
    return std::move(literal.text);
}

std::size_t Reader::TakeLength()
{
    std::size_t length = 0;
    const char* const end = next_.text.data() + next_.text.size();
    const auto result = std::from_chars(next_.text.data(), end, length);
    if (next_.kind != TokenKind::Word || result.ec != std::errc() || result.ptr != end) throw Unexpected();
    Take();
    return length;
}

/// The one apostrophe that ends "SELECT * from HEAD'" means nothing.
void Reader::TakeStrayApostrophe()
{
    if (next_.kind == TokenKind::Unclosed && Trim(next_.text).empty()) Take();
}

void Reader::TakeEnd() const
{
    if (next_.kind != TokenKind::End) throw Unexpected();
}

// --- parts

std::vector<std::string> Reader::ReadNames()
{
    std::vector<std::string> names;
    do names.push_back(TakeName());
    while (TakeIfSign(','));
    return names;
}

std::vector<std::string> Reader::ReadTexts()
{
    std::vector<std::string> texts;
    do texts.push_back(TakeText());
    while (TakeIfSign(','));
    return texts;
}

ColumnText Reader::ReadEquation()
{
    ColumnText equation{TakeName(), ""};
    TakeSign('=');
    equation.text = TakeText();
    return equation;
}

std::vector<ColumnText> Reader::ReadAssignments()
{
    std::vector<ColumnText> assignments;
    do {
        assignments.push_back(ReadEquation());
        const std::string& column = assignments.back().column;
        const auto isSame = [&](const ColumnText& other) { return SameName(other.column, column); };
        if (std::ranges::count_if(assignments, isSame) > 1) {
            throw SyntaxError("Duplicate output destination '" + column + "'.");
        }
    } while (TakeIfSign(','));
    return assignments;
}

std::vector<ColumnText> Reader::ReadWhere()
{
    std::vector<ColumnText> conditions;
    if (!NextIsKeyword("Where")) return conditions;
    do {
        Take();
        conditions.push_back(ReadEquation());
    } while (NextIsKeyword("And"));
    return conditions;
}

NewColumn Reader::ReadColumn()
{
    NewColumn column{TakeName(), 0};
    TakeKeyword("text");
    TakeSign('(');
    column.length = TakeLength();
    TakeSign(')');
    return column;
}

// --- statements

SelectStatement Reader::ReadSelect()
{
    SelectStatement select;
    if (!TakeIfSign('*')) select.columns = ReadNames();
    TakeKeyword("from");
    select.table = TakeName();
    TakeStrayApostrophe();
    select.where = ReadWhere();
    return select;
}

UpdateStatement Reader::ReadUpdate()
{
    UpdateStatement update;
    update.table = TakeName();
    TakeKeyword("Set");
    update.set = ReadAssignments();
    update.where = ReadWhere();
    return update;
}

CreateTableStatement Reader::ReadCreateTable()
{
    CreateTableStatement create;
    TakeKeyword("table");
    create.table.name = TakeName();
    TakeSign('(');
    do create.table.columns.push_back(ReadColumn());
    while (TakeIfSign(','));
    TakeSign(')');
    return create;
}

InsertStatement Reader::ReadInsert()
{
    InsertStatement insert;
    TakeKeyword("into");
    insert.table = TakeName();
    TakeSign('(');
    const std::vector<std::string> names = ReadNames();
    TakeSign(')');
    TakeKeyword("Values");
    TakeSign('(');
    const std::vector<std::string> texts = ReadTexts();
    TakeSign(')');
    if (names.size() != texts.size()) {
        throw SyntaxError("Number of query values and destination fields are not the same.");
    }
    for (std::size_t i = 0; i < names.size(); ++i) insert.values.push_back({names[i], texts[i]});
    return insert;
}

Statement Reader::Read()
{
    struct Form {
        std::string_view keyword;
        Statement (*read)(Reader&);
    };
    static constexpr Form kForms[]{
        {"SELECT", [](Reader& from) -> Statement { return from.ReadSelect(); }},
        {"UPDATE", [](Reader& from) -> Statement { return from.ReadUpdate(); }},
        {"CREATE", [](Reader& from) -> Statement { return from.ReadCreateTable(); }},
        {"INSERT", [](Reader& from) -> Statement { return from.ReadInsert(); }},
    };
    for (const Form& form : kForms) {
        if (!NextIsKeyword(form.keyword)) continue;
        kind_ = form.keyword;
        Take();
        Statement statement = form.read(*this);
        TakeEnd();
        return statement;
    }
    throw SyntaxError("Invalid SQL statement; expected 'SELECT', 'UPDATE', 'CREATE TABLE' or 'INSERT': '" +
                      std::string(statement_) + "'.");
}

}  // namespace

Statement ReadStatement(std::string_view text)
{
    return Reader(text).Read();
}

}  // namespace terravane::jet
