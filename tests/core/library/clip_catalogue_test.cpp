#include "core/library/clip_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;
using tarvik::ClipCatalogue;
using tarvik::ClipRowCategory;

namespace {

class TempCard : public ::testing::Test {
protected:
    void SetUp() override {
        char tmpl[] = "/tmp/catalogue_testXXXXXX";
        root = mkdtemp(tmpl);
    }
    void TearDown() override {
        std::error_code ec;
        fs::permissions(root, fs::perms::owner_all, fs::perm_options::add, ec);
        for (auto& p : fs::recursive_directory_iterator(root, fs::directory_options::skip_permission_denied, ec))
            fs::permissions(p.path(), fs::perms::owner_all, fs::perm_options::add, ec);
        fs::remove_all(root, ec);
    }
    std::string touch(const std::string& rel) {
        fs::path p = fs::path(root) / rel;
        fs::create_directories(p.parent_path());
        std::ofstream(p) << "x";
        return p.string();
    }
    void touch(std::initializer_list<const char*> rels) {
        for (const char* rel : rels) touch(std::string(rel));
    }
    std::vector<std::string> names(const std::vector<std::string>& paths) const {
        std::vector<std::string> out;
        for (auto& p : paths) out.emplace_back(ClipCatalogue::fileName(p));
        return out;
    }
    std::vector<std::string> filtered(unsigned idx) {
        cat.setVideoFileFilterGroupA(idx);
        cat.applyVideoFileFilter();
        return names(cat.filteredVideoFileList());
    }
    static std::vector<std::string> sorted(std::vector<std::string> v) {
        std::sort(v.begin(), v.end());
        return v;
    }

    std::string root;
    ClipCatalogue cat;
};

using Strings = std::vector<std::string>;

}  // namespace

TEST_F(TempCard, ScanTakesRootAndListedFoldersAtAnyDepthOnly) {
    // misc/cont_rec: a listed name below an unlisted folder.
    touch({"root.mp4", "cont_rec/c.mp4", "cont_rec/2026/11/21/deep.avi", "misc/never.mp4", "misc/cont_rec/neither.mp4",
           "Other/evt_rec.mp4"});
    fs::create_directories(fs::path(root) / "dir.mp4");  // a folder named like a clip

    cat.refreshVideoFileListWithURL(root);
    EXPECT_EQ(cat.selectedVideoDirectoryUrl(), root);
    EXPECT_EQ(sorted(names(cat.allVideoFileList())), (Strings{"c.mp4", "deep.avi", "root.mp4"}));

    // The root itself is not recursive: only its own files.
    EXPECT_EQ(names(ClipCatalogue::getVideoFilesInDirectoryUrl(root, false)), (Strings{"root.mp4"}));
    EXPECT_TRUE(ClipCatalogue::getVideoFilesInDirectoryUrl(root + "/missing", true).empty());
    EXPECT_TRUE(ClipCatalogue::getVideoFilesInDirectoryUrl("", true).empty());
}

TEST_F(TempCard, CardsOfOtherCamerasAreLookedThroughWhole) {
    // No recording folder of the viewer's own cameras: every folder counts.
    touch({"DCIM/100MEDIA/GX010001.MP4", "Normal/Front/2026_1121_083000_F.MP4", "top.mov", ".hidden/x.mp4",
           "Movie/2026_1121_083100_F.TS", "Movie/notes.tsv"});
    cat.refreshVideoFileListWithURL(root);
    // Transport streams too, which the viewer's own cameras never write.
    EXPECT_EQ(sorted(names(cat.allVideoFileList())),
              (Strings{"2026_1121_083000_F.MP4", "2026_1121_083100_F.TS", "GX010001.MP4", "top.mov"}));
}

TEST_F(TempCard, ClipFilesAreDecidedByExtensionAlone) {
    for (const char* n : {"CLIP.MP4", "clip.Mov", "x.avi", "empty.mp4", "clip.mpg", "clip.ts", "clip.mp4.tmp", ".hidden.mp4", "mp4",
                          "clip.mp", "clip.mp4 ", "clip."})
        touch(std::string("cont_rec/") + n);
    touch("cont_rec/.trash/inside.mp4");  // hidden folders are skipped as a whole
    cat.refreshVideoFileListWithURL(root);
    EXPECT_EQ(sorted(names(cat.allVideoFileList())), (Strings{"CLIP.MP4", "clip.Mov", "empty.mp4", "x.avi"}));

    EXPECT_TRUE(ClipCatalogue::isClipFileName("a.AvI"));
    EXPECT_FALSE(ClipCatalogue::isClipFileName(".mp4"));
    EXPECT_FALSE(ClipCatalogue::isClipFileName(""));
}

// The window's test shows Event taking parking clips and Manual the option
// clips; here the motion pair, the whole list and the index bound.
TEST_F(TempCard, FiltersTakeTheirCompanionFolders) {
    touch({"cont_rec/a_cont.mp4", "motion_rec/b_motion.mp4", "motion_timelapse_rec/c_lapse.mp4", "evt_rec/d_evt.mp4",
           "Saved_Videos/h_saved.mp4", "i_root.mp4"});
    cat.refreshVideoFileListWithURL(root);
    EXPECT_EQ(filtered(0), (Strings{"h_saved.mp4", "a_cont.mp4", "b_motion.mp4", "c_lapse.mp4", "d_evt.mp4",
                                    "i_root.mp4"}));
    EXPECT_EQ(filtered(2), (Strings{"b_motion.mp4", "c_lapse.mp4"}));
    // Indices above 4 are not recorded; the filter stays where it was.
    cat.setVideoFileFilterGroupA(9);
    EXPECT_EQ(cat.videoFileFilterGroupA(), 2u);
    EXPECT_TRUE(ClipCatalogue::passesFilter("/x/Saved_Videos/a.mp4", 7));
    EXPECT_FALSE(ClipCatalogue::passesFilter("/x/Saved_Videos/a.mp4", 1));
}

TEST_F(TempCard, FilterMatchesFolderNamesAnywhereInThePath) {
    // A root that happens to contain a folder name: every clip below it passes.
    touch({"backup_evt_rec_2026/top.mp4", "backup_evt_rec_2026/cont_rec/c.mp4"});
    cat.refreshVideoFileListWithURL(root + "/backup_evt_rec_2026");
    EXPECT_EQ(filtered(3), (Strings{"c.mp4", "top.mp4"}));
    EXPECT_EQ(filtered(1), (Strings{"c.mp4"}));
    // Case-sensitive: CONT_REC is not cont_rec.
    EXPECT_FALSE(ClipCatalogue::passesFilter("/c/CONT_REC/a.mp4", 1));
}

TEST_F(TempCard, SortPutsSavedFirstThenPlainFileNameOrder) {
    touch({"parking_rec/A.mp4", "cont_rec/Z.mp4", "cont_rec/a.mp4", "cont_rec/10.mp4", "cont_rec/9.mp4",
           "Saved_Videos/zz.mp4", "Saved_Videos/nested/yy.mp4"});
    cat.refreshVideoFileListWithURL(root);
    EXPECT_EQ(filtered(0), (Strings{"yy.mp4", "zz.mp4", "10.mp4", "9.mp4", "A.mp4", "Z.mp4", "a.mp4"}));

    EXPECT_TRUE(ClipCatalogue::videoFileLessThan("/r/Saved_Videos/z.mp4", "/r/cont_rec/a.mp4"));
    EXPECT_FALSE(ClipCatalogue::videoFileLessThan("/r/cont_rec/a.mp4", "/r/Saved_Videos/z.mp4"));
    // Same name in two folders: neither comes first.
    EXPECT_FALSE(ClipCatalogue::videoFileLessThan("/r/evt_rec/a.mp4", "/r/cont_rec/a.mp4"));
    EXPECT_FALSE(ClipCatalogue::videoFileLessThan("/r/cont_rec/a.mp4", "/r/evt_rec/a.mp4"));
}

TEST_F(TempCard, RowColoursComeFromTheParentFolder) {
    touch({"Saved_Videos/s.mp4", "Saved_Videos/sub/n.mp4", "option_rec/o.mp4", "option_rec/sub/p.mp4", "cont_rec/c.mp4"});
    cat.refreshVideoFileListWithURL(root);
    ASSERT_EQ(cat.rowCount(), 5);
    ASSERT_EQ(cat.rowFileName(0), "n.mp4");
    EXPECT_EQ(cat.rowFileName(5), "");
    // Rows -1..5: out of range, n (sorted with the saved, but not magenta), s, c, o, p (below option_rec, not in
    // it), out of range.
    std::vector<ClipRowCategory> rows;
    for (int row = -1; row <= 5; ++row) rows.push_back(cat.rowCategory(row));
    using C = ClipRowCategory;
    EXPECT_EQ(rows, (std::vector{C::Normal, C::Normal, C::Saved, C::Normal, C::Option, C::Normal, C::Normal}));
}

TEST_F(TempCard, SwitchedPlayersTakeTheFrontRearPartner) {
    const std::string f = touch("evt_rec/20261121_101500_F.mp4");
    const std::string r = touch("evt_rec/20261121_101500_R.mp4");
    const std::string lone = touch("evt_rec/20261121_101600_F.mp4");
    const std::string avi = touch("evt_rec/20261121_101700_F.avi");
    touch("evt_rec/20261121_101700_R.avi");
    cat.refreshVideoFileListWithURL(root);
    ASSERT_EQ(cat.rowCount(), 5);
    ASSERT_EQ(cat.pathAt(0), f);
    ASSERT_EQ(cat.pathAt(1), r);

    EXPECT_EQ(cat.takeBigVideoURL(0), f);  // not switched: always the row's own
    cat.setVideoSwitched(true);
    // Neighbours are not a lone clip's partner; only MP4 pairs swap.
    const std::vector<std::string> big = {"", r, f, lone, avi, "", ""};
    for (int row = -1; row <= 5; ++row)
        if (row != 4) EXPECT_EQ(cat.takeBigVideoURL(row), big[row + 1]) << row;
}

TEST_F(TempCard, PairSwapReplacesEveryOccurrence) {
    // "F." elsewhere in the path is swapped too, so no partner is found.
    const std::string f = touch("cont_rec/CAR.F.1/clip_F.mp4");
    touch("cont_rec/CAR.F.1/clip_R.mp4");
    cat.refreshVideoFileListWithURL(root);
    cat.setVideoSwitched(true);
    ASSERT_EQ(cat.pathAt(0), f);
    EXPECT_EQ(cat.takeBigVideoURL(0), f);

    for (auto [clip, partner] : {std::pair{"/a/x_F.mp4", "/a/x_R.mp4"}, {"/a/x_R.mp4", "/a/x_F.mp4"},
                                 {"/F.d/x_R.mp4", "/R.d/x_R.mp4"} /* F. wins over R. */, {"/a/x.mp4", ""}})
        EXPECT_EQ(ClipCatalogue::partnerPath(clip), partner) << clip;
}

TEST(ClipUrl, FileUrlStringEscapesLikeAFileUrl) {
    EXPECT_EQ(ClipCatalogue::fileUrlString("/card/cont_rec/a b.mp4"), "file:///card/cont_rec/a%20b.mp4");
    EXPECT_EQ(ClipCatalogue::fileUrlString("/c/100%_#?.mp4"), "file:///c/100%25_%23%3F.mp4");
    EXPECT_EQ(ClipCatalogue::fileUrlString("/c/\xC3\xA9\xFF.mp4"), "file:///c/%C3%A9%FF.mp4");
    // A byte ending in F before a dot looks like "F." in the URL, but the pair
    // rule must not treat the escape as a camera letter.
    EXPECT_EQ(ClipCatalogue::partnerPath("/c/\xC3\xAF.mp4"), "");
    EXPECT_EQ(ClipCatalogue::partnerPath("/c/\xC3\xAF_R.mp4"), "/c/\xC3\xAF_F.mp4");
}

// Deleting goes through the clip list's deleter (to the trash), tested with the window.
TEST_F(TempCard, ClearForgetsTheCard) {
    touch({"manual_rec/only.mp4", "cont_rec/other.mp4"});
    cat.refreshVideoFileListWithURL(root);
    ASSERT_TRUE(cat.hasRows());
    cat.clear();
    EXPECT_TRUE(cat.allVideoFileList().empty());
    EXPECT_TRUE(cat.selectedVideoDirectoryUrl().empty());
    cat.refreshVideoFileList();  // no root: nothing, no crash
    EXPECT_FALSE(cat.hasRows());
}

TEST_F(TempCard, BadTreesGiveNoCrashNoHangAndNothingFromOutside) {
    // Clips outside the card, reachable only through links.
    char tmpl[] = "/tmp/catalogue_outsideXXXXXX";
    const std::string outside = mkdtemp(tmpl);
    std::ofstream(outside + "/stolen.mp4");
    const std::string good = touch("cont_rec/good.mp4");
    const fs::path r(root);

    fs::create_directory_symlink(outside, r / "cont_rec" / "link_dir");
    fs::create_symlink(outside + "/stolen.mp4", r / "cont_rec" / "link_file.mp4");
    fs::create_symlink(r / "nowhere.mp4", r / "cont_rec" / "dangling.mp4");
    fs::create_directory_symlink(r, r / "cont_rec" / "loop");          // back to the root
    fs::create_directory_symlink(r / "cont_rec", r / "evt_rec");      // a listed folder that is a link
    fs::create_directory_symlink(outside, r / "manual_rec");
    fs::create_symlink(outside + "/stolen.mp4", r / "root_link.mp4");
    // A name that is not UTF-8 is kept byte for byte.
    const std::string latin1 = (r / "cont_rec" / "caf\xE9_F.mp4").string();
    std::ofstream(latin1) << "x";

    cat.refreshVideoFileListWithURL(root);
    EXPECT_EQ(sorted(cat.allVideoFileList()), sorted({good, latin1}));
    cat.setVideoSwitched(true);
    cat.applyVideoFileFilter();
    for (int row = 0; row < cat.rowCount(); ++row) EXPECT_FALSE(cat.takeBigVideoURL(row).empty());

    // A root chosen through a link is still scanned: it is what the user picked.
    const fs::path viaLink = fs::path(outside) / "card_link";
    fs::create_directory_symlink(r, viaLink);
    cat.refreshVideoFileListWithURL(viaLink.string());
    EXPECT_EQ(cat.rowCount(), 2);

    std::error_code ec;
    fs::remove_all(outside, ec);
}

TEST_F(TempCard, UnreadableFolderYieldsNothing) {
    touch("cont_rec/ok.mp4");
    const std::string locked = touch("evt_rec/locked/hidden_from_us.mp4");
    fs::permissions(fs::path(locked).parent_path(), fs::perms::none);
    // Root reads through permissions; the case cannot be made here.
    if (access(fs::path(locked).parent_path().c_str(), R_OK) == 0) GTEST_SKIP() << "running as root";
    cat.refreshVideoFileListWithURL(root);
    EXPECT_EQ(names(cat.allVideoFileList()), (Strings{"ok.mp4"}));
}
