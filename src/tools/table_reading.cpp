// Reading a file into rows.
#include "tools/table_reading.h"

#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

namespace vemo {
namespace {

constexpr std::size_t kPiecesAtOnce = 1024;
constexpr std::size_t kMostWaiting = 65536;

TableReading::Piece PieceOf(ReadPiece&& read) {
    TableReading::Piece piece;
    piece.line = read.line;
    piece.error = std::move(read.error);
    if (piece.error.empty()) {
        const Digits clues = read.Clues();
        piece.row.emplace(PuzzleTable::NewRow{TableRow(FactsOf(clues)), PuzzleTable::Pack(clues)});
    }
    return piece;
}

std::string Reason() {
    return errno != 0 ? std::string(": ") + std::strerror(errno) : "";
}

}  // namespace

TableReading::TableReading(std::filesystem::path path, std::optional<RecordLayout> layout)
    : path_(std::move(path)),
      layout_(layout),
      pieces_(kMostWaiting),
      thread_([this](const std::stop_token& stop) { Run(stop); }) {}

void TableReading::Run(const std::stop_token& stop) {
    std::error_code none;
    const auto status = std::filesystem::status(path_, none);
    std::ifstream file;
    errno = 0;
    // A folder opens, and fails at the first byte; a pipe waits for somebody who writes. Why a
    // file is not there, opening it tells.
    if (std::filesystem::is_regular_file(status) || !std::filesystem::exists(status)) {
        file.open(path_, std::ios::binary);
    }
    if (!file.is_open()) {
        failure_ = Utf8(path_) + ": cannot be read" + Reason();
    } else {
        size_ = std::filesystem::file_size(path_, none);
        Read(file, stop);
        if (file.bad()) {
            failure_ = Utf8(path_) + ": cannot be read on" + Reason();
        }
    }
    isOver_ = true;
}

void TableReading::Read(std::istream& in, const std::stop_token& stop) {
    PuzzleSource source = layout_ ? PuzzleSource(in, *layout_) : PuzzleSource(in);
    source.StopWhen([&] { return stop.stop_requested(); });
    std::vector<Piece> pieces;
    auto read = source.Next();
    while (read && !stop.stop_requested()) {
        pieces.push_back(PieceOf(std::move(*read)));
        read = source.Next();
        if (pieces.size() == kPiecesAtOnce || !read) {
            // At the end of the stream there is no position any more.
            const auto at = static_cast<std::int64_t>(in.tellg());
            behind_ = at < 0 ? size_.load() : static_cast<std::uint64_t>(at);
            if (!pieces_.Put(std::exchange(pieces, {}), stop)) {
                break;
            }
        }
    }
    format_ = source.Format();
}

double TableReading::Progress() const {
    return size_ == 0 ? 0 : static_cast<double>(behind_) / static_cast<double>(size_);
}

}  // namespace vemo
