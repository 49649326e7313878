// The big hint window.
#include "game/hint_window.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "game/screen_maker.h"
#include "game/stage.h"

namespace vemo {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNoHint = "Hint - ";
constexpr const char* kSaveTitle = "Save as... Filename[.bmp]";
constexpr const char* kSavePrompt =
    "Enter a valid filename (without the extension) for the image to save.\n"
    "The file will be saved as BMP-file in subfolder 'Screenshots' within your application "
    "folder.";
constexpr std::string_view kExtension = ".bmp";
// What one system or another does not take in a file's name.
constexpr std::string_view kBadCharacters = "\\/:*?\"<>|";
constexpr int kMostPictures = 9999;

// The places for pictures: beside the program; where that cannot be written, with the player's
// data.
std::array<fs::path, 2> PictureFolders(const Stage& stage) {
    return {stage.folders.Executable() / "Screenshots", stage.files.DataFolder() / "Screenshots"};
}

fs::path PathOf(const fs::path& folder, const std::string& name) {
    const std::string file = name + std::string(kExtension);
    return folder / fs::path(std::u8string(file.begin(), file.end()));
}

bool Exists(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

// "Hint - Naked Pair_0001", with the first number that no picture has.
std::string SuggestedName(const Stage& stage) {
    const std::array<fs::path, 2> folders = PictureFolders(stage);
    const std::string caption = MakeHintWindow(stage).caption;
    std::string name;
    for (int number = 1; number <= kMostPictures; ++number) {
        const std::string digits = std::to_string(number);
        name = caption + "_" + std::string(4 - digits.size(), '0') + digits;
        if (std::ranges::none_of(
                folders, [&](const fs::path& folder) { return Exists(PathOf(folder, name)); })) {
            break;
        }
    }
    return name;
}

bool HasExtension(std::string_view name) {
    const std::size_t length = kExtension.size();
    return name.size() >= length &&
           std::ranges::equal(name.substr(name.size() - length), kExtension, {}, [](char letter) {
               return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a')
                                                     : letter;
           });
}

// Blanks and dots at a name's end are lost on some systems, and a dot at its begin hides the file
// on others.
constexpr const char* kLostInNames = " .";

// As it can be a file's name, without the extension; empty where nothing is left of it.
std::string CleanName(std::string name) {
    for (char& character : name) {
        const bool isControl = static_cast<unsigned char>(character) < 0x20;
        if (isControl || kBadCharacters.find(character) != std::string_view::npos) {
            character = '_';
        }
    }
    name = Trimmed(name, kLostInNames);
    if (HasExtension(name)) {
        name.resize(name.size() - kExtension.size());
    }
    return Trimmed(name, kLostInNames);
}

// Makes the folder and writes the picture into it. `isKept`: a file is there, and stays.
struct Saving {
    std::optional<FileError> error;
    bool isKept = false;
};
Saving SavePicture(Stage& stage, const fs::path& path, const Bytes& picture) {
    if (auto error = stage.anyFiles.MakeFolder(path.parent_path())) {
        return {FileError{path, std::move(error->reason)}};
    }
    const std::string question =
        "The file " + Utf8(path) + " exists already. Do you want to replace it ?";
    if (Exists(path) && !AskYesNo(stage, kSaveTitle, question, EnterKey::No)) {
        return {std::nullopt, true};
    }
    return {stage.anyFiles.Replace(path, picture)};
}

// The copy keeps the hint's colours and the player's, not where the player was just working.
Screen BoardCopy(const Stage& stage) {
    Screen board = MakeUncoveredScreen(stage);
    board.selectedCell = kNoCell;
    if (board.digitFilter == 0) {
        for (CellView& cell : board.cells) {
            cell.isSameDigit = false;
        }
    }
    return board;
}

// Reports and simple hints colour cells too: their words are in the small text box.
std::string ExplanationOf(const Session& session, const Screen& board) {
    if (session.hint) {
        return HintText(*session.hint);
    }
    return std::ranges::any_of(board.cells, &CellView::isHintCell) ? session.textHint : "";
}

void CopyBoard(Stage& stage) {
    const Session& session = stage.session;
    HintWindow& window = stage.hintWindow;
    window.board = BoardCopy(stage);
    window.caption = session.hint ? session.hintCaption : kNoHint;
    window.text = ExplanationOf(session, window.board);
    window.slot = session.hintSlot;
    window.note.clear();
}

void GiveTextBack(Session& session) {
    const std::string pointer = DoubleClickText();
    if (session.hint && session.textHint.starts_with(pointer)) {
        session.textHint.replace(0, pointer.size(), HintText(*session.hint));
    }
}

}  // namespace

void ShowHint(Stage& stage) {
    if (!stage.options.hintWindow && !stage.hintWindow.isOpen) {
        return;
    }
    CopyBoard(stage);
    stage.session.textHint = DoubleClickText();
    stage.hintWindow.isOpen = true;
    stage.view.OpenForm(Form::FormHint, Keyboard::Stays);
}

HintWindow MakeHintWindow(const Stage& stage) {
    HintWindow window = stage.hintWindow;
    if (window.isOpen && stage.session.IsCovered()) {
        window.board = MakeScreen(stage);
        window.caption = kNoHint;
        window.text = window.board.textHint;
    }
    return window;
}

void OpenHintWindow(Stage& stage) {
    Session& session = stage.session;
    if (!stage.hintWindow.isOpen) {
        CopyBoard(stage);
    }
    if (session.hint && session.textHint == HintText(*session.hint)) {
        session.textHint = DoubleClickText();
    }
    stage.hintWindow.isOpen = true;
    stage.view.OpenForm(Form::FormHint, Keyboard::Follows);
}

void RefreshHintWindow(Stage& stage) {
    if (stage.hintWindow.isOpen) {
        CopyBoard(stage);
    }
}

void HintWindowClosed(Stage& stage) {
    stage.hintWindow.isOpen = false;
    if (!stage.options.hintWindow) {
        GiveTextBack(stage.session);
    }
}

void SaveHintWindow(Stage& stage) {
    stage.show();
    // Drawn before anything is asked: no box lies over the window.
    const Bytes picture = stage.view.HintPicture();
    if (picture.empty()) {
        return;
    }
    const std::string entered =
        stage.view.Ask({kSaveTitle, kSavePrompt, SuggestedName(stage)}).value_or("");
    const std::string name = CleanName(entered);
    if (name.empty()) {
        if (!entered.empty()) {
            Tell(stage, kSaveTitle, "\"" + entered + "\" cannot be the name of a file.");
        }
        return;
    }
    Saving saving;
    for (const fs::path& folder : PictureFolders(stage)) {
        const fs::path path = PathOf(folder, name);
        saving = SavePicture(stage, path, picture);
        if (!saving.error) {
            stage.hintWindow.note = saving.isKept ? "" : "Saved as " + Utf8(path);
            return;
        }
    }
    TellFileError(stage, *saving.error);
}

void ToggleSmallHintWindow(Stage& stage) {
    FlipOption(stage, &Options::hintWindow);
    if (stage.options.hintWindow && stage.session.hint) {
        ShowHint(stage);
    } else if (!stage.options.hintWindow && stage.hintWindow.isOpen) {
        stage.view.CloseForm(Form::FormHint);
    } else if (!stage.options.hintWindow) {
        GiveTextBack(stage.session);
    }
}

}  // namespace vemo
