// The files of a drag.
#include "qt/dropped_files.h"

#include <algorithm>

namespace vemo {

bool AreFiles(const QList<QUrl>& urls) {
    return !urls.empty() && std::ranges::all_of(urls, &QUrl::isLocalFile);
}

std::vector<std::filesystem::path> PathsOf(const QList<QUrl>& urls) {
    std::vector<std::filesystem::path> paths;
    for (const QUrl& url : urls) {
        paths.emplace_back(url.toLocalFile().toStdU16String());
    }
    return paths;
}

}  // namespace vemo
