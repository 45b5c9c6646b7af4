#include "unit/house/include_rules.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>
#include <string_view>

namespace terravane::house {

namespace {

constexpr std::string_view kStandardHeaders[] = {
    "algorithm",
    "any",
    "array",
    "atomic",
    "barrier",
    "bit",
    "bitset",
    "cassert",
    "cctype",
    "cerrno",
    "cfenv",
    "cfloat",
    "charconv",
    "chrono",
    "cinttypes",
    "climits",
    "clocale",
    "cmath",
    "compare",
    "complex",
    "concepts",
    "condition_variable",
    "coroutine",
    "csetjmp",
    "csignal",
    "cstdarg",
    "cstddef",
    "cstdint",
    "cstdio",
    "cstdlib",
    "cstring",
    "ctime",
    "cuchar",
    "cwchar",
    "cwctype",
    "deque",
    "exception",
    "execution",
    "filesystem",
    "forward_list",
    "fstream",
    "functional",
    "future",
    "initializer_list",
    "iomanip",
    "ios",
    "iosfwd",
    "iostream",
    "istream",
    "iterator",
    "latch",
    "limits",
    "list",
    "locale",
    "map",
    "memory",
    "memory_resource",
    "mutex",
    "new",
    "numbers",
    "numeric",
    "optional",
    "ostream",
    "queue",
    "random",
    "ranges",
    "ratio",
    "regex",
    "scoped_allocator",
    "semaphore",
    "set",
    "shared_mutex",
    "source_location",
    "span",
    "sstream",
    "stack",
    "stdexcept",
    "stop_token",
    "streambuf",
    "string",
    "string_view",
    "syncstream",
    "system_error",
    "thread",
    "tuple",
    "type_traits",
    "typeindex",
    "typeinfo",
    "unordered_map",
    "unordered_set",
    "utility",
    "valarray",
    "variant",
    "vector",
    "version",
};

Words LinesOf(const std::string& text)
{
    Words lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

std::string Trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// All that the expression's first group finds.
Words AllOf(const std::string& text, const std::regex& expression)
{
    Words found;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
        found.push_back((*match)[1].str());
    return found;
}

Words QuotedAsCode(const std::string& text)
{
    static const std::regex code("`([^`]+)`");
    return AllOf(text, code);
}

std::set<std::string> NamesIn(const std::string& text)
{
    static const std::regex name("([a-z]+)");
    const Words names = AllOf(text, name);
    return {names.begin(), names.end()};
}

Words CellsOf(const std::string& row)
{
    Words cells;
    std::istringstream stream(row.substr(1));
    for (std::string cell; std::getline(stream, cell, '|');) cells.push_back(Trimmed(cell));
    return cells;
}

/// The rows of the page's table whose first heading is `heading`, cell by cell.
std::vector<Words> TableOf(const std::string& page, const std::string& heading)
{
    std::vector<Words> rows;
    bool inside = false;
    for (const std::string& line : LinesOf(page)) {
        if (inside && !line.starts_with('|')) break;
        if (inside && !line.starts_with("|---")) rows.push_back(CellsOf(line));
        if (line.starts_with("| " + heading + " |")) inside = true;
    }
    return rows;
}

std::string Joined(const std::set<std::string>& names)
{
    std::string joined;
    for (const std::string& name : names) joined += (joined.empty() ? "" : ", ") + name;
    return joined.empty() ? "nothing" : joined;
}

/// The first `folders` folders of a path, "" where it has fewer.
std::string FolderOf(const std::string& path, int folders = 1)
{
    std::size_t end = 0;
    for (int folder = 0; folder < folders; ++folder) {
        end = path.find('/', end == 0 ? 0 : end + 1);
        if (end == std::string::npos) return {};
    }
    return path.substr(0, end);
}

std::string Sentence(const IncludeLine& line, const std::string& reason)
{
    const std::string header = line.quoted ? '"' + line.header + '"' : '<' + line.header + '>';
    return "src/" + line.file + ", line " + std::to_string(line.number) + ", includes " + header + ", but " + reason;
}

std::optional<std::string> ComplaintOfOwn(const IncludeRules& rules, const IncludeLine& line)
{
    const std::string from = FolderOf(line.file), to = FolderOf(line.header);
    const Layer* layer = rules.Find(from);
    if (layer == nullptr) return Sentence(line, "the layer table has no row \"" + from + "\".");
    if (rules.Find(to) == nullptr)
        return Sentence(line, "a quoted include is written from src/ and begins with a layer.");
    if (to != from && !layer->mayInclude.contains(to))
        return Sentence(line, "the row \"" + from + "\" names only: " + Joined(layer->mayInclude) + ".");
    if (from == "sheets" && to == "sheets") {
        const std::string sheet = FolderOf(line.header, 2);
        if (sheet != "sheets/pattern" && sheet != FolderOf(line.file, 2))
            return Sentence(line, "the row \"sheets\" lets a sheet include \"pattern\" and itself only.");
    }
    return std::nullopt;
}

std::optional<std::string> ComplaintOfForeign(const IncludeRules& rules, const IncludeLine& line)
{
    if (std::ranges::find(kStandardHeaders, line.header) != std::end(kStandardHeaders)) return std::nullopt;
    for (const ForeignHeader& row : rules.foreign) {
        if (!line.header.starts_with(row.header)) continue;
        const auto holds = [&](const std::string& place) {
            return place.ends_with('/') ? line.file.starts_with(place) : line.file == place;
        };
        if (std::ranges::any_of(row.places, holds)) return std::nullopt;
        const std::set<std::string> places(row.places.begin(), row.places.end());
        return Sentence(line, "the row \"" + row.header + "\" (" + row.of + ") names only: " + Joined(places) + ".");
    }
    return Sentence(line, "it is no header of the standard library and no row of the headers of others names it.");
}

}  // namespace

const Layer* IncludeRules::Find(const std::string& folder) const
{
    const auto found = std::ranges::find(layers, folder, &Layer::folder);
    return found == layers.end() ? nullptr : &*found;
}

IncludeRules ReadIncludeRules(const std::string& page)
{
    IncludeRules rules;
    for (const Words& cells : TableOf(page, "folder | holds | may include | today")) {
        Layer layer{QuotedAsCode(cells.at(0)).at(0), NamesIn(cells.at(2)), cells.at(3) == "stands"};
        layer.mayInclude.erase("nothing");
        rules.layers.push_back(layer);
    }
    for (const Words& cells : TableOf(page, "header"))
        rules.foreign.push_back({QuotedAsCode(cells.at(0)).at(0), cells.at(1), QuotedAsCode(cells.at(2))});
    return rules;
}

std::vector<IncludeLine> IncludeLinesOf(const std::string& file, const std::string& text)
{
    static const std::regex include(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    std::vector<IncludeLine> lines;
    int number = 0;
    for (const std::string& line : LinesOf(text)) {
        ++number;
        std::smatch found;
        if (std::regex_search(line, found, include)) lines.push_back({file, number, found[1] == "\"", found[2]});
    }
    return lines;
}

std::optional<std::string> Complaint(const IncludeRules& rules, const IncludeLine& line)
{
    return line.quoted ? ComplaintOfOwn(rules, line) : ComplaintOfForeign(rules, line);
}

std::vector<Layer> LayersOfBuild(const std::string& cmakeLists)
{
    static const std::regex call(R"(terravane_layer\((\w+)(?:\s+USES([a-z\s]*))?)");
    std::vector<Layer> layers;
    for (std::sregex_iterator match(cmakeLists.begin(), cmakeLists.end(), call), end; match != end; ++match)
        layers.push_back({(*match)[1].str(), NamesIn((*match)[2].str()), true});
    return layers;
}

std::string ReadText(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

Words SourcesBelow(const std::filesystem::path& folder)
{
    Words files;
    if (!std::filesystem::exists(folder)) return files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const auto extension = entry.path().extension();
        if (extension == ".h" || extension == ".cpp")
            files.push_back(entry.path().lexically_relative(folder).generic_string());
    }
    std::ranges::sort(files);
    return files;
}

}  // namespace terravane::house
