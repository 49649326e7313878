// The text of the collection window.
#include "game/collection_log.h"

namespace vemo {
namespace {

constexpr std::size_t kMostReported = 2000;

}  // namespace

void CollectionLog::AddLine(std::string_view line) {
    text_.append(line).append("\r\n");
}

void CollectionLog::ReportLine(std::string_view line) {
    if (++reported_ <= kMostReported) {
        AddLine(line);
    }
}

void CollectionLog::EndReport() {
    if (reported_ > kMostReported) {
        AddLine("... and " + std::to_string(reported_ - kMostReported) + " more.");
    }
}

}  // namespace vemo
