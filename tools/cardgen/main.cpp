// tarvik-democard --out DIR [--seconds N] [--size WxH] [--other-cameras]
// Writes the demo memory card that `make run` opens when no camera card is present.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "cardgen/card_plan.h"

int main(int argc, char** argv) {
    std::string out;
    tarvik::cardgen::CardOptions options;
    bool other = false;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--out") && i + 1 < argc) out = argv[++i];
        else if (!std::strcmp(argv[i], "--seconds") && i + 1 < argc) options.seconds = std::atof(argv[++i]);
        else if (!std::strcmp(argv[i], "--other-cameras")) other = true;
        else if (!std::strcmp(argv[i], "--size") && i + 1 < argc)
            std::sscanf(argv[++i], "%dx%d", &options.width, &options.height);
        else {
            std::fprintf(stderr, "usage: %s --out DIR [--seconds N] [--size WxH] [--other-cameras]\n", argv[0]);
            return 2;
        }
    }
    if (out.empty()) {
        std::fprintf(stderr, "usage: %s --out DIR [--seconds N] [--size WxH] [--other-cameras]\n", argv[0]);
        return 2;
    }
    std::string error;
    // Making the clips takes a minute: show how far it has got.
    auto progress = [](std::size_t i, std::size_t n, const std::string& path) {
        std::printf("[%zu/%zu] %s\n", i + 1, n, path.c_str());
        std::fflush(stdout);
    };
    const auto plan = other ? tarvik::cardgen::otherCameraCardPlan(static_cast<int>(options.seconds), options.width,
                                                                  options.height)
                            : tarvik::cardgen::demoCardPlan(options);
    if (!tarvik::cardgen::writeCard(plan, out, &error, progress)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    std::printf("demo card written to %s\n", out.c_str());
    return 0;
}
