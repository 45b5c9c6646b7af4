// A saved project in the hands of a reader that knows nothing of this program: all tables, the same texts.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>

#include <sys/wait.h>
#include <unistd.h>

#include "properties/every_case.h"
#include "store/schema.h"

namespace terravane::support {
namespace {

class IndependentReader : public EverySheet {};
INSTANTIATE_TEST_SUITE_P(Sheets, IndependentReader, AllCases(), NameOf);

/// A file on the real disk, gone with the test.
class FileOnDisk {
  public:
    explicit FileOnDisk(const Bytes& bytes)
    {
        std::string path = (std::filesystem::temp_directory_path() / "terravane-XXXXXX").string();
        close(mkstemp(path.data()));
        path_ = path;
        std::ofstream(path_, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    ~FileOnDisk() { std::remove(path_.c_str()); }
    FileOnDisk(const FileOnDisk&) = delete;
    FileOnDisk& operator=(const FileOnDisk&) = delete;

    /// What mdb-export makes of a table: a row a line, a tab behind each text but the last.
    std::string Export(std::string_view table) const
    {
        const std::string command = "mdb-export -H -Q -d '\t' '" + path_ + "' " + std::string(table) + " 2>&1";
        std::FILE* const pipe = popen(command.c_str(), "r");
        if (!pipe) return "no pipe";
        std::string text;
        for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) text.push_back(static_cast<char>(c));
        const int status = pclose(pipe);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << command << ": " << text;
        return text;
    }

  private:
    std::string path_;
};

/// As mdb-export prints a text: what lies beyond the first 65536 characters, two units in the file, becomes two marks.
std::string AsExported(const std::string& text)
{
    std::string exported;
    for (const char16_t unit : ToUtf16(text)) {
        const bool isHalf = unit >= 0xD800 && unit < 0xE000;
        exported += isHalf ? "?" : ToUtf8(std::u16string_view(&unit, 1));
    }
    return exported;
}

/// The same as the program's own reader has it.
std::string Expected(const SheetBench& bench, const TableSchema& table)
{
    const Texts stored = bench.Stored(table.name);
    std::string text;
    for (int row = 0; row < table.rows; ++row) {
        const std::string place = std::string(table.name) + "(" + std::to_string(row) + ",";
        for (const ColumnSchema& column : table.columns) {
            text += AsExported(stored.at(place + table.ColumnName(column.suffix) + ")"));
            text += &column == &table.columns.back() ? "\n" : "\t";
        }
    }
    return text;
}

TEST_P(IndependentReader, FindsWhatWasTyped)
{
    for (const Hand kind : kHands) {
        RandomReadings hand(7, kind);
        SheetBench bench(GetParam());
        bench.Choose(bench.PlanOf(hand));
        bench.Fill(hand);
        ASSERT_TRUE(bench.Save()) << bench.LastWord();
        const FileOnDisk file(bench.File());
        std::string all;
        for (const TableSchema& table : ProjectTables()) {
            const std::string exported = file.Export(table.name);
            EXPECT_EQ(exported, Expected(bench, table)) << table.name;
            all += exported;
        }
        for (const auto& [place, text] : bench.Entries())
            EXPECT_TRUE(all.find(AsExported(text)) != std::string::npos) << place << ": " << text;
    }
}

}  // namespace
}  // namespace terravane::support
