#include "program/cell_words.h"

#include <algorithm>
#include <cctype>

#include "runtime/text.h"

namespace terravane {

namespace {

bool IsNumberOrNothing(std::string_view words)
{
    return std::ranges::all_of(words, [](unsigned char letter) { return std::isdigit(letter) != 0; });
}

}  // namespace

std::string PlainWords(std::string_view caption)
{
    std::string words;
    for (const char letter : caption) {
        if (letter == '&') continue;
        const bool isBlank = letter == ' ' || letter == '\n' || letter == '\r' || letter == '\t';
        if (!isBlank)
            words.push_back(letter);
        else if (!words.empty() && words.back() != ' ')
            words.push_back(' ');
    }
    return std::string(Trim(words));
}

namespace {

/// The texts at the head of a column.
std::string HeadWords(const TextGrid& grid, int column)
{
    std::string words;
    for (int row = 0; row < grid.HeadRows() && row < grid.Rows(); ++row) {
        const std::string head = PlainWords(grid(row, column));
        if (!head.empty()) words.append(words.empty() ? "" : " ").append(head);
    }
    return words;
}

/// Of columns with one head the second is called by a 2; nothing where the head is the only one.
std::string NumberAmongLike(const TextGrid& grid, int column, const std::string& head)
{
    int before = 0, all = 0;
    for (int other = grid.TitleColumns(); other < grid.Columns(); ++other) {
        if (HeadWords(grid, other) != head) continue;
        ++all;
        before += other < column ? 1 : 0;
    }
    return all > 1 && column >= grid.TitleColumns() ? " " + std::to_string(before + 1) : std::string();
}

}  // namespace

std::string ColumnWords(const TextGrid& grid, int column)
{
    const std::string words = HeadWords(grid, column);
    if (!IsNumberOrNothing(words)) return words + NumberAmongLike(grid, column, words);
    return "trial " + (words.empty() ? std::to_string(column - grid.TitleColumns() + 1) : words);
}

std::string RowWords(const TextGrid& grid, int row)
{
    const std::string title = grid.TitleColumns() > 0 ? PlainWords(grid(row, 0)) : std::string();
    if (!IsNumberOrNothing(title)) return title;
    return "row " + (title.empty() ? std::to_string(row - grid.HeadRows() + 1) : title);
}

std::string CellWords(const TextGrid& grid, int row, int column)
{
    return RowWords(grid, row) + ", " + ColumnWords(grid, column);
}

}  // namespace terravane
