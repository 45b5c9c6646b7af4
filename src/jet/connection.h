/// Database files: one opened and changed by statements, one made anew. Both reach the disk as a whole, or
/// not at all.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "jet/database.h"
#include "jet/page.h"
#include "jet/recordset.h"
#include "runtime/file_system.h"

namespace terravane::jet {

/// Length and hash of a file's bytes: whether it is still the one that was read.
struct Fingerprint {
    std::size_t length = 0;
    std::size_t hash = 0;

    static Fingerprint Of(ByteView bytes);
    friend bool operator==(const Fingerprint&, const Fingerprint&) = default;
};

/// A file that a flush has replaced: its path, what stood there just before, also where another instance wrote that,
/// and what stands there now. The bytes live as long as the call.
struct SavedFile {
    const std::string& path;
    ByteView before, after;
};

/// Told of every file that a connection replaces, while it is still locked. Must not throw.
class SaveListener {
  public:
    virtual ~SaveListener() = default;
    virtual void FileSaved(const SavedFile& saved) = 0;
};

/// One open database file. Statements are applied in memory and stay there until Flush; one that fails
/// changes nothing, those before it stay.
class Connection {
  public:
    /// Nothing open; the destructor writes nothing.
    Connection() = default;

    /// Flushes what an earlier open left unwritten, then reads and checks the file. Where the earlier file
    /// can't be written any more, that error is thrown and its changes are given up, so that the next Open
    /// goes through. Errors engine::kFile: "Could not find file 'path'.", "Unrecognized database format
    /// 'path'.", a damaged file; the file system's own numbers for what can't be read.
    /// listener  hears of the saves of this file; nullptr: nobody does
    void Open(FileSystem& files, const std::string& path, SaveListener* listener = nullptr);

    bool IsOpen() const { return database_.has_value(); }
    const std::string& Path() const { return path_; }

    /// Error engine::kFile without an open file, else those of ReadStatement and Database.
    Recordset Execute(std::string_view statement);

    bool HasChanges() const { return database_ && database_->HasChanges(); }

    /// Writes the file where anything was changed, with the file locked. Where another instance has saved since the
    /// file was read, the statements are executed once more, on what it saved: neither loses anything to the other.
    /// Error engine::kFile, and nothing written, where the file is gone, another program holds it open or the
    /// statements don't fit it any more; 70 where another instance doesn't let go of it. After an error the changes
    /// are still there and a second Flush tries again.
    void Flush();

  private:
    /// Of the file that was open: closed without what it can't save, so that the next one opens all the same.
    void FlushOrClose();
    void CheckNotOpenElsewhere() const;
    /// Where another instance has saved since the file was read: its file with our unsaved statements. Returns the file
    /// as it was found.
    Bytes ReadOthersChanges();
    Database ReplayUnsavedOn(Bytes found) const;

    FileSystem* files_ = nullptr;
    SaveListener* listener_ = nullptr;
    std::string path_;
    std::optional<Database> database_;
    Fingerprint onDisk_;
    std::vector<std::string> unsaved_;  // the statements since the last Flush that were no queries
};

/// A new file, made by CREATE TABLE and insert statements in memory and written by Close.
class NewDatabase {
  public:
    /// Error 3204 where the file exists, 3044 where its folder doesn't. created: days since 1899-12-30.
    NewDatabase(FileSystem& files, std::string path, double created = LocalNow());

    void Execute(std::string_view statement);

    /// Writes the file; error 3204 where one has come there in the meantime. A second call does nothing.
    void Close();

  private:
    void CheckFree() const;

    FileSystem& files_;
    std::string path_;
    Database database_;
    bool closed_ = false;
};

}  // namespace terravane::jet
