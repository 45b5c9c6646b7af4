#include "program/printer.h"

#include <gtest/gtest.h>

#include "unit/runtime/raises.h"

namespace terravane {
namespace {

struct Job {
    std::vector<DisplayList> pages;
    std::string title;
    int count = 0;

    PrintTarget Target()
    {
        return [this](std::span<const DisplayList> sent, const std::string& name) {
            pages.assign(sent.begin(), sent.end());
            title = name;
            ++count;
        };
    }
};

std::string TextOn(const DisplayList& page)
{
    std::string text;
    for (const auto& item : page.items) {
        if (const auto* printed = std::get_if<TextItem>(&item)) text += printed->text + ";";
    }
    return text;
}

TEST(Printer, BeginsAsPortraitA4)
{
    const Printer printer;
    EXPECT_EQ(printer.PaperSize(), kPaperA4);
    EXPECT_EQ(printer.PageOrientation(), Orientation::Portrait);
    EXPECT_EQ(printer.Width, 11906);  // 210 mm at 1440 twips to 25.4 mm
    EXPECT_EQ(printer.Height, 16838);
    EXPECT_EQ(printer.ScaleWidth, 11906);
}

TEST(Printer, TurnsThePaper)
{
    Printer printer;
    printer.SetOrientation(Orientation::Landscape);
    EXPECT_EQ(printer.Width, 16838);
    EXPECT_EQ(printer.Height, 11906);
    printer.SetOrientation(Orientation::Portrait);
    EXPECT_EQ(printer.Width, 11906);
}

TEST(Printer, KnowsNoOtherPaper)
{
    Printer printer;
    printer.SetPaperSize(kPaperA4);
    EXPECT_EQ(ErrorOf([&] { printer.SetPaperSize(8); }), 380);
    EXPECT_EQ(printer.PaperSize(), kPaperA4);
}

TEST(Printer, SendsItsPagesTogetherAtTheEndOfTheJob)
{
    Printer printer;
    Job job;
    printer.SetTarget(job.Target(), "Compaction");
    printer.Print("first");
    printer.NewPage();
    EXPECT_EQ(printer.CurrentY, 0) << "A new page begins at its top.";
    printer.Print("second");
    EXPECT_EQ(job.count, 0);
    EXPECT_EQ(printer.Pages().size(), 2U);
    printer.EndDoc();
    ASSERT_EQ(job.pages.size(), 2U);
    EXPECT_EQ(TextOn(job.pages[0]), "first;");
    EXPECT_EQ(TextOn(job.pages[1]), "second;");
    EXPECT_EQ(job.title, "Compaction");
}

TEST(Printer, BeginsANewJobAfterTheEnd)
{
    Printer printer;
    Job job;
    printer.SetTarget(job.Target(), "first");
    printer.Print("x");
    printer.EndDoc();
    EXPECT_EQ(printer.Pages().size(), 1U);
    EXPECT_TRUE(printer.Pages()[0].items.empty());
    printer.EndDoc();
    EXPECT_EQ(job.count, 1) << "A target serves one job.";
}

TEST(Printer, KeepsEachPagesOwnDirection)
{
    Printer printer;
    Job job;
    printer.SetTarget(job.Target(), "");
    printer.NewPage();
    printer.SetOrientation(Orientation::Landscape);
    printer.EndDoc();
    ASSERT_EQ(job.pages.size(), 2U);
    EXPECT_EQ(job.pages[0].width, 11906);
    EXPECT_EQ(job.pages[1].width, 16838);
}

TEST(Printer, KeepsFontsAndDirectionFromJobToJob)
{
    Printer printer;
    printer.FontName = "DilleniaUPC";
    printer.SetOrientation(Orientation::Landscape);
    printer.EndDoc();
    EXPECT_EQ(printer.FontName, "DilleniaUPC");
    EXPECT_EQ(printer.PageOrientation(), Orientation::Landscape);
}

TEST(Printer, DropsAJobThatFailedHalfway)
{
    Printer printer;
    Job job;
    printer.SetTarget(job.Target(), "");
    printer.Print("x");
    printer.NewPage();
    printer.Print("y");
    printer.KillDoc();
    EXPECT_EQ(printer.Pages().size(), 1U);
    EXPECT_TRUE(printer.Pages()[0].items.empty());
    printer.EndDoc();
    EXPECT_EQ(job.count, 0) << "The job has lost its target with its pages.";
}

TEST(Printer, HasNoPagesLeftWhereTheTargetFails)
{
    Printer printer;
    printer.SetTarget([](auto, const auto&) { throw RuntimeError(error::kPrinter); }, "");
    printer.Print("x");
    EXPECT_EQ(ErrorOf([&] { printer.EndDoc(); }), error::kPrinter);
    EXPECT_EQ(printer.Pages().size(), 1U);
    EXPECT_TRUE(printer.Pages()[0].items.empty());
}

TEST(Printer, LeavesTheOriginalAloneWhereACopyDraws)
{
    Printer printer;
    Job job;
    printer.SetTarget(job.Target(), "");
    printer.Print("original");
    Printer copy = printer;
    copy.SetTarget({}, "");
    copy.NewPage();
    copy.SetOrientation(Orientation::Landscape);
    copy.FontSize = 20;
    copy.EndDoc();
    EXPECT_EQ(job.count, 0);
    EXPECT_EQ(printer.Pages().size(), 1U);
    EXPECT_EQ(TextOn(printer.Pages()[0]), "original;");
    EXPECT_EQ(printer.PageOrientation(), Orientation::Portrait);
    EXPECT_EQ(printer.FontSize, 8.25);
}

}  // namespace
}  // namespace terravane
