// Writes to the card: atomic under a killed writer, refused on a read-only
// card with an alert, and hostile card contents that must not hurt.

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

#include "core/settings/krt/krt_setting_manager.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/settings_alert_sink.h"
#include "temp_card.h"

using namespace tarvik;
using tarvik::test::TempCard;
namespace fs = std::filesystem;

namespace {

struct CountingSink : SettingsAlertSink {
    int count = 0;
    std::string title, message, button;
    void showSettingsAlert(const std::string& t, const std::string& m, const std::string& b) override {
        ++count;
        title = t;
        message = m;
        button = b;
    }
};

struct SinkScope {
    explicit SinkScope(SettingsAlertSink* s) { setSettingsAlertSink(s); }
    ~SinkScope() { setSettingsAlertSink(nullptr); }
};

std::string randomBytes(std::size_t n, unsigned seed) {
    std::mt19937 rng(seed);
    std::string s(n, '\0');
    for (auto& c : s) c = static_cast<char>(rng());
    return s;
}

}  // namespace

TEST(CardWrites, KilledWriterLeavesOldOrNewRecordWhole) {
    TempCard card;
    M420SettingManager small;  // 432 bytes
    small.setSettingDirPath(card.path());
    small.setModelType(1);
    small.loadDefaultValue();
    M420SettingManager large;  // 596 bytes, different content throughout
    large.setSettingDirPath(card.path());
    large.setModelType(26);
    large.setChecksum(596);
    large.setProduct_name("DVR-N530");
    large.setTz_key("Korea Standard Time");
    for (int i = fieldIndex(M420Field::iot_onoff); i < kM420FieldCount; ++i)
        large.setIntValue(static_cast<M420Field>(i), i);
    ASSERT_TRUE(small.saveData());
    const std::string a = card.read("SETTING/setup.cfg");
    ASSERT_TRUE(large.saveData());
    const std::string b = card.read("SETTING/setup.cfg");
    ASSERT_NE(a, b);

    std::mt19937 rng(42);
    int killedMidway = 0, sawA = 0, sawB = 0;
    for (int run = 0; run < 240; ++run) {
        pid_t pid = ::fork();
        ASSERT_GE(pid, 0);
        if (pid == 0) {
            // Keep replacing the file, starting with the record it does not
            // hold, so the kill lands at any point of a write.
            const bool holdsA = card.read("SETTING/setup.cfg") == a;
            for (unsigned i = holdsA ? 0 : 1;; ++i) (i % 2 ? small : large).saveData();
        }
        ::usleep(static_cast<useconds_t>(rng() % 12000));
        ::kill(pid, SIGKILL);
        int status = 0;
        ::waitpid(pid, &status, 0);
        killedMidway += WIFSIGNALED(status) ? 1 : 0;
        const std::string now = card.read("SETTING/setup.cfg");
        ASSERT_TRUE(now == a || now == b) << "run " << run << ": " << now.size() << " bytes, neither record";
        (now == a ? sawA : sawB)++;
    }
    EXPECT_EQ(killedMidway, 240);
    EXPECT_GT(sawA, 0);
    EXPECT_GT(sawB, 0);

    // Leftovers of killed writes are swept by the next write.
    ASSERT_TRUE(small.saveData());
    for (const auto& e : fs::directory_iterator(card.file("SETTING")))
        EXPECT_EQ(e.path().filename(), "setup.cfg") << e.path();
}

TEST(CardWrites, ReadOnlyCardKeepsItsFileAndRaisesTheAlert) {
    TempCard card;
    const std::string original = test::recordNamed("M420", 596);  // loadData would cut it to 432
    card.write("SETTING/setup.cfg", original);
    card.write("SETTING/blackbox.cfg", "[blackbox]\r\nfront_led=1");
    pid_t pid = ::fork();
    ASSERT_GE(pid, 0);
    if (pid == 0) {
        // A private read-only bind mount of the card, seen by this child only.
        if (::geteuid() == 0) {
            if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
                ::mount(card.path().c_str(), card.path().c_str(), nullptr, MS_BIND, nullptr) != 0 ||
                ::mount(nullptr, card.path().c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) != 0)
                ::_exit(77);
        } else if (::chmod(card.file("SETTING").c_str(), 0555) != 0) {
            ::_exit(77);
        }
        CountingSink sink;
        setSettingsAlertSink(&sink);
        M420SettingManager& m = M420SettingManager::SharedM420SettingManager();
        m.setSettingDirPath(card.path());
        m.setModelType(1);
        m.loadData();
        const bool loadQuiet = sink.count == 0;
        m.saveData();
        bool m420Alerted = loadQuiet && sink.count == 1 && sink.title == kMemoryCardErrorTitleKey &&
                           sink.message == kMemoryCardErrorMessageKey && sink.button == "OK";
        KRTSettingManager& k = KRTSettingManager::SharedKRTSettingManager();
        k.loadData();
        k.setValueForKey("front_led=", "0");
        bool krtAlerted = !k.saveData() && sink.count == 2;
        ::_exit(m420Alerted && krtAlerted ? 0 : 1);
    }
    int status = 0;
    ::waitpid(pid, &status, 0);
    ::chmod(card.file("SETTING").c_str(), 0755);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == 77) GTEST_SKIP() << "cannot make a read-only card here";
    EXPECT_EQ(WEXITSTATUS(status), 0) << "no alert, or the write did not fail";
    EXPECT_EQ(card.read("SETTING/setup.cfg"), original);
    EXPECT_EQ(card.read("SETTING/blackbox.cfg"), "[blackbox]\r\nfront_led=1");
    EXPECT_EQ(std::distance(fs::directory_iterator(card.file("SETTING")), fs::directory_iterator()), 2);
}

TEST(CardWrites, HostileCardsGiveNeutralValues) {
    struct Case {
        const char* what;
        std::string bytes;
    };
    std::string mib = test::recordNamed("M420", 1 << 20, 7);
    test::putLe32(mib, 460, 9);
    const std::vector<Case> cases = {
        {"empty", ""}, {"random", randomBytes(5000, 1)}, {"random MiB", randomBytes(1 << 20, 2)},
        {"named MiB", mib}, {"three bytes", "M42"}, {"cut name", test::recordNamed("M420", 11, 0)}};
    for (const auto& c : cases) {
        TempCard card;
        card.write("SETTING/setup.cfg", c.bytes);
        card.write("SETTING/lang/ver.dat", randomBytes(70000, 3));
        M420SettingManager m;
        m.setSettingDirPath(card.path());
        const auto type = m.loadModelTypeWithSDPath(card.path());
        EXPECT_TRUE(type == -1 || (c.what == std::string("named MiB") && type == 1)) << c.what << " " << type;
        EXPECT_EQ(M420SettingManager::loadLocalIDWithSDPath(card.path()), -1) << c.what;
        m.setModelType(1);
        m.loadData();  // reads at most a record's worth
        ASSERT_TRUE(m.saveData());  // and the save writes this model's 432 bytes
        EXPECT_EQ(fs::file_size(card.file("SETTING/setup.cfg")), 432u) << c.what;
        EXPECT_EQ(m.languages(), (LanguageList{{0, "en"}, {1, "fr"}, {4, "es"}})) << c.what;
    }
    EXPECT_FALSE(M420SettingManager::loadVersionSDPath("/nonexistent/card"));

    // Junk that is valid text: one enormous line, and many tag look-alikes.
    TempCard card;
    card.write("SETTING/lang/ver.dat", std::string(500000, '#') + "\n" +
                                           std::string(20000, ' ') + "# Language ISO Code:" + std::string(5000, ' '));
    M420SettingManager m;
    m.setSettingDirPath(card.path());
    m.loadLanguages();
    EXPECT_EQ(m.languages(), (LanguageList{{0, ""}, {1, ""}}));
}
