// The rules of docs/architecture.md, held against src/ and CMakeLists.txt. The first tests show on lines made for the
// purpose that the rules do complain.
#include "unit/house/include_rules.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "source_folder.h"

namespace terravane::house {

namespace {

const std::filesystem::path kRoot = kSourceFolder;

constexpr auto kPage = R"(
| folder | holds | may include | today |
|---|---|---|---|
| `runtime` | `Val`, dates | nothing | stands |
| `jet` | files | runtime | stands |
| `sheets` | the sheets | runtime, jet | stands |
| `render` | painting | runtime | to come |

| folder | its files, the lowest first |
|---|---|
| `jet` | `page`; `*_page`, `row`; `file_page` |

| header | of | stands in |
|---|---|---|
| `Q` | Qt | `render/`, `sheets/main.cpp` |
| `fstream` | streams by path | `runtime/` |
| `windows.h` | Windows | `*_windows.cpp` |

| header | of | stands in |
| `other/` | a table that is not read | `jet/` |
)";

std::string ComplaintOf(const std::string& file, const std::string& line)
{
    const auto lines = IncludeLinesOf(file, "\n" + line + "\n");
    if (lines.size() != 1) return std::to_string(lines.size()) + " include lines";
    return Complaint(ReadIncludeRules(kPage), lines.front()).value_or("");
}

/// A source whose lines are includes of these headers.
Source Including(const std::string& file, std::initializer_list<std::string_view> headers)
{
    Source source{file, {}};
    for (const std::string_view header : headers) source.text.append("#include \"").append(header).append("\"\n");
    return source;
}

Words CirclesIn(const std::vector<Source>& sources)
{
    return CircleComplaints(ArrowsInside(sources));
}

const std::vector<Source>& Sources()
{
    static const std::vector<Source> sources = [] {
        std::vector<Source> read;
        for (const std::string& file : SourcesBelow(kRoot / "src"))
            read.push_back({file, ReadText(kRoot / "src" / file)});
        return read;
    }();
    return sources;
}

std::size_t LinesIn(const std::string& text)
{
    return static_cast<std::size_t>(std::ranges::count(text, '\n'));
}

const IncludeRules& Rules()
{
    static const IncludeRules rules = ReadIncludeRules(ReadText(kRoot / "docs/architecture.md"));
    return rules;
}

}  // namespace

TEST(IncludeRules, AFolderIncludesItselfAndWhatItsRowNames)
{
    EXPECT_EQ(ComplaintOf("jet/page.cpp", "#include \"jet/page.h\""), "");
    EXPECT_EQ(ComplaintOf("jet/page.cpp", "#include \"runtime/text.h\""), "");
    EXPECT_EQ(ComplaintOf("jet/page.cpp", "#include \"sheets/a.h\""),
              "src/jet/page.cpp, line 2, includes \"sheets/a.h\", but the row \"jet\" names only: runtime.");
    EXPECT_EQ(ComplaintOf("runtime/val.cpp", "  # include \"jet/page.h\"  // why"),
              "src/runtime/val.cpp, line 2, includes \"jet/page.h\", but the row \"runtime\" names only: nothing.");
}

TEST(IncludeRules, AQuotedIncludeIsWrittenFromTheRoot)
{
    EXPECT_EQ(ComplaintOf("jet/page.cpp", "#include \"page.h\""),
              "src/jet/page.cpp, line 2, includes \"page.h\", but a quoted include is written from src/ and begins "
              "with a layer.");
    EXPECT_NE(ComplaintOf("jet/page.cpp", "#include \"../runtime/text.h\""), "");
}

TEST(IncludeRules, AFolderWithoutARowMayIncludeNothing)
{
    EXPECT_EQ(ComplaintOf("extra/a.cpp", "#include \"runtime/text.h\""),
              "src/extra/a.cpp, line 2, includes \"runtime/text.h\", but the layer table has no row \"extra\".");
}

TEST(IncludeRules, ASheetIncludesThePatternAndItselfOnly)
{
    EXPECT_EQ(ComplaintOf("sheets/cbr/a.cpp", "#include \"sheets/pattern/test_sheet.h\""), "");
    EXPECT_EQ(ComplaintOf("sheets/cbr/a.cpp", "#include \"sheets/cbr/a.h\""), "");
    EXPECT_EQ(
        ComplaintOf("sheets/cbr/a.cpp", "#include \"sheets/sieve/b.h\""),
        "src/sheets/cbr/a.cpp, line 2, includes \"sheets/sieve/b.h\", but the row \"sheets\" lets a sheet include "
        "\"pattern\" and itself only.");
    EXPECT_NE(ComplaintOf("sheets/pattern/a.cpp", "#include \"sheets/cbr/a.h\""), "");
}

TEST(IncludeRules, HeadersOfOthersStandWhereTheirRowSays)
{
    EXPECT_EQ(ComplaintOf("jet/page.cpp", "#include <vector>"), "");
    EXPECT_EQ(ComplaintOf("render/png.cpp", "#include <QImage>"), "");
    EXPECT_EQ(ComplaintOf("sheets/main.cpp", "#include <QImage>"), "");
    EXPECT_EQ(ComplaintOf("jet/page.cpp", "#include <QImage>"),
              "src/jet/page.cpp, line 2, includes <QImage>, but the row \"Q\" (Qt) names only: render/, "
              "sheets/main.cpp.");
    EXPECT_EQ(ComplaintOf("jet/page.cpp", "#include <other/a.h>"),
              "src/jet/page.cpp, line 2, includes <other/a.h>, but it is no header of the standard library and no row "
              "of the headers of others names it.");
}

TEST(IncludeRules, FilesOfAFolderDoNotLeadBackToThemselves)
{
    EXPECT_EQ(CirclesIn({Including("jet/page.cpp", {"jet/page.h", "jet/row.h"}), Including("jet/row.h", {})}), Words{});
    EXPECT_EQ(CirclesIn({Including("jet/page.cpp", {"jet/page.h", "jet/row.h"}),
                         Including("jet/row.cpp", {"jet/row.h", "jet/file.h"}),
                         Including("jet/file.h", {"jet/page.h", "runtime/text.h"})}),
              (Words{"src/jet/page.cpp, line 2, includes \"jet/row.h\", but that leads back: row, file, page.",
                     "src/jet/row.cpp, line 2, includes \"jet/file.h\", but that leads back: file, page, row.",
                     "src/jet/file.h, line 1, includes \"jet/page.h\", but that leads back: page, row, file."}));
}

TEST(IncludeRules, SourcesThatContinueAHeadersNameAreOneUnitWithIt)
{
    const Source part = Including("sheets/cbr/frmCBR_load_plot.cpp", {"sheets/cbr/frmCBR.h", "sheets/cbr/dial.h"});
    EXPECT_EQ(CirclesIn({part, Including("sheets/cbr/dial.h", {})}), Words{});
    EXPECT_EQ(CirclesIn({part, Including("sheets/cbr/dial.cpp", {"sheets/cbr/frmCBR.h"})}).size(), 2U);
    EXPECT_EQ(CirclesIn({Including("jet/row_list.cpp", {"jet/rows.h"}), Including("jet/rows.h", {"jet/row.h"}),
                         Including("jet/row.h", {})}),
              Words{})
        << "It continues the name of a header that it does not include.";
    EXPECT_EQ(
        CirclesIn({Including("jet/row_list.h", {"jet/row.h"}), Including("jet/row.h", {"jet/row_list.h"})}).size(), 2U)
        << "A header is a unit, whatever its name.";
}

TEST(IncludeRules, InAFolderWithAnOrderNoArrowRunsUp)
{
    const auto complaints = [](const std::vector<Source>& sources) {
        return OrderComplaints(ReadIncludeRules(kPage), sources);
    };
    const Source page = Including("jet/page.h", {}), row = Including("jet/row.h", {"jet/page.h", "jet/data_page.h"}),
                 data = Including("jet/data_page.h", {}), file = Including("jet/file_page.h", {"jet/row.h"});
    EXPECT_EQ(complaints({page, row, data, file}), Words{});
    EXPECT_EQ(complaints({page, row, Including("jet/data_page.h", {"jet/file_page.h"}), file}),
              (Words{"src/jet/data_page.h, line 1, includes \"jet/file_page.h\", but in the order of \"jet\" file_page "
                     "stands higher."}));
    EXPECT_EQ(complaints({page, row, data, file, Including("jet/lexer.h", {})}),
              (Words{"The order of \"jet\" has no place for lexer."}));
    EXPECT_EQ(complaints({page, data, file}), (Words{"The order of \"jet\" names row, which is not there."}));
}

TEST(IncludeRules, AHeaderOfASystemStandsInTheSourcesOfThatSystem)
{
    EXPECT_EQ(ComplaintOf("runtime/disk_windows.cpp", "#include <windows.h>"), "");
    EXPECT_NE(ComplaintOf("runtime/disk.cpp", "#include <windows.h>"), "");
}

TEST(IncludeRules, ARowTakesAHeaderOfTheStandardLibraryFromAllOthers)
{
    EXPECT_EQ(ComplaintOf("runtime/streams.h", "#include <fstream>"), "");
    EXPECT_EQ(ComplaintOf("jet/page.cpp", "#include <fstream>"),
              "src/jet/page.cpp, line 2, includes <fstream>, but the row \"fstream\" (streams by path) names only: "
              "runtime/.");
}

TEST(IncludeRules, ABuildLayerIsReadWithWhatItUses)
{
    const auto layers = LayersOfBuild("terravane_layer(a)\nterravane_layer(b USES a\n  c LINKS Qt6::Gui)\n");
    ASSERT_EQ(layers.size(), 2U);
    EXPECT_EQ(layers[0].folder, "a");
    EXPECT_TRUE(layers[0].mayInclude.empty());
    EXPECT_EQ(layers[1].folder, "b");
    EXPECT_EQ(layers[1].mayInclude, (std::set<std::string>{"a", "c"}));
}

TEST(House, EveryIncludeFollowsTheLayerTable)
{
    int checked = 0;
    for (const auto& [file, text] : Sources()) {
        for (const IncludeLine& line : IncludeLinesOf(file, text)) {
            const auto complaint = Complaint(Rules(), line);
            EXPECT_FALSE(complaint.has_value()) << *complaint;
            ++checked;
        }
    }
    EXPECT_GT(checked, 100) << "hardly any include line was found below " << kRoot / "src";
}

TEST(House, NoFileOfAFolderLeadsBackToItself)
{
    EXPECT_GT(ArrowsInside(Sources()).size(), 100U) << "hardly any include inside a folder was found";
    EXPECT_EQ(CircleComplaints(ArrowsInside(Sources())), Words{});
}

TEST(House, FoldersWithAnOrderKeepIt)
{
    EXPECT_FALSE(Rules().orders.empty()) << "docs/architecture.md has no table of orders inside folders.";
    EXPECT_EQ(OrderComplaints(Rules(), Sources()), Words{});
}

TEST(House, EveryQuotedIncludeNamesAFile)
{
    for (const auto& [file, text] : Sources())
        for (const IncludeLine& line : IncludeLinesOf(file, text))
            EXPECT_TRUE(!line.quoted || std::filesystem::exists(kRoot / "src" / line.header))
                << "src/" << file << ", line " << line.number << ", includes \"" << line.header
                << "\", which is no file of src/.";
}

TEST(House, TheLayerTableNamesTheFoldersThatStand)
{
    for (const Layer& layer : Rules().layers)
        EXPECT_EQ(!SourcesBelow(kRoot / "src" / layer.folder).empty(), layer.stands)
            << "The row \"" << layer.folder << "\" says that it " << (layer.stands ? "stands." : "is to come.");
    for (const auto& entry : std::filesystem::directory_iterator(kRoot / "src"))
        EXPECT_NE(Rules().Find(entry.path().filename().string()), nullptr)
            << "The layer table has no row for " << entry.path();
}

TEST(House, TheBuildLinksWhatTheLayerTableNames)
{
    const auto built = LayersOfBuild(ReadText(kRoot / "CMakeLists.txt"));
    for (const Layer& layer : Rules().layers)
        EXPECT_EQ(std::ranges::count(built, layer.folder, &Layer::folder), layer.stands ? 1 : 0)
            << "The row \"" << layer.folder << "\" and the libraries of CMakeLists.txt do not agree.";
    for (const Layer& library : built) {
        const Layer* row = Rules().Find(library.folder);
        ASSERT_NE(row, nullptr) << "CMakeLists.txt builds " << library.folder << ", which has no row.";
        std::set<std::string> standing = row->mayInclude;
        std::erase_if(standing, [](const std::string& name) { return !Rules().Find(name)->stands; });
        EXPECT_EQ(library.mayInclude, standing) << "of the library " << library.folder;
    }
}

TEST(House, NoSourceFileIsLongerThanSixHundredLines)
{
    for (const auto& [file, text] : Sources())
        EXPECT_LE(LinesIn(text), 600U) << "src/" << file << " holds two subjects: split it.";
}

}  // namespace terravane::house
