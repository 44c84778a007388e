#pragma once
// The list of recorded clips under a card or a chosen folder: the scan, the
// five recording-type filters, the sort, row colours, front/rear pairing and
// removal. Paths are kept as the file system's bytes (a card may hold names
// that are not valid UTF-8); the interface converts them for display.

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

// The recording-type folders below a card's root, in scan order.
inline constexpr std::array<std::string_view, 8> kRecordingFolders = {
    "cont_rec",   "motion_rec", "evt_rec",      "manual_rec", "parking_rec",
    "motion_timelapse_rec", "Saved_Videos", "option_rec"};

// Index of the five filter buttons (videoFileFilterGroupA). Anything above 4
// behaves like All.
enum ClipFilterIndex : unsigned {
    kClipFilterAll = 0,
    kClipFilterAlways = 1,
    kClipFilterMotion = 2,
    kClipFilterEvent = 3,
    kClipFilterManual = 4,
};

// How a row is coloured: magenta, yellow, or the normal text colour.
enum class ClipRowCategory { Saved, Option, Normal };

class ClipCatalogue {
public:
    // ---- rules, usable without a catalogue ----

    // Clip files in dir (directly, or at any depth when enableRecursive), in the
    // order the file system returns them. Hidden names (leading '.') are
    // skipped; unreadable or missing folders give nothing.
    static std::vector<std::string> getVideoFilesInDirectoryUrl(const std::string& dir, bool enableRecursive);
    // True when the file name's extension, lower-cased, is avi, mp4 or mov.
    static bool isClipFileName(std::string_view name);
    // On a card without the viewer's own recording folders, MPEG-TS clips
    // (".ts") count as well: some other cameras write them.
    static bool isOtherCameraClipFileName(std::string_view name);
    // Whether a clip path passes filter index idx.
    static bool passesFilter(std::string_view path, unsigned idx);
    // Sort order: clips under Saved_Videos first, then plain byte comparison of
    // the file names.
    static bool videoFileLessThan(std::string_view a, std::string_view b);
    static ClipRowCategory rowCategoryForPath(std::string_view path);
    // The path of the front/rear partner by the F./R. swap, or "" when the name
    // holds neither (see the .cpp for how escapes are treated).
    static std::string partnerPath(std::string_view path);
    // The partner by the F./R. swap, else by the A/B letter that some other
    // cameras put right after the recording time (20261121083000A.MP4,
    // 2026_1121_083000_B.MP4): only there is it a camera's letter, and the
    // partner then has the same time. The players, the list's stepping and
    // the trips pair by this; "" when the name holds neither.
    static std::string cameraPartnerPath(std::string_view path);
    // Of a pair, the front: the F. clip, or the A clip of the lettered ones.
    static bool isFrontOfPair(std::string_view path);
    // "file://" + the percent-encoded absolute path.
    static std::string fileUrlString(std::string_view path);
    // Last path component.
    static std::string_view fileName(std::string_view path);

    // ---- the catalogue's state ----

    // Makes dir the root and rescans it.
    void refreshVideoFileListWithURL(const std::string& dir);
    // Rescans the root (its own clips, then the eight folders recursively) and
    // refilters. An empty root gives empty lists.
    void refreshVideoFileList();
    // The card is unknown: forget the root, empty both lists.
    void clear();

    // Records the filter index (0..4; others are ignored) without refiltering.
    void setVideoFileFilterGroupA(unsigned idx);
    unsigned videoFileFilterGroupA() const { return filterIndex_; }
    // Rebuilds the filtered list from the full list, sorted.
    void applyVideoFileFilter();

    const std::string& selectedVideoDirectoryUrl() const { return root_; }
    const std::vector<std::string>& allVideoFileList() const { return all_; }
    const std::vector<std::string>& filteredVideoFileList() const { return filtered_; }

    // Table helpers over the filtered list; rows out of range give "" / Normal.
    int rowCount() const { return static_cast<int>(filtered_.size()); }
    // The remove and save buttons are enabled exactly while this is true.
    bool hasRows() const { return !filtered_.empty(); }
    std::string rowFileName(int row) const;
    ClipRowCategory rowCategory(int row) const;
    std::string pathAt(int row) const;

    bool isVideoSwitched() const { return videoSwitched_; }
    void setVideoSwitched(bool on) { videoSwitched_ = on; }
    // The file the large player shows for row: the row's own file, or its
    // front/rear neighbour while the players are switched. "" when out of range.
    std::string takeBigVideoURL(int row) const;

    // Deletes the clip of row from disk. Only when that succeeds is it taken out
    // of both lists. Returns whether anything changed.
    bool removeFile(int row);

private:
    std::string root_;
    std::vector<std::string> all_;
    std::vector<std::string> filtered_;
    unsigned filterIndex_ = kClipFilterAll;
    bool videoSwitched_ = false;
};

}  // namespace tarvik
