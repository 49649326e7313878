// The mouse pointer while a colour brush is armed.
#include "qt/brush_pointer.h"

#include <array>

#include <QGuiApplication>
#include <QImageReader>
#include <QPixmap>

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

struct Picture {
    int side;
    QPoint tip;
};
constexpr std::array<Picture, 3> kPictures = {{{32, {2, 29}}, {48, {3, 44}}, {64, {4, 59}}}};

const Picture& PictureFor(double scale) {
    for (const Picture& picture : kPictures) {
        if (picture.side >= kPictures[0].side * scale) {
            return picture;
        }
    }
    return kPictures.back();
}

QImage Load(int side) {
    QImageReader reader(u":/icons/Brush.ico"_s);
    do {
        const QImage image = reader.read();
        if (image.width() == side) {
            return image;
        }
    } while (reader.jumpToNextImage());
    return {};
}

}  // namespace

QCursor BrushPointer(double scale) {
    const Picture& picture = PictureFor(scale);
    QPixmap pixmap = QPixmap::fromImage(Load(picture.side));
    if (pixmap.isNull()) {
        return Qt::PointingHandCursor;
    }
    // X servers take the picture and its tip in device pixels, other systems in logical ones.
    if (QGuiApplication::platformName() == u"xcb"_s) {
        return QCursor(pixmap, picture.tip.x(), picture.tip.y());
    }
    const double side = static_cast<double>(picture.side) / kPictures[0].side;
    pixmap.setDevicePixelRatio(side);
    return QCursor(pixmap, static_cast<int>(picture.tip.x() / side),
                   static_cast<int>(picture.tip.y() / side));
}

}  // namespace vemo
