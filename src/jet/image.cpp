#include "jet/image.h"

#include <algorithm>
#include <string>
#include <utility>

namespace terravane::jet {

namespace {

constexpr std::size_t kMaxSize = std::size_t{1} << 31;

}  // namespace

Image::Image(Bytes bytes) : bytes_(std::move(bytes))
{
    if (bytes_.size() % kPageSize != 0) throw Damaged("it is cut short, its last page is not whole");
    if (bytes_.empty()) throw Damaged("it is empty");
    if (bytes_.size() > kMaxSize) throw Refused("The database is larger than 2 GiB.");
}

ByteView Image::Page(PageNumber number) const
{
    if (number >= PageCount()) throw Damaged("page " + std::to_string(number) + " lies behind its end");
    return ByteView(bytes_).subspan(number * kPageSize, kPageSize);
}

ByteView Image::Page(PageNumber number, PageKind kind) const
{
    const ByteView page = Page(number);
    if (number == 0 || page[0] != static_cast<std::uint8_t>(kind)) {
        throw Damaged("page " + std::to_string(number) + " is not of the kind expected there");
    }
    return page;
}

MutableBytes Image::Change(PageNumber number)
{
    const ByteView page = Page(number);
    if (recording_ && number * kPageSize < sizeBefore_) before_.try_emplace(number, page.begin(), page.end());
    return MutableBytes(bytes_).subspan(number * kPageSize, kPageSize);
}

PageNumber Image::Append(PageKind kind)
{
    if (bytes_.size() + kPageSize > kMaxSize) throw Refused("The database would grow over 2 GiB.");
    const PageNumber number = PageCount();
    bytes_.resize(bytes_.size() + kPageSize);
    Put<std::uint8_t>(Change(number), 0, static_cast<std::uint8_t>(kind));
    Put<std::uint8_t>(Change(number), 1, 1);
    return number;
}

void Image::Rollback()
{
    bytes_.resize(sizeBefore_);
    for (const auto& [number, page] : before_) {
        std::ranges::copy(page, bytes_.begin() + static_cast<std::ptrdiff_t>(number * kPageSize));
    }
}

bool Image::DiffersFromBefore() const
{
    return bytes_.size() != sizeBefore_ || !std::ranges::all_of(before_, [this](const auto& entry) {
               return std::ranges::equal(entry.second, Page(entry.first));
           });
}

Transaction::Transaction(Image& image) : image_(image)
{
    image_.before_.clear();
    image_.sizeBefore_ = image_.bytes_.size();
    image_.recording_ = true;
}

Transaction::~Transaction()
{
    if (image_.recording_) image_.Rollback();
    image_.recording_ = false;
    image_.before_.clear();
}

void Transaction::Commit()
{
    image_.changed_ = image_.changed_ || image_.DiffersFromBefore();
    image_.recording_ = false;
}

}  // namespace terravane::jet
