#include "jet/connection.h"

#include <functional>
#include <string>
#include <utility>
#include <variant>

#include "jet/header_page.h"
#include "runtime/text.h"

namespace terravane::jet {

namespace {

constexpr std::string_view kExtension = ".mdb";
constexpr std::uint64_t kLargestFile = 256 << 20;  // bytes; it is read whole, and a project's is a thousandth of this

std::string Quoted(const std::string& path)
{
    return "'" + Printable(path) + "'";
}

/// What a statement does to a database.
struct Executor {
    Database& database;

    Recordset operator()(const SelectStatement& select) const { return Recordset(database.Select(select)); }
    Recordset operator()(const UpdateStatement& update) const { return Recordset::Affected(database.Update(update)); }
    Recordset operator()(const InsertStatement& insert) const { return Recordset::Affected(database.Insert(insert)); }
    Recordset operator()(const CreateTableStatement& create) const
    {
        database.Create(create);
        return {};
    }
};

Recordset ExecuteOn(Database& database, std::string_view statement)
{
    return std::visit(Executor{database}, ReadStatement(statement));
}

Database OpenBytes(Bytes bytes, const std::string& path)
try {
    if (!HasSignature(bytes)) throw RuntimeError(engine::kFile, "Unrecognized database format " + Quoted(path) + ".");
    return Database(std::move(bytes));
} catch (const RuntimeError& error) {
    if (error.Description().find(Quoted(path)) != std::string::npos) throw;
    throw RuntimeError(error.Number(), error.Description() + " The file is " + Quoted(path) + ".");
}

/// The lock file that other programs keep beside a database while they have it open.
std::string LockFileOf(const std::string& path)
{
    const bool hasExtension = path.size() > kExtension.size() && path[path.size() - kExtension.size()] == '.';
    return (hasExtension ? path.substr(0, path.size() - kExtension.size()) : path) + ".ldb";
}

}  // namespace

Fingerprint Fingerprint::Of(ByteView bytes)
{
    const std::string_view characters(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return {bytes.size(), std::hash<std::string_view>{}(characters)};
}

void Connection::Open(FileSystem& files, const std::string& path, SaveListener* listener)
{
    FlushOrClose();
    if (!files.Exists(path)) throw RuntimeError(engine::kFile, "Could not find file " + Quoted(path) + ".");
    Bytes bytes = files.ReadAtMost(path, kLargestFile);
    database_.emplace(OpenBytes(std::move(bytes), path));
    files_ = &files;
    listener_ = listener;
    path_ = path;
    unsaved_.clear();
}

void Connection::FlushOrClose()
try {
    Flush();
} catch (...) {
    database_.reset();
    throw;
}

/// Most openings change nothing: the file's fingerprint is taken before the first change.
Recordset Connection::Execute(std::string_view statement)
{
    if (!database_) throw RuntimeError(engine::kFile, "No database is open.");
    const Statement read = ReadStatement(statement);
    const bool isQuery = std::holds_alternative<SelectStatement>(read);
    if (!isQuery && !HasChanges()) onDisk_ = Fingerprint::Of(database_->Content());
    Recordset result = std::visit(Executor{*database_}, read);
    if (!isQuery) unsaved_.emplace_back(statement);
    return result;
}

/// A program that crashed leaves its lock file behind: only one that a running program has open counts.
void Connection::CheckNotOpenElsewhere() const
{
    const std::string lockFile = FindWithoutCase(*files_, FolderOf(path_), NameOf(LockFileOf(path_)));
    if (!files_->Exists(lockFile) || !files_->IsOpenElsewhere(lockFile)) return;
    throw Refused("The file " + Quoted(path_) + " is open in another program (" + Quoted(lockFile) +
                  " says so); nothing was saved. Close it there; where no program has it open, remove " +
                  Quoted(lockFile) + ".");
}

Database Connection::ReplayUnsavedOn(Bytes found) const
try {
    Database database = OpenBytes(std::move(found), path_);
    for (const std::string& statement : unsaved_) ExecuteOn(database, statement);
    return database;
} catch (const RuntimeError& error) {
    throw Refused("The file " + Quoted(path_) +
                  " was changed by another program since it was opened, and what was to be saved does not fit it any "
                  "more; nothing was saved. " +
                  error.Description());
}

Bytes Connection::ReadOthersChanges()
{
    Bytes bytes = files_->ReadAtMost(path_, kLargestFile);
    const Fingerprint found = Fingerprint::Of(bytes);
    // Our own bytes are there already when the folder could not be synced behind the last writing.
    if (found == onDisk_ || found == Fingerprint::Of(database_->Content())) return bytes;
    database_ = ReplayUnsavedOn(bytes);
    onDisk_ = found;
    return bytes;
}

void Connection::Flush()
{
    if (!HasChanges()) return;
    if (!files_->Exists(path_)) throw Refused("Could not find file " + Quoted(path_) + "; nothing was saved.");
    const auto lock = files_->Lock(path_);
    CheckNotOpenElsewhere();
    const Bytes found = ReadOthersChanges();
    const bool isReplaced = HasChanges();
    if (isReplaced) files_->ReplaceWhole(path_, database_->Content());
    database_->MarkSaved();
    unsaved_.clear();
    if (isReplaced && listener_) listener_->FileSaved({path_, found, database_->Content()});
}

NewDatabase::NewDatabase(FileSystem& files, std::string path, double created)
    : files_(files), path_(std::move(path)), database_(Database::New(created))
{
    CheckFree();
    const std::string folder = FolderOf(path_);
    if (!folder.empty() && !files_.IsFolder(folder)) {
        throw RuntimeError(engine::kPathNotValid, Quoted(path_) + " is not a valid path.");
    }
}

void NewDatabase::CheckFree() const
{
    if (files_.Exists(path_)) {
        throw RuntimeError(engine::kDatabaseExists, "Database already exists: " + Quoted(path_) + ".");
    }
}

void NewDatabase::Execute(std::string_view statement)
{
    ExecuteOn(database_, statement);
}

void NewDatabase::Close()
{
    if (closed_) return;
    CheckFree();
    try {
        files_.CreateWhole(path_, database_.Content());
    } catch (const RuntimeError& error) {
        if (error.Number() == error::kPathFileAccess) CheckFree();  // another one came first
        throw;
    }
    closed_ = true;
}

}  // namespace terravane::jet
