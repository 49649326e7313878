// The pictures of the help.
#include "qt/help_pictures.h"

#include <algorithm>
#include <functional>
#include <utility>

#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QImageWriter>
#include <QPainter>

#include "qt/board_picture.h"
#include "qt/legend.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr double kScale = 1.5;  // pixels to one of a plain screen
constexpr int kSide = 594;      // of the board with its labels
constexpr int kTextHeight = 20;
constexpr int kPad = 9;
constexpr int kExactColors = 8;     // the grounds of the board, though some are much alike
constexpr int kLeastDistance = 40;  // of two colours of a picture, in the space of red, green, blue
constexpr int kPngQuality = 0;      // as small as it gets; PNG loses nothing

bool AreAlike(QRgb first, QRgb second) {
    const int red = qRed(first) - qRed(second);
    const int green = qGreen(first) - qGreen(second);
    const int blue = qBlue(first) - qBlue(second);
    return red * red + green * green + blue * blue < kLeastDistance * kLeastDistance;
}

// The colours that most of the picture is made of, none much like another: the rest are shades at
// the rims of lines and letters.
QList<QRgb> MainColors(const QImage& image) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    QList<QRgb> colors = counts.keys();
    // Of two as frequent the darker one, so that the same board always gives the same file.
    std::ranges::sort(colors, std::greater(),
                      [&counts](QRgb color) { return std::pair(counts[color], ~color); });
    QList<QRgb> chosen;
    for (const QRgb color : colors) {
        const bool isNew = std::ranges::none_of(
            chosen, [color](QRgb earlier) { return AreAlike(color, earlier); });
        if (isNew || chosen.size() < kExactColors) {
            chosen << color;
        }
    }
    return chosen;
}

QImage Drawn(const Screen& board, const BoardColors& colors) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(kTextHeight);
    const LegendPainter legend(board.legend, font);
    const int legendHeight = legend.HeightFor(kSide - 2 * kPad);
    QImage image(kSide, kSide + (legendHeight > 0 ? legendHeight + kPad : 0), QImage::Format_RGB32);
    image.fill(colors.theme.panel);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintBoardPicture(painter, QRect(0, 0, kSide, kSide), kScale, board, colors, font);
    legend.Paint(painter, QRect(kPad, kSide, kSide - 2 * kPad, legendHeight), colors);
    painter.end();
    return image.convertToFormat(QImage::Format_Indexed8, MainColors(image),
                                 Qt::ThresholdDither | Qt::AvoidDither);
}

bool Write(const QImage& image, const std::filesystem::path& path) {
    QImageWriter writer(QString::fromStdU16String(path.u16string()), "png");
    writer.setQuality(kPngQuality);
    return writer.write(image);
}

}  // namespace

bool WriteHelpPictures(const HelpDrawing& drawing, const std::filesystem::path& folder) {
    const Colors colors = BuiltInColors();
    const QImage light = Drawn(drawing.board, {ThemeOf(Tone::Light), colors.light});
    const QImage dark = Drawn(drawing.board, {ThemeOf(Tone::Dark), colors.dark});
    const std::filesystem::path path = folder / drawing.name;
    std::filesystem::path lightPath = path;
    std::filesystem::path darkPath = path;
    lightPath += ".png";
    darkPath += "-dark.png";
    return Write(light, lightPath) && Write(dark, darkPath);
}

}  // namespace vemo
