#include "apps/qorvex-gallery/model/translations.h"

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QTranslator>
#include <tuple>

#include "apps/common/distributions.h"
#include "apps/common/input_error.h"
#include "apps/common/matrix_reader.h"
#include "apps/common/variates.h"
#include "apps/qorvex-gallery/model/error_text.h"
#include "apps/qorvex-gallery/model/names.h"
#include "apps/qorvex-gallery/model/sheet_file.h"
#include "apps/qorvex-gallery/model/table_input.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

struct TranslationsTest : testing::Test {
  ~TranslationsTest() override { InstallTranslations(QLocale::c()); }

  // The text is in the catalogue, with the same places for what is inserted.
  void ExpectTranslation(const char* context, const char* text) {
    const QString translation = german.translate(context, text);
    EXPECT_FALSE(translation.isEmpty()) << context << ": " << text;
    for (const char* const place : {"%1", "%2"})
      EXPECT_EQ(translation.count(place), QString(text).count(place)) << text;
  }
  void ExpectTranslations(const char* summary, std::span<const apps::NumberParameter> parameters) {
    ExpectTranslation("Catalogue", summary);
    for (const apps::NumberParameter& parameter : parameters)
      ExpectTranslation("Catalogue", parameter.name);
  }

  QTranslator german;
};

TEST_F(TranslationsTest, HaveAllTextsOfTheCataloguesAndOfTheLibrary) {
  ASSERT_TRUE(german.load(":/qorvex/gallery/i18n/catalogue_de.qm"));
  for (const apps::Family& family : apps::Families())
    ExpectTranslations(family.summary, family.parameters);
  for (const apps::Variate& variate : apps::Variates())
    if (variate.parameters.empty() || variate.parameters[0].kind != apps::NumberKind::kReals)
      ExpectTranslations(variate.summary, variate.parameters);
  for (int kind = 0; kind <= static_cast<int>(apps::NumberKind::kUint64); ++kind)
    for (const Extended number : {Extended{kNaN}, Extended{-1.5L}, Extended{1e-4940L}})
      if (const char* const wrong = apps::WhatIsWrong(number, static_cast<apps::NumberKind>(kind)))
        ExpectTranslation("Catalogue", wrong);
  ExpectTranslation("Catalogue", apps::WhatIsWrongWithEnds(1, 0));
  ExpectTranslation("Catalogue", apps::WhatIsWrongWithEnds(-1e4932L, 1e4932L));
#define EXPECT_MESSAGE(id, text) ExpectTranslation("Messages", text);
  QORVEX_MATH_MESSAGES(EXPECT_MESSAGE)
#define EXPECT_REPORT_TEXT(id, text) ExpectTranslation("Report", text);
  QORVEX_REPORT_TEXTS(EXPECT_REPORT_TEXT)
}

TEST_F(TranslationsTest, NameDistributionsInBothLanguages) {
  EXPECT_EQ(DisplayName("student-t"), "Student's t");
  EXPECT_EQ(DisplayName("f"), "F");
  EXPECT_TRUE(InstallTranslations(QLocale(QLocale::German, QLocale::Austria)));
  EXPECT_EQ(DisplayName("student-t"), "Studentsche t-Verteilung");
  EXPECT_STREQ(EMathError(rsNoInvert).what(), "Die Matrix hat keine Inverse");
  EXPECT_EQ(ReportText(rsDSMean), "Mittelwert:");
  // Every name of the catalogues is a name, not a word of the command line.
  for (const apps::Family& family : apps::Families())
    EXPECT_TRUE(DisplayName(family.name).contains("erteilung")) << family.name;
}

// Of real readers, so that a message that changes is missed here.
TEST_F(TranslationsTest, TellWhatIsWrongWithAFile) {
  using Read = void (*)(apps::TextInput);
  const Read sheet = [](apps::TextInput text) { static_cast<void>(ReadSheet(text, {})); };
  const Read matrix = [](apps::TextInput text) { static_cast<void>(apps::ReadMatrix(text, {})); };
  const std::tuple<Read, QByteArray, const char*> files[] = {
      {sheet, "", "f: es gibt nichts zu lesen"},
      {sheet, "a,b\n1\n", "f:2: die Zeile hat 1 Zelle, Zeile 1 dagegen 2"},
      {sheet, "a,b\n1,\"2", "f:2: das Anführungszeichen wird nicht geschlossen"},
      {sheet, "a\n\"1\"%1\n", "f:2: \"%1\" folgt auf ein schließendes Anführungszeichen"},
      {sheet, QByteArray("abc\ndef\0gh\n", 11),
       "f: dies ist eine Binärdatei, kein Text: Byte 8 ist NUL"},
      {matrix, "1,x: y\n", "f:1: Spalte 2: \"x: y\" ist keine Zahl"},
      {matrix, "1,2\n\n3,4\n", "f:2: die Zeile ist leer"},
  };
  EXPECT_TRUE(InstallTranslations(QLocale::German));
  for (const auto& [read, bytes, message] : files) {
    try {
      read(TextInputOf("f", bytes));
      ADD_FAILURE() << message;
    } catch (const apps::InputError& error) {
      EXPECT_EQ(ErrorText(error).toStdString(), message);
    }
  }
  EXPECT_EQ(ErrorText(std::runtime_error("column 1: out of paper")), "column 1: out of paper");
}

TEST_F(TranslationsTest, IncludeThoseOfQtWhereTheyAreInstalled) {
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (!QFile::exists(folder + "/qtbase_de.qm")) GTEST_SKIP() << "not in " << folder.toStdString();
  EXPECT_TRUE(InstallTranslations(QLocale::German));
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Abbrechen");
}

TEST_F(TranslationsTest, LeaveEnglishToOtherLanguages) {
  EXPECT_FALSE(InstallTranslations(QLocale(QLocale::Zulu)));
  EXPECT_EQ(DisplayName("chi-square"), "Chi-square");
  EXPECT_STREQ(EMathError(rsNoInvert).what(), "The matrix has no inverse");
}

}  // namespace
}  // namespace qorvex::gallery
