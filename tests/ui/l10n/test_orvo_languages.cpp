#include <QFile>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

#include "core/l10n/localization_keys.h"
#include "ui/base/prefs/qsettings_store.h"
#include "ui/l10n/orvo_languages.h"

using tarvik::OrvoLanguages;
using tarvik::tr_k;

namespace {

void setLanguages(const std::vector<std::string>& codes) {
    tarvik::QSettingsStore::shared().setStringList("AppleLanguages", codes);
}

QStringList sourcesOf(const QString& tsPath) {
    QFile file(tsPath);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QStringList sources;
    QXmlStreamReader xml(&file);
    while (xml.readNextStartElement() || !xml.atEnd()) {
        if (xml.isStartElement() && xml.name() == u"source") sources << xml.readElementText();
        else xml.readNext();
    }
    return sources;
}

const QStringList kShipped = {"en", "fr", "ja", "pt"};

}  // namespace

class TestOrvoLanguages : public QObject {
    Q_OBJECT
private slots:
    // The first preferred language with a table wins, at once; anything else
    // (no table, a path, a case or region variant, nothing) shows the key.
    void lookupFollowsTheFirstPreferredLanguageAtOnce() {
        struct Case { std::vector<std::string> codes; QString text; };
        for (const Case& c : {Case{{"fr", "en"}, "Annuler"}, {{"ja"}, "キャンセル"}, {{"de"}, "취소"},
                              {{"ko"}, "취소"}, {{"xx", "en"}, "취소"}, {{"pt_BR"}, "취소"}, {{"EN"}, "취소"},
                              {{"../i18n/tarvik_en"}, "취소"}, {{""}, "취소"}, {{}, "취소"}}) {
            setLanguages(c.codes);
            QCOMPARE(tr_k("취소"), c.text);
        }
        tarvik::QSettingsStore::shared().setString("AppleLanguages", "fr");
        QCOMPARE(tr_k("취소"), QString("Annuler"));  // a lone string reads as a one-entry list

        setLanguages({"en"});
        QCOMPARE(tr_k("없는 키"), QString("없는 키"));
        // Near misses are different keys: the engine-off texts keep their
        // unclosed parenthesis, the time-zone texts their double blank.
        QCOMPARE(tr_k("(시동이 꺼지면 블랙박스를 종료합니다)"), QString("(시동이 꺼지면 블랙박스를 종료합니다)"));
        QVERIFY(tr_k(tarvik::keys::kEngineOffShutdown) != QString(tarvik::keys::kEngineOffShutdown));
        QVERIFY(tr_k("(UTC-04:00) Atlantic  Standard Time (Canada)").startsWith("(UTC-04:00) Atlantic Standard"));
        QCOMPARE(tr_k("(UTC-04:00) Atlantic Standard Time (Canada)"),
                 QString("(UTC-04:00) Atlantic Standard Time (Canada)"));
    }

    void everyEnglishKeyIsTranslatedInEveryLanguage() {
        const QString dir = QStringLiteral(TARVIK_SOURCE_DIR "/resources/translations/");
        const QStringList keys = sourcesOf(dir + "tarvik_en.ts");
        QVERIFY(keys.size() >= 80);
        QCOMPARE(QSet<QString>(keys.begin(), keys.end()).size(), keys.size());
        for (const QString& code : kShipped) {
            QTranslator table;
            QVERIFY(table.load(OrvoLanguages::tablePath(code)));
            QCOMPARE(sourcesOf(dir + "tarvik_" + code + ".ts").size(), keys.size());
            for (const QString& key : keys) {
                QString text = table.translate("Localizable_M420", key.toUtf8().constData());
                QVERIFY2(!text.trimmed().isEmpty(), qPrintable(code + ": " + key));
            }
        }
    }

    // "1 things" never: each language counts with its own forms.
    void countedTextsTakeEachLanguagesForms() {
        struct Case {
            std::string language;
            int n;
            const char* key;
            QString text;
        };
        for (const Case& c : {Case{"en", 1, "%n clips", "1 clip"}, Case{"en", 2, "%n clips", "2 clips"},
                              Case{"en", 1, "%n things need attention", "1 thing needs attention"},
                              Case{"en", 3, "%n things need attention", "3 things need attention"},
                              Case{"fr", 0, "%n trips", "0 trajet"}, Case{"fr", 1, "%n trips", "1 trajet"},
                              Case{"fr", 2, "%n trips", "2 trajets"}, Case{"pt", 1, "%n notes", "1 observação"},
                              Case{"pt", 5, "%n notes", "5 observações"}, Case{"ja", 1, "%n clips", "動画 1 本"},
                              Case{"ja", 7, "%n clips", "動画 7 本"}}) {
            setLanguages({c.language});
            QCOMPARE(tr_k(c.key, c.n), c.text);
        }
        setLanguages({"de"});  // no table: the key, counted
        QCOMPARE(tr_k("%n clips", 4), QString("4 clips"));
    }

    // The keys the core names must be in every table; those with a CR LF
    // have no entry without the CR.
    void sharedKeyConstantsAreAllInTheTables() {
        using namespace tarvik::keys;
        const char* all[] = {kFormatTitle, kFormatConfirm, kFormatInProgress, kFormatCompleted,
                             kFormatRefused, kFormatFailed, kTouchResetTitle, kTouchResetConfirm,
                             kParkingModeTitle, kParkingModeOff, kParkingMotionChosen, kTimeLapseChosen,
                             kModelUnreadable, kEngineOffParking, kEngineOffShutdown, kCardErrorTitle,
                             kCardCheckMessage, kUnsupportedVideo};
        for (const QString& code : kShipped) {
            setLanguages({code.toStdString()});
            for (const char* key : all) {
                QVERIFY2(tr_k(key) != QString(key), qPrintable(code + ": " + key));
                const QString lfOnly = QString(key).replace("\r\n", "\n");
                if (lfOnly != key) QCOMPARE(tr_k(lfOnly), lfOnly);
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestOrvoLanguages)
#include "test_orvo_languages.moc"
