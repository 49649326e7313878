// The words of all pages of the help.
#include "qt/help_index.h"

#include <algorithm>

#include <QFile>
#include <QTextDocumentFragment>

namespace vemo {

using namespace Qt::StringLiterals;

QRegularExpression BeginningOf(const QString& word) {
    return QRegularExpression(
        u"(?<!\\w)"_s + QRegularExpression::escape(word),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
}

bool HasWords(const QString& text, const QStringList& words) {
    return std::ranges::all_of(
        words, [&text](const QString& word) { return text.contains(BeginningOf(word)); });
}

bool HelpIndex::HasWords(std::size_t page, const QStringList& words) {
    Read();
    return vemo::HasWords(texts_[static_cast<qsizetype>(page)], words);
}

void HelpIndex::Read() {
    if (!texts_.isEmpty()) {
        return;
    }
    for (const HelpPage& page : pages_) {
        QFile file(folder_ / page.file);
        const bool isOpen = file.open(QIODevice::ReadOnly);
        const QString html = isOpen ? QString::fromUtf8(file.readAll()) : QString();
        texts_ << QTextDocumentFragment::fromHtml(html).toPlainText();
    }
}

}  // namespace vemo
