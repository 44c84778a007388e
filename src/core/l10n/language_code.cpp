#include "core/l10n/language_code.h"

#include <cstdlib>
#include <unordered_map>

namespace tarvik {

namespace {

// The names are shown exactly as cameras of the family have always shown
// them, oddities included ("Volap?k", "Sangro", "Limburgish ( Limburger)"):
// fleet staff compare them against the camera's own menu.
constexpr std::pair<std::string_view, std::string_view> kLanguageNames[] = {
        {"ab", "Abkhazian"},
        {"aa", "Afar"},
        {"af", "Afrikaans"},
        {"sq", "Albanian"},
        {"am", "Amharic"},
        {"ar", "Arabic"},
        {"an", "Aragonese"},
        {"hy", "Armenian"},
        {"as", "Assamese"},
        {"ay", "Aymara"},
        {"az", "Azerbaijani"},
        {"ba", "Bashkir"},
        {"eu", "Basque"},
        {"bn", "Bengali (Bangla)"},
        {"dz", "Bhutani"},
        {"bh", "Bihari"},
        {"bi", "Bislama"},
        {"br", "Breton"},
        {"bg", "Bulgarian"},
        {"my", "Burmese"},
        {"be", "Byelorussian (Belarusian)"},
        {"km", "Cambodian"},
        {"ca", "Catalan"},
        {"zh", "Chinese"},
        {"zh-Hans", "Chinese (Simplified)"},
        {"zh-Hant", "Chinese (Traditional)"},
        {"zh-cmn", "Mandarin Chinese"},
        {"zh-cmn-Hans", "Mandarin Chinese (Simplified)"},
        {"zh-cmn-Hant", "Mandarin Chinese (Traditional)"},
        {"zh-Hans-CN", "PRC Mainland Chinese in simplified script"},
        {"zh-Hans-HK", "Hong Kong Chinese in simplified script"},
        {"zh-Hans-MO", "Macao Chinese in simplified script"},
        {"zh-Hans-TW", "Taiwan Chinese in simplified script"},
        {"zh-Hant-CN", "PRC Mainland Chinese in traditional script"},
        {"zh-Hant-HK", "Chinese(Traditional/Contonese)"},
        {"zh-Hant-MO", "Macao Chinese in traditional script"},
        {"zh-Hant-SG", "Singapore Chinese in traditional script"},
        {"zh-Hant-TW", "Taiwan Chinese in traditional script"},
        {"zh-wuu", "Shanghaiese or Wu"},
        {"co", "Corsican"},
        {"hr", "Croatian"},
        {"cs", "Czech"},
        {"da", "Danish"},
        {"nl", "Dutch"},
        {"en", "English"},
        {"eo", "Esperanto"},
        {"et", "Estonian"},
        {"fo", "Faeroese"},
        {"fa", "Farsi"},
        {"fj", "Fiji"},
        {"fi", "Finnish"},
        {"fr", "French"},
        {"fy", "Frisian"},
        {"gl", "Galician"},
        {"gd", "Gaelic (Scottish)"},
        {"gv", "Gaelic (Manx)"},
        {"ka", "Georgian"},
        {"de", "German"},
        {"el", "Greek"},
        {"kl", "Greenlandic"},
        {"gn", "Guarani"},
        {"gu", "Gujarati"},
        {"ht", "Haitian Creole"},
        {"ha", "Hausa"},
        {"he", "Hebrew"},
        {"iw", "Hebrew"},
        {"hi", "Hindi"},
        {"hu", "Hungarian"},
        {"is", "Icelandic"},
        {"io", "Ido"},
        {"id", "Indonesian"},
        {"in", "Indonesian"},
        {"ia", "Interlingua"},
        {"ie", "Interlingue"},
        {"iu", "Inuktitut"},
        {"ik", "Inupiak"},
        {"ga", "Irish"},
        {"it", "Italian"},
        {"ja", "Japanese"},
        {"jv", "Javanese"},
        {"kn", "Kannada"},
        {"ks", "Kashmiri"},
        {"kk", "Kazakh"},
        {"rw", "Kinyarwanda (Ruanda)"},
        {"ky", "Kirghiz"},
        {"rn", "Kirundi (Rundi)"},
        {"ko", "Korean"},
        {"ku", "Kurdish"},
        {"lo", "Laothian"},
        {"la", "Latin"},
        {"lv", "Latvian (Lettish)"},
        {"li", "Limburgish ( Limburger)"},
        {"ln", "Lingala"},
        {"lt", "Lithuanian"},
        {"mk", "Macedonian"},
        {"mg", "Malagasy"},
        {"ms", "Malay"},
        {"ml", "Malayalam"},
        {"mt", "Maltese"},
        {"mi", "Maori"},
        {"mr", "Marathi"},
        {"mo", "Moldavian"},
        {"mn", "Mongolian"},
        {"na", "Nauru"},
        {"ne", "Nepali"},
        {"no", "Norwegian"},
        {"oc", "Occitan"},
        {"or", "Oriya"},
        {"om", "Oromo (Afaan Oromo)"},
        {"ps", "Pashto (Pushto)"},
        {"pl", "Polish"},
        {"pt", "Portuguese"},
        {"pa", "Punjabi"},
        {"qu", "Quechua"},
        {"rm", "Rhaeto-Romance"},
        {"ro", "Romanian"},
        {"ru", "Russian"},
        {"sm", "Samoan"},
        {"sg", "Sangro"},
        {"sa", "Sanskrit"},
        {"sr", "Serbian"},
        {"sh", "Serbo-Croatian"},
        {"st", "Sesotho"},
        {"tn", "Setswana"},
        {"sn", "Shona"},
        {"ii", "Sichuan Yi"},
        {"sd", "Sindhi"},
        {"si", "Sinhalese"},
        {"ss", "Siswati"},
        {"sk", "Slovak"},
        {"sl", "Slovenian"},
        {"so", "Somali"},
        {"es", "Spanish"},
        {"su", "Sundanese"},
        {"sw", "Swahili (Kiswahili)"},
        {"sv", "Swedish"},
        {"tl", "Tagalog"},
        {"tg", "Tajik"},
        {"ta", "Tamil"},
        {"tt", "Tatar"},
        {"te", "Telugu"},
        {"th", "Thai"},
        {"bo", "Tibetan"},
        {"ti", "Tigrinya"},
        {"to", "Tonga"},
        {"ts", "Tsonga"},
        {"tr", "Turkish"},
        {"tk", "Turkmen"},
        {"tw", "Twi"},
        {"ug", "Uighur"},
        {"uk", "Ukrainian"},
        {"ur", "Urdu"},
        {"uz", "Uzbek"},
        {"vi", "Vietnamese"},
        {"vo", "Volap?k"},
        {"wa", "Wallon"},
        {"cy", "Welsh"},
        {"wo", "Wolof"},
        {"xh", "Xhosa"},
        {"yi", "Yiddish"},
        {"ji", "Yiddish"},
        {"yo", "Yoruba"},
        {"zu", "Zulu"},
};

const std::unordered_map<std::string_view, std::string_view>& languageNames() {
    static const std::unordered_map<std::string_view, std::string_view> names(
        std::begin(kLanguageNames), std::end(kLanguageNames));
    return names;
}

// Length of UTF-8 text counted in UTF-16 units. The decoder walks the text's
// bytes but stops at this length, which only differs from the byte count for
// text that was never hexadecimal in the first place.
std::size_t utf16Length(std::string_view text) {
    std::size_t units = 0;
    for (unsigned char c : text) {
        if ((c & 0xC0) == 0x80) continue;  // continuation byte
        units += (c >= 0xF0) ? 2 : 1;      // four-byte sequences need a surrogate pair
    }
    return units;
}

}  // namespace

std::string languageTitleByExpandingCode(std::string_view code) {
    const auto& names = languageNames();
    auto it = names.find(code);
    if (it == names.end() || it->second.empty()) return std::string(code);
    return std::string(it->second);
}

std::size_t languageTitleCount() { return languageNames().size(); }

std::vector<std::uint8_t> dataFromHexString(std::string_view text) {
    std::vector<std::uint8_t> out;
    const std::size_t length = utf16Length(text);
    out.reserve(length / 2 + 1);
    for (std::size_t pos = 0; pos < length && pos < text.size(); pos += 2) {
        char pair[3] = {text[pos], pos + 1 < text.size() ? text[pos + 1] : '\0', '\0'};
        out.push_back(static_cast<std::uint8_t>(std::strtoul(pair, nullptr, 16) & 0xFF));
    }
    return out;
}

std::string hexStringFromData(const std::uint8_t* data, std::size_t size) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(size * 2);
    for (std::size_t i = 0; i < size; ++i) {
        out.push_back(kDigits[data[i] >> 4]);
        out.push_back(kDigits[data[i] & 0x0F]);
    }
    return out;
}

}  // namespace tarvik
