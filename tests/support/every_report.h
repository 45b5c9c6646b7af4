/// The reports of all tests as one table: what is printed of each, taken from the pages and not from the descriptions.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "laboratory/all_tests.h"
#include "laboratory/tests.h"

namespace terravane::support {

/// A measure of the printed page and of the preview.
struct OnMedia {
    double printer, preview;
};

/// Where the signatures stand, in lines of 339.3 twips: the anchor, and "Checked by" and "Approved by" below it.
struct SignatureLines {
    OnMedia anchor;
    double second, third;
};

/// thai      on the banner of the sheet; `printed` and `preview` at the head of the page
/// english   on banner and page
/// cover     title of the cover
/// headTop   twips from the top to the first row of the head block
struct ReportUnderTest {
    Test test;
    std::string_view thai, printed, preview, english, cover;
    OnMedia headTop;
    SignatureLines signatures;

    std::string Banner() const { return std::string(thai).append("\r\n").append(english); }
    std::string Form() const { return std::string(laboratory::Describe(test).sheet.form); }
};

// Tops of the head block: 1479 / 2048 × 168 = 121.324 for "D", times 20.5, 21.5, 22 or 23.5, and 200.
inline constexpr std::array kReportsUnderTest{
    ReportUnderTest{.test = Test::StdSoil,
                    .thai = "การทดสอบการบดอัดแบบมาตรฐาน",
                    .printed = "การทดสอบการบดอัดแบบมาตรฐาน",
                    .preview = "การทดสอบการบดอัดแบบมาตรฐาน",
                    .english = "Standard Compaction Test",
                    .cover = "ผลทดสอบการบดอัดดินแบบมาตรฐาน",
                    .headTop = {2687.1, 2687.1},
                    .signatures = {{32.5, 32.5}, 5, 9}},
    ReportUnderTest{.test = Test::ModSoil,
                    .thai = "การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน",
                    .printed = "การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน",
                    .preview = "การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน",
                    .english = "Modified Compaction Test",
                    .cover = "ผลทดสอบการบดอัดดินแบบสูงกว่ามาตรฐาน",
                    .headTop = {2687.1, 2687.1},
                    .signatures = {{32.5, 32.5}, 5, 9}},
    ReportUnderTest{.test = Test::CBRSoil,
                    .thai = "การทดสอบหาค่า ซี.บี.อาร์.",
                    .printed = "การทดสอบหาค่า ซี.บี.อาร์.",
                    .preview = "การทดสอบหาค่า ซี.บี.อาร์.",
                    .english = "California Bearing Ratio Test",
                    .cover = "ผลทดสอบการหาค่าซี.บี.อาร์.",
                    .headTop = {2687.1, 2687.1},
                    .signatures = {{34.5, 34.5}, 4, 7}},
    ReportUnderTest{.test = Test::DenSoil,
                    .thai = "การทดสอบหาความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย",
                    .printed = "การทดสอบความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย",
                    .preview = "การทดสอบหาความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย",
                    .english = "Field Density Test by Sand Cone Method",
                    .cover = "ผลทดสอบการหาค่าความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย",
                    .headTop = {2687.1, 2687.1},
                    .signatures = {{39, 39}, 3.5, 6}},
    ReportUnderTest{.test = Test::SieSoil,
                    .thai = "การทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน",
                    .printed = "การทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน",
                    .preview = "การทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน",
                    .english = "Sieve Analysis Test",
                    .cover = "ผลทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน",
                    .headTop = {2808.5, 2869.1},
                    .signatures = {{31, 32}, 5, 9}},
    ReportUnderTest{.test = Test::AttSoil,
                    .thai = "การทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก",
                    .printed = "การทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก",
                    .preview = "การทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก",
                    .english = "Atterberg Limits Test",
                    .cover = "ผลทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก",
                    .headTop = {2687.1, 2869.1},
                    .signatures = {{36, 37}, 4, 7}},
    ReportUnderTest{.test = Test::SpcSoil,
                    .thai = "การทดสอบหาความถ่วงจำเพาะของดิน",
                    .printed = "การทดสอบหาความถ่วงจำเพาะของดิน",
                    .preview = "การทดสอบหาความความถ่วงจำเพาะของดิน",
                    .english = "Specific Gravity Test",
                    .cover = "ผลทดสอบหาความถ่วงจำเพาะของดิน",
                    .headTop = {2687.1, 3051.1},
                    .signatures = {{29.4, 29.5}, 5, 9}},
};
static_assert(std::ranges::all_of(laboratory::kTests,
                                  [](const laboratory::Description* described) {
                                      return std::ranges::count(kReportsUnderTest, described->test,
                                                                &ReportUnderTest::test) == 1;
                                  }),
              "Every test has one row.");

}  // namespace terravane::support
