#include "script/script_line.h"

#include <array>
#include <charconv>

namespace terravane {

namespace {

constexpr std::string_view kBlanks = " \t\r";

struct Escape {
    char letter, meaning;
};

constexpr std::array kEscapes{Escape{'"', '"'}, Escape{'\\', '\\'}, Escape{'n', '\n'}, Escape{'t', '\t'}};

char Unescaped(char letter)
{
    for (const Escape& escape : kEscapes) {
        if (escape.letter == letter) return escape.meaning;
    }
    throw LineFault(std::string("There is no escape \\") + letter + ".");
}

/// Takes a quoted word off the line, whose first character is the opening quote.
std::string TakeQuoted(std::string_view& line)
{
    std::string word;
    std::size_t at = 1;
    for (; at < line.size() && line[at] != '"'; ++at) {
        if (line[at] != '\\') {
            word += line[at];
        } else if (++at < line.size()) {
            word += Unescaped(line[at]);
        }
    }
    if (at >= line.size()) throw LineFault("A quote is not closed.");
    line.remove_prefix(at + 1);
    const bool endsWord = line.empty() || kBlanks.find(line.front()) != std::string_view::npos;
    if (!endsWord) throw LineFault("A blank is missing behind a quote.");
    return word;
}

std::string TakePlain(std::string_view& line)
{
    std::string word(line.substr(0, line.find_first_of(kBlanks)));
    line.remove_prefix(word.size());
    return word;
}

void SkipBlanks(std::string_view& line)
{
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
}

}  // namespace

std::vector<std::string> SplitLine(std::string_view line)
{
    std::vector<std::string> words;
    SkipBlanks(line);
    if (line.starts_with('#')) return words;
    while (!line.empty()) {
        words.push_back(line.front() == '"' ? TakeQuoted(line) : TakePlain(line));
        SkipBlanks(line);
    }
    return words;
}

std::optional<int> ReadWholeNumber(std::string_view word)
{
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
    return number;
}

int WholeNumber(const std::string& word, const std::string& what)
{
    if (const auto number = ReadWholeNumber(word)) return *number;
    throw LineFault("\"" + word + "\" is not the number of " + what + ".");
}

bool OnOrOff(const std::string& word)
{
    if (word != "on" && word != "off") throw LineFault("\"" + word + "\" is neither on nor off.");
    return word == "on";
}

std::string Joined(Words words)
{
    std::string text;
    for (const std::string& word : words) {
        if (!text.empty()) text += ' ';
        text += word;
    }
    return text;
}

}  // namespace terravane
