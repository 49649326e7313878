// Writes the pages and pictures of the help that follow from the solver.
// Usage: make_help SOURCES CHANGELOG HELP EXAMPLES...
//   SOURCES    the folder with techniques.html, the texts written by hand
//   CHANGELOG  the change log
//   HELP       the folder of the help, where the pages and pictures go
//   EXAMPLES   files of example positions
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <QGuiApplication>

#include "qt/help_maker.h"
#include "qt/help_pictures.h"

namespace {

namespace fs = std::filesystem;

constexpr int kFailure = 1;
constexpr int kWrongUsage = 2;
constexpr int kFirstExamples = 4;

int Fail(const std::string& what) {
    std::fprintf(stderr, "make_help: %s\n", what.c_str());
    return kFailure;
}

bool Write(const fs::path& path, const std::string& text) {
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    return file.good();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc <= kFirstExamples) {
        Fail("four arguments are needed: SOURCES CHANGELOG HELP EXAMPLES...");
        return kWrongUsage;
    }
    const QGuiApplication application(argc, argv);
    vemo::HelpSources sources;
    std::ifstream texts(fs::path(argv[1]) / "techniques.html");
    sources.texts = vemo::ReadHelpTexts(texts);
    std::ifstream changes(argv[2]);
    sources.changes.assign(std::istreambuf_iterator<char>(changes), {});
    for (int index = kFirstExamples; index < argc; ++index) {
        std::ifstream file(argv[index]);
        const auto examples = vemo::ReadTechniqueExamples(file);
        if (examples.empty()) {
            return Fail(std::string(argv[index]) + " holds no examples");
        }
        sources.examples.insert(sources.examples.end(), examples.begin(), examples.end());
    }
    const vemo::MadeHelp made = vemo::MakeHelp(sources);
    if (!made.error.empty()) {
        return Fail(made.error);
    }
    const fs::path folder = argv[3];
    for (const vemo::HelpFile& page : made.pages) {
        if (!Write(folder / page.name, page.text)) {
            return Fail((folder / page.name).string() + " cannot be written");
        }
    }
    for (const vemo::HelpDrawing& drawing : made.drawings) {
        if (!vemo::WriteHelpPictures(drawing, folder)) {
            return Fail((folder / drawing.name).string() + ".png cannot be written");
        }
    }
    return 0;
}
