// The tables of the user guide that say what each sheet holds, as Markdown, from the descriptions of the tests:
//
//   === table_general
//   | | | unit | ...
//
// tools/build-guide puts each, and the checker's notes from their rules, where a chapter says {{table_general}}.
#include <algorithm>
#include <cctype>
#include <iostream>
#include <map>
#include <string>
#include <string_view>

#include "laboratory/all_tests.h"
#include "laboratory/general_data.h"
#include "laboratory/tests.h"
#include "notes/rule.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace {

using namespace terravane;
using namespace terravane::laboratory;

/// A caption of the sheet on one line: blanks and line ends within it as one blank.
std::string Plain(std::string_view caption)
{
    std::string plain;
    for (const char letter : caption) {
        const bool isBlank = std::isspace(static_cast<unsigned char>(letter)) != 0;
        if (!isBlank) plain += letter;
        if (isBlank && !plain.empty() && plain.back() != ' ') plain += ' ';
    }
    return std::string(Trim(plain));
}

std::string Kept(const Value& value)
{
    if (value.kept.empty()) return "";
    return std::to_string(value.length) + (value.isLoaded ? "" : ", saved only");
}

std::string Symbol(const Unit& unit)
{
    std::string symbol(unit.symbol);
    for (const auto& [plain, set] : {std::pair{"^2", "²"}, std::pair{"^3", "³"}, std::pair{"celsius", "°C"}}) {
        if (const auto at = symbol.find(plain); at != std::string::npos)
            symbol.replace(at, std::string_view(plain).size(), set);
    }
    return symbol;
}

void PrintRow(std::string_view group, std::string_view caption, const Value& value)
{
    std::cout << "| " << group << " | " << Plain(caption) << " | " << Symbol(value.unit) << " | "
              << (value.isWorkedOut ? "worked out" : "typed") << " | " << Kept(value) << " |\n";
}

void PrintHead()
{
    std::cout << "| | | unit | | characters kept |\n|---|---|---|---|---|\n";
}

/// A box that has no caption of its own is called as the report calls it.
std::string_view CaptionOf(const Box& box)
{
    return box.caption.empty() ? box.is.page : box.caption;
}

void PrintBoxes(std::string_view group, std::span<const Box> boxes)
{
    for (const Box& box : boxes) {
        PrintRow(group, CaptionOf(box), box.is);
        group = {};
    }
}

void PrintGrid(const Grid& grid)
{
    std::string_view group = grid.frame.empty() ? "Results" : grid.frame;
    for (int line = std::max(grid.heads, 0); line < grid.Lines(); ++line) {
        PrintRow(group, grid[line].title, grid[line].is);
        group = {};
    }
}

void PrintGeneral()
{
    std::cout << "=== table_general\n";
    PrintHead();
    PrintBoxes("Job", kJobBoxes);
    PrintBoxes("Test", kGeneralBoxes);
}

void PrintSheet(const Sheet& sheet)
{
    PrintHead();
    PrintBoxes("Boxes", sheet.boxes);
    for (const Grid& grid : sheet.grids) PrintGrid(grid);
    PrintBoxes("Results", sheet.results);
}

/// A section a sheet, headed with the tests that it serves.
void PrintSheets()
{
    std::cout << "=== table_sheets\n";
    const Sheet* before = nullptr;
    for (const Description* test : Tests()) {
        if (&test->sheet == before) continue;
        before = &test->sheet;
        std::string titles;
        for (const Description* other : Tests())
            if (&other->sheet == before) titles.append(titles.empty() ? "" : ", ").append(other->names.title);
        std::cout << "## " << titles << "\n\n";
        PrintSheet(test->sheet);
        std::cout << "\n";
    }
}

/// Texts that may be longer or must be shorter than a reading, by their length.
void PrintLengths()
{
    std::map<int, std::string> byLength;
    const auto add = [&](std::string_view caption, const Value& value) {
        if (value.kept.empty() || value.length == kReadingLength) return;
        std::string& texts = byLength[-value.length];
        const std::string text = Plain(caption);
        if (texts.find(text) == std::string::npos) texts.append(texts.empty() ? "" : "; ").append(text);
    };
    for (const auto& boxes : {std::span<const Box>(kJobBoxes), std::span<const Box>(kGeneralBoxes)})
        for (const Box& box : boxes) add(CaptionOf(box), box.is);
    for (const Description* test : Tests()) {
        for (const Box& box : test->sheet.boxes) add(CaptionOf(box), box.is);
        for (const Grid& grid : test->sheet.grids)
            for (const Line& line : grid.lines) add(line.title, line.is);
    }
    std::cout << "=== table_lengths\n| text | characters |\n|---|---|\n";
    for (const auto& [length, texts] : byLength) std::cout << "| " << texts << " | " << -length << " |\n";
    std::cout << "| all other texts and readings | " << kReadingLength << " |\n";
}

/// The sentence with "…" where a figure is put in.
std::string Sentence(std::string_view sentence)
{
    std::string text(sentence);
    for (std::size_t at = 0; (at = text.find("{}", at)) != std::string::npos;) text.replace(at, 2, "…");
    return text;
}

std::string LimitsOf(const notes::Rule& rule)
{
    std::string limits;
    for (std::size_t i = 0; i < rule.limits; ++i) limits += (i == 0 ? "" : " and ") + NumberText(rule.limit[i]);
    return rule.unit.empty() ? limits : limits + " " + std::string(rule.unit);
}

/// A section a group of the checker's notes.
void PrintNotes()
{
    std::cout << "=== table_notes\n";
    for (const notes::RuleGroup& group : notes::RuleGroups()) {
        std::cout << "## " << group.title << "\n\n| note | limit | what is said, and what to do |\n|---|---|---|\n";
        for (const notes::Rule& rule : group.rules) {
            std::cout << "| `" << rule.key << "`, " << notes::Words(rule.level) << " | " << LimitsOf(rule) << " | "
                      << Sentence(rule.sentence) << " *" << rule.advice << "* Source: " << rule.source << ". |\n";
        }
        std::cout << "\n";
    }
}

void PrintMenuKeys()
{
    std::cout << "=== menu_keys\n";
    for (const Description* test : Tests()) {
        const bool isLast = test == Tests().back();
        std::cout << (test == Tests().front() ? "" : isLast ? " and " : ", ") << "`" << test->menu << "`";
    }
    std::cout << "\n";
}

void PrintKeys()
{
    std::cout << "=== test_keys\n";
    for (const Description* test : Tests()) std::cout << (test == Tests().front() ? "" : ",") << test->key;
    std::cout << "\n";
}

}  // namespace

int main()
{
    PrintGeneral();
    PrintSheets();
    PrintLengths();
    PrintNotes();
    PrintMenuKeys();
    PrintKeys();
    return 0;
}
