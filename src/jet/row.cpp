/*  A row:

    u16  number of columns the row knows, n
         fixed columns at their offsets, counted from here
         values of the variable columns
    u16  end of the values                                  }
    u16  start of variable column k-1 ... column 0          } missing where the table has no variable column;
    u16  number of variable columns, k                      } starts count from the row's first byte
         null mask, (n+7)/8 bytes: bit c is 1 where column c is not null

    There may be slack between values and offsets: it is read from the end backwards. */
#include "jet/row.h"

#include <algorithm>

#include "jet/data_page.h"

namespace terravane::jet {

namespace {

constexpr std::size_t kCount = 2;  // bytes of the column count in front
constexpr std::uint8_t kFalse[]{0};
constexpr std::uint8_t kTrue[]{1};

std::size_t MaskSize(std::size_t columns)
{
    return (columns + 7) / 8;
}

/// The variable part; what remains before it is the fixed part. `end` is where the mask begins.
void ReadVariable(RowView& row, ByteView bytes, std::size_t end)
{
    if (end < kCount + 2) throw Damaged("a row is too short");
    const std::size_t count = Get<std::uint16_t>(bytes, end - 2);
    const std::size_t table = 2 * (count + 1);  // the starts and the end of the values
    if (table > end - 2 - kCount) throw Damaged("a row has more columns than room");
    const std::size_t tableAt = end - 2 - table;
    const auto start = [&](std::size_t i) -> std::size_t {
        return Get<std::uint16_t>(bytes, tableAt + 2 * (count - i));
    };
    const auto checkedStart = [&](std::size_t i) {
        if (start(i) < kCount || start(i) > tableAt) throw Damaged("a row's values lie outside it");
        return start(i);
    };
    row.fixed = bytes.subspan(kCount, checkedStart(0) - kCount);
    row.variable.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t begin = checkedStart(i), next = checkedStart(i + 1);
        if (next < begin) throw Damaged("a row's values overlap");
        row.variable.push_back(bytes.subspan(begin, next - begin));
    }
}

std::size_t FixedSize(const TableDefinition& table)
{
    std::size_t size = 0;
    for (const Column& column : table.columns) {
        if (column.IsFixed() && column.type != ColumnType::Boolean) {
            size = std::max<std::size_t>(size, column.fixedOffset + column.size);
        }
    }
    return size;
}

void AppendOffsets(Bytes& row, const std::vector<std::size_t>& starts)
{
    Append<std::uint16_t>(row, U16(row.size()));
    for (std::size_t i = starts.size(); i-- > 0;) Append<std::uint16_t>(row, U16(starts[i]));
    Append<std::uint16_t>(row, U16(starts.size()));
}

}  // namespace

bool RowView::Has(std::uint16_t number) const
{
    return number < columns && TestBit(mask, number);
}

std::optional<ByteView> RowView::BytesOf(const Column& column) const
{
    if (column.type == ColumnType::Boolean) return Has(column.number) ? ByteView(kTrue) : ByteView(kFalse);
    if (!Has(column.number)) return std::nullopt;
    if (column.IsFixed()) return Part(fixed, column.fixedOffset, column.size);
    if (column.variableIndex >= variable.size()) return std::nullopt;
    return variable[column.variableIndex];
}

RowView ReadRow(const TableDefinition& table, ByteView bytes)
{
    RowView row;
    row.columns = Get<std::uint16_t>(bytes, 0);
    if (row.columns == 0 || row.columns > table.columnNumbers) {
        throw Damaged("a row has another number of columns than its table");
    }
    const std::size_t maskSize = MaskSize(row.columns);
    if (bytes.size() < kCount + maskSize) throw Damaged("a row is too short");
    const std::size_t end = bytes.size() - maskSize;
    row.mask = bytes.subspan(end);
    if (table.variableColumns == 0) {
        row.fixed = bytes.subspan(kCount, end - kCount);
    } else {
        ReadVariable(row, bytes, end);
    }
    return row;
}

RowParts::RowParts(const TableDefinition& table)
    : columns_(table.columnNumbers),
      hasVariable_(table.variableColumns != 0),
      fixed_(FixedSize(table)),
      variable_(table.variableColumns),
      mask_(MaskSize(table.columnNumbers))
{}

RowParts::RowParts(const TableDefinition& table, const RowView& row) : RowParts(table)
{
    fixed_.resize(std::max(fixed_.size(), row.fixed.size()));
    variable_.resize(std::max(variable_.size(), row.variable.size()));
    std::ranges::copy(row.fixed, fixed_.begin());
    for (std::size_t i = 0; i < row.variable.size(); ++i)
        variable_[i].assign(row.variable[i].begin(), row.variable[i].end());
    for (std::size_t c = 0; c < row.columns; ++c) WriteBit(mask_, c, TestBit(row.mask, c));
}

void RowParts::Set(const Column& column, ByteView value)
{
    WriteBit(mask_, column.number, true);
    if (column.type == ColumnType::Boolean) return;
    if (column.IsFixed()) {
        std::ranges::copy(Part(value, 0, column.size), fixed_.begin() + column.fixedOffset);
    } else {
        variable_.at(column.variableIndex).assign(value.begin(), value.end());
    }
}

Bytes RowParts::Build() const
{
    Bytes row;
    Append<std::uint16_t>(row, columns_);
    Append(row, fixed_);
    std::vector<std::size_t> starts;
    for (const Bytes& value : variable_) {
        starts.push_back(row.size());
        Append(row, value);
    }
    if (hasVariable_) AppendOffsets(row, starts);
    Append(row, mask_);
    if (row.size() > kMaxRow)
        throw Refused("The record is too large: " + std::to_string(row.size()) + " bytes; a row takes 4060.");
    return row;
}

}  // namespace terravane::jet
