// Shows the pages of the help: those of one folder and nothing else.
#pragma once

#include <filesystem>
#include <functional>

#include <QList>
#include <QTextBrowser>
#include <QTimer>

#include "qt/theme.h"

namespace vemo {

class HelpBrowser final : public QTextBrowser {
  public:
    HelpBrowser(std::filesystem::path folder, QWidget* parent);

    // "keys.html", "techniques/x-wing.html#example". A page that cannot be read is named in its
    // place.
    void ShowPage(const QString& page);
    // The page that is shown, without the place in it.
    QString Page() const;
    // What a link that leads out of the folder does.
    void OnLinkOut(std::function<void(const QString& address)> open) { linkOut_ = std::move(open); }

    // The page stays, in the new colours.
    void SetColors(const BoardColors& colors);
    // Larger, smaller; 0: as at first.
    void Zoom(int steps);

    // Marks every place of these words on the page and shows the first; answers how many there are.
    int MarkWords(const QStringList& words);
    // Shows the next of them, or the one before. False where there is none any more.
    enum class Way : bool { Forward, Backward };
    bool ShowNextPlace(Way way);

  protected:
    QVariant loadResource(int type, const QUrl& url) override;
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    // Empty where the url leads out of the folder.
    QString FileOf(const QUrl& url) const;
    QVariant Picture(const QString& file);
    void ShowAnew();
    void ShowPlace(qsizetype number);
    // For pictures, where the page is so wide.
    static double Room(int width);
    double Points() const;

    QString folder_;
    QUrl url_;  // of the page
    BoardColors colors_;
    std::function<void(const QString&)> linkOut_;
    double plainPoints_;
    int zoom_ = 0;
    double widest_ = 0;  // of the pictures on the page, where there is room for it
    QTimer resized_;
    QList<QTextCursor> places_;
    qsizetype place_ = 0;
};

}  // namespace vemo
