// The game as the window of the colours sees it. The colours are no matter of the game's rules:
// they can be changed beside its long functions.
#include "game/game.h"

namespace vemo {

template <typename Event>
void Game::HandleColors(Event event) {
    event(stage_.colorWindow);
    Show();
}

void Game::mnuOptionsColors() {
    OpenColors(stage_);
}

void Game::ColorTone(Tone tone) {
    HandleColors([&](ColorWindow& window) { window.ShowTone(tone); });
}

void Game::ColorSelect(int row) {
    HandleColors([&](ColorWindow& window) { window.Select(row); });
}

void Game::ColorChange(ColorPart part, Rgb color) {
    HandleColors([&](ColorWindow& window) { window.Change(part, color); });
}

void Game::ColorType(ColorPart part, const std::string& text) {
    HandleColors([&](ColorWindow& window) { window.Type(part, text); });
}

void Game::ColorEndTyping() {
    HandleColors([](ColorWindow& window) { window.EndTyping(); });
}

void Game::ColorForgetTyped() {
    HandleColors([](ColorWindow& window) { window.ForgetTyped(); });
}

void Game::CommandResetColor() {
    HandleColors([](ColorWindow& window) { window.Reset(); });
}

void Game::CommandResetColors() {
    HandleColors([](ColorWindow& window) { window.ResetAll(); });
}

void Game::CommandKeepColors() {
    if (stage_.colorWindow.CanKeep()) {
        KeepColors(stage_);
        stage_.view.CloseForm(Form::FormColors);
    }
}

void Game::CommandCancelColors() {
    stage_.colorWindow.TakeBack();
    stage_.view.CloseForm(Form::FormColors);
}

}  // namespace vemo
