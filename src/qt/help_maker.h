// Writes the pages of the help that follow from the solver: a page for each slot of the catalogue
// with its examples, the overview of all techniques, and the revision history.
#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "game/screen.h"
#include "tools/technique_examples.h"

namespace vemo {

// What is written by hand.
struct HelpSources {
    // By heading, the slot's caption: the text of its page, of which the first paragraph is the
    // summary.
    std::map<std::string, std::string> texts;
    std::vector<TechniqueExample> examples;
    std::string changes;  // the change log
};

// The parts of a file, each below a line with its heading: "<h1>X-Wing</h1>".
std::map<std::string, std::string> ReadHelpTexts(std::istream& file);

struct HelpFile {
    std::string name;  // in the help folder
    std::string text;
};
struct HelpDrawing {
    std::string name;  // in the help folder, without its ending: "techniques/x-wing"
    Screen board;
};
struct MadeHelp {
    std::vector<HelpFile> pages;
    std::vector<HelpDrawing> drawings;
    std::string error;  // what is wrong with the sources, or with what the solver says of them
};

// Every example is solved anew: one that is not found, that the solver explains in other words, or
// that goes against the solution is an error.
MadeHelp MakeHelp(const HelpSources& sources);

}  // namespace vemo
