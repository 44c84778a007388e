#include "ui/shell/main_window_layout.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QSlider>
#include <QStackedLayout>
#include <QTableView>
#include <QVBoxLayout>

#include "ui/shell/main_window.h"
#include "ui/controls/absolute_click_style.h"
#include "ui/controls/image_button.h"
#include "ui/controls/image_library.h"
#include "ui/l10n/orvo_languages.h"

namespace tarvik {

namespace {

constexpr int kClipPanelWidth = 340;

ImageButton* button(QWidget* parent, const char* image, const char* name, QSize size = {}) {
    auto* b = new ImageButton(QString::fromLatin1(image), parent);
    b->setObjectName(QString::fromLatin1(name));
    b->setFocusPolicy(Qt::NoFocus);  // keys belong to the window's key table
    if (size.isValid()) b->setFixedSize(size);
    return b;
}

QLabel* text(QWidget* parent, const char* name, const QString& initial = {}) {
    auto* l = new QLabel(initial, parent);
    l->setObjectName(QString::fromLatin1(name));
    return l;
}

QLabel* image(QWidget* parent, const char* imageName, const char* name) {
    auto* l = new QLabel(parent);
    l->setObjectName(QString::fromLatin1(name));
    l->setPixmap(ImageLibrary::pixmap(QString::fromLatin1(imageName)));
    l->adjustSize();
    return l;
}

QWidget* panel(QWidget* parent, const char* name, const char* style) {
    auto* w = new QWidget(parent);
    w->setObjectName(QString::fromLatin1(name));
    w->setAttribute(Qt::WA_StyledBackground, true);
    w->setStyleSheet(QString("#%1 { %2 }").arg(name, style));
    return w;
}

void buildTitleStrip(MainWindowViews& v, QWidget* strip) {
    auto* h = new QHBoxLayout(strip);
    h->setContentsMargins(12, 0, 8, 0);
    h->setSpacing(10);
    auto* logo = image(strip, "tarvik_viewer_icon", "appLogo");
    logo->setPixmap(ImageLibrary::pixmap("tarvik_viewer_icon", QSize(22, 22)));
    h->addWidget(logo);
    auto* name = text(strip, "appName", "Tarvik Viewer");
    name->setStyleSheet("font-weight: 600; color: #e6e8eb;");
    h->addWidget(name);
    v.mainMenu = new QMenuBar(strip);
    v.mainMenu->setNativeMenuBar(false);
    v.appMenu = v.mainMenu->addMenu("Tarvik Viewer");
    v.quitMenuItem = v.appMenu->addAction("Quit");
    v.quitMenuItem->setShortcut(QKeySequence::Quit);
    v.quitMenuItem->setShortcutContext(Qt::ApplicationShortcut);
    h->addWidget(v.mainMenu, 0, Qt::AlignVCenter);
    h->addStretch(1);
    v.modelTextField = text(strip, "modelTextField");
    v.modelTextField->setStyleSheet("color: white; font-weight: 600;");
    h->addWidget(v.modelTextField);
    v.settingsButton = button(strip, "settings_btn_1", "settingsButton", QSize(28, 28));
    h->addWidget(v.settingsButton);
    // The maker's link leads nowhere the viewer can vouch for: the button is
    // kept for the code that refers to it, but never shown.
    v.goHomepageButton = button(strip, "brand_link_norvane1", "goHomepageButton");
    v.goHomepageButton->hide();
    v.mainVersionLabel = text(strip, "mainVersionLabel");
    v.mainVersionLabel->setStyleSheet("color: #80858c;");
    h->addWidget(v.mainVersionLabel);
    v.appMinimizeButton = button(strip, "app_minimize_btn_1", "appMinimizeButton", QSize(28, 28));
    v.appExitButton = button(strip, "app_close_btn_1", "appExitButton", QSize(28, 28));
    h->addWidget(v.appMinimizeButton);
    h->addWidget(v.appExitButton);
}

QWidget* buildClipPanel(MainWindowViews& v, QWidget* parent) {
    auto* p = panel(parent, "fileListControlView_OEM", "background: #131518; border-right: 1px solid #25282e;");
    v.fileListControlView_OEM = p;
    auto* col = new QVBoxLayout(p);
    col->setContentsMargins(10, 10, 10, 10);
    col->setSpacing(8);

    auto* filters = new QHBoxLayout;
    filters->setSpacing(0);
    v.fileListAllButton_OEM = button(p, "sorting_btn_60_1", "fileListAllButton_OEM");
    v.fileListAlwaysButton_OEM = button(p, "sorting_btn_60_1", "fileListAlwaysButton_OEM");
    v.fileListMotionButton_OEM = button(p, "sorting_btn_60_1", "fileListMotionButton_OEM");
    v.fileListEventButton_OEM = button(p, "sorting_btn_60_1", "fileListEventButton_OEM");
    v.fileListManualButton_OEM = button(p, "sorting_btn_60_1", "fileListManualButton_OEM");
    for (auto* b : {v.fileListAllButton_OEM, v.fileListAlwaysButton_OEM, v.fileListMotionButton_OEM,
                    v.fileListEventButton_OEM, v.fileListManualButton_OEM}) {
        b->setCheckable(false);
        b->setFixedHeight(26);
        b->setMinimumWidth(60);
        b->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        b->setStyleSheet("font-size: 11px;");
        filters->addWidget(b, 1);
    }
    col->addLayout(filters);

    v.selectedDirTextField_OEM = text(p, "selectedDirTextField_OEM");
    v.selectedDirTextField_OEM->setStyleSheet("color: #9aa0a8; font-size: 11px;");
    v.selectedDirTextField_OEM->setTextInteractionFlags(Qt::TextSelectableByMouse);
    v.selectedDirTextField_OEM->setMinimumWidth(10);
    col->addWidget(v.selectedDirTextField_OEM);

    auto* table = new QTableView(p);
    table->setObjectName("fileListTableView");
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->setDefaultSectionSize(24);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->setWordWrap(false);
    table->setTextElideMode(Qt::ElideMiddle);
    v.fileListTableView = table;
    col->addWidget(table, 1);

    auto* actions = new QHBoxLayout;
    v.selectFolderButton = button(p, "folder_open_btn_1", "selectFolderButton", QSize(32, 32));
    v.saveFileButton = button(p, "save_btn_1", "saveFileButton", QSize(32, 32));
    v.fileListRemoveButton_OEM = button(p, "remove_btn_1", "fileListRemoveButton_OEM", QSize(32, 32));
    actions->addWidget(v.selectFolderButton);
    actions->addStretch(1);
    actions->addWidget(v.saveFileButton);
    actions->addWidget(v.fileListRemoveButton_OEM);
    col->addLayout(actions);
    return p;
}

// A player with its cover image stacked in front of it.
QWidget* coveredPlayer(QWidget* parent, QWidget* player, QLabel* cover) {
    auto* frame = new QWidget(parent);
    auto* stack = new QStackedLayout(frame);
    stack->setStackingMode(QStackedLayout::StackAll);
    stack->addWidget(cover);
    stack->addWidget(player);
    cover->setAlignment(Qt::AlignCenter);
    cover->setStyleSheet("background: #0f1114;");
    cover->raise();
    return frame;
}

QWidget* buildPlayers(MainWindowViews& v, QWidget* parent) {
    auto* area = panel(parent, "playerArea", "background: #0b0c0e;");
    auto* h = new QHBoxLayout(area);
    h->setContentsMargins(8, 8, 8, 8);
    h->setSpacing(8);

    v.bigMovieViewScrollView = new QScrollArea;
    v.bigMovieViewScrollView->setObjectName("bigMovieViewScrollView");
    v.bigMovieViewScrollView->setFrameShape(QFrame::NoFrame);
    v.bigMovieViewScrollView->setWidgetResizable(false);
    v.bigMovieViewScrollView->setAlignment(Qt::AlignCenter);
    v.bigMovieHost = new QWidget;
    v.bigMovieHost->setObjectName("bigMovieView");
    v.bigMovieViewScrollView->setWidget(v.bigMovieHost);
    v.smallMovieHost = panel(nullptr, "smallMovieView", "background: #000;");

    // Covers stand in front of a player that has no movie.
    v.bigMovieCoverImageView = image(nullptr, "movie_cover_big", "bigMovieCoverImageView");
    v.smallMovieCoverImageView = image(nullptr, "movie_cover_small", "smallMovieCoverImageView");
    h->addWidget(coveredPlayer(area, v.bigMovieViewScrollView, v.bigMovieCoverImageView), 62);
    h->addWidget(coveredPlayer(area, v.smallMovieHost, v.smallMovieCoverImageView), 38);
    return area;
}

void buildToolbar(MainWindowViews& v, QWidget* window) {
    v.toolbarBg3 = panel(window, "toolbarBg3", "background: #1b1e23; border-radius: 8px;");
    v.toolbarBg3->setGeometry(25, 0, 974, MainWindowLayout::kToolbarHeight - 6);
    v.toolbarButtons = new QWidget(window);
    v.toolbarButtons->setObjectName("toolbarButtons");
    v.toolbarButtons->setGeometry(10, 0, 1004, MainWindowLayout::kToolbarHeight - 6);

    QWidget* t = v.toolbarButtons;
    v.seekTimeSliderView = new QSlider(Qt::Horizontal, t);
    v.seekTimeSliderView->setObjectName("seekTimeSliderView");
    v.seekTimeSliderView->setFocusPolicy(Qt::NoFocus);
    v.seekTimeSliderView->setGeometry(30, 4, 830, 16);
    v.playTimeTextField = text(t, "playTimeTextField", "00:00/00:00");
    v.playTimeTextField->setGeometry(870, 2, 110, 20);
    v.playTimeTextField->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    v.playTimeTextField->setStyleSheet("font-family: monospace; font-size: 13px; color: white;");

    struct ButtonPlace { ImageButton** field; const char* image; const char* name; int x; };
    const ButtonPlace places[] = {
        {&v.playPrevFileButton, "prev_file_btn_1", "playPrevFileButton", 30},
        {&v.rewindButton, "rewind_btn_1", "rewindButton", 66},
        {&v.playPauseButton, "play_1", "playPauseButton", 102},
        {&v.stopButton, "stop_btn_1", "stopButton", 138},
        {&v.fastForwardButton, "fast_forward_btn_1", "fastForwardButton", 174},
        {&v.playNextFileButton, "next_file_btn_1", "playNextFileButton", 210},
        {&v.snapshotButton, "snapshot_btn_1", "snapshotButton", 276},
        {&v.printButton, "print_btn_1", "printButton", 312},
        {&v.videoScaleUpButton, "zoom_in_btn_1", "videoScaleUpButton", 378},
        {&v.videoScaleDownButton, "zoom_out_btn_1", "videoScaleDownButton", 414},
        {&v.resetVideoScaleButton, "reset_scale_btn_1", "resetVideoScaleButton", 450},
        {&v.videoRotateButton, "flip_btn_1", "videoRotateButton", 486},
        {&v.switchVideoButton, "switch_video_btn_1", "switchVideoButton", 522},
        {&v.fullscreenButton, "fullscreen_btn_1", "fullscreenButton", 558},
        {&v.muteButton, "volume1", "muteButton", 820},
    };
    for (const ButtonPlace& s : places) {
        *s.field = button(t, s.image, s.name, QSize(32, 32));
        (*s.field)->move(s.x, 24);
    }
    v.volumeSliderView = new QSlider(Qt::Horizontal, t);
    v.volumeSliderView->setObjectName("volumeSliderView");
    v.volumeSliderView->setFocusPolicy(Qt::NoFocus);
    v.volumeSliderView->setRange(0, 100);
    v.volumeSliderView->setValue(100);
    AbsoluteClickStyle::install(v.volumeSliderView);
    v.volumeSliderView->setGeometry(858, 32, 120, 16);
}

void buildDashboard(MainWindowViews& v, QWidget* window) {
    v.dashBg3 = panel(window, "dashBg3", "background: #14161a; border-radius: 10px; border: 1px solid #23262c;");
    v.dashBg3->setGeometry(18, 0, 988, MainWindowLayout::kDashboardHeight - 8);
    v.dashboardCtrls = new QWidget(window);
    v.dashboardCtrls->setObjectName("dashboardCtrls");
    v.dashboardCtrls->setGeometry(43, 0, 938, MainWindowLayout::kDashboardHeight - 8);
    QWidget* d = v.dashboardCtrls;

    // The G-sensor history of the whole clip over its grid, with the legend
    // above and the current values below.
    auto* legend = image(d, "gsensor_legend", "gsensorLegend");
    legend->move(2, 14);
    auto* graphBg = image(d, "gsensor_graph_bg", "gsensorGraphBackground");
    graphBg->setGeometry(0, 34, 300, 64);
    v.gravityGraphHost = panel(d, "gravityGraphView", "background: transparent;");
    v.gravityGraphHost->setGeometry(0, 34, 300, 64);
    v.shockCarImageView = image(d, "shock_gage1", "shockCarImageView");
    v.shockCarImageView->move(4, 110);
    v.gxTextField = text(d, "gxTextField", "0.000");
    v.gyTextField = text(d, "gyTextField", "0.000");
    v.gzTextField = text(d, "gzTextField", "0.000");
    int x = 60;
    for (QLabel* g : {v.gxTextField, v.gyTextField, v.gzTextField}) {
        g->setGeometry(x, 112, 76, 22);
        g->setStyleSheet("font-family: monospace; color: white;");
        x += 80;
    }

    v.speedMeterHost = panel(d, "speedMeterView", "background: transparent;");
    v.speedMeterHost->setGeometry(310, 4, 180, 180);

    v.mapCoverView = image(d, "mapview_cover", "mapCoverView");
    v.mapCoverView->setGeometry(500, 6, 300, 176);
    static_cast<QLabel*>(v.mapCoverView)->setScaledContents(true);
    v.gpsImageView = image(d, "gps_icon", "gpsImageView");
    v.gpsImageView->move(812, 10);
    v.earthImageView = image(d, "earth1", "earthImageView");
    v.earthImageView->move(848, 10);
    v.latTextField = text(d, "latTextField", "0.0000");
    v.lngTextField = text(d, "lngTextField", "0.0000");
    v.fileDateTextField = text(d, "fileDateTextField");
    v.latTextField->setGeometry(812, 60, 124, 22);
    v.lngTextField->setGeometry(812, 86, 124, 22);
    v.fileDateTextField->setGeometry(812, 130, 124, 40);
    v.fileDateTextField->setToolTip(tr_k("Recording time"));
    v.fileDateTextField->setWordWrap(true);
    for (QLabel* l : {v.latTextField, v.lngTextField}) l->setStyleSheet("font-family: monospace; color: white;");
    v.fileDateTextField->setStyleSheet("color: white;");
}

}  // namespace

MainWindowViews MainWindowLayout::build(MainWindow* window) {
    MainWindowViews v;
    v.mainWindow = window;
    v.window = window;
    window->setObjectName("mainWindow");
    window->setMinimumSize(900, 640);

    auto* strip = panel(window, "titleStrip", "background: #101215; border-bottom: 1px solid #23262c;");
    buildTitleStrip(v, strip);

    auto* upper = new QWidget(window);
    upper->setObjectName("upperArea");
    auto* h = new QHBoxLayout(upper);
    h->setContentsMargins(0, 0, 0, 0);
    h->setSpacing(0);
    QWidget* clips = buildClipPanel(v, upper);
    clips->setFixedWidth(kClipPanelWidth);
    h->addWidget(clips);
    h->addWidget(buildPlayers(v, upper), 1);

    buildToolbar(v, window);
    buildDashboard(v, window);
    return v;
}

int MainWindowLayout::centringOffset(const QWidget* window) {
    const double width = window ? window->width() : 0.0;
    return static_cast<int>((width - kDesignWidth) * 0.5);  // truncates toward zero
}

void MainWindowLayout::layOut(const MainWindowViews& v) {
    QWidget* w = v.mainWindow;
    const int W = w->width(), H = w->height();
    const int bottom = kToolbarHeight + kDashboardHeight;
    if (auto* strip = w->findChild<QWidget*>("titleStrip")) strip->setGeometry(0, 0, W, kTitleHeight);
    if (auto* upper = w->findChild<QWidget*>("upperArea"))
        upper->setGeometry(0, kTitleHeight, W, std::max(0, H - kTitleHeight - bottom));

    const int offset = centringOffset(w);
    const int toolbarY = H - bottom + 3;
    const int dashY = H - kDashboardHeight + 2;
    auto place = [](QWidget* g, int x, int y) { g->move(x, y); };
    place(v.toolbarBg3, offset + 25, toolbarY);
    place(v.dashBg3, offset + 18, dashY);
    place(v.toolbarButtons, offset + 10, toolbarY);
    place(v.dashboardCtrls, offset + 43, dashY);
    v.toolbarButtons->raise();
    v.dashboardCtrls->raise();
}

}  // namespace tarvik
