// The files of a drag.
#pragma once

#include <filesystem>
#include <vector>

#include <QList>
#include <QUrl>

namespace vemo {

// All of them on this computer, and at least one.
bool AreFiles(const QList<QUrl>& urls);
std::vector<std::filesystem::path> PathsOf(const QList<QUrl>& urls);

}  // namespace vemo
