#include "runtime/paths.h"

#include <gtest/gtest.h>

namespace terravane {
namespace {

TEST(Paths, AreCutBehindTheLastMark)
{
    EXPECT_EQ(FolderOf("/a/b/c.mdb"), "/a/b/");
    EXPECT_EQ(NameOf("/a/b/c.mdb"), "c.mdb");
    EXPECT_EQ(FolderOf("c.mdb"), "");
    EXPECT_EQ(NameOf("c.mdb"), "c.mdb");
    EXPECT_EQ(FolderOf("/a/"), "/a/");
    EXPECT_EQ(NameOf("/a/"), "");
}

TEST(Paths, AMarkIsPutBehindAFolderOnce)
{
    EXPECT_EQ(WithMark("/a"), "/a/");
    EXPECT_EQ(WithMark("/a/"), "/a/");
    EXPECT_EQ(WithoutMark("/a/"), "/a");
    EXPECT_EQ(WithoutMark("/"), "/") << "the root is its mark";
}

TEST(Paths, ThaiLettersOutliveTheWayToTheSystemAndBack)
{
    EXPECT_EQ(NameOf(FullPath("x/../งานทาง.mdb")), "งานทาง.mdb");
    EXPECT_EQ(WithoutExtension("สาย/ทาง.MDB"), "สาย/ทาง");
    EXPECT_EQ(ExtensionOf("สาย/ทาง.MDB"), ".MDB");
}

TEST(Paths, AFileMovesWithItsSubfolders)
{
    EXPECT_EQ(Moved("/jobs/a/road.mdb", "/jobs", "/out"),
              FolderMarkOf("") == '/' ? "/out/a/road.mdb" : "\\out\\a\\road.mdb");
}

}  // namespace
}  // namespace terravane
