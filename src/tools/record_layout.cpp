// Foreign files of records of one length.
#include "tools/record_layout.h"

#include <algorithm>
#include <array>

#include "solver/text.h"

namespace vemo {
namespace {

constexpr std::uint64_t kCluesLength = kCells;

std::string Bytes(std::uint64_t count) {
    return std::to_string(count) + (count == 1 ? " byte" : " bytes");
}

// 1 to 9, 0 for any other byte.
std::uint8_t DigitIn(const RecordLayout& layout, std::uint8_t byte) {
    const int digit = layout.digits == RecordDigits::Text ? byte - '0' : byte;
    return digit >= 1 && digit <= kDigits ? static_cast<std::uint8_t>(digit) : std::uint8_t{0};
}

std::string WrongByte(const RecordLayout& layout, int cell, std::uint8_t byte) {
    const std::string_view digits =
        layout.digits == RecordDigits::Text ? "a digit's character" : "a digit's byte";
    return "byte " + std::to_string(byte) + " of cell " + CellName(cell) + " is neither " +
           std::string(digits) + " nor the empty cell's";
}

}  // namespace

std::string LayoutFault(const RecordLayout& layout) {
    if (layout.headerLength > kLongestHeader) {
        return "The header is longer than " + Bytes(kLongestHeader) + ".";
    }
    if (layout.recordLength > kLongestRecord) {
        return "A record is longer than " + Bytes(kLongestRecord) + ".";
    }
    if (layout.recordLength < kCluesLength) {
        return "A record of " + Bytes(layout.recordLength) + " cannot hold the 81 cells.";
    }
    if (layout.cluesOffset > layout.recordLength - kCluesLength) {
        return "The 81 cells do not fit into a record of " + Bytes(layout.recordLength) +
               " after the first " + Bytes(layout.cluesOffset) + ".";
    }
    if (layout.empty && DigitIn(layout, *layout.empty) != 0) {
        return "The empty cell's byte, " + std::to_string(*layout.empty) +
               ", is that of the digit " + std::to_string(DigitIn(layout, *layout.empty)) + ".";
    }
    return "";
}

RecordReader::RecordReader(std::istream& in, const RecordLayout& layout)
    : in_(&in), layout_(layout) {
    Skip(layout_.headerLength);
}

// The bytes that were there to skip.
std::uint64_t RecordReader::Skip(std::uint64_t length) {
    in_->ignore(static_cast<std::streamsize>(length));
    return static_cast<std::uint64_t>(in_->gcount());
}

std::optional<ReadPiece> RecordReader::Next() {
    const std::uint64_t before = Skip(layout_.cluesOffset);
    std::array<char, kCluesLength> cells;
    in_->read(cells.data(), static_cast<std::streamsize>(cells.size()));
    const auto count = static_cast<std::uint64_t>(in_->gcount());
    if (before + count == 0) {
        return std::nullopt;
    }
    ReadPiece piece;
    piece.line = ++number_;
    if (count < kCluesLength) {
        piece.error = "the file ends after " + Bytes(before + count) + " of a record of " +
                      std::to_string(layout_.recordLength);
        return piece;
    }
    Skip(layout_.recordLength - layout_.cluesOffset - kCluesLength);
    Digits clues{};
    for (int cell = 0; cell < kCells; ++cell) {
        const auto byte = static_cast<std::uint8_t>(cells[static_cast<std::size_t>(cell)]);
        const std::uint8_t digit = DigitIn(layout_, byte);
        if (digit == 0 && layout_.empty && byte != *layout_.empty) {
            piece.error = WrongByte(layout_, cell, byte);
            return piece;
        }
        clues[static_cast<std::size_t>(cell)] = digit;
    }
    piece.grid = Grid::FromClues(clues);
    return piece;
}

}  // namespace vemo
