// Reading the puzzles of any file, whatever their formats: the text formats of other programs told
// apart piece by piece, or records of a layout that the player describes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/file_formats.h"
#include "tools/read_piece.h"
#include "tools/record_layout.h"
#include "tools/text_window.h"

namespace vemo {

// Reads a stream from its beginning to its end in constant memory, whatever its length. The stream
// outlives the source.
//
// A text may mix the formats. Blank lines, borders without a grid and comments (a line that begins
// with '#') are passed over; every other line belongs to a puzzle or to a piece that is rejected
// with a reason. Clues that clash, or have no single solution, are no fault here. A complete grid
// beside its puzzle is taken for the solution and is not read.
class PuzzleSource {
  public:
    explicit PuzzleSource(std::istream& in);  // finds out the format by itself
    // A layout with a fault gives one piece that tells it.
    PuzzleSource(std::istream& in, const RecordLayout& layout);

    // Nothing at the end of the stream, and from there on; nor where it is to stop.
    std::optional<ReadPiece> Next();

    // Asked now and then, also where no piece comes for gigabytes.
    void StopWhen(std::function<bool()> isStopped) { isStopped_ = std::move(isStopped); }

    // What was understood so far, for the player: "lines of 81 and .sdk files"; empty as long as no
    // puzzle was found.
    std::string_view Format() const { return format_; }

  private:
    void ReadOn();
    void PassLongLine();
    void ReadTag();
    std::optional<std::size_t> CommentLength(std::string_view ahead);
    void Take(FoundPuzzles found);
    void Reject(std::string error);
    void NoteFormat(FileFormat format);

    TextWindow text_;
    std::optional<RecordReader> records_;
    std::deque<ReadPiece> ready_;
    bool isRefused_ = false;  // for its layout: nothing is read
    std::function<bool()> isStopped_;
    bool isInLongLine_ = false;
    bool isInXml_ = false;
    std::uint64_t noCommentEnd_ = 0;  // no comment of the XML ends before this offset
    bool isBeforeFirst_ = true;       // nothing but blank lines and comments so far
    std::uint32_t formats_ = 0;       // a bit for each FileFormat found
    std::string format_;
};

// The first pieces of the stream, no more than `most`.
std::vector<ReadPiece> Preview(std::istream& in, const RecordLayout& layout, std::size_t most);

}  // namespace vemo
