// The pages of the help: what they must name, where their links lead, and that those made by the
// solver say what it says today.
#include <filesystem>
#include <fstream>
#include <iterator>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>
#include <QXmlStreamReader>

#include "game/help.h"
#include "game/menus.h"
#include "qt/help_maker.h"
#include "qt/screen_text.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

// What a page holds that others depend on.
struct ReadPage {
    QString title;
    QString text;
    QStringList links;
    QStringList pictures;
    QStringList sheets;
    QStringList places;  // that links can lead to
    QString error;
};

class HelpPagesTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() {
        for (const HelpPage& page : HelpPages()) {
            read_.insert(ToQString(page.file), Read(folder_.filePath(ToQString(page.file))));
        }
    }

    void EveryPageIsThereUnderItsTitle() {
        for (const HelpPage& page : HelpPages()) {
            const ReadPage& read = read_[ToQString(page.file)];
            QVERIFY2(read.error.isEmpty(), qPrintable(ToQString(page.file) + read.error));
            QCOMPARE(read.title, ToQString(page.title));
        }
        QDirIterator files(folder_.path(), {u"*.html"_s}, QDir::Files,
                           QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
        while (files.hasNext()) {
            const QString file = folder_.relativeFilePath(files.next());
            QVERIFY2(read_.contains(file), qPrintable(file + u" is in no chapter"_s));
        }
    }

    void EveryLinkAndPictureLeadsSomewhere() {
        for (const auto& [file, page] : read_.asKeyValueRange()) {
            const QDir around(QFileInfo(folder_.filePath(file)).path());
            for (const QString& name : page.pictures + page.sheets) {
                QVERIFY2(around.exists(name), qPrintable(file + u": "_s + name));
            }
            for (const QString& link : page.links) {
                const QString where = file + u": "_s + link;
                if (link.contains(u"://"_s)) {
                    QVERIFY2(link == ToQString(kWebAddress), qPrintable(where));
                    continue;
                }
                const QString target = link.section(u'#', 0, 0);
                const QString name =
                    target.isEmpty() ? file : folder_.relativeFilePath(around.filePath(target));
                QVERIFY2(read_.contains(QDir::cleanPath(name)), qPrintable(where));
                const QString place = link.section(u'#', 1);
                QVERIFY2(place.isEmpty() || read_[QDir::cleanPath(name)].places.contains(place),
                         qPrintable(where));
            }
        }
    }

    // The first page leads to all but the techniques, their overview to these.
    void EveryPageIsReachedFromTheFirst() {
        const QStringList direct = read_[u"index.html"_s].links;
        const QStringList techniques = read_[u"techniques.html"_s].links;
        for (const HelpPage& page : HelpPages()) {
            const QString file = ToQString(page.file);
            QVERIFY2(page.file == kHelpHome || direct.contains(file) || techniques.contains(file),
                     qPrintable(file));
        }
    }

    void EveryMenuEntryAndItsKeyAreExplained() {
        const ReadPage& menus = read_[u"menus.html"_s];
        const ReadPage& keys = read_[u"keys.html"_s];
        for (const MenuRow& row : MenuRows()) {
            QString caption = ToQString(row.caption).remove(u'&');
            if (!row.submenu.empty()) {
                caption = ToQString(row.submenu).remove(u'&') + u": "_s + caption;
            }
            QVERIFY2(menus.text.contains(u"\n"_s + caption + u"\n"_s), qPrintable(caption));
            const QString key = ToQString(row.shortcut);
            const QString spelled = key == u"Del"_s ? u"Delete"_s : key;
            QVERIFY2(menus.text.contains(key) && keys.text.contains(spelled), qPrintable(key));
        }
    }

    // As after `ninja help_pages`. The pictures are left out: fonts differ.
    void ThePagesOfTheTechniquesSayWhatTheSolverSays() {
        const std::filesystem::path sources(VEMO_HELP_SOURCES);
        HelpSources read;
        std::ifstream texts(sources / "techniques.html");
        read.texts = ReadHelpTexts(texts);
        for (const auto& path : {sources / "examples.tsv", std::filesystem::path(VEMO_TEST_DATA) /
                                                               "technique_examples.tsv"}) {
            std::ifstream file(path);
            const auto examples = ReadTechniqueExamples(file);
            QVERIFY2(!examples.empty(), path.string().c_str());
            read.examples.insert(read.examples.end(), examples.begin(), examples.end());
        }
        std::ifstream changes(sources / ".." / ".." / "CHANGELOG.md");
        read.changes.assign(std::istreambuf_iterator<char>(changes), {});
        const MadeHelp made = MakeHelp(read);
        QCOMPARE(QString::fromStdString(made.error), QString());
        QCOMPARE(made.pages.size(), std::size_t{kSlots + 2});
        for (const HelpFile& page : made.pages) {
            QFile file(folder_.filePath(ToQString(page.name)));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QVERIFY2(file.readAll().toStdString() == page.text,
                     (page.name + " is not as `ninja help_pages` writes it").c_str());
        }
        for (const HelpDrawing& drawing : made.drawings) {
            for (const char* end : {".png", "-dark.png"}) {
                QVERIFY2(folder_.exists(ToQString(drawing.name + end)), drawing.name.c_str());
            }
        }
    }

    void ExamplesThatTheSolverDoesNotBearOutAreRefused() {
        std::ifstream file(std::filesystem::path(VEMO_HELP_SOURCES) / "examples.tsv");
        HelpSources sources;
        sources.examples = ReadTechniqueExamples(file);
        TechniqueExample& example = sources.examples.front();
        for (const Slot& slot : Slots()) {
            sources.texts[std::string(slot.caption)] = "<p class=\"short\">A text.</p>\n";
        }
        sources.texts["All techniques by level"] = "<p>A text.</p>\n";
        const std::string told = "Hidden single: the solver does not say what the example says";
        example.hint += "!";
        QCOMPARE(MakeHelp(sources).error, told);
        example.hint.pop_back();
        example.log = "Hidden Single 9 in box at cell A1";
        QCOMPARE(MakeHelp(sources).error, told);
        sources.texts.erase("X-Wing");
        sources.examples.erase(sources.examples.begin());
        QCOMPARE(MakeHelp(sources).error, std::string("there is no example of Hidden Single"));
    }

  private:
    static ReadPage Read(const QString& path) {
        ReadPage page;
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            page.error = u": "_s + file.errorString();
            return page;
        }
        QXmlStreamReader reader(&file);
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isCharacters()) {
                page.text += reader.text();
            } else if (reader.isStartElement() || reader.isEndElement()) {
                page.text += u'\n';
            }
            if (reader.isStartElement()) {
                Take(reader, page);
            }
        }
        if (reader.hasError()) {
            page.error = u":%1: "_s.arg(reader.lineNumber()) + reader.errorString();
        }
        return page;
    }

    static void Take(QXmlStreamReader& reader, ReadPage& page) {
        const auto attribute = [&reader](const char* name) {
            return reader.attributes().value(QLatin1StringView(name)).toString();
        };
        const QStringView element = reader.name();
        if (element == u"title"_s) {
            page.title = reader.readElementText();
        } else if (element == u"a"_s) {
            page.links << attribute("href");
        } else if (element == u"img"_s) {
            page.pictures << attribute("src");
        } else if (element == u"link"_s) {
            page.sheets << attribute("href");
        }
        if (const QString id = attribute("id"); !id.isEmpty()) {
            page.places << id;
        }
    }

    const QDir folder_{QStringLiteral(VEMO_ASSETS "/help")};
    QMap<QString, ReadPage> read_;
};

}  // namespace vemo::test

QTEST_GUILESS_MAIN(vemo::test::HelpPagesTest)

#include "help_pages_test.moc"
