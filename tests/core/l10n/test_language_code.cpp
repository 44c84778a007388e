#include <gtest/gtest.h>

#include "core/l10n/language_code.h"

using tarvik::dataFromHexString;
using tarvik::hexStringFromData;
using tarvik::languageTitleByExpandingCode;
using Bytes = std::vector<std::uint8_t>;

TEST(LanguageTitle, NamesCodesAndKeepsTheOdditiesAsTheyStand) {
    EXPECT_EQ(tarvik::languageTitleCount(), 163u);
    EXPECT_EQ(languageTitleByExpandingCode("ko"), "Korean");
    EXPECT_EQ(languageTitleByExpandingCode("zh-Hant-HK"), "Chinese(Traditional/Contonese)");
    EXPECT_EQ(languageTitleByExpandingCode("zh-cmn-Hans"), "Mandarin Chinese (Simplified)");
    EXPECT_EQ(languageTitleByExpandingCode("vo"), "Volap?k");
    EXPECT_EQ(languageTitleByExpandingCode("li"), "Limburgish ( Limburger)");
    EXPECT_EQ(languageTitleByExpandingCode("sg"), "Sangro");
}

TEST(LanguageTitle, WithdrawnCodesShareTheNamesOfTheirSuccessors) {
    EXPECT_EQ(languageTitleByExpandingCode("iw"), "Hebrew");
    EXPECT_EQ(languageTitleByExpandingCode("he"), "Hebrew");
    EXPECT_EQ(languageTitleByExpandingCode("in"), languageTitleByExpandingCode("id"));
    EXPECT_EQ(languageTitleByExpandingCode("ji"), languageTitleByExpandingCode("yi"));
}

TEST(LanguageTitle, UnknownCodesComeBackUnchanged) {
    EXPECT_EQ(languageTitleByExpandingCode("xx"), "xx");
    EXPECT_EQ(languageTitleByExpandingCode(""), "");
    EXPECT_EQ(languageTitleByExpandingCode("KO"), "KO");  // codes are matched exactly
    EXPECT_EQ(languageTitleByExpandingCode("zh-hant-hk"), "zh-hant-hk");
}

TEST(HexCodec, DecodesPairsAnyCase) {
    EXPECT_EQ(dataFromHexString("0aFF"), (Bytes{0x0A, 0xFF}));
    EXPECT_EQ(dataFromHexString(""), Bytes{});
    EXPECT_EQ(dataFromHexString("ABC"), (Bytes{0xAB, 0x0C}));  // odd tail parses alone
}

TEST(HexCodec, NonDigitsStopAPairWithoutRejectingTheText) {
    EXPECT_EQ(dataFromHexString("G1"), (Bytes{0x00}));
    EXPECT_EQ(dataFromHexString("1G"), (Bytes{0x01}));
    EXPECT_EQ(dataFromHexString("zz10"), (Bytes{0x00, 0x10}));
    // A pair is parsed the strtoul way: blanks and signs are read, not refused.
    EXPECT_EQ(dataFromHexString(" 1"), (Bytes{0x01}));
    EXPECT_EQ(dataFromHexString("-1"), (Bytes{0xFF}));
    EXPECT_EQ(dataFromHexString("0x"), (Bytes{0x00}));
    // Non-ASCII text is walked by bytes but only as far as its length in
    // characters: "é1" is two characters, so one pair (the two bytes of é).
    EXPECT_EQ(dataFromHexString("\xC3\xA9" "1"), (Bytes{0x00}));
}

TEST(HexCodec, EncodesUpperCaseAndRoundTripsEveryByte) {
    EXPECT_EQ(hexStringFromData(Bytes{0x0A, 0xFF, 0x00}), "0AFF00");
    Bytes all(256);
    for (int i = 0; i < 256; ++i) all[i] = static_cast<std::uint8_t>(i);
    std::string hex = hexStringFromData(all);
    EXPECT_EQ(hex.size(), 512u);
    EXPECT_EQ(hex.find_first_of("abcdef"), std::string::npos);
    EXPECT_EQ(dataFromHexString(hex), all);
}
