// Cut and changed files: a RuntimeError or rows, and nothing else. The sample is fixed, so that a failure comes back.
#include <gtest/gtest.h>

#include "jet/database.h"
#include "support/jet_files.h"
#include "support/same_tables.h"

namespace terravane {
namespace {

using namespace support;
using namespace jet;

struct Tally {
    int refused = 0;
    int read = 0;
};

/// Opens the bytes, reads every table, changes one, and opens the outcome again. What the engine refuses is counted;
/// any other exception ends the test.
void OpenAndSave(const Bytes& bytes, Tally& tally)
{
    try {
        Database database = Database::FromBytes(bytes);
        for (const std::string& table : database.TableNames()) (void)database.ReadRows(table);
        database.Update({"STDSOIL", {{"std_c2", std::string(50, 'x')}}, {}});
        ASSERT_TRUE(SameTables(database, Database::FromBytes(database.Content())));
        ++tally.read;
    } catch (const RuntimeError&) {
        ++tally.refused;
    }
}

TEST(Damage, CutFilesAreRefused)
{
    const Bytes whole = NewFile(SampleStatements());
    for (std::size_t length = 0; length < whole.size(); length += kPage) {
        for (const std::size_t more : {0U, 1U, 63U, 2048U, 4095U}) {
            Tally tally;
            OpenAndSave(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length + more)), tally);
            EXPECT_EQ(tally.refused, 1) << length + more << " bytes";
        }
    }
}

// Every 419th byte of the file takes four other values: some 2,500 files, most of them readable, since most bytes of
// a file are texts or nothing.
TEST(Damage, ChangedBytesGiveAnErrorOrRows)
{
    const Bytes whole = NewFile(SampleStatements());
    Tally tally;
    Bytes damaged = whole;
    for (std::size_t at = 0; at < whole.size(); at += 419) {
        for (const unsigned value : {0x00U, 0xFFU, whole[at] ^ 0x01U, whole[at] + 0x40U}) {
            damaged[at] = static_cast<std::uint8_t>(value);
            OpenAndSave(damaged, tally);
        }
        damaged[at] = whole[at];
    }
    EXPECT_GT(tally.refused, 50);
    EXPECT_GT(tally.read, 1000);
}

// The pages that all else hangs on, byte by byte: the catalog's definition and rows, a definition, its maps, its rows.
TEST(Damage, ChangedBytesOfTheSmallestFileGiveAnErrorOrRows)
{
    const Bytes whole = NewFile({"CREATE TABLE STDSOIL(std_ID text(10),std_c2 text(50))",
                                 "insert into STDSOIL (std_ID,std_c2) Values (' 1','   ')"});
    Tally tally;
    Bytes damaged = whole;
    for (const std::size_t page : {2U, 14U, 16U, 17U, 18U}) {
        for (std::size_t at = page * kPage; at < (page + 1) * kPage; at += whole[at] == 0 ? 7U : 1U) {
            for (const unsigned value : {0x00U, 0x01U, 0x7FU, 0x80U, 0xFFU}) {
                damaged[at] = static_cast<std::uint8_t>(value);
                OpenAndSave(damaged, tally);
            }
            damaged[at] = whole[at];
        }
    }
    EXPECT_GT(tally.refused, 100);
    EXPECT_GT(tally.read, 1000);
}

TEST(Damage, PagesInEachOthersPlaceGiveAnErrorOrRows)
{
    const Bytes whole = NewFile(SampleStatements());
    Tally tally;
    for (std::size_t page = 0; page < 30; ++page) {
        for (std::size_t other = 1; other < 30; ++other) {
            Bytes damaged = whole;
            const Bytes content = PageOf(whole, other);
            std::copy(content.begin(), content.end(), damaged.begin() + static_cast<std::ptrdiff_t>(page * kPage));
            OpenAndSave(damaged, tally);
        }
    }
    EXPECT_GT(tally.refused, 100);
}

}  // namespace
}  // namespace terravane
