/// All pages of a database in memory. What they mean is the other files' business.
#pragma once

#include <cstddef>
#include <map>

#include "jet/page.h"
#include "runtime/file_system.h"

namespace terravane::jet {

class Image {
  public:
    /// Error engine::kFile where the length is no multiple of the page, nothing, or above 2 GiB.
    explicit Image(Bytes bytes);

    PageNumber PageCount() const { return static_cast<PageNumber>(bytes_.size() / kPageSize); }
    const Bytes& All() const { return bytes_; }

    /// Error engine::kFile for a page outside the file or, with a kind, of another kind.
    ByteView Page(PageNumber number) const;
    ByteView Page(PageNumber number, PageKind kind) const;

    /// The page, to be written to. Holds until the next Append.
    MutableBytes Change(PageNumber number);

    /// One more page at the end, zero but for its two first bytes.
    PageNumber Append(PageKind kind);

    /// Whether a committed change made the bytes other than they were at the last MarkSaved.
    bool Changed() const { return changed_; }
    void MarkSaved() { changed_ = false; }

  private:
    friend class Transaction;

    void Rollback();
    bool DiffersFromBefore() const;

    Bytes bytes_;
    bool changed_ = false;
    bool recording_ = false;
    std::map<PageNumber, Bytes> before_;  // pages as they stood when the transaction began
    std::size_t sizeBefore_ = 0;
};

/// A statement's changes: all of them or, when it is left without Commit, none. They do not nest.
class Transaction {
  public:
    explicit Transaction(Image& image);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void Commit();

  private:
    Image& image_;
};

}  // namespace terravane::jet
