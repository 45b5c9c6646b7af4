#include "jet/table_rows.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "jet/data_page.h"
#include "jet/usage_map.h"

namespace terravane::jet {

namespace {

using Pages = std::map<PageNumber, std::vector<SlotContent>>;  // taken apart, to be laid out again

// --- finding

bool IsPageOf(const Image& image, const TableDefinition& table, PageNumber number)
{
    const ByteView page = image.Page(number);
    return page[0] == static_cast<std::uint8_t>(PageKind::Data) && OwnerOf(page) == table.page;
}

std::vector<PageNumber> DataPages(const Image& image, const TableDefinition& table)
{
    std::vector<PageNumber> pages = PagesOf(image, table.owned);
    std::erase_if(pages, [&](PageNumber page) { return !IsPageOf(image, table, page); });
    return pages;
}

/// Where a moved row is. One step only: a pointer that led to another pointer would make two rows of one.
RowPointer Target(const Image& image, const TableDefinition& table, RowPointer home)
{
    const ByteView page = image.Page(home.page);
    const RowPointer at = RowPointer::Unpack(Get<std::uint32_t>(SlotBytes(page, ReadSlot(page, home.slot)), 0));
    if (at.page == 0 || !IsPageOf(image, table, at.page)) throw Damaged("a moved row lies outside its table");
    if (ReadSlot(image.Page(at.page), at.slot).flags != slot::kTarget) throw Damaged("a moved row can't be found");
    return at;
}

class Finder {
  public:
    Finder(const Image& image, const TableDefinition& table) : image_(image), table_(table)
    {
        found_.pages = DataPages(image, table);
    }

    StoredRows Find()
    {
        for (const PageNumber page : found_.pages) FindOn(page);
        return std::move(found_);
    }

  private:
    void FindOn(PageNumber number)
    {
        const std::vector<Slot> slots = ReadSlots(image_.Page(number));
        for (std::size_t i = 0; i < slots.size(); ++i) Take({number, U8(i)}, slots[i]);
    }

    void Take(RowPointer home, const Slot& slot)
    {
        const bool moved = slot.flags == slot::kMoved;
        found_.outOfPlace = found_.outOfPlace || moved || slot.flags == slot::kTarget;
        if (slot.flags == slot::kPlain) Add(home, home);
        if (moved) AddMoved(home);
    }

    void AddMoved(RowPointer home)
    {
        const RowPointer at = Target(image_, table_, home);
        if (!targets_.insert(at).second) throw Damaged("two moved rows lead to one place");
        Add(home, at);
    }

    void Add(RowPointer home, RowPointer at)
    {
        const ByteView page = image_.Page(at.page);
        found_.rows.push_back({home, at, SlotBytes(page, ReadSlot(page, at.slot))});
    }

    const Image& image_;
    const TableDefinition& table_;
    StoredRows found_;
    std::set<RowPointer> targets_;
};

// --- pages

PageNumber AppendDataPage(Image& image, const TableDefinition& table)
{
    const PageNumber page = TakeNewPage(image, PageKind::Data);
    FormatDataPage(image.Change(page), table.page);
    AddToMap(image, table.owned, page);
    AddToMap(image, table.room, page);
    return page;
}

void WritePages(Image& image, const Pages& pages)
{
    for (const auto& [number, slots] : pages) LayOut(image.Change(number), slots);
}

std::vector<SlotContent>& Opened(Pages& pages, const Image& image, PageNumber number)
{
    const auto at = pages.find(number);
    return at != pages.end() ? at->second : pages.emplace(number, SlotContentsOf(image.Page(number))).first->second;
}

// --- changing without an index

/// The pages with their rows replaced where they are; nothing when one of them runs over.
bool ReplaceInPlace(Image& image, const StoredRows& stored, const std::vector<RowChange>& changes)
{
    Pages pages;
    for (const RowChange& change : changes) {
        const RowPointer at = stored.rows[change.row].at;
        Opened(pages, image, at.page)[at.slot].bytes = change.bytes;
    }
    if (!std::ranges::all_of(pages, [](const auto& page) { return FitsOnePage(page.second); })) return false;
    WritePages(image, pages);
    return true;
}

std::vector<Bytes> AllRows(const StoredRows& stored, const std::vector<RowChange>& changes)
{
    std::vector<Bytes> rows;
    rows.reserve(stored.rows.size());
    for (const StoredRow& row : stored.rows) rows.emplace_back(row.bytes.begin(), row.bytes.end());
    for (const RowChange& change : changes) rows[change.row] = change.bytes;
    return rows;
}

/// The rows dealt out to pages, each as full as it goes.
std::vector<std::vector<SlotContent>> DistributedToPages(std::vector<Bytes> rows)
{
    std::vector<std::vector<SlotContent>> pages;
    for (Bytes& row : rows) {
        if (pages.empty()) pages.emplace_back();
        pages.back().push_back({slot::kPlain, std::move(row)});
        if (FitsOnePage(pages.back())) continue;
        SlotContent last = std::move(pages.back().back());
        pages.back().pop_back();
        pages.emplace_back().push_back(std::move(last));
    }
    return pages;
}

/// All rows over the table's pages from the first one on. A page left over keeps one deleted slot: other
/// readers take an owned page without any slot for an empty row.
void RepackRows(Image& image, const TableDefinition& table, const std::vector<PageNumber>& owned,
                std::vector<Bytes> rows)
{
    const auto pages = DistributedToPages(std::move(rows));
    for (std::size_t i = 0; i < std::max(pages.size(), owned.size()); ++i) {
        const PageNumber number = i < owned.size() ? owned[i] : AppendDataPage(image, table);
        LayOut(image.Change(number), i < pages.size() ? pages[i] : std::vector<SlotContent>{{slot::kDeleted, {}}});
    }
}

// --- changing with an index: addresses stay

/// A slot is replaced where its page has the room.
bool TryReplace(Image& image, RowPointer at, SlotContent content)
{
    std::vector<SlotContent> slots = SlotContentsOf(image.Page(at.page));
    slots.at(at.slot) = std::move(content);
    if (!FitsOnePage(slots)) return false;
    LayOut(image.Change(at.page), slots);
    return true;
}

/// A slot behind all others of a page, where there is room.
bool TryAdd(Image& image, PageNumber page, const SlotContent& content, RowPointer& at)
{
    std::vector<SlotContent> slots = SlotContentsOf(image.Page(page));
    at = {page, U8(slots.size())};
    slots.push_back(content);
    if (!FitsOnePage(slots)) return false;
    LayOut(image.Change(page), slots);
    return true;
}

RowPointer PutAnywhere(Image& image, const TableDefinition& table, const SlotContent& content)
{
    RowPointer at;
    for (const PageNumber page : DataPages(image, table)) {
        if (TryAdd(image, page, content, at)) return at;
    }
    if (!TryAdd(image, AppendDataPage(image, table), content, at)) throw Refused("A record is too large for a page.");
    return at;
}

void MoveRow(Image& image, const TableDefinition& table, const StoredRow& row, const Bytes& bytes)
{
    if (row.at != row.home) TryReplace(image, row.at, {slot::kDeleted, {}});
    const RowPointer target = PutAnywhere(image, table, {slot::kTarget, bytes});
    Bytes pointer;
    Append<std::uint32_t>(pointer, target.Packed());
    if (!TryReplace(image, row.home, {slot::kMoved, std::move(pointer)})) {
        throw Refused("A record of an indexed table has no room to grow.");
    }
}

void ReplaceKeepingAddress(Image& image, const TableDefinition& table, const StoredRow& row, const Bytes& bytes)
{
    if (TryReplace(image, row.home, {slot::kPlain, bytes})) {
        if (row.at != row.home) TryReplace(image, row.at, {slot::kDeleted, {}});
    } else if (row.at == row.home || !TryReplace(image, row.at, {slot::kTarget, bytes})) {
        MoveRow(image, table, row, bytes);
    }
}

}  // namespace

StoredRows FindRows(const Image& image, const TableDefinition& table)
{
    return Finder(image, table).Find();
}

void ChangeRows(Image& image, const TableDefinition& table, const StoredRows& stored,
                const std::vector<RowChange>& changes)
{
    if (!table.indexes.empty()) {
        for (const auto& [row, bytes] : changes) ReplaceKeepingAddress(image, table, stored.rows[row], bytes);
    } else if (stored.outOfPlace || !ReplaceInPlace(image, stored, changes)) {
        RepackRows(image, table, stored.pages, AllRows(stored, changes));
    }
}

RowPointer AddRow(Image& image, const TableDefinition& table, const Bytes& row)
{
    const std::vector<PageNumber> pages = DataPages(image, table);
    RowPointer at;
    if (pages.empty() || !TryAdd(image, pages.back(), {slot::kPlain, row}, at)) {
        TryAdd(image, AppendDataPage(image, table), {slot::kPlain, row}, at);
    }
    CountOneMoreRow(image, table.page);
    return at;
}

}  // namespace terravane::jet
