#pragma once

// Base names of the viewer's artwork: each name N is the resource
// ":/images/N.svg" (a name written with ".png" maps to the same SVG).
//
// A button family is three images whose names differ only in the last
// character: 1 normal, 2 hover, 3 pressed. The constants below name the
// normal image; ImageButton derives the other two from it.
//
// Every SVG carries the size it is drawn for, so an image view can take the
// renderer's default size.

namespace tarvik::images {

// ---- Application shell: start-up, window frame, home-page link ----------
inline constexpr const char* kAppIcon = "tarvik_viewer_icon";            // 256 x 256
inline constexpr const char* kSplash = "VT7_pcviewer_splash_mac";        // 600 x 340
inline constexpr const char* kLogo = "tarvik_viewer_logo";               // 180 x 28, title strip
inline constexpr const char* kBrandLink = "brand_link_norvane1";         // family, 263 x 30
inline constexpr const char* kAppCloseButton = "app_close_btn_1";        // family, 24 x 24
inline constexpr const char* kAppMinimizeButton = "app_minimize_btn_1";  // family, 24 x 24
inline constexpr const char* kSettingsButton = "settings_btn_1";         // family, 36 x 36

// Panels behind the tool bar (toolbarBg3) and the dashboard (dashBg3).
inline constexpr const char* kToolbarBackground = "toolbar_bg";  // 974 x 52
inline constexpr const char* kDashBackground = "dash_bg";        // 988 x 180

// Covers over a player without a movie.
inline constexpr const char* kBigMovieCover = "movie_cover_big";      // 640 x 360
inline constexpr const char* kSmallMovieCover = "movie_cover_small";  // 320 x 180

// ---- Clip list --------------------------------------------------------------
// Recording-type filters: plates without text (the titles are drawn on them
// in white). The selected filter shows the 2 image with hover switched off.
inline constexpr const char* kFilterButton = "sorting_btn_60_1";     // family, 60 x 26
inline constexpr const char* kFilterButtonSelected = "sorting_btn_60_2";
inline constexpr const char* kFolderOpenButton = "folder_open_btn_1";  // family, 30 x 30
inline constexpr const char* kRemoveFileButton = "remove_btn_1";       // family, 30 x 30
inline constexpr const char* kSaveFileButton = "save_btn_1";           // family, 30 x 30

// ---- Playback tool bar ----------------------------------------------------
inline constexpr const char* kPlay = "play_1";    // family, 44 x 44
inline constexpr const char* kPause = "pause1";   // family, 44 x 44
inline constexpr const char* kStopButton = "stop_btn_1";                  // families below: 36 x 36
inline constexpr const char* kRewindButton = "rewind_btn_1";              // one frame back
inline constexpr const char* kFastForwardButton = "fast_forward_btn_1";  // one frame forward
inline constexpr const char* kPrevFileButton = "prev_file_btn_1";
inline constexpr const char* kNextFileButton = "next_file_btn_1";
inline constexpr const char* kZoomInButton = "zoom_in_btn_1";
inline constexpr const char* kZoomOutButton = "zoom_out_btn_1";
inline constexpr const char* kResetScaleButton = "reset_scale_btn_1";
inline constexpr const char* kFullscreenButton = "fullscreen_btn_1";
inline constexpr const char* kFlipButton = "flip_btn_1";                  // upside-down picture
inline constexpr const char* kSwitchVideoButton = "switch_video_btn_1";  // front/rear swap
inline constexpr const char* kSnapshotButton = "snapshot_btn_1";
inline constexpr const char* kPrintButton = "print_btn_1";

// Pan mode: 2 doubles as the "panning on" look, shown with hover off.
inline constexpr const char* kPan = "pan_1";
inline constexpr const char* kPanOn = "pan_2";

// Mute button (hover off): 1 sound on, 2 muted.
inline constexpr const char* kVolume = "volume1";
inline constexpr const char* kVolumeMuted = "volume2";

// Seek slider: the thumb is "progress_bar" (16 x 16); the groove under it is
// optional and stretches horizontally.
inline constexpr const char* kSeekThumb = "progress_bar";
inline constexpr const char* kSeekTrack = "seek_track";  // 400 x 16
// Volume slider: the groove and the level drawn over it from the left; the
// level is a plain bar, so clipping or squeezing its width both look right.
inline constexpr const char* kVolumeBar = "volume_bar";      // 80 x 12
inline constexpr const char* kVolumeLevel = "volume_level";  // 80 x 12

// Full-screen control bar.
inline constexpr const char* kFullscreenControlBackground = "fullscreen_control_bg";  // 560 x 64
inline constexpr const char* kFullscreenExitButton = "fullscreen_exit_btn_1";         // family, 36 x 36

// ---- Dashboard ---------------------------------------------------------------
inline constexpr const char* kGpsIcon = "gps_icon";           // 40 x 40
inline constexpr const char* kMapCover = "mapview_cover";     // 320 x 164
// Position marker for the map page (":/images/map_marker.svg"); its point,
// the position, is at the bottom centre.
inline constexpr const char* kMapMarker = "map_marker";  // 24 x 36
// Play animation frames, alternating 1 and 2 once a second.
inline constexpr const char* kEarthFrames[2] = {"earth1", "earth2"};              // 56 x 56
inline constexpr const char* kShockCarFrames[2] = {"shock_gage1", "shock_gage2"};  // 56 x 56

// G-sensor graph backdrop: zero line at half height, dashed lines at 1 g and
// 2 g above it (12.8 and 25.6 units); legend in the graph's colours.
inline constexpr const char* kGravityGraphBackground = "gsensor_graph_bg";  // 300 x 64
inline constexpr const char* kGravityGraphLegend = "gsensor_legend";        // 96 x 14

// Speedometer, 180 x 180. The background holds the unlit segments, the scale
// and a "km/h" label; each gauge segment is a full-size transparent overlay
// placed at (0, 0), so showing segment i is just making its view visible.
inline constexpr const char* kSpeedometerBackground = "speedometer_bg";
inline constexpr const char* kSpeedGaugeSegments[24] = {
    "speed_gauge_01", "speed_gauge_02", "speed_gauge_03", "speed_gauge_04", "speed_gauge_05",
    "speed_gauge_06", "speed_gauge_07", "speed_gauge_08", "speed_gauge_09", "speed_gauge_10",
    "speed_gauge_11", "speed_gauge_12", "speed_gauge_13", "speed_gauge_14", "speed_gauge_15",
    "speed_gauge_16", "speed_gauge_17", "speed_gauge_18", "speed_gauge_19", "speed_gauge_20",
    "speed_gauge_21", "speed_gauge_22", "speed_gauge_23", "speed_gauge_24"};
// Digits are named by their decimal text, 20 x 34 each.
inline constexpr const char* kSpeedDigits[10] = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"};
// The mph mark is opaque in the dial's face colour and covers the km/h label.
inline constexpr const char* kSpeedUnitMph = "speed_unit_mph";  // 36 x 16

// Where the speedometer's pieces sit inside its 180 x 180 view (top-left
// origin), matching the artwork.
namespace speedometer {
inline constexpr int kSize = 180;
inline constexpr int kDigitWidth = 20;
inline constexpr int kDigitHeight = 34;
inline constexpr int kDigitY = 62;
inline constexpr int kHundredsX = 57;
inline constexpr int kTensX = 80;
inline constexpr int kOnesX = 103;
inline constexpr int kUnitMarkX = 72;
inline constexpr int kUnitMarkY = 111;
}  // namespace speedometer

// ---- Settings panes, pickers and alerts ------------------------------------
// Tabs: 3 marks the open tab; all three stretch with 4-point caps.
inline constexpr const char* kTab = "tab_center_1";  // family, 120 x 30
inline constexpr const char* kTabHover = "tab_center_2";
inline constexpr const char* kTabSelected = "tab_center_3";

// Text buttons (titles drawn on top in white); they stretch with caps of
// top 6, left 10, bottom 4, right 10. Neutral buttons (reset, format, current
// time) use the cancel plate.
inline constexpr const char* kOkButton = "ok_btn_1";          // family, 90 x 28
inline constexpr const char* kCancelButton = "cancel_btn_1";  // family, 90 x 28

// Radio buttons and check boxes, 18 x 18. Selected and disabled looks are
// complete images; an enabled, unselected button shows no image of its own,
// so its empty ring or box is drawn beneath it.
inline constexpr const char* kRadioSelected = "check";
inline constexpr const char* kRadioDisabled = "discheck2";
inline constexpr const char* kCheckBoxSelected = "check1";
inline constexpr const char* kCheckBoxDisabled = "pv_dst_check";
inline constexpr const char* kRadioEmpty = "radio_empty";
inline constexpr const char* kCheckBoxEmpty = "checkbox_empty";

// Web settings window: back to the page's list.
inline constexpr const char* kBackButton = "back_btn_1";  // family, 36 x 36

// Pane and alert icons, 48 x 48.
inline constexpr const char* kMemoryCardIcon = "sd_card_icon";  // card picker, formatting
inline constexpr const char* kDashcamIcon = "dashcam_icon";     // model picker
inline constexpr const char* kWarningIcon = "warning_icon";     // confirmations

}  // namespace tarvik::images
