// Any layout and any bytes as a file of records: a layout with a fault is refused, by any other
// each record is a piece.
#include <algorithm>
#include <array>
#include <cstdint>
#include <sstream>
#include <string>

#include "target.h"
#include "tools/puzzle_source.h"

namespace vemo {
namespace {

// Little-endian, two bytes; 0 past the end.
std::uint64_t TakeNumber(std::span<const std::uint8_t>& input) {
    std::uint64_t number = 0;
    for (unsigned shift = 0; shift < 16 && !input.empty(); shift += 8) {
        number |= std::uint64_t{input.front()} << shift;
        input = input.subspan(1);
    }
    return number;
}

}  // namespace

void Check(std::span<const std::uint8_t> input) {
    RecordLayout layout;
    layout.headerLength = TakeNumber(input);
    layout.recordLength = TakeNumber(input);
    layout.cluesOffset = TakeNumber(input);
    const std::uint64_t kinds = TakeNumber(input);
    layout.digits = kinds % 2 == 0 ? RecordDigits::Text : RecordDigits::Binary;
    layout.empty.reset();
    if (kinds / 2 % 2 == 0) {
        layout.empty = static_cast<std::uint8_t>(kinds >> 8);
    }
    std::istringstream in{std::string(TextOf(input))};
    PuzzleSource source(in, layout);
    std::uint64_t count = 0;
    for (auto piece = source.Next(); piece; piece = source.Next()) {
        ++count;
        Require(piece->IsPuzzle() || piece->grid == Grid(), "what is rejected has no grid");
    }
    if (!LayoutFault(layout).empty()) {
        Require(count == 1, "a fault is told once");
        return;
    }
    const std::uint64_t bytes =
        input.size() - std::min<std::uint64_t>(layout.headerLength, input.size());
    Require(count == (bytes + layout.recordLength - 1) / layout.recordLength,
            "each record is a piece");
}

}  // namespace vemo
