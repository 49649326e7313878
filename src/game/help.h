// The help: its pages in their order, and which of them belongs to what is in front of the player.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "game/view.h"

namespace vemo {

struct Stage;

// The one address of the program on the web.
inline constexpr std::string_view kWebAddress = "https://vemo.example/sudoku";

inline constexpr std::string_view kHelpHome = "index.html";
inline constexpr std::string_view kRevisionPage = "changes.html";

struct HelpPage {
    std::string chapter;  // the pages of a chapter follow each other
    std::string file;     // in the help folder: "keys.html", "techniques/x-wing.html"
    std::string title;
};
// Every page, in reading order.
std::vector<HelpPage> HelpPages();

// The page of a slot of the catalogue, named after its caption.
std::string TechniquePage(int slot);

// The page for what the main window shows, and for another window.
std::string HelpPageFor(const Stage& stage);
std::string HelpPageFor(const Stage& stage, Form form);

// Opens the help window at a page. Where the help folder is missing, says so.
void OpenHelp(Stage& stage, std::string_view page);
std::filesystem::path HelpFolder(const Stage& stage);

// A link that leads out of the help.
void OpenHelpLink(Stage& stage, const std::string& address);

}  // namespace vemo
