// What a PDF file says of itself and of its texts, as readers that are independent of us find it: qpdf, poppler, mupdf.
#include <QRegularExpression>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <set>
#include <sstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "drawing/drawing_surface.h"
#include "render/gui_application.h"
#include "render/pdf.h"
#include "render/pdf_archive.h"
#include "runtime/text.h"
#include "source_folder.h"

namespace terravane::archive_test {
namespace {

const Moment kDay = MakeMoment(2026, 11, 21);
const Moment kAfternoon = MakeMoment(2026, 11, 21, 14, 30);

bool Holds(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

class ArchivedPdf : public testing::Test {
  protected:
    ArchivedPdf() : folder_(std::filesystem::temp_directory_path() / ("terravane_archive_" + std::to_string(getpid())))
    {
        EnsureGuiApplication();
        std::filesystem::create_directories(folder_);
    }
    ~ArchivedPdf() override { std::filesystem::remove_all(folder_); }

    std::string Path() const { return (folder_ / "report.pdf").string(); }

    std::string Said(const std::string& program, const std::string& behind = "") const
    {
        const std::string command = program + " " + Path() + behind + " 2>&1";
        const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
        std::string text;
        std::array<char, 4096> part;
        while (std::fgets(part.data(), static_cast<int>(part.size()), pipe.get())) text += part.data();
        return text;
    }

    void Write(const std::vector<DisplayList>& pages, const PdfDocument& document)
    {
        WritePdf(files_, Path(), pages, document);
    }

    /// Pages of one text each, the first a cover.
    static std::vector<DisplayList> Report()
    {
        std::vector<DisplayList> pages;
        for (const char* text : {"ปก", "หน้าแรก", "หน้าสอง"}) {
            DrawingSurface page(11906, 16838);
            page.FontName = "DilleniaUPC";
            page.FontSize = 16;
            page.Print(text);
            pages.push_back(*page.Image());
        }
        pages.front().label = "cover";
        return pages;
    }

    DiskFileSystem files_;

  private:
    std::filesystem::path folder_;
};

TEST_F(ArchivedPdf, SaysWhichArchiveItIsFitFor)
{
    Write(Report(), {"Test of Soil & \"Rock\" <ดิน>", kAfternoon, {}});
    const std::string info = Said("pdfinfo");
    EXPECT_TRUE(Holds(info, "Title:           Test of Soil & \"Rock\" <ดิน>")) << info;
    EXPECT_TRUE(Holds(info, "PDF version:     1.7")) << info;
    const std::string description = Said("pdfinfo -meta");
    for (const char* said : {"<pdfaid:part>2</pdfaid:part>", "<pdfaid:conformance>U</pdfaid:conformance>",
                             "Soil &amp; \"Rock\" &lt;ดิน&gt;", "<xmp:CreateDate>2026-11-21T14:30:00</xmp:CreateDate>",
                             "<pdf:Producer>Terravane</pdf:Producer>", "<xmp:CreatorTool>Terravane</xmp:CreatorTool>"})
        EXPECT_TRUE(Holds(description, said)) << said << "\n" << description;
    EXPECT_TRUE(Holds(Said("qpdf --check"), "No syntax or stream encoding errors found"));
}

// A job that was printed for a day has no hour to tell.
TEST_F(ArchivedPdf, ClaimsNoHourThatNobodyKnows)
{
    Write(Report(), {"Report", kDay, {}});
    EXPECT_TRUE(Holds(Said("pdfinfo -meta"), "<xmp:CreateDate>2026-11-21</xmp:CreateDate>"));
    EXPECT_TRUE(Holds(Said("qpdf --qdf --object-streams=disable", " -"), "/CreationDate (D:20261121)"));
}

TEST_F(ArchivedPdf, CallsItsCoverACoverAndCountsThePagesBehindIt)
{
    auto pages = Report();
    for (const DisplayList& page : Report()) pages.push_back(page);
    Write(pages, {"Report", kDay, {}});
    std::string labels = Said("qpdf --json --json-key=pagelabels");
    std::erase_if(labels, [](char letter) { return letter == ' ' || letter == '\n'; });
    EXPECT_TRUE(Holds(labels,
                      R"({"index":0,"label":{"/P":"u:cover","/St":1}},{"index":1,"label":{"/S":"/D","/St":1}},)"
                      R"({"index":3,"label":{"/P":"u:cover","/St":1}},{"index":4,"label":{"/S":"/D","/St":1}})"))
        << labels;
}

/// What an archive asks of every document, of objects as qpdf writes them out.
TEST_F(ArchivedPdf, KeepsTheRulesOfArchives)
{
    Write(Report(), {"Report", kDay, {}});
    const std::string objects = Said("qpdf --qdf --object-streams=disable", " -");
    for (const char* needed : {"/OutputIntents", "/S /GTS_PDFA1", "/DestOutputProfile", "/Metadata", "/Lang (th)",
                               "/DisplayDocTitle true", "/CIDToGIDMap /Identity", "/FontFile2", "/ToUnicode", "/ID ["})
        EXPECT_TRUE(Holds(objects, needed)) << needed << " is missing";
    for (const char* forbidden : {"/Encrypt", "/JavaScript", "/LZWDecode", "/Interpolate true", "/TransferFunction",
                                  "/DeviceCMYK", "/Launch", "/EmbeddedFile", "/CIDSet"})
        EXPECT_FALSE(Holds(objects, forbidden)) << forbidden << " must not be";
    EXPECT_TRUE(Holds(objects, "595.276") && Holds(objects, "841.89")) << "A4 is 210 by 297 mm.";
}

// 128 bytes of head, ten tags; D50 is (0.9642, 1, 0.8249), to which the three primaries add up.
TEST_F(ArchivedPdf, BringsAProfileWhosePrimariesMakeItsWhite)
{
    const std::string profile = pdf::ColourProfile();
    const auto big = [&](std::size_t at) {
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < 4; ++i) number = number << 8U | static_cast<unsigned char>(profile.at(at + i));
        return number;
    };
    ASSERT_EQ(big(0), profile.size());
    EXPECT_EQ(profile.substr(12, 12), "mntrRGB XYZ ");
    EXPECT_EQ(profile.substr(36, 4), "acsp");
    std::array<double, 3> sum{};
    for (std::size_t tag = 132; tag < 132 + 12 * big(128); tag += 12) {
        EXPECT_LE(big(tag + 4) + big(tag + 8), profile.size());
        const std::string name = profile.substr(tag, 4);
        if (name != "rXYZ" && name != "gXYZ" && name != "bXYZ") continue;
        for (std::size_t i = 0; i < 3; ++i) sum[i] += big(big(tag + 4) + 8 + 4 * i) / 65536.0;
    }
    EXPECT_NEAR(sum[0], 0.9642, 3e-4);
    EXPECT_NEAR(sum[1], 1, 3e-4);
    EXPECT_NEAR(sum[2], 0.8249, 3e-4);
}

/// The texts in quotes of all sources that have a Thai letter.
std::set<std::string> ThaiTextsOfTheProgram()
{
    std::set<std::string> texts;
    const QRegularExpression quoted("\"([^\"\\\\\n]*)\"");
    for (const auto& file : std::filesystem::recursive_directory_iterator(std::string(kSourceFolder) + "/src")) {
        if (!file.is_regular_file()) continue;
        std::ostringstream source;
        source << std::ifstream(file.path()).rdbuf();
        const std::string content = source.str();
        for (const QRegularExpressionMatch& found : quoted.globalMatch(QString::fromStdString(content))) {
            const std::string text = found.captured(1).toStdString();
            if (Holds(text, "\xE0\xB8") || Holds(text, "\xE0\xB9")) texts.insert(text);
        }
    }
    return texts;
}

/// Letters as Thai writes them: a consonant alone, with a vowel over or under it and a tone, with sara am and a tone,
/// or with one of the marks that bear no tone.
std::string RandomThai(std::mt19937& random)
{
    const auto pick = [&](std::u16string_view letters) { return letters[random() % letters.size()]; };
    std::u16string text;
    const auto letters = 1 + random() % 8;
    for (unsigned i = 0; i < letters; ++i) {
        text += pick(u"กขคงจชซญฎฏฐฑณดตถทธนบปผฝพฟภมยรลวศษสหฬอฮ");
        const auto kind = random() % 5;
        if (kind == 1) text += pick(u"ิีึืัุู");
        if (kind == 2) text += pick(u"็์");
        if (kind % 2 == 1 && random() % 2 == 0) text += pick(u"่้๊๋");
        if (kind == 3) text += u'ำ';
    }
    return ToUtf8(text);
}

/// mutool, as Debian 12 has it, does not read what letters are marked with. There it finds no sara am whose ring has to
/// clear an ascender, and takes the step from a mark over the tallest letter for a blank.
bool IsBeyondMupdf(const std::string& text)
{
    static const QRegularExpression beyond("(ป|ฝ|ฟ|ฬ)(่|้|๊|๋)?ำ|ฬ(ิ|ี|ึ|ื|ั|็|์|่|้|๊|๋|ุ|ู)");
    return beyond.match(QString::fromStdString(text)).hasMatch();
}

// Today's readers search in what they extract. A line a text, so that none reads as the next one's beginning.
TEST_F(ArchivedPdf, LetsEveryThaiWordBeFoundAsItWasTyped)
{
    auto texts = ThaiTextsOfTheProgram();
    EXPECT_GT(texts.size(), 20U);
    std::mt19937 random(1);
    for (const char* word : {"จำกัด", "น้ำ", "บริษัท ที่ปรึกษา จำกัด (มหาชน)", "กิโลเมตรที่ ๓๔+๕๐๐", "ปั๊มน้ำ", "ผู้ทดสอบ"})
        texts.insert(word);
    for (int i = 0; i < 300; ++i) texts.insert(RandomThai(random));
    std::vector<DisplayList> pages;
    for (auto text = texts.begin(); text != texts.end();) {
        DrawingSurface page(11906, 16838);
        page.FontName = "DilleniaUPC";
        page.FontSize = 16;
        for (int line = 0; line < 25 && text != texts.end(); ++line, ++text) {
            page.CurrentX = 500;
            page.CurrentY = 500 + 600.0 * line;
            page.Print(*text);
        }
        pages.push_back(*page.Image());
    }
    Write(pages, {"Report", kDay, {}});
    const std::string poppler = Said("pdftotext -layout", " -"), mupdf = Said("mutool draw -q -F text -o -");
    for (const std::string& text : texts) {
        const std::string bare(Trim(text));
        EXPECT_TRUE(Holds(poppler, bare)) << "pdftotext does not find " << bare;
        EXPECT_TRUE(Holds(mupdf, bare) || IsBeyondMupdf(bare)) << "mutool does not find " << bare;
    }
}

}  // namespace
}  // namespace terravane::archive_test
