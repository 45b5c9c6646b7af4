#include "jet/lexer.h"

namespace terravane::jet {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

bool IsWordCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

Token Word(std::string_view statement, std::size_t begin)
{
    std::size_t end = begin;
    while (end < statement.size() && IsWordCharacter(statement[end])) ++end;
    return {TokenKind::Word, std::string(statement.substr(begin, end - begin)), begin, end};
}

Token Sign(std::string_view statement, std::size_t begin)
{
    return {TokenKind::Sign, std::string(1, statement[begin]), begin, begin + 1};
}

Token BracketedName(std::string_view statement, std::size_t begin)
{
    const std::size_t close = statement.find(']', begin);
    if (close == std::string_view::npos) return Sign(statement, begin);
    return {TokenKind::Name, std::string(statement.substr(begin + 1, close - begin - 1)), begin, close + 1};
}

Token Text(std::string_view statement, std::size_t begin)
{
    std::string text;
    for (std::size_t at = begin + 1; at < statement.size(); ++at) {
        if (statement[at] != '\'') {
            text.push_back(statement[at]);
        } else if (at + 1 < statement.size() && statement[at + 1] == '\'') {
            text.push_back(statement[at++]);
        } else {
            return {TokenKind::Text, std::move(text), begin, at + 1};
        }
    }
    return {TokenKind::Unclosed, std::string(statement.substr(begin + 1)), begin, statement.size()};
}

}  // namespace

Token NextToken(std::string_view statement, std::size_t at)
{
    const std::size_t begin = statement.find_first_not_of(kBlanks, at);
    if (begin == std::string_view::npos) return {TokenKind::End, "", statement.size(), statement.size()};
    if (statement[begin] == '\'') return Text(statement, begin);
    if (statement[begin] == '[') return BracketedName(statement, begin);
    return IsWordCharacter(statement[begin]) ? Word(statement, begin) : Sign(statement, begin);
}

}  // namespace terravane::jet
