#pragma once
// Every text the viewer shows in its own panes is looked up here by its
// Korean key, in the table of the language the user chose.

#include <QString>

#include <memory>

namespace tarvik {

class OrvoLanguages {
public:
    static OrvoLanguages& shared();

    // The text for `key` in the current language. The language is read from
    // the preferences on every call, so a change shows on the next lookup.
    // A key the table lacks, or a language without a table, gives the key
    // itself: a Korean label is better than a blank button.
    QString localized(const QString& key) const;
    QString localized(const char* utf8Key) const;
    // A text that counts ("%n clips"): the table's form for n, with n in
    // place of %n, so that each language says "1 clip" its own way.
    QString localized(const char* utf8Key, int n) const;

    // The first entry of "AppleLanguages", or empty when there is none.
    static QString currentLanguageCode();
    // Whether the viewer ships a table for `code`.
    static bool hasTable(const QString& code);
    // The resource path of the compiled table for `code`.
    static QString tablePath(const QString& code);

    OrvoLanguages(const OrvoLanguages&) = delete;
    OrvoLanguages& operator=(const OrvoLanguages&) = delete;

private:
    OrvoLanguages();
    ~OrvoLanguages();

    struct Tables;
    std::unique_ptr<Tables> tables_;
};

inline OrvoLanguages& SharedOrvoLanguages() { return OrvoLanguages::shared(); }

// Shorthand for widgets: the localised text of a key.
inline QString tr_k(const char* utf8Key) { return OrvoLanguages::shared().localized(utf8Key); }
inline QString tr_k(const QString& key) { return OrvoLanguages::shared().localized(key); }
inline QString tr_k(const char* utf8Key, int n) { return OrvoLanguages::shared().localized(utf8Key, n); }

}  // namespace tarvik
