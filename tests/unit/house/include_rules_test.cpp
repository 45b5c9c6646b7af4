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

| header | of | stands in |
|---|---|---|
| `Q` | Qt | `render/`, `sheets/main.cpp` |

| header | of | stands in |
| `other/` | a table that is not read | `jet/` |
)";

std::string ComplaintOf(const std::string& file, const std::string& line)
{
    const auto lines = IncludeLinesOf(file, "\n" + line + "\n");
    if (lines.size() != 1) return std::to_string(lines.size()) + " include lines";
    return Complaint(ReadIncludeRules(kPage), lines.front()).value_or("");
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
    for (const std::string& file : SourcesBelow(kRoot / "src")) {
        for (const IncludeLine& line : IncludeLinesOf(file, ReadText(kRoot / "src" / file))) {
            const auto complaint = Complaint(Rules(), line);
            EXPECT_FALSE(complaint.has_value()) << *complaint;
            ++checked;
        }
    }
    EXPECT_GT(checked, 100) << "hardly any include line was found below " << kRoot / "src";
}

TEST(House, EveryQuotedIncludeNamesAFile)
{
    for (const std::string& file : SourcesBelow(kRoot / "src"))
        for (const IncludeLine& line : IncludeLinesOf(file, ReadText(kRoot / "src" / file)))
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
    for (const std::string& file : SourcesBelow(kRoot / "src"))
        EXPECT_LE(LinesIn(ReadText(kRoot / "src" / file)), 600U) << "src/" << file << " holds two subjects: split it.";
}

}  // namespace terravane::house
