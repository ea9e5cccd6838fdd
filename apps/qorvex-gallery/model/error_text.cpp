#include "apps/qorvex-gallery/model/error_text.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <vector>

namespace qorvex::gallery {

namespace {

// What readers of files say, with places for what they insert.
constexpr const char* kForms[] = {
    QT_TRANSLATE_NOOP("Error", "%1 is not a number"),
    QT_TRANSLATE_NOOP("Error", "%1 is not a finite number"),
    QT_TRANSLATE_NOOP("Error", "%1 is beyond the range of extended precision"),
    QT_TRANSLATE_NOOP("Error", "the cell is empty"),
    QT_TRANSLATE_NOOP("Error", "the line is blank"),
    QT_TRANSLATE_NOOP("Error", "there is nothing to read"),
    QT_TRANSLATE_NOOP("Error", "there is no row below the header"),
    QT_TRANSLATE_NOOP("Error", "the row has 1 cell where line %1 has %2"),
    QT_TRANSLATE_NOOP("Error", "the row has %1 cells where line %2 has %3"),
    QT_TRANSLATE_NOOP("Error",
                      "the row is too long (more than 64 MiB); a closing quote may be "
                      "missing"),
    QT_TRANSLATE_NOOP("Error", "a line ends with CR alone; LF or CR LF is needed"),
    QT_TRANSLATE_NOOP("Error", "the quote is not closed"),
    QT_TRANSLATE_NOOP("Error", "%1 follows a closing quote"),
    QT_TRANSLATE_NOOP("Error", "this is a binary file, not a text: byte %1 is NUL"),
    QT_TRANSLATE_NOOP("Error", "the text is not %1 at byte %2"),
};

struct Form {
  QRegularExpression expression;
  const char* text;
};

// A form after the place of the error.
std::vector<Form> MakeForms() {
  static const QRegularExpression place(QStringLiteral("%\\d"));
  std::vector<Form> forms;
  for (const char* const text : kForms) {
    QStringList parts = QString::fromUtf8(text).split(place);
    for (QString& part : parts) part = QRegularExpression::escape(part);
    forms.push_back(
        {QRegularExpression(QStringLiteral("^(.*: |)%1$").arg(parts.join(QStringLiteral("(.+?)"))),
                            QRegularExpression::DotMatchesEverythingOption),
         text});
  }
  return forms;
}

// "data.csv:3: column 2 (size): "
QString TranslatedPlace(QString place) {
  static const QRegularExpression column(QStringLiteral("\\bcolumn (\\d+)( \\(.*\\))?: "));
  const QRegularExpressionMatch match = column.match(place);
  if (!match.hasMatch()) return place;
  return place.replace(
      match.capturedStart(), match.capturedLength(),
      QCoreApplication::translate("Error", "column %1%2: ", "a number, a name in brackets")
          .arg(match.captured(1), match.captured(2)));
}

// All at once: what is inserted may have percent signs.
QString Filled(const QString& text, const QStringList& parts) {
  switch (parts.size()) {
    case 0:
      return text;
    case 1:
      return text.arg(parts[0]);
    case 2:
      return text.arg(parts[0], parts[1]);
    default:
      return text.arg(parts[0], parts[1], parts[2]);
  }
}

}  // namespace

QString ErrorText(const std::exception& error) {
  static const std::vector<Form> forms = MakeForms();
  const QString message = QString::fromUtf8(error.what());
  for (const Form& form : forms) {
    const QRegularExpressionMatch match = form.expression.match(message);
    if (!match.hasMatch()) continue;
    const QString text = QCoreApplication::translate("Error", form.text);
    return TranslatedPlace(match.captured(1)) + Filled(text, match.capturedTexts().mid(2));
  }
  return message;
}

}  // namespace qorvex::gallery
