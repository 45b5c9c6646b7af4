/// Database files for tests: made by statements, or put together byte by byte as other writers leave them. The bytes
/// are laid out here a second time, on purpose without the engine's own page code.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "jet/connection.h"
#include "runtime/memory_file_system.h"

namespace terravane::support {

inline constexpr std::size_t kPage = 4096;
inline constexpr double kCreated = 36526;  // 2000-01-01

/// "0101 c90f" as bytes; blanks and line ends are skipped.
inline Bytes FromHex(std::string_view hex)
{
    Bytes bytes;
    int digits = 0;
    unsigned value = 0;
    for (const char c : hex) {
        if (c == ' ' || c == '\n') continue;
        value = value * 16 + static_cast<unsigned>(c <= '9' ? c - '0' : c - 'a' + 10);
        if (++digits % 2 == 0) bytes.push_back(static_cast<std::uint8_t>(value & 0xFF));
    }
    return bytes;
}

inline Bytes PageOf(const Bytes& file, std::size_t page)
{
    const auto begin = file.begin() + static_cast<std::ptrdiff_t>(page * kPage);
    return Bytes(begin, begin + kPage);
}

inline Bytes PartOf(const Bytes& bytes, std::size_t at, std::size_t length)
{
    const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(at);
    return Bytes(begin, begin + static_cast<std::ptrdiff_t>(length));
}

inline void PutNumber(Bytes& bytes, std::size_t at, std::uint64_t value, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i) bytes.at(at + i) = static_cast<std::uint8_t>(value >> 8 * i);
}

inline std::uint32_t NumberAt(const Bytes& bytes, std::size_t at, std::size_t size)
{
    std::uint32_t value = 0;
    for (std::size_t i = size; i-- > 0;) value = value << 8 | bytes.at(at + i);
    return value;
}

/// A new database from CREATE TABLE and insert statements.
inline Bytes NewFile(const std::vector<std::string>& statements)
{
    MemoryFileSystem files;
    jet::NewDatabase database(files, "new.mdb", kCreated);
    for (const std::string& statement : statements) database.Execute(statement);
    database.Close();
    return files.Content("new.mdb");
}

/// The same, of a size and shape as a laboratory's project file: 16 tables, 123 rows of three blanks, numbered keys.
struct SampleTable {
    std::string_view name;
    std::string_view prefix;
    int rows;
    int columns;  // beside the key
};
inline constexpr SampleTable kSampleTables[]{
    {"HEAD", "project", 1, 3},  {"STDSOIL", "std", 6, 19},  {"MODSOIL", "mod", 6, 19},   {"DENSOIL", "den", 6, 20},
    {"SPCSOIL", "spc", 7, 12},  {"ATTSOIL", "att", 5, 15},  {"SIESOIL", "sie", 10, 14},  {"CBRSOIL", "cbr", 20, 26},
    {"STDCRUSH", "std", 6, 19}, {"MODCRUSH", "mod", 6, 19}, {"DENCRUSH", "den", 6, 20},  {"CBRCRUSH", "cbr", 20, 26},
    {"SPCCRUSH", "spc", 7, 12}, {"ATTCRUSH", "att", 5, 15}, {"SIECRUSH", "sie", 10, 14}, {"SUMMARY", "sum", 2, 15},
};

inline std::string SampleColumn(const SampleTable& table, int column)
{
    return std::string(table.prefix) + (column == 0 ? "_ID" : "_c" + std::to_string(column));
}

inline std::vector<std::string> SampleStatements()
{
    std::vector<std::string> statements;
    for (const SampleTable& table : kSampleTables) {
        std::string columns;
        std::string names;
        std::string seeds;
        for (int c = 0; c <= table.columns; ++c) {
            const std::string comma = c == 0 ? "" : ",";
            columns += comma + SampleColumn(table, c) + " text(" + (c % 5 == 2 ? "50" : "10") + ")";
            names += comma + SampleColumn(table, c);
            if (c > 0) seeds += ",'   '";
        }
        statements.push_back("CREATE TABLE " + std::string(table.name) + "(" + columns + ")");
        for (int row = 1; row <= table.rows; ++row) {
            statements.push_back("insert into " + std::string(table.name) + " (" + names + ") Values (' " +
                                 std::to_string(row) + "'" + seeds + ")");
        }
    }
    return statements;
}

/// The seven statements of a save: the head, then six rows of a table, each with all columns but the key.
inline std::vector<std::string> SampleSave()
{
    std::vector<std::string> statements{"UPDATE HEAD Set project_c1 ='A client',  project_c2 ='A project'"};
    const SampleTable& table = kSampleTables[1];
    for (int row = 1; row <= table.rows; ++row) {
        std::string set;
        for (int c = 1; c <= table.columns; ++c) {
            set += (c == 1 ? "" : ", ") + SampleColumn(table, c) + " ='" + std::to_string(1000 + 10 * row + c) + "'";
        }
        statements.push_back("UPDATE " + std::string(table.name) + " Set " + set + " Where std_ID =' " +
                             std::to_string(row) + "'");
    }
    return statements;
}

/// Slot flags, as the format has them.
inline constexpr std::uint16_t kMovedRow = 0x4000;
inline constexpr std::uint16_t kMovedTarget = 0x8000;
inline constexpr std::uint16_t kDeletedRow = 0xC000;

struct CraftedSlot {
    std::uint16_t flags;
    Bytes bytes;
};

/// A data page of rows that some other program wrote.
inline Bytes DataPage(std::uint32_t owner, const std::vector<CraftedSlot>& slots)
{
    Bytes page(kPage, 0xEE);  // what no row covers is leftover
    PutNumber(page, 0, 0x0101, 2);
    PutNumber(page, 4, owner, 4);
    PutNumber(page, 12, slots.size(), 2);
    std::size_t start = kPage;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        start -= slots[i].bytes.size();
        std::copy(slots[i].bytes.begin(), slots[i].bytes.end(), page.begin() + static_cast<std::ptrdiff_t>(start));
        PutNumber(page, 14 + 2 * i, start | slots[i].flags, 2);
    }
    PutNumber(page, 2, start - 14 - 2 * slots.size(), 2);
    return page;
}

inline Bytes Utf16(std::u16string_view text)
{
    Bytes bytes(2 * text.size());
    for (std::size_t i = 0; i < text.size(); ++i) PutNumber(bytes, 2 * i, text[i], 2);
    return bytes;
}

/// A row of variable columns, nothing for a null.
inline Bytes TextRow(const std::vector<std::optional<Bytes>>& values)
{
    Bytes row(2);
    PutNumber(row, 0, values.size(), 2);
    std::vector<std::size_t> ends{row.size()};
    Bytes mask((values.size() + 7) / 8);
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i]) {
            row.insert(row.end(), values[i]->begin(), values[i]->end());
            mask[i / 8] = static_cast<std::uint8_t>(mask[i / 8] | 1U << i % 8);
        }
        ends.push_back(row.size());
    }
    for (std::size_t i = ends.size(); i-- > 0;) {
        row.resize(row.size() + 2);
        PutNumber(row, row.size() - 2, ends[i], 2);
    }
    row.resize(row.size() + 2);
    PutNumber(row, row.size() - 2, values.size(), 2);
    row.insert(row.end(), mask.begin(), mask.end());
    return row;
}

inline Bytes Pointer(std::uint32_t page, std::uint8_t slot)
{
    Bytes bytes(4);
    PutNumber(bytes, 0, page << 8 | slot, 4);
    return bytes;
}

/// A file whose first table (definition on page 16, maps on page 17, first rows on page 18) is then rearranged.
inline constexpr std::uint32_t kDefinition = 16;
inline constexpr std::uint32_t kMaps = 17;
inline constexpr std::uint32_t kRows = 18;

class CraftedFile {
  public:
    explicit CraftedFile(const std::vector<std::string>& statements) : bytes(NewFile(statements)) {}

    void SetPage(std::size_t number, const Bytes& page)
    {
        std::copy(page.begin(), page.end(), bytes.begin() + static_cast<std::ptrdiff_t>(number * kPage));
    }

    /// One more page of the first table, entered in its two maps and taken out of the map of free pages.
    std::uint32_t AddPage(const Bytes& page)
    {
        const auto number = static_cast<std::uint32_t>(bytes.size() / kPage);
        bytes.insert(bytes.end(), page.begin(), page.end());
        TurnBit(kMaps, 0, number);
        TurnBit(kMaps, 1, number);
        TurnBit(1, 0, number);
        return number;
    }

    /// A byte of the table's definition.
    void SetInDefinition(std::size_t at, std::uint8_t value) { bytes[kDefinition * kPage + at] = value; }

    Bytes bytes;

  private:
    /// Maps are 69 bytes each from the page's end, 5 of them before the bits.
    void TurnBit(std::size_t page, std::size_t slot, std::size_t bit)
    {
        std::uint8_t& byte = bytes[page * kPage + kPage - 69 * (slot + 1) + 5 + bit / 8];
        byte = static_cast<std::uint8_t>(byte ^ 1U << bit % 8);
    }
};

/// A column of all rows of a table; a null is "(null)".
inline std::vector<std::string> ColumnOf(const jet::Database& database, const std::string& table, std::size_t column)
{
    std::vector<std::string> texts;
    for (const auto& row : database.ReadRows(table).rows) texts.push_back(row.at(column).value_or("(null)"));
    return texts;
}

/// The number and description of what a call throws; 0 and nothing where it doesn't.
struct Failure {
    int number = 0;
    std::string description;

    friend bool operator==(const Failure&, const Failure&) = default;
};

template <typename Call>
Failure FailureOf(Call call)
{
    try {
        call();
    } catch (const RuntimeError& error) {
        return {error.Number(), error.Description()};
    }
    return {};
}

}  // namespace terravane::support
