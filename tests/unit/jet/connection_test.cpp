#include "jet/connection.h"

#include <gtest/gtest.h>

#include "support/jet_files.h"

namespace terravane {
namespace {

using namespace support;
using jet::Connection;
using jet::NewDatabase;

const char* const kPath = "projects/TRVN_road.mdb";

/// A project file with the sample's tables on a disk in memory.
struct Project {
    Project()
    {
        files.MakeFolders("projects");
        files.Put(kPath, before);
    }

    Bytes before = NewFile(SampleStatements());
    MemoryFileSystem files;
};

void Save(Connection& connection)
{
    for (const std::string& statement : SampleSave()) connection.Execute(statement);
    connection.Flush();
}

TEST(Connection, SavesAndReadsBackWhatWasSaved)
{
    Project project;
    Connection connection;
    connection.Open(project.files, kPath);
    EXPECT_EQ(connection.Path(), kPath);
    Save(connection);

    Connection reader;
    reader.Open(project.files, kPath);
    jet::Recordset head = reader.Execute("SELECT * from HEAD'");
    EXPECT_EQ(head.Fields("PROJECT_C1"), "A client");
    EXPECT_EQ(head.Fields("project_c3"), "   ");
    jet::Recordset rows = reader.Execute("SELECT * from STDSOIL'");
    EXPECT_EQ(rows.RowCount(), 6U);
    rows.MoveNext();
    EXPECT_EQ(rows.Fields("std_id"), " 2");
    EXPECT_EQ(rows.Fields("std_C19"), "1039");
}

TEST(Connection, TellsHowManyRowsAStatementChanged)
{
    Project project;
    Connection connection;
    connection.Open(project.files, kPath);
    EXPECT_EQ(connection.Execute("UPDATE STDSOIL Set std_c1 ='x'").RowsAffected(), 6);
    EXPECT_EQ(connection.Execute("UPDATE STDSOIL Set std_c1 ='x' Where std_ID ='7'").RowsAffected(), 0);
    EXPECT_EQ(connection.Execute("insert into STDSOIL (std_ID) Values (' 7')").RowsAffected(), 1);
    EXPECT_EQ(connection.Execute("SELECT std_ID from STDSOIL").RowCount(), 7U);
}

TEST(Connection, MissingFileAndOtherFilesAreTold)
{
    MemoryFileSystem files;
    files.Put("notes.mdb", "Dear diary");
    files.Put("empty.mdb", "");
    Connection connection;
    EXPECT_EQ(FailureOf([&] { connection.Open(files, "no.mdb"); }),
              (Failure{-2147467259, "Could not find file 'no.mdb'."}));
    EXPECT_EQ(FailureOf([&] { connection.Open(files, "notes.mdb"); }),
              (Failure{-2147467259, "Unrecognized database format 'notes.mdb'."}));
    EXPECT_EQ(FailureOf([&] { connection.Open(files, "empty.mdb"); }),
              (Failure{-2147467259, "Unrecognized database format 'empty.mdb'."}));
    EXPECT_FALSE(connection.IsOpen());
    EXPECT_EQ(FailureOf([&] { connection.Execute("SELECT * from HEAD"); }),
              (Failure{-2147467259, "No database is open."}));
}

TEST(Connection, OtherVersionsEncryptedAndCutFilesAreToldApart)
{
    Project project;
    const auto refusal = [&](const Bytes& bytes) {
        project.files.Put("odd.mdb", bytes);
        return FailureOf([&] { Connection().Open(project.files, "odd.mdb"); }).description;
    };
    Bytes newer = project.before;
    newer[0x14] = 2;
    EXPECT_EQ(refusal(newer), "The database is of another version than Access 2000 to 2003. The file is 'odd.mdb'.");
    Bytes encrypted = project.before;
    encrypted[0x3E] ^= 0x01;
    EXPECT_EQ(refusal(encrypted),
              "The database is encrypted; save it without encryption first. The file is 'odd.mdb'.");
    Bytes cut = project.before;
    cut.pop_back();
    EXPECT_EQ(refusal(cut),
              "The database is damaged: it is cut short, its last page is not whole. The file is 'odd.mdb'.");
}

TEST(Connection, FailedStatementLeavesThoseBeforeIt)
{
    Project project;
    Connection connection;
    connection.Open(project.files, kPath);
    connection.Execute("UPDATE HEAD Set project_c1 ='written'");
    EXPECT_EQ(FailureOf([&] { connection.Execute("UPDATE STDSOIL Set std_c1 ='O'Brien'"); }).number, -2147217900);
    connection.Flush();
    Connection reader;
    reader.Open(project.files, kPath);
    EXPECT_EQ(reader.Execute("SELECT * from HEAD'").Fields("project_c1"), "written");
    EXPECT_EQ(reader.Execute("SELECT * from STDSOIL'").Fields("std_c1"), "   ");
}

TEST(Connection, NothingIsWrittenWithoutAChange)
{
    Project project;
    Connection connection;
    connection.Open(project.files, kPath);
    connection.Execute("UPDATE STDSOIL Set std_c1 ='   '");
    EXPECT_FALSE(connection.HasChanges());
    connection.Flush();
    EXPECT_EQ(project.files.Steps(), 0);
}

TEST(Connection, DestructorWritesNothing)
{
    Project project;
    {
        Connection connection;
        connection.Open(project.files, kPath);
        connection.Execute("UPDATE STDSOIL Set std_c1 ='x'");
        EXPECT_TRUE(connection.HasChanges());
    }
    EXPECT_EQ(project.files.Content(kPath), project.before);
}

TEST(Connection, NextOpenWritesWhatTheEarlierOneLeft)
{
    Project project;
    Connection connection;
    connection.Open(project.files, kPath);
    connection.Execute("UPDATE HEAD Set project_c1 ='left'");
    connection.Open(project.files, kPath);
    EXPECT_EQ(connection.Execute("SELECT * from HEAD'").Fields("project_c1"), "left");
    EXPECT_NE(project.files.Content(kPath), project.before);
}

// A full disk, a failing sync, a failing rename: the old file stands, and nothing else lies about.
TEST(Connection, FailureOfAnyStepBeforeTheRenameLeavesTheOldFile)
{
    for (const int step : {1, 2, 3}) {
        Project project;
        Connection connection;
        connection.Open(project.files, kPath);
        project.files.FailAtStep(step, error::kDiskFull);
        EXPECT_EQ(FailureOf([&] { Save(connection); }).number, error::kDiskFull) << step;
        EXPECT_EQ(project.files.Content(kPath), project.before) << step;
        EXPECT_EQ(project.files.Paths(), std::vector<std::string>{kPath}) << step;
        EXPECT_TRUE(connection.HasChanges());
        connection.Flush();  // the disk has room again
        EXPECT_NE(project.files.Content(kPath), project.before) << step;
    }
}

TEST(Connection, FailedSyncOfTheFolderLeavesTheNewFileAndCanBeRepeated)
{
    Project project;
    Connection connection;
    connection.Open(project.files, kPath);
    project.files.FailAtStep(4, error::kDeviceError);
    EXPECT_EQ(FailureOf([&] { Save(connection); }).number, error::kDeviceError);
    const Bytes written = project.files.Content(kPath);
    EXPECT_NE(written, project.before);
    connection.Flush();
    EXPECT_FALSE(connection.HasChanges());
    EXPECT_EQ(project.files.Content(kPath), written);
}

// --- two instances on one file

std::string HeadOf(Project& project, const std::string& column)
{
    Connection reader;
    reader.Open(project.files, kPath);
    return reader.Execute("SELECT * from HEAD'").Fields(column);
}

// Both read the file before either saves; each changes its own column of the one row.
TEST(Connection, SaveOfAnotherInstanceSinceTheReadingIsKept)
{
    Project project;
    Connection ours, theirs;
    ours.Open(project.files, kPath);
    theirs.Open(project.files, kPath);
    theirs.Execute("UPDATE HEAD Set project_c1 ='theirs'");
    theirs.Flush();
    ours.Execute("UPDATE HEAD Set project_c2 ='ours'");
    ours.Execute("UPDATE STDSOIL Set std_c1 ='4' Where std_ID =' 3'");
    ours.Flush();
    EXPECT_EQ(HeadOf(project, "project_c1"), "theirs");
    EXPECT_EQ(HeadOf(project, "project_c2"), "ours");
    EXPECT_FALSE(ours.HasChanges());
    EXPECT_EQ(ours.Execute("SELECT * from HEAD'").Fields("project_c1"), "theirs") << "and seen from then on";
    ours.Execute("UPDATE HEAD Set project_c3 ='more'");
    ours.Flush();
    EXPECT_EQ(HeadOf(project, "project_c2"), "ours");
}

// The other instance's save ends in the last moment before ours begins.
TEST(Connection, SaveOfAnotherInstanceBehindTheCommandIsKept)
{
    Project project;
    Connection ours;
    ours.Open(project.files, kPath);
    ours.Execute("UPDATE HEAD Set project_c2 ='ours'");
    project.files.whenLocked = [&] {
        project.files.whenLocked = nullptr;
        Connection theirs;
        theirs.Open(project.files, kPath);
        theirs.Execute("UPDATE HEAD Set project_c1 ='theirs'");
        theirs.Flush();
    };
    ours.Flush();
    EXPECT_EQ(HeadOf(project, "project_c1"), "theirs");
    EXPECT_EQ(HeadOf(project, "project_c2"), "ours");
}

TEST(Connection, LaterSaveOfTheSameCellStands)
{
    Project project;
    Connection ours, theirs;
    ours.Open(project.files, kPath);
    theirs.Open(project.files, kPath);
    ours.Execute("UPDATE HEAD Set project_c1 ='first'");
    theirs.Execute("UPDATE HEAD Set project_c1 ='second'");
    ours.Flush();
    theirs.Flush();
    EXPECT_EQ(HeadOf(project, "project_c1"), "second");
}

TEST(Connection, FileIsLockedForTheSaveAndNoLonger)
{
    Project project;
    Connection connection;
    connection.Open(project.files, kPath);
    connection.Execute("UPDATE HEAD Set project_c1 ='x'");
    int held = 0;
    project.files.whenLocked = [&] { held = project.files.LocksHeld(); };
    EXPECT_EQ(project.files.LocksHeld(), 0);
    connection.Flush();
    EXPECT_EQ(held, 1);
    EXPECT_EQ(project.files.LocksHeld(), 0);
    project.files.FailAtStep(1, error::kDiskFull);
    connection.Execute("UPDATE HEAD Set project_c1 ='y'");
    EXPECT_EQ(FailureOf([&] { connection.Flush(); }).number, error::kDiskFull);
    EXPECT_EQ(project.files.LocksHeld(), 0) << "also when the save fails";
}

TEST(Connection, FileThatAnotherInstanceDoesNotLetGoOfIsNotWritten)
{
    Project project;
    Connection connection;
    connection.Open(project.files, kPath);
    project.files.LockElsewhere(kPath);
    EXPECT_EQ(FailureOf([&] { Save(connection); }).number, error::kPermissionDenied);
    EXPECT_EQ(project.files.Content(kPath), project.before);
    project.files.UnlockElsewhere(kPath);
    connection.Flush();
    EXPECT_EQ(HeadOf(project, "project_c1"), "A client");
}

TEST(Connection, FileThatTheStatementsDoNotFitAnyMoreIsNotWritten)
{
    Project project;
    Connection connection;
    connection.Open(project.files, kPath);
    const Bytes theirs = NewFile({"CREATE TABLE NOTES(note text(10))"});
    project.files.Put(kPath, theirs);
    EXPECT_EQ(FailureOf([&] { Save(connection); }),
              (Failure{-2147467259,
                       "The file 'projects/TRVN_road.mdb' was changed by another program since it was opened, and what "
                       "was to be saved does not fit it any more; nothing was saved. The database engine cannot find "
                       "the input table or query 'HEAD'."}));
    EXPECT_EQ(project.files.Content(kPath), theirs);
    EXPECT_EQ(project.files.Steps(), 0);
}

TEST(Connection, FileGoneOrOpenElsewhereIsNotWritten)
{
    Project project;
    Connection connection;
    connection.Open(project.files, kPath);
    project.files.TakeAway(kPath);
    EXPECT_EQ(FailureOf([&] { Save(connection); }).description,
              "Could not find file 'projects/TRVN_road.mdb'; nothing was saved.");
    project.files.Put(kPath, project.before);
    project.files.Put("projects/TRVN_road.LDB", "");
    project.files.OpenElsewhere("projects/TRVN_road.LDB");
    EXPECT_EQ(FailureOf([&] { Save(connection); }).description,
              "The file 'projects/TRVN_road.mdb' is open in another program ('projects/TRVN_road.LDB' says so); "
              "nothing was saved. Close it there; where no program has it open, remove 'projects/TRVN_road.LDB'.");
    EXPECT_EQ(project.files.Content(kPath), project.before);
}

// A program that crashed left its lock file behind.
TEST(Connection, LockFileThatNobodyHasOpenKeepsNobodyFromSaving)
{
    Project project;
    Connection connection;
    connection.Open(project.files, kPath);
    project.files.Put("projects/TRVN_road.ldb", "LAB-PC-3");
    Save(connection);
    EXPECT_EQ(HeadOf(project, "project_c1"), "A client");
    EXPECT_TRUE(project.files.Exists("projects/TRVN_road.ldb")) << "it is not ours";
}

// --- what an earlier save left

TEST(Connection, TemporaryFileOfAKilledSaveIsTakenAwayByTheNextOne)
{
    Project project;
    project.files.Put("projects/.TRVN_road.mdb.saving-4711-2", "half a file");
    project.files.Put("projects/.TRVN_road 2.mdb.saving-4711-3", "another file's");
    Connection connection;
    connection.Open(project.files, kPath);
    Save(connection);
    EXPECT_EQ(project.files.Paths(), (std::vector<std::string>{"projects/.TRVN_road 2.mdb.saving-4711-3", kPath}));
}

TEST(Connection, FileAboveTheLargestIsNotRead)
{
    Project project;
    project.files.Put("huge.mdb", Bytes((std::size_t{256} << 20) + 1));
    EXPECT_EQ(FailureOf([&] { Connection().Open(project.files, "huge.mdb"); }),
              (Failure{error::kPathFileAccess, "Could not read 'huge.mdb': it is larger than 256 MiB."}));
    EXPECT_EQ(project.files.Reads(), 0);
}

TEST(Connection, UnwritableLeftoverIsToldOnceAndDoesNotBlockTheNextOpen)
{
    Project project;
    Connection connection;
    connection.Open(project.files, kPath);
    connection.Execute("UPDATE HEAD Set project_c1 ='lost'");
    project.files.TakeAway(kPath);
    project.files.Put("other.mdb", project.before);
    EXPECT_EQ(FailureOf([&] { connection.Open(project.files, "other.mdb"); }).number, -2147467259);
    EXPECT_FALSE(connection.IsOpen());
    connection.Open(project.files, "other.mdb");
    EXPECT_EQ(connection.Path(), "other.mdb");
}

TEST(Connection, MovesWithWhatIsUnwritten)
{
    Project project;
    Connection first;
    first.Open(project.files, kPath);
    first.Execute("UPDATE HEAD Set project_c1 ='x'");
    Connection second = std::move(first);
    second.Flush();
    EXPECT_NE(project.files.Content(kPath), project.before);
}

TEST(NewDatabase, WritesNothingBeforeItsClose)
{
    MemoryFileSystem files;
    NewDatabase database(files, "logo.mdb");
    database.Execute("CREATE TABLE LOGO(logo_ID text(10),logo_ins text(100))");
    database.Execute("insert into LOGO (logo_ID,logo_ins) Values (' 16','   ')");
    EXPECT_FALSE(files.Exists("logo.mdb"));
    database.Close();
    database.Close();
    EXPECT_EQ(files.Steps(), 4);
    Connection connection;
    connection.Open(files, "logo.mdb");
    EXPECT_EQ(connection.Execute("SELECT * from LOGO'").Fields("logo_ID"), " 16");
}

TEST(NewDatabase, ExistingFileIsError3204AndStays)
{
    MemoryFileSystem files;
    files.Put("logo.mdb", "theirs");
    EXPECT_EQ(FailureOf([&] { NewDatabase(files, "logo.mdb"); }),
              (Failure{3204, "Database already exists: 'logo.mdb'."}));
    NewDatabase database(files, "late.mdb");
    files.Put("late.mdb", "theirs");
    EXPECT_EQ(FailureOf([&] { database.Close(); }).number, 3204);
    EXPECT_EQ(files.Content("late.mdb"), Bytes({'t', 'h', 'e', 'i', 'r', 's'}));
}

TEST(NewDatabase, MissingFolderIsError3044)
{
    MemoryFileSystem files;
    EXPECT_EQ(FailureOf([&] { NewDatabase(files, "nowhere/logo.mdb"); }),
              (Failure{3044, "'nowhere/logo.mdb' is not a valid path."}));
}

TEST(NewDatabase, FailedCloseLeavesNoFile)
{
    MemoryFileSystem files;
    NewDatabase database(files, "new.mdb");
    files.FailAtStep(1, error::kDiskFull);
    EXPECT_EQ(FailureOf([&] { database.Close(); }).number, error::kDiskFull);
    EXPECT_TRUE(files.Paths().empty());
    database.Close();
    EXPECT_TRUE(files.Exists("new.mdb"));
}

}  // namespace
}  // namespace terravane
