// tarvik: what the viewer knows about a card and its clips, from a terminal.
// Help and the version go to standard output with status 0; a command line
// that cannot be read goes to standard error with status 2, with the usage of
// the sub-command it concerns.
#include <CLI/CLI.hpp>

#include <iostream>

#include "cli/commands.h"

#ifndef TARVIK_VERSION
#define TARVIK_VERSION "0.0.0"
#endif

namespace {

using namespace tarvik::cli;

constexpr int kUsageError = 2;

struct Options {
    TelemetryOptions telemetry;
    CardOptions card;
    SettingsOptions settings;
    CardFolderOptions trips, check;
    ExportOptions exporting;
};

void addTelemetry(CLI::App& app, TelemetryOptions& o) {
    CLI::App* c = app.add_subcommand("telemetry", "Print a clip's G-sensor and GPS samples, or its route for a map program.");
    c->add_option("CLIP", o.clip, "The clip file (.avi, .mp4, .mov)")->required();
    c->add_option("--format", o.format, "csv (every sample), gpx, geojson or kml (the route)")
        ->check(CLI::IsMember({"csv", "gpx", "geojson", "kml"}))
        ->capture_default_str();
    c->add_flag("--krt", o.krt, "Read the clip as the KRT family writes it, whatever its name");
    c->add_flag("--verbose", o.verbose, "Let FFmpeg report what it finds wrong in the clip");
}

void addCard(CLI::App& app, CardOptions& o) {
    CLI::App* c = app.add_subcommand("card", "Which camera wrote a card, and its settings. Reads only.");
    c->add_option("PATH", o.path, "The card's folder (default: the mounted camera card)");
    c->add_flag("--json", o.json, "Print JSON");
    c->footer("Exit status: 0 when the camera is recognised, 1 when it is not, 2 on a usage error.\n");
}

void addSettings(CLI::App& app, SettingsOptions& o) {
    using Action = SettingsOptions::Action;
    CLI::App* s = app.add_subcommand("settings", "Read, change and copy a camera's settings.");
    s->add_option("CARD", o.card, "The card's folder");
    s->add_flag("--json", o.json, "Print the settings as JSON");
    s->footer("Forms:\n  tarvik settings CARD [--json]\n  tarvik settings CARD set [--dry-run] NAME=VALUE...\n"
              "  tarvik settings CARD export > PROFILE.json\n  tarvik settings apply [--dry-run] PROFILE.json CARD...\n"
              "A card is written in one atomic step or not at all.\n");

    CLI::App* set = s->add_subcommand("set", "Change settings on the card");
    set->add_flag("--dry-run", o.dryRun, "Say what would change; write nothing");
    set->add_option("NAME=VALUE", o.assignments, "Settings to change")->required()->check([](const std::string& a) {
        const auto eq = a.find('=');
        return eq == std::string::npos || eq == 0 ? std::string("expected NAME=VALUE, got ") + a : std::string();
    });
    set->callback([&o] { o.action = Action::Set; });

    CLI::App* exp = s->add_subcommand("export", "Print the card's settings as a profile for other cards");
    exp->callback([&o] { o.action = Action::Export; });

    CLI::App* apply = s->add_subcommand("apply", "Write a profile's settings to one card or many");
    apply->add_flag("--dry-run", o.dryRun, "Say what would change; write nothing");
    apply->add_option("PROFILE", o.profile, "A profile written by `tarvik settings CARD export`")->required();
    apply->add_option("CARD", o.cards, "The cards' folders")->required();
    apply->callback([&o] { o.action = Action::Apply; });

    s->require_subcommand(0, 1);
    s->final_callback([s, &o] {
        if (o.action == Action::Apply) {
            if (!o.card.empty()) throw CLI::ExtrasError({o.card});
            return;
        }
        if (o.card.empty()) throw CLI::RequiredError("CARD");
        if (o.json && o.action != Action::Show) throw CLI::ValidationError("--json", "only shows settings");
        (void)s;
    });
}

void addCardFolder(CLI::App& app, const char* name, const char* about, CardFolderOptions& o) {
    CLI::App* c = app.add_subcommand(name, about);
    c->add_option("CARD", o.card, "The card's folder")->required()->check(CLI::ExistingDirectory);
    c->add_flag("--json", o.json, "Print JSON");
    c->add_flag("--verbose", o.verbose, "Let FFmpeg report what it finds wrong in the clips");
}

void addExport(CLI::App& app, ExportOptions& o) {
    CLI::App* c = app.add_subcommand("export", "Hand an incident over: both cameras in one video, the original clips, "
                                               "the route and samples, and the SHA-256 of every file.");
    c->add_option("CARD", o.card, "The card's folder")->required()->check(CLI::ExistingDirectory);
    c->add_option("--from", o.from, "The in point, \"YYYY-MM-DD HH:MM:SS\" as the camera's clock")->required();
    c->add_option("--to", o.to, "The out point, in the same drive")->required();
    c->add_option("--out", o.out, "The incident's folder (created; never on the card)")->required();
    c->add_option("--layout", o.layout, "front, rear, side by side, or the rear as a picture in the front's corner")
        ->check(CLI::IsMember({"front", "rear", "side", "pip"}))
        ->capture_default_str();
    c->add_flag("--overlay", o.overlay, "Draw the camera's clock, the speed, G values and position over the picture");
    c->add_flag("--mph", o.mph, "Speeds in the overlay in miles an hour");
    c->add_flag("--route-inset", o.routeInset, "Draw the route in a corner with the car on it (implies --overlay)");
    c->add_option("--quality", o.crf, "H.264 quality, 0 (best) to 51")->check(CLI::Range(0, 51))->capture_default_str();
    c->add_flag("--verbose", o.verbose, "Let FFmpeg report what it finds wrong in the clips");
    c->footer("Progress goes to standard error; the folder's path to standard output once it is whole.\n"
              "Check it with: cd FOLDER && sha256sum -c SHA256SUMS\n");
}

// The sub-command the failed command line was for, else the program.
const CLI::App& concerned(const CLI::App& app) {
    const CLI::App* at = &app;
    for (;;) {
        const auto subs = at->get_subcommands();
        if (subs.empty()) return *at;
        at = subs.front();
    }
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("What the Tarvik Viewer knows about a dash camera's memory card and its clips.", "tarvik");
    app.set_version_flag("--version", std::string("tarvik ") + TARVIK_VERSION);
    app.require_subcommand(1);
    Options o;
    addTelemetry(app, o.telemetry);
    addCard(app, o.card);
    addSettings(app, o.settings);
    addCardFolder(app, "trips", "The drives on a card: runs of clips recorded one after another.", o.trips);
    addCardFolder(app, "check", "What on a card needs attention.", o.check);
    addExport(app, o.exporting);
    app.get_subcommand("check")->footer("Exit status: 0 when nothing needs attention, 1 when something does, 2 on a usage error.\n");

    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForAllHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForVersion& e) {
        return app.exit(e);
    } catch (const CLI::ParseError& e) {
        const CLI::App& at = concerned(app);
        std::string parents;  // "tarvik settings" for `set`
        for (const CLI::App* p = at.get_parent(); p; p = p->get_parent())
            parents = p->get_name() + (parents.empty() ? "" : " " + parents);
        std::cerr << (parents.empty() ? "" : parents + " ") << at.get_name() << ": " << e.what() << "\n\n"
                  << at.help(parents);
        return kUsageError;
    }

    const std::string command = app.get_subcommands().front()->get_name();
    if (command == "telemetry") return telemetryCommand(o.telemetry);
    if (command == "card") return cardCommand(o.card);
    if (command == "settings") return settingsCommand(o.settings);
    if (command == "trips") return tripsCommand(o.trips);
    if (command == "export") return exportCommand(o.exporting);
    return checkCommand(o.check);
}
