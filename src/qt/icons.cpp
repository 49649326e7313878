// The pictures that are built into the program.
#include "qt/icons.h"

#include <QString>

// A library's pictures are left out of the program unless they are asked for, outside any
// namespace.
static void InitPictures() {
    Q_INIT_RESOURCE(vemosud2);
}

namespace vemo {

using namespace Qt::StringLiterals;

QIcon ApplicationIcon() {
    InitPictures();
    QIcon icon;
    for (int side : {16, 32, 48, 64, 128, 256}) {
        icon.addFile(u":/icons/vemosud2-%1.png"_s.arg(side), QSize(side, side));
    }
    return icon;
}

}  // namespace vemo
