#include "core/app/viewer_preferences.h"

#include <gtest/gtest.h>

using tarvik::MemoryPreferenceStore;
using tarvik::ViewerPreferences;
using Item = ViewerPreferences::LanguageItem;
using Unit = ViewerPreferences::SpeedUnitItem;

namespace {
struct Prefs {
    MemoryPreferenceStore store;
    int languagePosts = 0;
    int unitPosts = 0;
    // Records what the store held at the moment of posting.
    int syncAtPost = -1;
    ViewerPreferences prefs{store, [this] { ++languagePosts; syncAtPost = store.syncCount; }, [this] { ++unitPosts; }};
};
using List = std::vector<std::string>;
}  // namespace

TEST(ViewerPreferences, LaunchSettlesTheLanguage) {
    Prefs first;
    EXPECT_EQ(first.prefs.initializeLanguageSetting(), "en");
    EXPECT_EQ(first.store.string("OrvoViewerLanguage"), "en");
    EXPECT_EQ(first.store.stringList("AppleLanguages"), List{"en"});
    EXPECT_GE(first.store.syncCount, 1);
    EXPECT_EQ(first.languagePosts, 0);

    for (const char* kept : {"fr", "ja", "pt"}) {
        Prefs p;
        p.store.setString("OrvoViewerLanguage", kept);
        EXPECT_EQ(p.prefs.initializeLanguageSetting(), kept);
        EXPECT_EQ(p.store.stringList("AppleLanguages"), List{kept});
    }
    for (const char* unknown : {"de", "", "EN", "en_US"}) {
        Prefs p;
        p.store.setString("OrvoViewerLanguage", unknown);
        EXPECT_EQ(p.prefs.initializeLanguageSetting(), "en") << unknown;
        EXPECT_EQ(p.store.string("OrvoViewerLanguage"), "en");
    }
}

// What a change stores and that it is announced once is tested on the pane window.
TEST(ViewerPreferences, LanguageChangeIsAnnouncedBeforeItIsStored) {
    Prefs p;
    p.prefs.initializeLanguageSetting();
    const int syncBefore = p.store.syncCount;
    EXPECT_TRUE(p.prefs.languageChange("ja"));
    EXPECT_EQ(p.syncAtPost, syncBefore);
    EXPECT_EQ(p.store.syncCount, syncBefore + 1);

    // Without anything stored every code is a change, even "en".
    Prefs fresh;
    EXPECT_TRUE(fresh.prefs.languageChange("en"));
    EXPECT_EQ(fresh.languagePosts, 1);
}

TEST(ViewerPreferences, MarkedLanguageItem) {
    Prefs p;
    EXPECT_EQ(p.prefs.markCurrentLanguage(), Item::English);
    for (auto [code, item] : {std::pair{"fr", Item::French}, {"ja", Item::Japanese}, {"pt", Item::Portuguese},
                              {"en", Item::English}, {"xx", Item::English}}) {
        p.store.setString("OrvoViewerLanguage", code);
        EXPECT_EQ(p.prefs.markCurrentLanguage(), item) << code;
    }
}

// Storing and announcing a unit from the menu is tested on the main window.
TEST(ViewerPreferences, OddSpeedUnitsReadAsKilometresAndStayStored) {
    Prefs p;
    EXPECT_TRUE(p.prefs.setSpeedUnit(1));
    EXPECT_TRUE(p.prefs.isMph());
    p.store.setInteger("OrvoViewerSpeedUnit", 7);
    EXPECT_EQ(p.prefs.markCurrentSpeedUnit(), Unit::Kmph);
    EXPECT_FALSE(p.prefs.isMph());
    EXPECT_EQ(p.store.integer("OrvoViewerSpeedUnit"), 7);
}
