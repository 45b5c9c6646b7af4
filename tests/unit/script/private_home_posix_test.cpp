// The private folder of a run, where the environment says which place is for temporary files.
#include <stdlib.h>

#include "unit/script/script_bench.h"

namespace terravane::testing {
namespace {

TEST_F(ScriptBench, PrivateHomeIsFreshAndGoneAfterwards)
{
    options.home.clear();
    setenv("TMPDIR", Folder().c_str(), 1);
    EXPECT_EQ(Run("brandsql \"UPDATE LOGO Set logo_ins ='Institute'\"\n").Last(), R"({"rows_affected":1})");
    EXPECT_EQ(Run("brandsql \"SELECT * from LOGO'\"\n").Text().find("Institute"), std::string::npos);
    EXPECT_TRUE(std::filesystem::is_empty(Folder()));
    unsetenv("TMPDIR");
}

}  // namespace
}  // namespace terravane::testing
