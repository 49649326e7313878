// Writes the pages of the help that follow from the solver.
#include "qt/help_maker.h"

#include <algorithm>
#include <istream>
#include <sstream>

#include "game/checks.h"
#include "game/help.h"
#include "game/hint_colors.h"
#include "model/levels.h"
#include "solver/position.h"

namespace vemo {
namespace {

constexpr std::string_view kOverview = "All techniques by level";
constexpr std::string_view kRevisions = "Revision history";
constexpr std::string_view kHeading = "<h1>";
constexpr std::string_view kHeadingEnd = "</h1>";

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char character : text) {
        switch (character) {
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '&':
            escaped += "&amp;";
            break;
        default:
            escaped += character;
        }
    }
    return escaped;
}

// `toRoot` leads from the page's folder to that of the help.
std::string PageText(std::string_view title, const std::string& toRoot, const std::string& body) {
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\"/>\n<title>" +
           Escaped(title) + "</title>\n<link rel=\"stylesheet\" href=\"" + toRoot +
           "help.css\"/>\n</head>\n<body>\n<p class=\"nav\"><a href=\"" + toRoot +
           "index.html\">Welcome</a> · <a href=\"" + toRoot +
           "techniques.html\">All techniques</a></p>\n<h1>" + Escaped(title) + "</h1>\n" + body +
           "</body>\n</html>\n";
}

std::string_view CaptionOf(int slot) {
    return Slots()[static_cast<std::size_t>(slot)].caption;
}

// Within the folder of the techniques: "x-wing".
std::string NameOf(int slot) {
    const std::string page = TechniquePage(slot);
    const std::size_t begin = page.find('/') + 1;
    return page.substr(begin, page.rfind('.') - begin);
}

std::string Link(const std::string& address, std::string_view text) {
    return "<a href=\"" + address + "\">" + Escaped(text) + "</a>";
}

int LevelOf(int slot) {
    const auto step = std::ranges::find(Steps(), slot, &Step::slot);
    return step == Steps().end() ? 0 : step->level;
}

std::string FactsOf(int slot) {
    if (slot < kFirstTechniqueSlot) {
        return "Looked for before every hint · a report costs 10 seconds · always on";
    }
    int least = 0;
    int most = 0;
    for (const Step& step : Steps()) {
        if (step.slot == slot) {
            least = least == 0 ? step.penalty : least;
            most = step.penalty;
        }
    }
    return "Level " + std::string(LevelName(LevelOf(slot))) + " · a hint costs " +
           (least == most ? "" : std::to_string(least) + " to ") + std::to_string(most) +
           " seconds · " + (slot < kFirstMovableSlot ? "always on" : "can be switched off");
}

std::string Neighbours(int slot) {
    std::string text;
    if (slot > 0) {
        text += "Before it: " + Link(NameOf(slot - 1) + ".html", CaptionOf(slot - 1));
    }
    if (slot + 1 < kSlots) {
        text += (text.empty() ? "" : " · ") +
                ("After it: " + Link(NameOf(slot + 1) + ".html", CaptionOf(slot + 1)));
    }
    return "<p class=\"nav\">" + text + "</p>\n";
}

// The puzzle as a player sees it with all pencil marks shown.
Screen BoardOf(const Grid& grid) {
    Screen board;
    for (int cell = 0; cell < kCells; ++cell) {
        const auto index = static_cast<std::size_t>(cell);
        board.cells[index].digit = grid.Digit(cell);
        board.cells[index].isClue = grid.IsGiven(cell);
        for (int digit = 1; digit <= kDigits; ++digit) {
            board.marks[index][static_cast<std::size_t>(digit - 1)].isShown =
                grid.KnopAan(cell, digit);
        }
    }
    return board;
}

// One example as it stands on its page.
struct Shown {
    std::string title;
    std::string hint;
    std::string log;  // empty: it is no step
    Screen board;
};

std::string ExampleText(const Shown& example, const std::string& picture) {
    std::string text = "<p><img src=\"" + picture +
                       ".png\" alt=\"The grid of this example: " + Escaped(example.title) +
                       "\"/></p>\n<p class=\"hint\">" + Escaped(example.hint) + "</p>\n";
    if (!example.log.empty()) {
        text += "<p class=\"log\">In the log: <code>" + Escaped(example.log) + "</code></p>\n";
    }
    return text;
}

// A faulty entry of each kind that the checks report, on the grid of an example.
Shown CheckExample(int slot, Grid grid, const Digits& solution) {
    const int cell = Position(grid).BivalueCells().First();
    const int right = solution[static_cast<std::size_t>(cell)];
    HintColors colors;
    Shown shown{std::string(CaptionOf(slot)), "", "", {}};
    colors.ZetHintVak(cell);
    if (slot == 0) {
        const int wrong = FirstDigit(grid.MarksAt(cell) & ~MarkOf(right));
        grid.Zet(wrong, cell);
        colors.MarkWrong(cell);
        shown.hint = BadSolvedCellText(cell, wrong);
    } else if (slot == 1) {
        grid.VerwijderKnop(cell, right);
        shown.hint = MissingCandidateText(cell);
    } else {
        grid.Zet(right, cell);
        const int stale = (Peers(cell) & grid.EmptyCells()).First();
        grid.GiveBack(stale, right);
        colors.ZetAttackedCell(stale, right);
        shown.hint = StaleMarkText({cell, stale, right});
    }
    shown.board = BoardOf(grid);
    colors.PaintOn(shown.board);
    return shown;
}

Shown TechniqueShown(const TechniqueExample& example, const Find& find) {
    Shown shown{std::string(HintTitle(find)), HintText(find), LogLine(find), BoardOf(example.grid)};
    HintColors colors;
    colors.Show(find);
    colors.PaintOn(shown.board);
    return shown;
}

class HelpMaker {
  public:
    explicit HelpMaker(const HelpSources& sources) : sources_(sources) {}

    MadeHelp Make() {
        for (int slot = 0; slot < kSlots; ++slot) {
            AddTechnique(slot);
        }
        AddOverview();
        AddChanges();
        return std::move(made_);
    }

  private:
    // What is wrong first is what is told.
    void Fail(const std::string& what) {
        if (made_.error.empty()) {
            made_.error = what;
        }
    }

    std::string TextOf(std::string_view heading) {
        const auto text = sources_.texts.find(std::string(heading));
        if (text == sources_.texts.end()) {
            Fail("there is no text for " + std::string(heading));
            return "";
        }
        return text->second;
    }

    std::vector<Shown> ExamplesOf(int slot) {
        std::vector<Shown> shown;
        if (slot < kFirstTechniqueSlot && !sources_.examples.empty()) {
            const Grid& grid = sources_.examples.front().grid;
            shown.push_back(CheckExample(slot, grid, SolutionOf(grid)));
        }
        for (const TechniqueExample& example : sources_.examples) {
            if (example.slot != slot) {
                continue;
            }
            const std::optional<Find> find = FindOf(example);
            if (!find || HintText(*find) != example.hint) {
                Fail(example.technique + ": the solver does not say what the example says");
            } else if (!AgreesWithSolution(*find, example.grid)) {
                Fail(example.technique + ": the find goes against the solution");
            } else {
                shown.push_back(TechniqueShown(example, *find));
            }
        }
        if (shown.empty()) {
            Fail("there is no example of " + std::string(CaptionOf(slot)));
        }
        return shown;
    }

    void AddTechnique(int slot) {
        std::string body = "<p class=\"facts\">" + FactsOf(slot) + "</p>\n" +
                           TextOf(CaptionOf(slot)) + "<h2 id=\"example\">On the board</h2>\n";
        const std::vector<Shown> examples = ExamplesOf(slot);
        for (std::size_t number = 0; number < examples.size(); ++number) {
            const bool isOnly = examples.size() == 1;
            const std::string name =
                NameOf(slot) + (isOnly ? "" : "-" + std::to_string(number + 1));
            body += isOnly ? "" : "<h3>" + Escaped(examples[number].title) + "</h3>\n";
            body += ExampleText(examples[number], name);
            made_.drawings.push_back({"techniques/" + name, examples[number].board});
        }
        made_.pages.push_back(
            {TechniquePage(slot), PageText(CaptionOf(slot), "../", body + Neighbours(slot))});
    }

    // The first paragraph of a technique's text, which is a single line.
    std::string SummaryOf(int slot) {
        const std::string text = TextOf(CaptionOf(slot));
        const std::size_t begin = text.find('>') + 1;
        const std::size_t end = text.find("</p>");
        if (!text.starts_with("<p class=\"short\">") || end == text.npos) {
            Fail("the text for " + std::string(CaptionOf(slot)) + " begins with no summary");
            return "";
        }
        return text.substr(begin, end - begin);
    }

    void AddOverview() {
        std::string body = TextOf(kOverview);
        int level = -1;
        for (int slot = 0; slot < kSlots; ++slot) {
            if (LevelOf(slot) != level) {
                body += level < 0 ? "" : "</table>\n";
                level = LevelOf(slot);
                body +=
                    "<h2>" +
                    (level == 0 ? "Checks of your own entries" : std::string(LevelName(level))) +
                    "</h2>\n<table>\n";
            }
            body += "<tr><td>" + Link(TechniquePage(slot), CaptionOf(slot)) + "</td><td>" +
                    SummaryOf(slot) + "</td></tr>\n";
        }
        made_.pages.push_back({"techniques.html", PageText(kOverview, "", body + "</table>\n")});
    }

    // Of the change log's marks, headings and lists are known.
    void AddChanges() {
        std::string body;
        std::string closing;
        std::istringstream lines(sources_.changes);
        for (std::string line; std::getline(lines, line);) {
            const bool goesOn = line.starts_with("  ") && !closing.empty();
            if (goesOn) {
                body += " " + Escaped(std::string_view(line).substr(2));
                continue;
            }
            body += closing;
            const bool isItem = line.starts_with("- ");
            const bool wasItem = closing == "</li>\n";
            body += isItem && !wasItem ? "<ul>\n" : !isItem && wasItem ? "</ul>\n" : "";
            closing.clear();
            if (isItem) {
                body += "<li>" + Escaped(std::string_view(line).substr(2));
                closing = "</li>\n";
            } else if (line.starts_with("## ")) {
                body += "<h2>" + Escaped(std::string_view(line).substr(3)) + "</h2>\n";
            } else if (!line.empty() && !line.starts_with("# ")) {
                body += "<p>" + Escaped(line) + "</p>\n";
            }
        }
        body += closing.empty() ? "" : closing + "</ul>\n";
        if (body.empty()) {
            Fail("the change log is empty");
        }
        made_.pages.push_back({std::string(kRevisionPage), PageText(kRevisions, "", body)});
    }

    const HelpSources& sources_;
    MadeHelp made_;
};

}  // namespace

std::map<std::string, std::string> ReadHelpTexts(std::istream& file) {
    std::map<std::string, std::string> texts;
    std::string* text = nullptr;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(kHeading) && line.ends_with(kHeadingEnd)) {
            const std::size_t length = line.size() - kHeading.size() - kHeadingEnd.size();
            text = &texts[line.substr(kHeading.size(), length)];
        } else if (text != nullptr && !line.empty()) {
            *text += line + '\n';
        }
    }
    return texts;
}

MadeHelp MakeHelp(const HelpSources& sources) {
    return HelpMaker(sources).Make();
}

}  // namespace vemo
