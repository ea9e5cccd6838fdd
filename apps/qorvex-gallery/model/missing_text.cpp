#include "apps/qorvex-gallery/model/missing_text.h"

#include <QStringList>
#include <string>
#include <utility>
#include <vector>

namespace qorvex::gallery {

QString TextOfWords(const apps::MissingWords& words) {
  QStringList texts;
  for (const std::string& word : words.Words()) texts.append(QString::fromStdString(word));
  return texts.join(QStringLiteral(", "));
}

apps::MissingWords WordsIn(const QString& text) {
  std::vector<std::string> words;
  for (const QString& word : text.split(u',', Qt::SkipEmptyParts))
    if (!word.trimmed().isEmpty()) words.push_back(word.trimmed().toStdString());
  return apps::MissingWords(std::move(words));
}

}  // namespace qorvex::gallery
