#include "ui/settings/web/web_setting_window_controller.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWebChannel>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineScriptCollection>
#include <QWebEngineView>

#include "ui/base/graphics/software_pictures.h"

#include "core/settings/m420/settings_alert_sink.h"
#include "core/settings/web/web_page_scripts.h"
#include "ui/controls/image_button.h"
#include "ui/controls/image_names.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/settings/web/card_folder_request_guard.h"
#include "ui/settings/web/dashcam_page_script.h"
#include "ui/settings/web/web_dashcam.h"
#include "ui/settings/web/web_setting_page.h"

namespace tarvik {

namespace {

QPointer<WebSettingWindowController> g_instance;

constexpr int kMaxWaitingQuestions = 16;
constexpr qsizetype kMaxQuestionChars = 4096;

QString qs(const std::string& s) { return QString::fromStdString(s); }

QPushButton* textButton(const char* key, QWidget* parent) {
    auto* b = new QPushButton(tr_k(key), parent);
    b->setAutoDefault(false);  // Enter belongs to the page
    return b;
}

}  // namespace

WebSettingWindowController::WebSettingWindowController(const std::string& folder, LanguageList languages,
                                                       QWidget* parent)
    : QDialog(parent), files_(folder), languages_(std::move(languages)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr_k("블랙박스 설정"));
    resize(1000, 720);

    // A profile of its own, kept in memory: the card's page shares no
    // cookies, storage or cache with the map or with another card.
    profile_ = std::make_unique<QWebEngineProfile>();
    profile_->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
    profile_->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    guard_ = new CardFolderRequestGuard(qs(files_.htmlFolder()), this);
    profile_->setUrlRequestInterceptor(guard_);
    connect(profile_.get(), &QWebEngineProfile::downloadRequested, this,
            [](QWebEngineDownloadRequest* download) { download->cancel(); });

    page_ = new WebSettingPage(profile_.get(), *guard_, this);
    page_->scripts().insert(dashcamPageScript());
    webDashcam_ = new WebDashcam(this, this);
    channel_ = new QWebChannel(this);
    channel_->registerObject(QString::fromUtf8(kDashcamChannelName), webDashcam_);
    page_->setWebChannel(channel_);
    prepareWebViews();
    webView_ = new QWebEngineView(this);
    webView_->setPage(page_);
    webView_->setContextMenuPolicy(Qt::NoContextMenu);
    connect(page_, &QWebEnginePage::loadFinished, this, [this](bool ok) {
        if (ok) startWebBrowserConnection();
    });

    auto* back = new ImageButton(QString::fromUtf8(images::kBackButton), this);
    back->setFocusPolicy(Qt::NoFocus);
    backButton_ = back;
    resetButton_ = textButton("설정값 초기화", this);
    formatButton_ = textButton("메모리 카드 포멧", this);
    cancelButton_ = textButton("취소", this);
    saveButton_ = textButton("저장", this);
    backButton_->hide();

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(backButton_);
    buttons->addStretch(1);
    buttons->addWidget(resetButton_);
    buttons->addWidget(formatButton_);
    buttons->addSpacing(24);
    buttons->addWidget(cancelButton_);
    buttons->addWidget(saveButton_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 8);
    layout->addWidget(webView_, 1);
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(12, 0, 12, 0);
    bar->addLayout(buttons);
    layout->addLayout(bar);

    connect(backButton_, &QAbstractButton::clicked, this, &WebSettingWindowController::onBtnBack);
    connect(resetButton_, &QPushButton::clicked, this, &WebSettingWindowController::onBtnReset);
    connect(formatButton_, &QPushButton::clicked, this, &WebSettingWindowController::askFormat);
    connect(cancelButton_, &QPushButton::clicked, this, &WebSettingWindowController::onBtnCancel);
    connect(saveButton_, &QPushButton::clicked, this, &WebSettingWindowController::onBtnSave);
    // Window-wide, so they work while the focus is in the page, which keeps
    // the keys it does not use to itself.
    auto* save = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_S), this);
    connect(save, &QShortcut::activated, this, &WebSettingWindowController::onBtnSave);
    auto* cancel = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(cancel, &QShortcut::activated, this, &WebSettingWindowController::onBtnCancel);

    // Every character of the card's path escaped as a URL needs it, so a
    // mount point with a blank, '#' or '%' still finds the page.
    webView_->setUrl(QUrl::fromLocalFile(qs(files_.indexHtmlFilename())));
}

WebSettingWindowController::~WebSettingWindowController() {
    // The page must go before its profile.
    delete webView_;
    delete page_;
}

WebSettingWindowController* WebSettingWindowController::instance() { return g_instance; }

void WebSettingWindowController::centerInWindow(const QWidget* window) {
    if (!window) return;
    const QRect outer = window->frameGeometry();
    move(outer.center() - QPoint(width() / 2, height() / 2));
}

void WebSettingWindowController::beginModal() {
    g_instance = this;
    setWindowModality(Qt::ApplicationModal);
    show();
}

void WebSettingWindowController::done(int result) {
    endModalSession();
    QDialog::done(result);
}

void WebSettingWindowController::endModalSession() {
    if (g_instance == this) g_instance = nullptr;
}

void WebSettingWindowController::evaluate(const std::string& script) {
    page_->runJavaScript(qs(script), [](const QVariant&) {});
}

void WebSettingWindowController::startWebBrowserConnection() {
    if (didLoadHtml_) return;
    didLoadHtml_ = true;
    page_->blockNavigation();

    QPointer<WebSettingWindowController> self(this);
    page_->runJavaScript(QString::fromUtf8(webscript::kModelName), [self](const QVariant& v) {
        if (self) self->modelName_ = v.toString();
    });
    page_->runJavaScript(QString::fromUtf8(webscript::kModelCfgSize), [self](const QVariant& v) {
        if (self) self->cfgSize_ = v.toInt();
    });
    const std::string hex = files_.cfgString();
    evaluate(webscript::setCfg(hex));
    evaluate(webscript::setParamLanguage(languages_));
    // A short record or an index the card does not list selects nothing.
    if (const auto code = webscript::selectedLanguageCode(hex, languages_)) evaluate(webscript::setLanguage(*code));

    const auto time = files_.readTimeCorrection();
    websettingDateTimeUse_ = time.has_value();
    if (!time) return;
    websetting_ = *time;
    evaluate(webscript::setTimeDate(time->date));
    evaluate(webscript::setTimeHour(time->hour));
    evaluate(webscript::setTimeMin(time->minute));
}

void WebSettingWindowController::showTabs(bool show) {
    evaluate(webscript::generateSetting(show));
    backButton_->hide();
}

void WebSettingWindowController::clickedList() { backButton_->show(); }

void WebSettingWindowController::resetCfg() {
    evaluate(webscript::setCfg(files_.defaultCfgString()));
    showTabs(true);
}

void WebSettingWindowController::adasreset() { files_.removeAdasFile(); }

void WebSettingWindowController::saveConfig() {
    if (saving_) return;
    saving_ = true;
    saveButton_->setEnabled(false);
    QPointer<WebSettingWindowController> self(this);
    page_->runJavaScript(QString::fromUtf8(webscript::kGetCfg), [self](const QVariant& v) {
        if (!self) return;  // cancelled while the page was answering: nothing is written
        // Anything but text (undefined, a number, an object) is no settings record.
        const std::string hex = v.typeId() == QMetaType::QString ? v.toString().toStdString() : std::string();
        std::optional<WebTimeCorrection> time;
        if (self->websettingDateTimeUse_) time = self->websetting_;
        const bool saved = self->files_.save(hex, time) == WebSaveResult::Saved;
        self->saving_ = false;
        self->saveButton_->setEnabled(true);
        if (!saved) raiseMemoryCardAlert();
        if (!self) return;
        emit self->saveFinished(saved);
        if (saved) self->accept();
    });
}

void WebSettingWindowController::showPopup(const QString& tabSeparated) {
    const auto q = WebUserQuestion::parse(tabSeparated.left(kMaxQuestionChars).toStdString());
    if (!q) return;
    // A page that keeps asking gets refusals rather than an endless queue.
    if (questions_.size() >= kMaxWaitingQuestions) {
        evaluate(webscript::updateCancel(q->index));
        return;
    }
    questions_.append(*q);
    if (!yesNoAlert_) showNextQuestion();
}

void WebSettingWindowController::showNextQuestion() {
    if (questions_.isEmpty()) return;
    const WebUserQuestion q = questions_.takeFirst();
    auto* box = new QMessageBox(QMessageBox::Information, qs(q.title), qs(q.message), QMessageBox::NoButton, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    QAbstractButton* first = nullptr;
    if (q.asksYesNo()) {
        // One role for both, so that no platform layout reorders "No", "Yes".
        first = box->addButton(tr_k("아니오"), QMessageBox::ActionRole);
        box->addButton(tr_k("예"), QMessageBox::ActionRole);
    } else {
        first = box->addButton(tr_k("확인"), QMessageBox::ActionRole);
    }
    box->setEscapeButton(first);
    // The first button (and so the only one of a one-button question) refuses.
    connect(box, &QMessageBox::finished, this, [this, box, first, q] {
        const QAbstractButton* clicked = box->clickedButton();
        answerQuestion(q, clicked && clicked != first);
        QMetaObject::invokeMethod(this, &WebSettingWindowController::showNextQuestion, Qt::QueuedConnection);
        // Without a window manager to hand it back, the keyboard would stay
        // with the closed question, and Ctrl+S or Escape would reach nobody.
        QMetaObject::invokeMethod(this, [this] {
            if (yesNoAlert_) return;
            activateWindow();
            webView_->setFocus(Qt::OtherFocusReason);
        }, Qt::QueuedConnection);
    });
    yesNoAlert_ = box;
    box->open();
}

void WebSettingWindowController::answerQuestion(const WebUserQuestion& q, bool agreed) {
    yesNoAlert_ = nullptr;
    evaluate(agreed ? webscript::updateOk(q.index, q.value) : webscript::updateCancel(q.index));
}

}  // namespace tarvik
