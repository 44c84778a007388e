#include <gtest/gtest.h>

#include <sys/stat.h>

#include "../temp_card.h"
#include "core/l10n/language_code.h"
#include "core/settings/web/web_page_scripts.h"
#include "core/settings/web/web_setting_files.h"
#include "core/settings/web/web_user_question.h"

namespace tarvik {
namespace {

using test::putLe32;
using test::TempCard;

const LanguageList kThree{{0, "en"}, {1, "fr"}, {2, "ja"}};

std::string cfgHexWithLanguage(std::size_t length, std::int32_t index) {
    std::string b(length, '\x11');
    if (length >= 432) putLe32(b, 428, index);
    return hexStringFromData(reinterpret_cast<const std::uint8_t*>(b.data()), b.size());
}

// The calls themselves are run by the camera page in the settings window's
// tests; here, that card and page text cannot leave its literal.
TEST(WebPageScripts, TextStaysInsideItsLiteral) {
    EXPECT_EQ(webscript::setParamLanguage(kThree), "setParamLanguage(['en','fr','ja',])");
    EXPECT_EQ(webscript::updateOk(1, "a\");alert(1);(\"\\\n"), "update_ok(1, \"a\\\");alert(1);(\\\"\\\\\\n\")");
    EXPECT_EQ(webscript::setParamLanguage({{0, "e'n"}}), "setParamLanguage(['e\\'n',])");
    EXPECT_EQ(webscript::escaped("x\x01\xe2\x80\xa8y\xe2\x80\xa9\xed\x95\x9c"), "x\\x01\\u2028y\\u2029\xed\x95\x9c");
}

TEST(WebPageScripts, SelectedLanguageFromByte428) {
    EXPECT_EQ(webscript::selectedLanguageCode(cfgHexWithLanguage(432, 2), kThree), "ja");
    EXPECT_EQ(webscript::selectedLanguageCode(cfgHexWithLanguage(600, 0), kThree), "en");
    // Index is a list position, not the number stored with the code.
    EXPECT_EQ(webscript::selectedLanguageCode(cfgHexWithLanguage(432, 1), {{5, "de"}, {9, "ko"}}), "ko");
    EXPECT_FALSE(webscript::selectedLanguageCode(cfgHexWithLanguage(432, 3), kThree));
    EXPECT_FALSE(webscript::selectedLanguageCode(cfgHexWithLanguage(432, -1), kThree));
    EXPECT_FALSE(webscript::selectedLanguageCode(cfgHexWithLanguage(432, 0x100), kThree));
    EXPECT_FALSE(webscript::selectedLanguageCode(cfgHexWithLanguage(431, 0), kThree));
    EXPECT_FALSE(webscript::selectedLanguageCode("", kThree));
    EXPECT_FALSE(webscript::selectedLanguageCode(cfgHexWithLanguage(432, 0), {}));
}

TEST(WebUserQuestion, PartsAndLenientNumbers) {
    auto parts = [](const std::string& text) {
        auto q = WebUserQuestion::parse(text);
        return q ? q->title + "|" + q->message + "|" + std::to_string(q->index) + "|" + q->value + "|" +
                       (q->asksYesNo() ? "yes/no" : "ok")
                 : std::string("refused");
    };
    EXPECT_EQ(parts("Title\tAsk?\t7\tval\t1"), "Title|Ask?|7|val|ok");
    EXPECT_EQ(parts("t\tm\t 12abc\t\t2\textra"), "t|m|12||yes/no");
    EXPECT_EQ(parts("t\tm\t7\tv"), "refused");
    EXPECT_EQ(parts(""), "refused");
    for (auto [text, n] : {std::pair{"x3", 0}, {"-4", -4}, {"99999999999999999999", 2147483647},
                           {"-99999999999999999999", -2147483647 - 1}})
        EXPECT_EQ(leadingInteger(text), n) << text;
}

TEST(WebSettingFiles, PathsAndReads) {
    TempCard card;
    const WebSettingFiles files(card.path());
    EXPECT_EQ(files.cfgString(), "");
    EXPECT_FALSE(files.readTimeCorrection());
    card.write("SETTING/setup.cfg", std::string("\x0a\xff\x00\x7f", 4));
    EXPECT_EQ(files.cfgString(), "0AFF007F");
    card.write("SETTING/default.cfg", std::string(WebSettingFiles::kMaxCfgBytes + 1, 'x'));
    EXPECT_EQ(files.defaultCfgString(), "");  // not a settings record
    card.write("SETTING/time.dat", "2016,05,20,13,45,00,+0900");
    EXPECT_EQ(files.readTimeCorrection(), (WebTimeCorrection{"2016,05,20", "13", "45"}));
    card.write("SETTING/time.dat", "2016,05,20,13,4");
    EXPECT_FALSE(files.readTimeCorrection());
}

TEST(WebSettingFiles, SaveWritesOnlyUsableSettings) {
    TempCard card;
    const WebSettingFiles files(card.path());
    const std::string old("\x01\x02\x03", 3);
    card.write("SETTING/setup.cfg", old);
    card.write("SETTING/time.dat", "2015,01,01,00,00,00,+0900");
    const WebTimeCorrection t{"2016,05,20", "08", "05"};
    for (const char* bad : {"", "0aF", "0aFG", "zz", " 0aFF", "0x0a"}) {
        EXPECT_EQ(files.save(bad, t), WebSaveResult::Refused) << bad;
        EXPECT_EQ(card.read("SETTING/setup.cfg"), old);
        EXPECT_EQ(card.read("SETTING/time.dat"), "2015,01,01,00,00,00,+0900");
    }
    EXPECT_EQ(files.save("0aFF", t), WebSaveResult::Saved);
    EXPECT_EQ(card.read("SETTING/setup.cfg"), "\x0a\xff");
    EXPECT_EQ(card.read("SETTING/time.dat"), "2016,05,20,08,05,00,+0900");
    // Without a correction, or with a malformed one, time.dat stays as it is.
    EXPECT_EQ(files.save("01", std::nullopt), WebSaveResult::Saved);
    EXPECT_EQ(files.save("02", WebTimeCorrection{"2016/05/20", "8", "05"}), WebSaveResult::Saved);
    EXPECT_EQ(card.read("SETTING/time.dat"), "2016,05,20,08,05,00,+0900");
    EXPECT_EQ(card.read("SETTING/setup.cfg"), "\x02");

    if (::geteuid() != 0) {  // root writes anywhere
        ::chmod(card.file("SETTING").c_str(), 0555);
        EXPECT_EQ(files.save("0aFF", std::nullopt), WebSaveResult::WriteFailed);
        ::chmod(card.file("SETTING").c_str(), 0755);
        EXPECT_EQ(card.read("SETTING/setup.cfg"), "\x02");
    }
}

}  // namespace
}  // namespace tarvik
