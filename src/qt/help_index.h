// The words of all pages of the help.
#pragma once

#include <filesystem>

#include <QRegularExpression>
#include <QStringList>

#include "game/help.h"

namespace vemo {

// Finds a word by its beginning, whatever its case.
QRegularExpression BeginningOf(const QString& word);
bool HasWords(const QString& text, const QStringList& words);

class HelpIndex {
  public:
    // Reads the pages when it is first asked.
    HelpIndex(std::filesystem::path folder, const std::vector<HelpPage>& pages)
        : folder_(std::move(folder)), pages_(pages) {}

    // Whether every one of the words begins a word of the page.
    bool HasWords(std::size_t page, const QStringList& words);

  private:
    void Read();

    std::filesystem::path folder_;
    const std::vector<HelpPage>& pages_;
    QStringList texts_;
};

}  // namespace vemo
