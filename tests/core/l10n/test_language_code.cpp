#include <gtest/gtest.h>

#include "core/l10n/language_code.h"

using tarvik::dataFromHexString;
using tarvik::hexStringFromData;
using tarvik::languageTitleByExpandingCode;
using Bytes = std::vector<std::uint8_t>;

// The table's own entries are its business; these are the look-up's rules:
// withdrawn codes share their successors' names, the table's oddities stand,
// and codes are matched exactly or come back unchanged.
TEST(LanguageTitle, LookUpRules) {
    EXPECT_EQ(tarvik::languageTitleCount(), 163u);
    for (auto [code, title] : std::initializer_list<std::pair<const char*, const char*>>{
             {"ko", "Korean"}, {"zh-Hant-HK", "Chinese(Traditional/Contonese)"}, {"vo", "Volap?k"},
             {"iw", "Hebrew"}, {"he", "Hebrew"}, {"xx", "xx"}, {"", ""}, {"KO", "KO"}, {"zh-hant-hk", "zh-hant-hk"}})
        EXPECT_EQ(languageTitleByExpandingCode(code), title) << code;
    EXPECT_EQ(languageTitleByExpandingCode("in"), languageTitleByExpandingCode("id"));
    EXPECT_EQ(languageTitleByExpandingCode("ji"), languageTitleByExpandingCode("yi"));
}

// A pair is parsed the strtoul way: blanks and signs are read, not refused;
// a non-digit stops the pair without rejecting the text.
TEST(HexCodec, DecodesPairsTheStrtoulWay) {
    for (auto [text, bytes] : std::initializer_list<std::pair<const char*, Bytes>>{
             {"0aFF", {0x0A, 0xFF}}, {"", {}}, {"ABC", {0xAB, 0x0C}},  // an odd tail parses alone
             {"G1", {0x00}}, {"1G", {0x01}}, {"zz10", {0x00, 0x10}}, {" 1", {0x01}}, {"-1", {0xFF}}, {"0x", {0x00}},
             // Non-ASCII text is walked by bytes but only as far as its length in
             // characters: "é1" is two characters, so one pair (the two bytes of é).
             {"\xC3\xA9" "1", {0x00}}})
        EXPECT_EQ(dataFromHexString(text), bytes) << text;
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
