// A view for games that nobody watches.
#pragma once

#include "game/view.h"

namespace vemo {

// Nobody is there to press a button: Yes and OK to everything. Shows nothing.
class ViewWithoutWindow : public View {
  public:
    Answer ShowBox(const Box& box) override {
        return box.buttons == BoxButtons::YesNo ? Answer::Yes : Answer::Ok;
    }
    std::optional<std::string> Ask(const Question& question) override {
        return question.suggestion;
    }
    std::optional<std::filesystem::path> AskSaveFile(const SaveQuestion&) override {
        return std::nullopt;
    }
    std::vector<std::filesystem::path> AskOpenFiles(const OpenQuestion&) override { return {}; }
    void OpenForm(Form, Keyboard) override {}
    void CloseForm(Form) override {}
    void GiveWay(Form) override {}
    Bytes HintPicture() override { return {}; }
    void Yield() override {}
    void Pause(int, const std::function<bool()>&) override {}
    void Refresh() override {}
    void Beep() override {}
    void OpenLink(const std::string&) override {}
    void Close() override {}
};

}  // namespace vemo
