#pragma once
// Temp folders, generated clips and ffmpeg probes shared by the conversion tests.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "cardgen/video_maker.h"
#include "core/library/conversion/clip_converter.h"
#include "core/library/conversion/utils.h"
#include "core/util/process_runner.h"

namespace tarvik::testing {

namespace fs = std::filesystem;

class ConversionTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::string tmpl = (fs::temp_directory_path() / "tarvik-conv-XXXXXX").string();
        ASSERT_NE(::mkdtemp(tmpl.data()), nullptr);
        root = tmpl;
        documents = root / "Documents";
        card = root / "card";
        fs::create_directories(card);
    }
    void TearDown() override {
        std::error_code ec;
        fs::permissions(root, fs::perms::owner_all, fs::perm_options::add, ec);
        fs::remove_all(root, ec);
    }

    fs::path makeClip(const std::string& name, cardgen::VideoSpec spec = {}) {
        fs::path out = card / name;
        std::string log;
        EXPECT_TRUE(cardgen::makeVideo(spec, out, &log)) << log;
        return out;
    }

    fs::path writeSrt(const std::string& name, const std::string& cue) {
        fs::path p = root / name;
        std::ofstream(p) << "1\n00:00:00,000 --> 00:00:01,000\n" << cue << "\n\n";
        return p;
    }

    static void patchBytes(const fs::path& file, std::streamoff offset, const std::string& bytes) {
        std::fstream f(file, std::ios::in | std::ios::out | std::ios::binary);
        f.seekp(offset);
        f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

    // A converter that runs the real ffmpeg and remembers every argument list.
    ClipConverter recordingConverter() {
        return ClipConverter(documents, [this](const ArgumentList& args) {
            // Recorded under the names the outputs end up with.
            ArgumentList named = args;
            for (auto& a : named)
                if (auto at = a.find(".partial."); at != std::string::npos) a.erase(at, 8);
            runs.push_back(named);
            return ProcessRunner::run(Utils::GetFFMPEGPath(), args);
        });
    }

    // Decodes every stream to the end: a file "plays" when this succeeds.
    static bool decodes(const fs::path& file) {
        ProcessResult r = ProcessRunner::run(Utils::GetFFMPEGPath(),
                                             {"-v", "error", "-i", file.string(), "-f", "null", "-"},
                                             std::chrono::seconds(60));
        // AVI stores no presentation times, so HEVC with B-frames remuxed
        // from it makes the null muxer grumble about dts order; not an error
        // of the file.
        std::istringstream lines(r.output);
        for (std::string line; std::getline(lines, line);)
            if (line.find("non monotonically increasing dts") == std::string::npos) return false;
        return r.exitCode == 0;
    }

    fs::path root, documents, card;
    std::vector<ArgumentList> runs;
};

}  // namespace tarvik::testing
