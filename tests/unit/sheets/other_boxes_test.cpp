// Boxes that a sheet has from its description alone.
#include <algorithm>
#include <memory>

#include <gtest/gtest.h>

#include "support/laboratory.h"

namespace terravane {
namespace {

using namespace support;

constexpr std::string_view kTabs[]{"Data"};
constexpr laboratory::Box kBoxes[]{{"txtHeight", "Ht."}, {"txtNat", "Natural Water Content (%)"}};
constexpr laboratory::Sheet kSheet{.form = "frmTry", .caption = "Try", .tabs = kTabs, .boxes = kBoxes};

struct frmTry : TestSheet {
    explicit frmTry(Program& owner) : TestSheet(owner, kSheet) {}

    TextBox txtHeight{*this, kBoxes[0]};

    void cmdCal_Click() override {}
    double Natural() const { return Number(kBoxes[1]); }
};

TEST(OtherBoxes, AreThereWithTheirCaptionsAndRead)
{
    Laboratory lab;
    lab.program.AddForm("frmTry", [](Program& owner) { return std::make_unique<frmTry>(owner); });
    auto& sheet = dynamic_cast<frmTry&>(lab.program.Show("frmTry"));
    auto& box = sheet.Get<TextBox>("txtNat");
    EXPECT_EQ(box.Caption(), "Natural Water Content (%)");
    EXPECT_EQ(sheet.Natural(), 0) << "a blank";
    box.Type("31.4");
    EXPECT_EQ(sheet.Natural(), 31.4);
    EXPECT_EQ(std::ranges::count(sheet.Controls(), "txtHeight", [](const Control* of) { return of->Name(); }), 1)
        << "A box that a member declares is not made again.";
}

}  // namespace
}  // namespace terravane
