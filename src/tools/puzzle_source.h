// Reading the puzzles of any file, whatever their formats: the text formats of other programs told
// apart piece by piece, or records of a layout that the player describes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
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

    // Nothing at the end of the stream, and from there on.
    std::optional<ReadPiece> Next();

    // What was understood so far, for the player: "lines of 81 and .sdk files"; empty as long as no
    // puzzle was found.
    std::string_view Format() const { return format_; }

  private:
    void ReadOn();
    void RejectLongLine();
    void ReadTag();
    void Take(FoundPuzzles found);
    void Reject(std::string error);
    void NoteFormat(FileFormat format);

    TextWindow text_;
    std::optional<RecordReader> records_;
    std::deque<ReadPiece> ready_;
    bool isRefused_ = false;  // for its layout: nothing is read
    bool isInXml_ = false;
    bool isBeforeFirst_ = true;  // nothing but blank lines and comments so far
    std::uint32_t formats_ = 0;  // a bit for each FileFormat found
    std::string format_;
};

// The first pieces of the stream, no more than `most`.
std::vector<ReadPiece> Preview(std::istream& in, const RecordLayout& layout, std::size_t most);

}  // namespace vemo
