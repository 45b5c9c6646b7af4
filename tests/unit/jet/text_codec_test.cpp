#include "jet/text_codec.h"

#include <gtest/gtest.h>

#include "support/jet_files.h"

namespace terravane {
namespace {

using namespace support;
using jet::DecodeText;
using jet::EncodeText;

TEST(TextCodec, PlainIsUtf16)
{
    EXPECT_EQ(EncodeText(u"ก1", false), FromHex("010e 3100"));
    EXPECT_EQ(DecodeText(FromHex("010e 3100")), "ก1");
    EXPECT_EQ(DecodeText({}), "");
}

TEST(TextCodec, CompressesOnlyWhereTheColumnAllowsAndItPays)
{
    EXPECT_EQ(EncodeText(u"   ", true), FromHex("fffe 202020"));
    EXPECT_EQ(EncodeText(u"   ", false), FromHex("2000 2000 2000"));
    EXPECT_EQ(EncodeText(u"ab", true), FromHex("6100 6200"));        // as long as with the mark
    EXPECT_EQ(EncodeText(u"abก", true), FromHex("6100 6200 010e"));  // a character above U+00FF
    EXPECT_EQ(EncodeText(u"caf\u00e9", true), FromHex("fffe 636166e9"));
    EXPECT_EQ(EncodeText(u"\u0001\u00ff\u00ff", true), FromHex("fffe 01ffff"));
    EXPECT_EQ(EncodeText(u"abc\u0100", true), FromHex("6100 6200 6300 0001"));
}

TEST(TextCodec, ReadsTextsThatChangeTheirModeInside)
{
    // Six Cyrillic letters in two-byte mode, then -021 in one-byte mode.
    EXPECT_EQ(DecodeText(FromHex("fffe 00 2104 3e04 3e04 3e04 3e04 4204 00 2d303231")), "Соооот-021");
    EXPECT_EQ(DecodeText(FromHex("fffe 6162 00 010e")), "abก");  // ends in two-byte mode
    EXPECT_EQ(DecodeText(FromHex("fffe 6162 00")), "ab");
}

TEST(TextCodec, HalfAUnitAtTheEndIsLeftOut)
{
    EXPECT_EQ(DecodeText(FromHex("6100 62")), "a");
    EXPECT_EQ(DecodeText(FromHex("fffe 61 00 0e")), "a");
}

TEST(TextCodec, ByteThatLooksLikeAChangeInsideAUnitIsNone)
{
    EXPECT_EQ(DecodeText(FromHex("fffe 00 410e 00 41")), "แA");  // 0e of U+0E41 is no mode, the 00 behind it is
}

TEST(TextCodec, TextThatWouldReadAsCompressedIsRefused)
{
    EXPECT_EQ(FailureOf([] { EncodeText(u"\ufeffabc", false); }).number, -2147467259);
    EXPECT_EQ(EncodeText(u"a\ufeff", false), FromHex("6100 fffe"));  // inside a text it is a character
}

TEST(TextCodec, CharactersBeyondSixteenBitsAreTwoUnits)
{
    EXPECT_EQ(DecodeText(FromHex("3dd8 00de")), "😀");
    EXPECT_EQ(EncodeText(u"😀", true), FromHex("3dd8 00de"));
}

}  // namespace
}  // namespace terravane
