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

TEST(ViewerPreferences, LanguageChangePostsOnlyOnRealChange) {
    Prefs p;
    p.prefs.initializeLanguageSetting();
    EXPECT_FALSE(p.prefs.languageChange("en"));
    EXPECT_EQ(p.languagePosts, 0);

    const int syncBefore = p.store.syncCount;
    EXPECT_TRUE(p.prefs.languageChange("ja"));
    EXPECT_EQ(p.languagePosts, 1);
    EXPECT_EQ(p.store.string("OrvoViewerLanguage"), "ja");
    EXPECT_EQ(p.store.stringList("AppleLanguages"), List{"ja"});
    // Posted before the store is synchronised.
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

TEST(ViewerPreferences, SpeedUnitDefaultsToTwoAndPostsOnChange) {
    Prefs p;
    EXPECT_EQ(p.prefs.markCurrentSpeedUnit(), Unit::Kmph);
    EXPECT_EQ(p.store.integer("OrvoViewerSpeedUnit"), 2);
    EXPECT_FALSE(p.prefs.isMph());

    // 0 differs from the stored 2: stored and announced.
    EXPECT_TRUE(p.prefs.setSpeedUnit(0));
    EXPECT_EQ(p.unitPosts, 1);
    EXPECT_EQ(p.store.integer("OrvoViewerSpeedUnit"), 0);
    EXPECT_FALSE(p.prefs.setSpeedUnit(0));
    EXPECT_EQ(p.unitPosts, 1);

    EXPECT_TRUE(p.prefs.setSpeedUnit(1));
    EXPECT_EQ(p.prefs.markCurrentSpeedUnit(), Unit::Mph);
    EXPECT_TRUE(p.prefs.isMph());
    EXPECT_EQ(p.unitPosts, 2);

    // Marking never overwrites a stored value, and odd values read as km/h.
    p.store.setInteger("OrvoViewerSpeedUnit", 7);
    EXPECT_EQ(p.prefs.markCurrentSpeedUnit(), Unit::Kmph);
    EXPECT_EQ(p.store.integer("OrvoViewerSpeedUnit"), 7);
}
