#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

#include <sys/stat.h>

#include "core/l10n/language_code.h"
#include "core/settings/m420/settings_alert_sink.h"
#include "ui/base/prefs/qsettings_store.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/settings/web/web_setting_window_controller.h"

using namespace tarvik;

namespace {

struct RecordingSink : SettingsAlertSink {
    int alerts = 0;
    void showSettingsAlert(const std::string&, const std::string&, const std::string&) override { ++alerts; }
};

QByteArray record(int length, quint32 languageIndex) {
    QByteArray b(length, '\0');
    for (int i = 0; i < length; ++i) b[i] = char(0xa0 + i % 31);  // letters in the hex text
    if (length >= 432)
        for (int k = 0; k < 4; ++k) b[428 + k] = char(languageIndex >> (8 * k));
    return b;
}

QString hexOf(const QByteArray& b) {
    return QString::fromStdString(hexStringFromData(reinterpret_cast<const std::uint8_t*>(b.constData()), b.size()));
}

QByteArray readAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

// A card root (with blanks and URL characters in its path) holding the test camera page.
struct Card {
    QTemporaryDir tmp;
    QString root = tmp.path() + "/my card  #2%20";
    QString setting(const char* name) const { return root + "/SETTING/" + name; }
    Card() {
        const QString from = TARVIK_SOURCE_DIR "/tests/ui/settings/web/fixtures/camera_page/";
        for (const char* f : {"index.html", "style.css", "data.txt"}) writeFile(setting("html/") + f, readAll(from + f));
    }
    // Every file under SETTING with its bytes.
    QMap<QString, QByteArray> snapshot() const {
        QMap<QString, QByteArray> all;
        QDirIterator it(root + "/SETTING", QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString p = it.next();
            all.insert(p, readAll(p));
        }
        return all;
    }
};

QVariant js(WebSettingWindowController* w, const QString& script) {
    QVariant out;
    bool done = false;
    w->webView()->page()->runJavaScript(script, [&](const QVariant& v) {
        out = v;
        done = true;
    });
    if (!QTest::qWaitFor([&] { return done; }, 10000)) qWarning("page did not answer %s", qPrintable(script));
    return out;
}

QStringList received(WebSettingWindowController* w) {
    QStringList list;
    for (const auto& v : QJsonDocument::fromJson(js(w, "JSON.stringify(received)").toString().toUtf8()).array())
        list << v.toString();
    return list;
}

bool waitReceived(WebSettingWindowController* w, const QString& entry) {
    return QTest::qWaitFor([&] { return received(w).contains(entry); }, 15000);
}

WebSettingWindowController* open(const Card& card, LanguageList languages) {
    auto* w = new WebSettingWindowController(card.root.toStdString(), std::move(languages));
    w->beginModal();
    QTest::qWaitFor([&] { return w->didLoadHtml(); }, 20000);
    return w;
}

QMessageBox* waitQuestion(WebSettingWindowController* w) {
    QMessageBox* box = nullptr;
    QTest::qWaitFor([&] { return (box = w->findChild<QMessageBox*>()) && box->isVisible(); }, 5000);
    return box;
}

// Buttons as the user sees them, left to right.
QList<QAbstractButton*> shownButtons(QMessageBox* box) {
    QList<QAbstractButton*> list = box->buttons();
    std::sort(list.begin(), list.end(), [box](QAbstractButton* a, QAbstractButton* b) {
        return a->mapTo(box, QPoint()).x() < b->mapTo(box, QPoint()).x();
    });
    return list;
}

QStringList buttonTexts(QMessageBox* box) {
    QStringList texts;
    for (auto* b : shownButtons(box)) texts << b->text();
    return texts;
}

ino_t inode(const QString& path) {
    struct stat st {};
    ::stat(QFile::encodeName(path).constData(), &st);
    return st.st_ino;
}

}  // namespace

class TestWebSettingWindow : public QObject {
    Q_OBJECT
    RecordingSink sink_;

private slots:
    void initTestCase() {
        setSettingsAlertSink(&sink_);
        QSettingsStore::shared().setStringList("AppleLanguages", {"en"});
    }
    void cleanupTestCase() { setSettingsAlertSink(nullptr); }

    void connectsAnswersQuestionsResistsThePageAndSaves() {
        Card card;
        const QByteArray cfg = record(464, 2);
        writeFile(card.setting("setup.cfg"), cfg);
        writeFile(card.setting("time.dat"), "2016,05,20,13,45,00,+0900");
        writeFile(card.setting("ADAS_CAL.dat"), "calibration");

        // Opened from the settings button, centred and alone: the opening test's.
        auto* w = open(card, {{0, "en"}, {1, "fr"}, {2, "ja"}});
        QVERIFY(w->didLoadHtml());

        // What the page is handed, in order; languageSetComplete, called from
        // inside set_language, is answered only after that call returned.
        QVERIFY(waitReceived(w, "tabs:false"));
        QCOMPARE(received(w), QStringList({"name", "cfgSize", "set_cfg:928", R"(langs:["en","fr","ja"])", "lang:ja",
                                           "date:2016,05,20", "hour:13", "min:45", "tabs:false"}));
        QCOMPARE(js(w, "cfgHex").toString(), hexOf(cfg));
        QVERIFY(hexOf(cfg).contains("AB") && hexOf(cfg) == hexOf(cfg).toUpper());
        QVERIFY(QTest::qWaitFor([&] { return w->cfgSize() == 464; }, 5000));
        QCOMPARE(w->modelName(), QString("TESTCAM-N1"));
        QVERIFY(w->websettingDateTimeUse());
        // adasreset, called while the page was still loading, was kept and delivered.
        QVERIFY(QTest::qWaitFor([&] { return !QFile::exists(card.setting("ADAS_CAL.dat")); }, 5000));

        // A second docLoadComplete sends nothing.
        js(w, "Dashcam.docLoadComplete(); Dashcam.clickedList()");
        QVERIFY(QTest::qWaitFor([&] { return w->backButton()->isVisible(); }, 5000));
        QTest::qWait(300);
        QCOMPARE(received(w).count("set_cfg:928"), 1);
        QCOMPARE(received(w).size(), 9);
        w->backButton()->click();
        QVERIFY(waitReceived(w, "tabs:true"));
        QVERIFY(!w->backButton()->isVisible());

        // Questions: one button always refuses; of two, the second agrees.
        js(w, R"(Dashcam.userNoti("Notice\tOne button\t7\tv\t1"))");
        QMessageBox* box = waitQuestion(w);
        QVERIFY(box);
        QCOMPARE(buttonTexts(box), QStringList{tr_k("확인")});
        QCOMPARE(box->text(), QString("One button"));
        box->buttons().first()->click();
        QVERIFY(waitReceived(w, "cancel:7"));
        js(w, R"(Dashcam.userNoti('Q\tSure?\t3\tfast "x"\t2'); Dashcam.userNoti('Q\tAgain?\t4\tslow\t2'); Dashcam.userNoti('too\tfew'))");
        QVERIFY(box = waitQuestion(w));
        QCOMPARE(buttonTexts(box), QStringList({tr_k("아니오"), tr_k("예")}));
        shownButtons(box).at(1)->click();
        QVERIFY(waitReceived(w, R"(ok:3:fast "x")"));
        QVERIFY(QTest::qWaitFor([&] { return (box = w->findChild<QMessageBox*>()) && box->text() == "Again?"; }, 5000));
        shownButtons(box).at(0)->click();
        QVERIFY(waitReceived(w, "cancel:4"));
        // The keyboard is back with the settings window once the last question closed.
        QTRY_VERIFY_WITH_TIMEOUT(QApplication::focusWidget() && QApplication::focusWidget()->window() == w, 10000);

        // The page reaches nothing beyond its own folder and cannot leave.
        QVERIFY(QFile::link("/etc/passwd", card.setting("html/link.txt")));  // a way out planted on the card
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        int connections = 0;
        connect(&server, &QTcpServer::newConnection, [&] { ++connections; });
        const int before = received(w).size();
        js(w, QString("tryEverything(%1)").arg(server.serverPort()));
        QVERIFY(QTest::qWaitFor([&] { return js(w, "attack.done === true && attack.http !== undefined && attack.img !== undefined").toBool(); }, 10000));
        QCOMPARE(js(w, "JSON.stringify(attack)").toString(),
                 QString(R"({"passwd":"blocked","own":"camera page data","link":"blocked","popup":"blocked","http":"blocked","img":"blocked","done":true})"));
        QCOMPARE(connections, 0);
        QDirIterator downloads(QDir::homePath(), {"stolen*"}, QDir::Files, QDirIterator::Subdirectories);
        QVERIFY(!downloads.hasNext());
        QCOMPARE(received(w).size(), before);  // same document, nothing reloaded
        QVERIFY(w->webView()->url().toLocalFile().endsWith("/my card  #2%20/SETTING/html/index.html"));
        js(w, "location.hash = 'recording'");  // moving within the page stays allowed
        QVERIFY(QTest::qWaitFor([&] { return w->webView()->url().fragment() == "recording"; }, 5000));
        QCOMPARE(received(w).size(), before);

        // The page's date settings and its edited record, saved with Ctrl+S.
        js(w, R"(Dashcam["setdate:use"]("1"); Dashcam.setdate("2016/05/20"); Dashcam["setdate:hour"]("08");)"
              R"(Dashcam["setdate:min"]("05"); Dashcam["setdate:ampm"]("pm"); Dashcam.format(); cfgReply = "0aFF";)");
        QTest::qWait(200);
        const ino_t oldInode = inode(card.setting("setup.cfg"));
        QPointer<WebSettingWindowController> guard(w);
        // Without a window manager activation can be lost under load: ask again until it holds.
        QVERIFY(QTest::qWaitFor([&] { w->activateWindow(); return QApplication::activeWindow() == w; }, 20000));
        QTest::keyClick(w->webView()->focusProxy() ? w->webView()->focusProxy() : w, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(QTest::qWaitFor([&] { return guard.isNull(); }, 10000));
        QVERIFY(!WebSettingWindowController::instance());
        QCOMPARE(readAll(card.setting("setup.cfg")), QByteArray("\x0a\xff", 2));
        QVERIFY(inode(card.setting("setup.cfg")) != oldInode);  // replaced, not rewritten in place
        QCOMPARE(readAll(card.setting("time.dat")), QByteArray("2016,05,20,08,05,00,+0900"));
        QCOMPARE(sink_.alerts, 0);
    }

    void brokenPageResetAndCancelLeaveTheCardAlone() {
        Card card;
        writeFile(card.setting("setup.cfg"), record(464, 0));
        writeFile(card.setting("default.cfg"), record(440, 1).replace(0, 2, "\x01\x02"));
        const auto before = card.snapshot();
        const int alerts = sink_.alerts;

        auto* w = open(card, {});
        QVERIFY(waitReceived(w, "langs:[]"));
        QTest::qWait(300);
        // No languages: index 0 selects nothing; no time.dat: no time.
        QCOMPARE(received(w), QStringList({"name", "cfgSize", "set_cfg:928", "langs:[]"}));
        QVERIFY(!w->websettingDateTimeUse());

        QSignalSpy saved(w, &WebSettingWindowController::saveFinished);
        js(w, "cfgReply = undefined");
        w->saveButton()->click();
        QVERIFY(saved.wait(5000));
        QCOMPARE(saved.first().first().toBool(), false);
        QCOMPARE(sink_.alerts, alerts + 1);
        QCOMPARE(WebSettingWindowController::instance(), w);  // still open to cancel or retry
        QCOMPARE(card.snapshot(), before);

        js(w, "cfgReply = 12345");
        w->saveButton()->click();
        QVERIFY(saved.wait(5000));
        QCOMPARE(sink_.alerts, alerts + 2);

        w->resetButton()->click();
        QVERIFY(waitReceived(w, "tabs:true"));
        QVERIFY(received(w).contains("set_cfg:880"));
        QVERIFY(js(w, "cfgHex").toString().startsWith("0102"));

        QSignalSpy format(w, &WebSettingWindowController::formatRequested);
        w->formatButton()->click();
        js(w, "Dashcam.askFormat()");
        QVERIFY(QTest::qWaitFor([&] { return format.size() == 2; }, 5000));

        QPointer<WebSettingWindowController> guard(w);
        // Without a window manager activation can be lost under load: ask again until it holds.
        QVERIFY(QTest::qWaitFor([&] { w->activateWindow(); return QApplication::activeWindow() == w; }, 20000));
        // Escape typed into the page cancels.
        QTest::keyClick(w->webView()->focusProxy() ? w->webView()->focusProxy() : w, Qt::Key_Escape);
        QVERIFY(QTest::qWaitFor([&] { return guard.isNull(); }, 5000));
        QCOMPARE(card.snapshot(), before);
    }

    // Once connected, the page stays whatever it asks for: the viewer's
    // settings live in that document, and Save asks it for them.
    void hostilePageCannotNavigateAway() {
        Card card;
        writeFile(card.setting("setup.cfg"), record(464, 0));
        writeFile(card.setting("html/other.html"), "<html><body>other</body></html>");
        auto* w = open(card, {});
        QVERIFY(waitReceived(w, "langs:[]"));
        js(w, "window.marker = 'still here'");
        const QUrl page = w->webView()->url();
        const QStringList attempts = {
            "location.href = 'about:blank'",
            "location.href = 'data:text/html,<p>gone</p>'",
            "location.href = 'javascript:\\'<p>gone</p>\\''",
            "location.href = 'javascript:window.ran = 1'",
            "location.href = URL.createObjectURL(new Blob(['<p>gone</p>'], {type: 'text/html'}))",
            "location.reload()",
            "location.href = 'other.html'",
            "location.replace('other.html')",
            "history.pushState({}, '', 'other.html'); history.back()",
            "history.go(-1)",
            "var f = document.createElement('form'); f.action = 'other.html'; document.body.appendChild(f); f.submit()",
            "document.open(); document.write('<p>gone</p>'); document.close()",
            "window.open('about:blank', '_self')",
        };
        QStringList failed;
        for (const QString& attempt : attempts) {
            js(w, "setTimeout(function () { " + attempt + " }, 0)");
            QTest::qWait(400);
            if (js(w, "window.marker").toString() != "still here" ||
                w->webView()->url().adjusted(QUrl::RemoveFragment | QUrl::RemoveQuery) != page) {
                failed << attempt + " -> " + w->webView()->url().toString();
                break;  // the page is gone: what follows would say nothing
            }
        }
        QVERIFY2(failed.isEmpty(), qPrintable(failed.join("\n")));
        QCOMPARE(js(w, "window.ran").toInt(), 1);  // a javascript: link still runs its script
        QSignalSpy saved(w, &WebSettingWindowController::saveFinished);
        js(w, "cfgReply = '0aff'");
        w->saveButton()->click();
        QVERIFY(saved.wait(5000));
        QCOMPARE(saved.first().first().toBool(), true);
        QCOMPARE(readAll(card.setting("setup.cfg")), QByteArray("\x0a\xff", 2));
    }

    void oneLanguageShortRecord() {
        Card card;
        writeFile(card.setting("setup.cfg"), record(431, 0));
        writeFile(card.setting("time.dat"), "2020,01,02,03,04,00,+0900");
        auto* w = open(card, {{0, "en"}});
        QVERIFY(waitReceived(w, "min:04"));
        // Too short to hold the language index: set_language is skipped, the time still comes.
        QCOMPARE(received(w), QStringList({"name", "cfgSize", "set_cfg:862", R"(langs:["en"])", "date:2020,01,02",
                                           "hour:03", "min:04"}));
        QPointer<WebSettingWindowController> guard(w);
        w->cancelButton()->click();
        QVERIFY(!WebSettingWindowController::instance());
        QVERIFY(QTest::qWaitFor([&] { return guard.isNull(); }, 5000));
        QCOMPARE(readAll(card.setting("setup.cfg")), record(431, 0));
    }
};

QTEST_MAIN(TestWebSettingWindow)
#include "test_web_setting_window.moc"
