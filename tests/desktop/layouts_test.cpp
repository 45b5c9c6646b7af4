// Layouts that are worked out: where a box stands that a sheet's layout names nowhere.
#include "desktop/layouts.h"

#include <gtest/gtest.h>

namespace terravane {
namespace {

using namespace layout;

constexpr laboratory::Box kBoxes[]{{"txtHeight", "Ht."}, {"txtNat", "Natural Water Content"}, {"txtCan", "Can"}};
constexpr laboratory::Sheet kSheet{.form = "frmTry", .caption = "Try", .boxes = kBoxes};

TEST(Layouts, ABoxThatNoLayoutNamesStandsBesideCalculate)
{
    const Place placed = WithOtherBoxes(
        Column({Banner("txtLabName"), Tabs("SSTData", {Column({Field("txtHeight"), Row({Space(), One("cmdCal")})})})}),
        kSheet);
    const Place& row = placed.parts[1].parts[0].parts[1];
    ASSERT_EQ(row.parts.size(), 4U);
    EXPECT_EQ(row.parts[0].control, "txtNat");
    EXPECT_EQ(row.parts[0].kind, Place::Kind::Field) << "with its caption";
    EXPECT_EQ(row.parts[1].control, "txtCan");
    EXPECT_EQ(row.parts[2].kind, Place::Kind::Space);
    EXPECT_EQ(row.parts[3].control, "cmdCal");
}

}  // namespace
}  // namespace terravane
