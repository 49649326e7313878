// Foreign files of records of one length, each with the clues of a puzzle at the same place.
#pragma once

#include <cstdint>
#include <istream>
#include <optional>
#include <string>

#include "tools/read_piece.h"

namespace vemo {

enum class RecordDigits : std::uint8_t {
    Text,    // the characters '1' to '9'
    Binary,  // the bytes 1 to 9
};

// How to read such a file. The 81 cells of a record stand side by side, row by row, a byte each.
struct RecordLayout {
    std::uint64_t headerLength = 0;  // bytes before the first record
    std::uint64_t recordLength = 81;
    std::uint64_t cluesOffset = 0;  // of the first cell within its record
    RecordDigits digits = RecordDigits::Text;
    // The byte of an empty cell. Nothing: every byte that is no digit.
    std::optional<std::uint8_t> empty = std::uint8_t{'.'};

    bool operator==(const RecordLayout&) const = default;
};

inline constexpr std::uint64_t kLongestHeader = std::uint64_t{1} << 30;
inline constexpr std::uint64_t kLongestRecord = std::uint64_t{1} << 20;

// What is wrong with the layout, a sentence for the player; empty: it can be read by.
std::string LayoutFault(const RecordLayout& layout);

// Reads the records of a stream one by one.
class RecordReader {
  public:
    // The layout has no fault.
    RecordReader(std::istream& in, const RecordLayout& layout);

    // The next record, the number of which, from 1, is the piece's line; nothing at the end. A last
    // record that is cut is a puzzle where its 81 cells are whole.
    std::optional<ReadPiece> Next();

  private:
    std::uint64_t Skip(std::uint64_t length);

    std::istream* in_;
    RecordLayout layout_;
    std::int64_t number_ = 0;
};

}  // namespace vemo
