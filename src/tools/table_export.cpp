// Writing rows to a file.
#include "tools/table_export.h"

#include <utility>

#include "platform/replacing_file.h"

namespace vemo {
namespace {

constexpr std::size_t kPieceLength = std::size_t{1} << 16;

std::span<const std::uint8_t> BytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

}  // namespace

TableExport::TableExport(const PuzzleTable& table, RowList rows, ExportFormat format,
                         std::filesystem::path path)
    : table_(table),
      rows_(std::move(rows)),
      format_(format),
      path_(std::move(path)),
      thread_([this](const std::stop_token& stop) { Run(stop); }) {}

void TableExport::Run(const std::stop_token& stop) {
    ReplacingFile file(path_);
    std::string text(ExportHeader(format_));
    for (std::size_t at = 0; at < rows_.Size() && !stop.stop_requested() && !failure_; ++at) {
        const std::optional<Digits> clues = table_.Clues(rows_[at]);
        if (!clues) {
            failure_ = FileError{path_, "not written: the sudokus could not be read"};
            break;
        }
        text += WriteExport(format_, Grid::FromClues(*clues));
        if (text.size() >= kPieceLength) {
            failure_ = file.Write(BytesOf(text));
            text.clear();
        }
        written_ = at + 1;
    }
    if (!failure_ && !stop.stop_requested()) {
        text += ExportFooter(format_);
        failure_ = file.Write(BytesOf(text));
        failure_ = failure_ ? failure_ : file.Finish();
    }
    isOver_ = true;
}

}  // namespace vemo
