// What the game may ask of a front end: the few calls that wait for the player or leave the
// program. Everything else that the player sees is the Screen.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace vemo {

enum class BoxButtons : std::uint8_t { Ok, YesNo, AbortRetryIgnore };
enum class BoxIcon : std::uint8_t { None, Warning };
enum class Answer : std::uint8_t { Ok, Yes, No, Abort, Retry, Ignore };
// What Enter answers to Yes and No: it goes on unless that would lose something.
enum class EnterKey : std::uint8_t { Yes, No };

// A modal message box.
struct Box {
    std::string title;
    std::string text;
    BoxButtons buttons = BoxButtons::Ok;
    BoxIcon icon = BoxIcon::None;
    EnterKey enter = EnterKey::Yes;
};

// A modal box with one line of input.
struct Question {
    std::string title;
    std::string prompt;
    std::string suggestion;
};

// Where to save a file; a front end asks before a file is replaced.
struct SaveQuestion {
    std::string title;
    std::string fileName;  // suggested
    std::string kind;      // "Text files (*.txt)"
};

// Which files to open.
struct OpenQuestion {
    std::string title;
    std::string kind;  // "Text files (*.txt)"
};

// The windows that stand beside the main window.
enum class Form : std::uint8_t {
    FormHint,
    FormLog,
    SolveTech,
    FormGenerator,
    FormCollection,
    FormColors,
    FormPrint,
    FormHelp,
};
// Whether a window takes the keyboard when it comes: where the player asked for it.
enum class Keyboard : std::uint8_t { Stays, Follows };

class View {
  public:
    virtual ~View() = default;

    // Waits for the answer. A box that is closed answers Ok, No or Retry: nothing is done.
    virtual Answer ShowBox(const Box& box) = 0;
    // Nothing where the player cancels.
    virtual std::optional<std::string> Ask(const Question& question) = 0;
    virtual std::optional<std::filesystem::path> AskSaveFile(const SaveQuestion& question) = 0;
    // None where the player cancels.
    virtual std::vector<std::filesystem::path> AskOpenFiles(const OpenQuestion& question) = 0;

    // Shows a window, or brings it to the front; waits for nothing. Whatever closes it later, the
    // game is asked by `FormQueryUnload` and hears of it by `FormUnload`.
    virtual void OpenForm(Form form, Keyboard keyboard) = 0;
    virtual void CloseForm(Form form) = 0;
    // What is played now has come from this window: the keyboard goes to the main window. Where it
    // was covered, this one is out of the way until it is opened again, and goes on as it was.
    virtual void GiveWay(Form form) = 0;
    // The hint window as it would be seen, as a BMP file. Empty where it is not open.
    virtual Bytes HintPicture() = 0;

    // Lets the window handle its events; events may reach the game meanwhile.
    virtual void Yield() = 0;
    // Lets the window handle its events for so long, or until `isOver` says that it is enough.
    virtual void Pause(int milliseconds, const std::function<bool()>& isOver) = 0;
    // The screen has changed.
    virtual void Refresh() = 0;

    // The system's own beep, none of the game's ten sounds.
    virtual void Beep() = 0;
    virtual void OpenLink(const std::string& address) = 0;
    // The game has ended: close the window without asking the game again.
    virtual void Close() = 0;
};

}  // namespace vemo
