// Where the program's own files and the player's files are.
#include "qt/qt_folders.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace vemo {
namespace {

std::filesystem::path PathOf(const QString& path) {
    return path.toStdU16String();
}

}  // namespace

std::filesystem::path QtFolders::Executable() {
    return PathOf(QCoreApplication::applicationDirPath());
}

std::filesystem::path QtFolders::LocalApplicationData() {
    if (!localData_.empty()) {
        return localData_;
    }
    return PathOf(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

}  // namespace vemo
