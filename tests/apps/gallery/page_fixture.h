#pragma once

/// @file
/// A page in a window, what it shows, and what a user types.

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStringList>
#include <QtTest/QTest>
#include <concepts>
#include <gtest/gtest.h>

#include "apps/qorvex-gallery/model/sheet.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "qorvex/controls/QorvexVectorEdit.h"

namespace qorvex::gallery {

template <class Page>
struct PageFixture : testing::Test {
  PageFixture() {
    QLocale::setDefault(QLocale::c());
    page.resize(1100, 720);
    page.show();
  }

  template <class Widget>
  Widget& Find(const char* name) {
    return *page.template findChild<Widget*>(name);
  }
  [[nodiscard]] std::string Message() {
    return Find<MessageBar>("messageBar").Text().toStdString();
  }
  /// The texts in a table of figures, in the order of the cells.
  [[nodiscard]] QStringList Texts(const char* table) {
    QStringList texts;
    for (const QLabel* const label : Find<QWidget>(table).template findChildren<QLabel*>())
      texts.append(label->text());
    return texts;
  }
  /// The text after a label.
  [[nodiscard]] std::string Figure(const char* table, const char* label, int column = 1) {
    const QStringList texts = Texts(table);
    return texts.value(texts.indexOf(label) + column).toStdString();
  }

  void Click(const char* button) { Find<QPushButton>(button).click(); }
  /// Replaces the text of a cell and presses Return.
  static void Enter(QLineEdit& cell, const char* text) {
    cell.selectAll();
    QTest::keyClicks(&cell, QString::fromLatin1(text));
    QTest::keyClick(&cell, Qt::Key_Return);
  }
  /// Types into the first cell of an editor without leaving it.
  void Type(TQorVectorEdit& editor, const char* keys) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(editor.window()));
    editor.setEditFocus(0);
    QTest::keyClicks(QApplication::focusWidget(), keys);
    QApplication::processEvents();
  }
  void Type(const char* editor, const char* keys) { Type(Find<TQorVectorEdit>(editor), keys); }

  /// A page that takes the sheet, or one that does not.
  static Page Make(Sheet& sheet) {
    if constexpr (std::constructible_from<Page, Sheet&>) {
      return Page(sheet);
    } else {
      return Page();
    }
  }

  Sheet sheet;
  Page page = Make(sheet);
};

}  // namespace qorvex::gallery
