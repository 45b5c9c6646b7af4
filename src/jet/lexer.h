/// The words, texts and signs of a statement.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace terravane::jet {

enum class TokenKind {
    Word,      // keyword, name or number
    Name,      // a name in [ ], never a keyword
    Text,      // in apostrophes
    Unclosed,  // an apostrophe without a second one, and all that follows it
    Sign,      // one character
    End,
};

struct Token {
    TokenKind kind = TokenKind::End;
    std::string text;       // of a Text: without its apostrophes, doubled ones made one
    std::size_t begin = 0;  // in the statement
    std::size_t end = 0;
};

/// The token that begins at or behind `at`, blanks skipped.
Token NextToken(std::string_view statement, std::size_t at);

}  // namespace terravane::jet
