#include "drawing/picture.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"

namespace terravane {
namespace {

// Headers by hand, each of a picture 300 (0x012C) wide and 200 (0x00C8) high, but for the icon, which is 256
// by 48.
const Bytes kJpeg{0xFF, 0xD8,                     // start
                  0xFF, 0xE0, 0,    4, 'J', 'F',  // an application segment, 4 long
                  0xFF, 0xC4, 0,    3, 0,         // a table, whose number lies among the frames'
                  0xFF, 0xFF, 0xC2, 0, 17,  8,   0, 0xC8, 0x01, 0x2C, 3};  // padding, then a progressive frame
const Bytes kPng{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13,
                 'I',  'H', 'D', 'R', 0,    0,    0x01, 0x2C, 0, 0, 0, 0xC8};
const Bytes kBmp{'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 40, 0, 0, 0, 0x2C, 0x01, 0, 0, 0xC8, 0, 0, 0};
const Bytes kBmpFromTheTop{'B', 'M', 0, 0, 0, 0,    0,    0, 0, 0,    0,    0,    0,
                           0,   40,  0, 0, 0, 0x2C, 0x01, 0, 0, 0x38, 0xFF, 0xFF, 0xFF};  // -200
const Bytes kOldBmp{'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 12, 0, 0, 0, 0x2C, 0x01, 0xC8, 0};
const Bytes kGif{'G', 'I', 'F', '8', '9', 'a', 0x2C, 0x01, 0xC8, 0x00};
const Bytes kIco{0, 0, 1, 0, 1, 0, 0, 48};

struct Sample {
    const char* name;
    Bytes bytes;
    PictureFormat format;
    int width, height;
};

class PictureHeader : public testing::TestWithParam<Sample> {};

TEST_P(PictureHeader, TellsFormatAndSizeByContent)
{
    const auto picture = ReadPicture("logo.any", GetParam().bytes);
    EXPECT_EQ(picture->format, GetParam().format);
    EXPECT_EQ(picture->width, GetParam().width);
    EXPECT_EQ(picture->height, GetParam().height);
    EXPECT_EQ(picture->name, "logo.any");
    EXPECT_EQ(picture->bytes, GetParam().bytes);
}

// The samples end with the last byte of the size (the JPEG one byte later): every shorter file is a damaged
// one.
TEST_P(PictureHeader, IsRefusedWhereverItIsCutOff)
{
    const std::size_t needed = GetParam().bytes.size() - (GetParam().format == PictureFormat::Jpeg ? 1 : 0);
    for (std::size_t length = 0; length < needed; ++length) {
        const Bytes cut(GetParam().bytes.begin(), GetParam().bytes.begin() + static_cast<std::ptrdiff_t>(length));
        try {
            ReadPicture("logo.any", cut);
            ADD_FAILURE() << "a header of " << length << " bytes was taken for a picture";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), 481);
            EXPECT_EQ(error.Description(), "Invalid picture: logo.any");
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, PictureHeader,
                         testing::Values(Sample{"Jpeg", kJpeg, PictureFormat::Jpeg, 300, 200},
                                         Sample{"Png", kPng, PictureFormat::Png, 300, 200},
                                         Sample{"Bmp", kBmp, PictureFormat::Bmp, 300, 200},
                                         Sample{"BmpFromTheTop", kBmpFromTheTop, PictureFormat::Bmp, 300, 200},
                                         Sample{"OldBmp", kOldBmp, PictureFormat::Bmp, 300, 200},
                                         Sample{"Gif", kGif, PictureFormat::Gif, 300, 200},
                                         Sample{"Ico", kIco, PictureFormat::Ico, 256, 48}),
                         [](const auto& sample) { return sample.param.name; });

// Every marker that is no frame stands before the frame once: those with a length are passed over by it, those without
// one have nothing behind them.
TEST(JpegHeader, MarkersThatAreNoFrameArePassedOver)
{
    Bytes jpeg{0xFF, 0xD8};
    for (const std::uint8_t segment : Bytes{0xC4, 0xC8, 0xCC, 0xDB, 0xE0, 0xEF, 0xFE})
        jpeg.insert(jpeg.end(), {0xFF, segment, 0, 3, 0xC0});
    for (const std::uint8_t alone : Bytes{0x01, 0xD0, 0xD1, 0xD2, 0xD3, 0xD4, 0xD5, 0xD6, 0xD7})
        jpeg.insert(jpeg.end(), {0xFF, alone});
    jpeg.insert(jpeg.end(), {0xFF, 0xCF, 0, 17, 8, 0, 0xC8, 0x01, 0x2C, 3});
    const auto picture = ReadPicture("logo.jpg", jpeg);
    EXPECT_EQ(picture->width, 300);
    EXPECT_EQ(picture->height, 200);
}

int NumberOf(Bytes bytes)
{
    try {
        ReadPicture("logo.jpg", std::move(bytes));
        return 0;
    } catch (const RuntimeError& error) {
        return error.Number();
    }
}

Bytes Changed(Bytes bytes, std::size_t at, std::initializer_list<std::uint8_t> values)
{
    std::copy(values.begin(), values.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
    return bytes;
}

TEST(ReadPicture, RefusesAnUnknownFormat)
{
    EXPECT_EQ(NumberOf({'%', 'P', 'D', 'F', '-', '1', '.', '4', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}),
              481);
}

TEST(ReadPicture, RefusesASizeOfZero)
{
    EXPECT_EQ(NumberOf(Changed(kPng, 18, {0, 0})), 481);
    EXPECT_EQ(NumberOf(Changed(kGif, 8, {0})), 481);
    EXPECT_EQ(NumberOf(Changed(kBmp, 18, {0, 0})), 481);
}

TEST(ReadPicture, RefusesANegativeWidth)
{
    EXPECT_EQ(NumberOf(Changed(kBmp, 18, {0xFF, 0xFF, 0xFF, 0xFF})), 481);
}

TEST(ReadPicture, RefusesTheLowestHeightThereIs)
{
    EXPECT_EQ(NumberOf(Changed(kBmp, 22, {0, 0, 0, 0x80})), 481);
}

// 0x2710 is 10 000: 10 000 by 10 000 is the largest, one row more is refused.
TEST(ReadPicture, TakesAHundredMillionPixelsAndNoMore)
{
    EXPECT_EQ(NumberOf(Changed(kPng, 16, {0, 0, 0x27, 0x10, 0, 0, 0x27, 0x10})), 0);
    EXPECT_EQ(NumberOf(Changed(kPng, 16, {0, 0, 0x27, 0x10, 0, 0, 0x27, 0x11})), 481);
    EXPECT_EQ(NumberOf(Changed(kPng, 16, {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF})), 481);
}

TEST(ReadPicture, RefusesAJpegWhoseScanComesBeforeItsSize)
{
    EXPECT_EQ(NumberOf({0xFF, 0xD8, 0xFF, 0xDA, 0, 4, 0, 0, 0xFF, 0xC0, 0, 17, 8, 0, 8, 0, 8}), 481);
    EXPECT_EQ(NumberOf({0xFF, 0xD8, 0xFF, 0xD9, 0, 4, 0, 0, 0xFF, 0xC0, 0, 17, 8, 0, 8, 0, 8}), 481);
}

TEST(ReadPicture, PassesJpegMarkersWithoutALength)
{
    EXPECT_EQ(NumberOf({0xFF, 0xD8, 0xFF, 0x01, 0xFF, 0xD0, 0xFF, 0xC0, 0, 17, 8, 0, 8, 0, 8}), 0);
}

TEST(ReadPicture, RefusesAnIconFileWithoutIcons)
{
    EXPECT_EQ(NumberOf({0, 0, 1, 0, 0, 0, 16, 16}), 481);
}

TEST(LoadPicture, NamesTheFileThatIsNotThere)
{
    const DiskFileSystem files;
    try {
        LoadPicture(files, testing::TempDir() + "no_such_dep_logo.jpg");
        FAIL() << "a picture came out of no file";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 53);
        EXPECT_NE(error.Description().find("no_such_dep_logo.jpg"), std::string::npos);
    }
}

TEST(LoadPicture, RefusesAFileAbove64MebibytesUnread)
{
    /// A disk whose files are all of this size; reading one fails the test.
    class HugeFiles : public DiskFileSystem {
      public:
        Bytes Read(const std::string&) const override
        {
            ADD_FAILURE() << "it was read";
            return {};
        }

      protected:
        std::uint64_t SizeOf(const std::string&) const override { return (64 << 20) + 1; }
    };
    try {
        LoadPicture(HugeFiles(), "logo.jpg");
        FAIL() << "it was taken for a picture";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 75);
        EXPECT_EQ(error.Description(), "Could not read 'logo.jpg': it is larger than 64 MiB.");
    }
}

}  // namespace
}  // namespace terravane
