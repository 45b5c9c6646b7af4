#include "runtime/dates.h"

#include <gtest/gtest.h>

#include "unit/runtime/raises.h"

namespace terravane {
namespace {

const Moment kAfternoon = MakeMoment(2026, 11, 21, 14, 5, 9);

TEST(Dates, AreShownDayFirst)
{
    EXPECT_EQ(ShortDate(kAfternoon), "21/11/2026");
    EXPECT_EQ(ShortDate(MakeMoment(2026, 1, 2)), "02/01/2026");
    EXPECT_EQ(ShortDate(MakeMoment(1899, 12, 30)), "30/12/1899");
}

TEST(Dates, AreShownUnderAMask)
{
    EXPECT_EQ(Format(kAfternoon, "dd mmmm yyyy"), "21 November 2026");
    EXPECT_EQ(Format(kAfternoon, "dd/mm/yyyy"), "21/11/2026");
    EXPECT_EQ(Format(kAfternoon, "hh : mm : ss"), "14 : 05 : 09");
    EXPECT_EQ(Format(kAfternoon, "hh:nn dd/mm"), "14:05 21/11");
    EXPECT_EQ(Format(kAfternoon, ""), "");
}

TEST(MakeMoment, RefusesADayThatDoesNotExist)
{
    EXPECT_EQ(ErrorOf([] { MakeMoment(2026, 2, 29); }), error::kInvalidProcedureCall);
    EXPECT_EQ(ErrorOf([] { MakeMoment(2024, 2, 29); }), 0);
    EXPECT_EQ(ErrorOf([] { MakeMoment(2026, 13, 1); }), error::kInvalidProcedureCall);
    EXPECT_EQ(ErrorOf([] { MakeMoment(2026, 1, -1); }), error::kInvalidProcedureCall);
    EXPECT_EQ(ErrorOf([] { MakeMoment(2026, 1, 1, 24); }), error::kInvalidProcedureCall);
}

// The dates that a project file can hold begin with the year 100.
TEST(MakeMoment, RefusesAYearBeforeAHundred)
{
    EXPECT_EQ(ErrorOf([] { MakeMoment(99, 12, 31); }), error::kInvalidProcedureCall);
    EXPECT_EQ(ErrorOf([] { MakeMoment(100, 1, 1); }), 0);
    EXPECT_EQ(ErrorOf([] { ParseDate("31/12/0099"); }), error::kTypeMismatch) << "a slip of the pen";
}

TEST(ParseDate, ReadsTheThreeWaysOfWritingADay)
{
    const Moment day = MakeMoment(2026, 11, 5);
    for (const char* text : {"05/11/2026", "5/11/2026", "2026-11-05", "2026-11-5", "5 November 2026", "05 Nov 2026",
                             " 5/11/2026  ", "5 NOVEMBER 2026"}) {
        EXPECT_EQ(ErrorOf([&] { EXPECT_EQ(ParseDate(text), day) << text; }), 0) << text;
    }
}

TEST(ParseDate, ReadsBackWhatIsShown)
{
    for (Moment day = MakeMoment(2023, 12, 1); day < MakeMoment(2025, 2, 1); day += std::chrono::days(1)) {
        EXPECT_EQ(ParseDate(ShortDate(day)), day);
        EXPECT_EQ(ParseDate(Format(day, "dd mmmm yyyy")), day);
        EXPECT_EQ(ParseDate(Format(day, "yyyy-mm-dd")), day);
    }
}

TEST(ParseDate, FailsOnAnyOtherText)
{
    for (const char* text : {"", "   ", "today", "29/02/2026", "31/04/2026", "5/11/26", "11/21/2026", "5-11-2026",
                             "5/11", "5/11/2026/1", "5  Nov 2026", "5 Nove 2026", "+5/11/2026", "5/11/2026 10:00",
                             "123/1/2026", "0/1/2026", "1/0/2026", "2026-11-00"}) {
        EXPECT_EQ(ErrorOf([&] { ParseDate(text); }), error::kTypeMismatch) << text;
    }
}

TEST(HoursBetween, CountsTheHoursThatBegin)
{
    EXPECT_EQ(HoursBetween(MakeMoment(2026, 1, 1, 23, 59), MakeMoment(2026, 1, 2, 0, 0)), 1);
    EXPECT_EQ(HoursBetween(MakeMoment(2026, 1, 1, 10, 0), MakeMoment(2026, 1, 1, 10, 59)), 0);
    EXPECT_EQ(HoursBetween(MakeMoment(2026, 1, 1, 8, 30), MakeMoment(2026, 1, 5, 8, 15)), 96);
    EXPECT_EQ(HoursBetween(MakeMoment(2026, 1, 2), MakeMoment(2026, 1, 1, 23, 59)), -1);
    EXPECT_EQ(HoursBetween(MakeMoment(1950, 1, 1, 23, 59), MakeMoment(1950, 1, 2, 0, 0)), 1);
}

}  // namespace
}  // namespace terravane
