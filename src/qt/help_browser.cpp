// Shows the pages of the help.
#include "qt/help_browser.h"

#include <algorithm>
#include <cmath>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QKeyEvent>
#include <QScrollBar>

#include "qt/help_index.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr double kMargin = 20;
constexpr double kZoomStep = 1.15;
constexpr int kMostZoom = 8;
constexpr double kFoundShare = 0.35;  // of the accent behind a word that was searched
// The pictures hold one and a half pixels for one of a plain screen.
constexpr double kPictureScale = 1.5;
constexpr QLatin1StringView kDarkEnd("-dark.png");

QString Css(const QColor& color) {
    return color.name();
}

// The pages' own sheet is for browsers; here their colours are those of the window.
QString StyleOf(const Theme& theme, double points) {
    const auto size = [points](double share) {
        return u"font-size:%1pt"_s.arg(points * share, 0, 'f', 1);
    };
    return u"body{color:%1}"
           "a{color:%2}"
           "h1{%3;font-weight:600;margin-top:4px;margin-bottom:10px}"
           "h2{%4;font-weight:600;margin-top:20px;margin-bottom:6px}"
           "h3{%5;font-weight:600;margin-top:14px;margin-bottom:4px}"
           "p{margin-top:6px;margin-bottom:8px;line-height:130%}"
           "li{margin-bottom:4px;line-height:125%}"
           ".nav,.facts,.log,figcaption{color:%6}"
           ".nav{%7}"
           ".short{%8}"
           "table{margin-top:6px;margin-bottom:10px;border-collapse:collapse;border-color:%9}"
           "td,th{padding:5px 10px 5px 6px;border:1px solid %9}"
           "th{text-align:left;font-weight:600}"
           "code,kbd,pre{font-family:monospace}"_s.arg(
               Css(theme.text), Css(theme.accent), size(1.6), size(1.25), size(1.05),
               Css(theme.softText), size(0.9), size(1.1), Css(theme.line));
}

}  // namespace

HelpBrowser::HelpBrowser(std::filesystem::path folder, QWidget* parent)
    : QTextBrowser(parent),
      folder_(QDir(QString::fromStdU16String(folder.u16string())).absolutePath()),
      plainPoints_(font().pointSizeF()) {
    setObjectName(u"TextHelp"_s);
    setAccessibleName(u"Help page"_s);
    setFrameShape(QFrame::NoFrame);
    setOpenLinks(false);
    // The room for pictures must not change while a page is being loaded.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    document()->setDocumentMargin(kMargin);
    // `source` is still the page before when the signal comes.
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) { url_ = url; });
    resized_.setSingleShot(true);
    resized_.setInterval(0);
    connect(&resized_, &QTimer::timeout, this, [this] { ShowAnew(); });
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        const QUrl url = url_.resolved(link);
        if (!FileOf(url).isEmpty()) {
            setSource(url);
        } else if (linkOut_) {
            linkOut_(url.toString());
        }
    });
}

void HelpBrowser::ShowPage(const QString& page) {
    const qsizetype place = page.indexOf(u'#');
    QUrl url = QUrl::fromLocalFile(folder_ + u'/' + page.left(place));
    if (place >= 0) {
        url.setFragment(page.mid(place + 1));
    }
    setSource(url);
}

QString HelpBrowser::Page() const {
    return QDir(folder_).relativeFilePath(FileOf(url_));
}

void HelpBrowser::SetColors(const BoardColors& colors) {
    if (colors_ == colors && !document()->defaultStyleSheet().isEmpty()) {
        return;
    }
    colors_ = colors;
    ShowAnew();
}

void HelpBrowser::Zoom(int steps) {
    zoom_ = steps == 0 ? 0 : std::clamp(zoom_ + steps, -kMostZoom, kMostZoom);
    QFont scaled = font();
    scaled.setPointSizeF(Points());
    setFont(scaled);
    ShowAnew();
}

int HelpBrowser::MarkWords(const QStringList& words) {
    places_.clear();
    for (const QString& word : words) {
        const QRegularExpression beginning = BeginningOf(word);
        QTextCursor found = document()->find(beginning);
        while (!found.isNull()) {
            places_ << found;
            found = document()->find(beginning, found);
        }
    }
    std::ranges::sort(places_, {}, &QTextCursor::selectionStart);
    QList<QTextEdit::ExtraSelection> marks;
    for (const QTextCursor& place : places_) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = place;
        mark.format.setBackground(Mixed(colors_.theme.panel, colors_.theme.accent, kFoundShare));
        marks << mark;
    }
    setExtraSelections(marks);
    if (!places_.isEmpty()) {
        ShowPlace(0);
    } else {
        QTextCursor cursor = textCursor();
        cursor.clearSelection();
        setTextCursor(cursor);
    }
    return static_cast<int>(places_.size());
}

bool HelpBrowser::ShowNextPlace(Way way) {
    const qsizetype next = place_ + (way == Way::Forward ? 1 : -1);
    if (next < 0 || next >= places_.size()) {
        return false;
    }
    ShowPlace(next);
    return true;
}

QVariant HelpBrowser::loadResource(int type, const QUrl& url) {
    if (type == QTextDocument::StyleSheetResource) {
        return QString();
    }
    const QString name = FileOf(url);
    if (name.isEmpty()) {
        return {};
    }
    if (type == QTextDocument::ImageResource) {
        return Picture(name);
    }
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        return u"<h1>This page is missing</h1><p>There is no file %1.</p>"_s.arg(
            name.toHtmlEscaped());
    }
    return QString::fromUtf8(file.readAll());
}

void HelpBrowser::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
    places_.clear();
    widest_ = 0;
    setExtraSelections({});
    QTextBrowser::doSetSource(
        url, type == QTextDocument::UnknownResource ? QTextDocument::HtmlResource : type);
}

// The keys of the window are its own.
void HelpBrowser::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers().testFlag(Qt::AltModifier)) {
        event->ignore();
    } else {
        QTextBrowser::keyPressEvent(event);
    }
}

// Pictures are no wider than the page. Later, since a page may be being loaded now.
void HelpBrowser::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    const auto shown = [this](const QSize& size) { return std::min(widest_, Room(size.width())); };
    if (shown(event->oldSize()) != shown(event->size())) {
        resized_.start();
    }
}

QString HelpBrowser::FileOf(const QUrl& url) const {
    if (!url.isLocalFile()) {
        return {};
    }
    const QString file = QDir::cleanPath(url.toLocalFile());
    return file.startsWith(folder_ + u'/') ? file : QString();
}

QVariant HelpBrowser::Picture(const QString& file) {
    QString dark = file;
    dark.replace(u".png"_s, kDarkEnd);
    const bool isDark = colors_.theme == ThemeOf(Tone::Dark) && QFileInfo::exists(dark);
    const QImage image(isDark ? dark : file);
    const double natural = image.width() / kPictureScale * Points() / plainPoints_;
    const double wanted = std::min(natural, Room(viewport()->width()));
    widest_ = std::max(widest_, natural);
    if (image.isNull() || wanted < 1) {
        return image;
    }
    const double scale = devicePixelRatioF();
    QImage scaled =
        image.convertToFormat(QImage::Format_RGB32)
            .scaledToWidth(static_cast<int>(std::lround(wanted * scale)), Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(scale);
    return scaled;
}

// The style and the pictures are part of a page as it is loaded.
void HelpBrowser::ShowAnew() {
    if (colors_.theme.text == QColor()) {
        return;
    }
    document()->setDefaultStyleSheet(StyleOf(colors_.theme, Points()));
    const QScrollBar& bar = *verticalScrollBar();
    const double share = bar.maximum() == 0 ? 0 : double(bar.value()) / bar.maximum();
    reload();
    verticalScrollBar()->setValue(int(std::lround(share * verticalScrollBar()->maximum())));
}

void HelpBrowser::ShowPlace(qsizetype number) {
    place_ = number;
    QTextCursor cursor = places_[number];
    setTextCursor(cursor);
    ensureCursorVisible();
}

double HelpBrowser::Room(int width) {
    return width - 2 * kMargin;
}

double HelpBrowser::Points() const {
    return plainPoints_ * std::pow(kZoomStep, zoom_);
}

}  // namespace vemo
