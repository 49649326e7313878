// The help.
#include "game/help.h"

#include <array>

#include "game/stage.h"
#include "solver/catalogue.h"

namespace vemo {
namespace {

namespace fs = std::filesystem;

struct PageRow {
    std::string_view chapter;
    std::string_view file;
    std::string_view title;
};

constexpr std::string_view kTechniques = "Techniques";
constexpr std::string_view kTechniquesPage = "techniques.html";
constexpr std::string_view kHintsPage = "hints.html";

constexpr PageRow kPagesBefore[] = {
    {"First steps", kHelpHome, "Welcome"},
    {"First steps", "rules.html", "The rules of Sudoku"},
    {"First steps", "first-sudoku.html", "Your first sudoku"},
    {"Playing", "playing.html", "Filling the grid"},
    {"Playing", "marks.html", "Pencil marks"},
    {"Playing", "colors-and-links.html", "Colors, filters and links"},
    {"Playing", kHintsPage, "Hints"},
    {"Playing", "autosolve.html", "Autosolve, Scan and the log"},
    {"Playing", "levels.html", "Levels and times"},
    {"More to do", "own-sudokus.html", "Sudokus of your own"},
    {"More to do", "generator.html", "The generator"},
    {"More to do", "collection.html", "Check and import"},
    {"More to do", "printing.html", "Printing"},
    {"More to do", "technique-manager.html", "The technique manager"},
    {"More to do", "hint-colors.html", "Hint colors and appearance"},
    {"Look up", "menus.html", "Every menu entry"},
    {"Look up", "keys.html", "Keys and mouse"},
    {"Look up", "formats.html", "Files and formats"},
    {"Look up", "command-line.html", "The command line"},
    {"Look up", "problems.html", "Problems and limits"},
    {"Look up", kRevisionPage, "Revision history"},
    {kTechniques, kTechniquesPage, "All techniques by level"},
};

// The pages of the windows; a window that is not listed has that of the main window.
struct FormRow {
    Form form;
    std::string_view file;
};
constexpr FormRow kFormPages[] = {
    {Form::FormLog, "autosolve.html"},
    {Form::SolveTech, "technique-manager.html"},
    {Form::FormGenerator, "generator.html"},
    {Form::FormCollection, "collection.html"},
    {Form::FormColors, "hint-colors.html"},
    {Form::FormPrint, "printing.html"},
    {Form::FormHelp, kHelpHome},
};

std::string HintPageOr(int slot, std::string_view other) {
    return slot != kNoSlot ? TechniquePage(slot) : std::string(other);
}

}  // namespace

std::vector<HelpPage> HelpPages() {
    std::vector<HelpPage> pages;
    for (const auto& [chapter, file, title] : kPagesBefore) {
        pages.push_back({std::string(chapter), std::string(file), std::string(title)});
    }
    for (int slot = 0; slot < kSlots; ++slot) {
        const std::string_view caption = Slots()[static_cast<std::size_t>(slot)].caption;
        pages.push_back({std::string(kTechniques), TechniquePage(slot), std::string(caption)});
    }
    return pages;
}

// Small letters and digits, with a hyphen for what stands between two words.
std::string TechniquePage(int slot) {
    std::string name;
    bool isBetween = false;
    for (const char character : Slots()[static_cast<std::size_t>(slot)].caption) {
        const bool isCapital = character >= 'A' && character <= 'Z';
        const bool isKept = isCapital || (character >= 'a' && character <= 'z') ||
                            (character >= '0' && character <= '9');
        if (isKept) {
            name += isBetween && !name.empty() ? "-" : "";
            name += isCapital ? static_cast<char>(character - 'A' + 'a') : character;
        }
        isBetween = !isKept && (isBetween || character != '\'');
    }
    return "techniques/" + name + ".html";
}

std::string HelpPageFor(const Stage& stage) {
    const Session& session = stage.session;
    switch (session.phase) {
    case PlayPhase::NoPuzzle:
        return "first-sudoku.html";
    case PlayPhase::Making:
        return "own-sudokus.html";
    case PlayPhase::Playing:
    case PlayPhase::Finished:
    case PlayPhase::SolutionShown:
        break;
    }
    if (session.IsCovered()) {
        return "levels.html";
    }
    if (session.showMe) {
        return std::string(kHintsPage);
    }
    return HintPageOr(session.hintSlot,
                      session.IsBrushOrLinkMode() ? "colors-and-links.html" : "playing.html");
}

std::string HelpPageFor(const Stage& stage, Form form) {
    if (form == Form::FormHint) {
        return HintPageOr(stage.hintWindow.slot, kHintsPage);
    }
    for (const auto& [window, file] : kFormPages) {
        if (window == form) {
            return std::string(file);
        }
    }
    return HelpPageFor(stage);
}

fs::path HelpFolder(const Stage& stage) {
    return stage.programFolder / "help";
}

void OpenHelp(Stage& stage, std::string_view page) {
    const fs::path folder = HelpFolder(stage);
    std::error_code error;
    if (!fs::is_regular_file(folder / kHelpHome, error)) {
        Tell(stage, "Help",
             "The help pages are missing: there should be " + Utf8(folder / kHelpHome),
             BoxIcon::Warning);
        return;
    }
    stage.helpPage = page;
    stage.view.OpenForm(Form::FormHelp, Keyboard::Follows);
}

// Nothing but pages of the web: a link must not start programs or open files.
void OpenHelpLink(Stage& stage, const std::string& address) {
    if (address.starts_with("https://") || address.starts_with("http://")) {
        stage.view.OpenLink(address);
    }
}

}  // namespace vemo
