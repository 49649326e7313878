// Reading the puzzles of any file.
#include "tools/puzzle_source.h"

#include <algorithm>
#include <bit>

#include "tools/puzzle_line.h"
#include "tools/text_rows.h"

namespace vemo {
namespace {

constexpr std::string_view kGameTag = "<game";
constexpr std::string_view kComment = "<!--";
constexpr std::string_view kEndOfComment = "-->";
constexpr std::string_view kEndOfXml = "</opensudoku";

// The text goes on with a .opensudoku file: it is one line often, longer than any other may be.
bool BeginsXml(std::string_view ahead) {
    constexpr std::size_t kLongestProlog = 1024;
    const std::size_t first = ahead.find_first_not_of(" \t");
    if (first == ahead.npos || ahead[first] != '<') {
        return false;
    }
    const std::string_view start = ahead.substr(first, kLongestProlog);
    return start.substr(0, start.find_first_of("\r\n")).find("<opensudoku") != start.npos;
}

bool IsXmlProlog(std::string_view line) {
    return line.starts_with("<?xml") && line.ends_with("?>");
}

// Blanks may be nine empty cells or fields.
bool MayBeBlankRow(std::string_view line) {
    constexpr std::size_t kSeparatorsOfRow = 8;
    return line.size() >= kSeparatorsOfRow && line.find_first_not_of(" \t") == line.npos;
}

bool IsRejection(const FoundPuzzles& found) {
    return !found.puzzles.front().error.empty();
}

// The length of the tag, no comment, that the text begins with; nothing where it does not end in
// the text.
std::optional<std::size_t> TagLength(std::string_view text) {
    char quote = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char character = text[at];
        if (quote != 0) {
            quote = character == quote ? '\0' : quote;
        } else if (character == '"' || character == '\'') {
            quote = character;
        } else if (character == '>') {
            return at + 1;
        }
    }
    return std::nullopt;
}

bool IsGame(std::string_view tag) {
    return tag.starts_with(kGameTag) && tag.size() > kGameTag.size() &&
           std::string_view(" \t\r\n/>").find(tag[kGameTag.size()]) != std::string_view::npos;
}

// A line of column names above a line with a puzzle.
bool IsHeaderOf(std::string_view line, LineCursor lines) {
    if (!IsTableHeader(line)) {
        return false;
    }
    for (auto next = lines.Next(); next; next = lines.Next()) {
        if (!IsBlankOrComment(*next)) {
            const auto found = ReadPuzzlesOfLine(*next);
            return found && !IsRejection(*found);
        }
    }
    return false;
}

// What begins with this line and takes up several, or is one line after all.
std::optional<FoundPuzzles> ReadLines(const LineCursor& here, std::string_view line,
                                      std::size_t lineLength) {
    auto found = ReadSections(here);
    if (!found) {
        found = ReadGrid(here);
    }
    if (!found || IsRejection(*found)) {
        if (auto blanks = ReadLineWithBlanks(line)) {
            blanks->length = lineLength;
            return blanks;
        }
    }
    return found;
}

}  // namespace

PuzzleSource::PuzzleSource(std::istream& in) : text_(in) {}

PuzzleSource::PuzzleSource(std::istream& in, const RecordLayout& layout) : text_(in) {
    const std::string fault = LayoutFault(layout);
    if (fault.empty()) {
        records_.emplace(in, layout);
    } else {
        ready_.push_back({Grid(), fault, 0});
        isRefused_ = true;
    }
}

std::optional<ReadPiece> PuzzleSource::Next() {
    if (records_) {
        auto piece = records_->Next();
        if (piece && piece->IsPuzzle()) {
            format_ = "records";
        }
        return piece;
    }
    while (ready_.empty() && !isRefused_ && !text_.Ahead().empty()) {
        if (isStopped_ && isStopped_()) {
            return std::nullopt;
        }
        if (isInLongLine_) {
            PassLongLine();
        } else if (isInXml_) {
            ReadTag();
        } else {
            ReadOn();
        }
    }
    if (ready_.empty()) {
        return std::nullopt;
    }
    std::optional<ReadPiece> piece(std::move(ready_.front()));
    ready_.pop_front();
    return piece;
}

// One puzzle, one piece that is none, or one line that is passed over.
void PuzzleSource::ReadOn() {
    const std::string_view ahead = text_.Ahead();
    if (BeginsXml(ahead)) {
        isInXml_ = true;
        return;
    }
    const LineCursor here(
        ahead, text_.IsToEnd() ? LineCursor::TextEnd::LastLine : LineCursor::TextEnd::CutLine);
    LineCursor next = here;
    const auto raw = next.Next();
    if (!raw || raw->size() >= kTextAhead) {
        Reject("a line of more than " + std::to_string(kTextAhead - 1) + " bytes");
        isInLongLine_ = true;
        return;
    }
    std::string scratch;
    const std::string_view line = PlainLine(*raw, scratch);
    const bool isBlank = IsBlankOrComment(line);
    auto found = isBlank ? std::nullopt : ReadPuzzlesOfLine(line);
    if (found) {
        found->length = next.Offset();
    } else if (!isBlank || MayBeBlankRow(line)) {
        found = ReadLines(here, line, next.Offset());
    }
    const bool isPassedOver = isBlank || IsBorder(line, Borders::All) || IsXmlProlog(line) ||
                              (isBeforeFirst_ && !found && IsHeaderOf(line, next));
    const bool isOfLine = found && found->length == next.Offset();
    if (found && !(IsRejection(*found) && (isBlank || (isPassedOver && isOfLine)))) {
        Take(std::move(*found));
        return;
    }
    if (!isPassedOver) {
        Reject(WhyNoPuzzle(line));
    }
    isBeforeFirst_ = isBeforeFirst_ && isBlank;
    text_.MoveOn(next.Offset());
}

// As far as it is ahead.
void PuzzleSource::PassLongLine() {
    const std::string_view ahead = text_.Ahead();
    const std::size_t end = ahead.find_first_of("\r\n");
    isInLongLine_ = end == ahead.npos;
    text_.MoveOn(std::min(end, ahead.size()));
}

// Of the comment that begins here; nothing where it does not end in the text ahead. What was looked
// through before is not looked through again.
std::optional<std::size_t> PuzzleSource::CommentLength(std::string_view ahead) {
    const std::uint64_t here = text_.Offset();
    const std::size_t from = std::max(noCommentEnd_, here) - here;
    const std::size_t end = ahead.find(kEndOfComment, from);
    if (end == ahead.npos) {
        noCommentEnd_ = here + ahead.size() - std::min(ahead.size(), kEndOfComment.size() - 1);
        return std::nullopt;
    }
    return end + kEndOfComment.size();
}

// One tag and the text before it.
void PuzzleSource::ReadTag() {
    text_.MoveOn(std::min(text_.Ahead().find('<'), text_.Ahead().size()));
    const std::string_view ahead = text_.Ahead();
    if (!ahead.starts_with('<')) {
        return;
    }
    const std::optional<std::size_t> length =
        ahead.starts_with(kComment) ? CommentLength(ahead) : TagLength(ahead);
    if (!length) {
        Reject("a tag that does not end");
        // Where none ends, all are rejected as one but the last, which may end further on.
        const bool hasNoEnd = ahead.find('>') == ahead.npos;
        text_.MoveOn(hasNoEnd ? std::max(ahead.rfind('<'), std::size_t{1}) : 1);
        return;
    }
    const std::string_view tag = ahead.substr(0, *length);
    if (IsGame(tag)) {
        Take({FileFormat::OpenSudoku, {ReadGameTag(tag)}, *length});
        return;
    }
    isInXml_ = !tag.starts_with(kEndOfXml);
    text_.MoveOn(*length);
}

void PuzzleSource::Take(FoundPuzzles found) {
    for (FoundPuzzle& puzzle : found.puzzles) {
        if (!puzzle.error.empty()) {
            Reject(std::move(puzzle.error));
            continue;
        }
        ready_.push_back({MakeGrid(puzzle.grid), "", text_.Line()});
        NoteFormat(found.format);
    }
    isBeforeFirst_ = false;
    text_.MoveOn(found.length);
}

void PuzzleSource::Reject(std::string error) {
    ready_.push_back({Grid(), std::move(error), text_.Line()});
}

void PuzzleSource::NoteFormat(FileFormat format) {
    const std::uint32_t bit = std::uint32_t{1} << static_cast<int>(format);
    if ((formats_ & bit) != 0) {
        return;
    }
    formats_ |= bit;
    format_.clear();
    for (int index = 0, left = std::popcount(formats_); left > 0; ++index) {
        if ((formats_ >> index & 1) == 0) {
            continue;
        }
        --left;
        format_ += format_.empty() ? "" : left == 0 ? " and " : ", ";
        format_ += NameOf(static_cast<FileFormat>(index));
    }
}

std::vector<ReadPiece> Preview(std::istream& in, const RecordLayout& layout, std::size_t most) {
    PuzzleSource source(in, layout);
    std::vector<ReadPiece> pieces;
    while (pieces.size() < most) {
        auto piece = source.Next();
        if (!piece) {
            break;
        }
        pieces.push_back(std::move(*piece));
    }
    return pieces;
}

}  // namespace vemo
