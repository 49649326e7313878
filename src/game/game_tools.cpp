// The events of the generator's window and of the one that prints. These live beside the game's
// long functions.
#include "game/game.h"

namespace vemo {

template <typename Event>
void Game::HandleGenerator(Event event) {
    event(stage_.generator);
    Show();
}

void Game::GeneratorChange(const GeneratorOrder& order) {
    HandleGenerator([&](GeneratorWindow& window) { window.Change(order); });
}

void Game::CommandStart() {
    HandleGenerator([](GeneratorWindow& window) { window.Start(); });
}

void Game::CommandStopSearch() {
    HandleGenerator([](GeneratorWindow& window) { window.Cancel(); });
}

void Game::CommandStore() {
    HandleGenerator([](GeneratorWindow& window) { window.Store(); });
}

void Game::GeneratorSelect(int row) {
    HandleGenerator([&](GeneratorWindow& window) { window.Select(row); });
}

void Game::CommandPlay() {
    PlayMadeSudoku(stage_);
    Show();
}

void Game::GeneratorTick() {
    TickGenerator(stage_);
    Show();
}

void Game::PrintChange(const PrintOrder& order) {
    stage_.print.Change(stage_, order);
    Show();
}

void Game::ChoosePaper(Paper paper) {
    stage_.print.ChoosePaper(stage_, paper);
    Show();
}

std::optional<std::filesystem::path> Game::AskPdfFile(const std::string& name) {
    return vemo::AskPdfFile(stage_, name);
}

bool Game::StorePdf(const std::filesystem::path& path, std::span<const std::uint8_t> bytes) {
    return vemo::StorePdf(stage_, path, bytes);
}

}  // namespace vemo
