#include "unit/house/include_rules.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
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

/// "frmCBR_data" of "sheets/cbr/frmCBR_data".
std::string NameOf(const std::string& unit)
{
    return unit.substr(unit.rfind('/') + 1);
}

std::string FolderOfFile(const std::string& file)
{
    return file.substr(0, file.rfind('/'));
}

std::string Stem(const std::string& file)
{
    return file.substr(0, file.rfind('.'));
}

bool Includes(const std::vector<IncludeLine>& lines, const std::string& header)
{
    return std::ranges::any_of(lines, [&](const IncludeLine& line) { return line.quoted && line.header == header; });
}

/// The file's own stem; a source's is shortened at its '_' until it includes the header of that name.
std::string UnitOf(const std::string& file, const std::vector<IncludeLine>& lines)
{
    const std::string own = Stem(file);
    if (file.ends_with(".h")) return own;
    for (std::size_t end = own.size(); end != std::string::npos && end > own.rfind('/'); end = own.rfind('_', end - 1))
        if (Includes(lines, own.substr(0, end) + ".h")) return own.substr(0, end);
    return own;
}

using Neighbours = std::map<std::string, std::set<std::string>>;

/// The units from one to another along the arrows, both ends included; empty where no way leads there.
Words WayBetween(const Neighbours& neighbours, const std::string& from, const std::string& to)
{
    std::map<std::string, std::string> cameFrom{{from, ""}};
    Words found{from};
    for (std::size_t next = 0; next < found.size() && !cameFrom.contains(to); ++next) {
        const auto here = neighbours.find(found[next]);
        if (here == neighbours.end()) continue;
        for (const std::string& unit : here->second)
            if (cameFrom.emplace(unit, here->first).second) found.push_back(unit);
    }
    Words way;
    if (!cameFrom.contains(to)) return way;
    for (std::string unit = to; !unit.empty(); unit = cameFrom.at(unit)) way.insert(way.begin(), unit);
    return way;
}

/// "a, b, c" of units, without their folder.
std::string NamesOf(const Words& units)
{
    std::string names;
    for (const std::string& unit : units) names += (names.empty() ? "" : ", ") + NameOf(unit);
    return names;
}

std::set<std::string> UnitsIn(const std::string& folder, const std::vector<Source>& sources)
{
    std::set<std::string> units;
    for (const Source& source : sources)
        if (FolderOfFile(source.file) == folder)
            units.insert(UnitOf(source.file, IncludeLinesOf(source.file, source.text)));
    return units;
}

/// Names of the order that stand for nothing, units without a place in it.
Words PlaceComplaints(const FolderOrder& order, const std::set<std::string>& units)
{
    Words complaints;
    for (const std::string& unit : units)
        if (!order.RankOf(NameOf(unit)))
            complaints.push_back("The order of \"" + order.folder + "\" has no place for " + NameOf(unit) + ".");
    for (const Words& rank : order.ranks)
        for (const std::string& name : rank)
            if (!name.starts_with('*') && !units.contains(order.folder + '/' + name))
                complaints.push_back("The order of \"" + order.folder + "\" names " + name + ", which is not there.");
    return complaints;
}

std::vector<Words> RanksIn(const std::string& cell)
{
    std::vector<Words> ranks;
    std::istringstream stream(cell);
    for (std::string rank; std::getline(stream, rank, ';');) ranks.push_back(QuotedAsCode(rank));
    return ranks;
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
    for (const ForeignHeader& row : rules.foreign) {
        if (!line.header.starts_with(row.header)) continue;
        const auto holds = [&](const std::string& place) {
            if (place.starts_with('*')) return line.file.ends_with(place.substr(1));
            return place.ends_with('/') ? line.file.starts_with(place) : line.file == place;
        };
        if (std::ranges::any_of(row.places, holds)) return std::nullopt;
        const std::set<std::string> places(row.places.begin(), row.places.end());
        return Sentence(line, "the row \"" + row.header + "\" (" + row.of + ") names only: " + Joined(places) + ".");
    }
    if (std::ranges::find(kStandardHeaders, line.header) != std::end(kStandardHeaders)) return std::nullopt;
    return Sentence(line, "it is no header of the standard library and no row of the headers of others names it.");
}

}  // namespace

const Layer* IncludeRules::Find(const std::string& folder) const
{
    const auto found = std::ranges::find(layers, folder, &Layer::folder);
    return found == layers.end() ? nullptr : &*found;
}

std::optional<std::size_t> FolderOrder::RankOf(const std::string& name) const
{
    std::optional<std::size_t> byEnding;
    for (std::size_t rank = 0; rank < ranks.size(); ++rank) {
        for (const std::string& known : ranks[rank]) {
            if (known == name) return rank;
            if (known.starts_with('*') && name.ends_with(known.substr(1))) byEnding = rank;
        }
    }
    return byEnding;
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
    for (const Words& cells : TableOf(page, "folder | its files, the lowest first"))
        rules.orders.push_back({QuotedAsCode(cells.at(0)).at(0), RanksIn(cells.at(1))});
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
        if (line.find("include") != std::string::npos && std::regex_search(line, found, include))
            lines.push_back({file, number, found[1] == "\"", found[2]});
    }
    return lines;
}

std::optional<std::string> Complaint(const IncludeRules& rules, const IncludeLine& line)
{
    return line.quoted ? ComplaintOfOwn(rules, line) : ComplaintOfForeign(rules, line);
}

std::vector<Arrow> ArrowsInside(const std::vector<Source>& sources)
{
    std::vector<Arrow> arrows;
    for (const Source& source : sources) {
        const auto lines = IncludeLinesOf(source.file, source.text);
        const std::string from = UnitOf(source.file, lines);
        for (const IncludeLine& line : lines) {
            const std::string to = Stem(line.header);
            if (line.quoted && to != from && FolderOfFile(to) == FolderOfFile(from)) arrows.push_back({from, to, line});
        }
    }
    return arrows;
}

Words CircleComplaints(const std::vector<Arrow>& arrows)
{
    Neighbours neighbours;
    for (const Arrow& arrow : arrows) neighbours[arrow.from].insert(arrow.to);
    Words complaints;
    for (const Arrow& arrow : arrows) {
        const Words back = WayBetween(neighbours, arrow.to, arrow.from);
        if (!back.empty()) complaints.push_back(Sentence(arrow.line, "that leads back: " + NamesOf(back) + "."));
    }
    return complaints;
}

Words OrderComplaints(const IncludeRules& rules, const std::vector<Source>& sources)
{
    Words complaints;
    const auto arrows = ArrowsInside(sources);
    for (const FolderOrder& order : rules.orders) {
        std::ranges::copy(PlaceComplaints(order, UnitsIn(order.folder, sources)), std::back_inserter(complaints));
        for (const Arrow& arrow : arrows) {
            if (FolderOfFile(arrow.from) != order.folder) continue;
            const auto from = order.RankOf(NameOf(arrow.from)), to = order.RankOf(NameOf(arrow.to));
            if (from && to && *to > *from)
                complaints.push_back(Sentence(
                    arrow.line, "in the order of \"" + order.folder + "\" " + NameOf(arrow.to) + " stands higher."));
        }
    }
    return complaints;
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
