#pragma once

/// @file
/// A page in a window, what it shows, and what a user types.

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>
#include <QtTest/QTest>
#include <gtest/gtest.h>

#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "qorvex/controls/QorvexVectorEdit.h"

namespace qorvex::gallery {

/// Types a text into a cell, in place of what is there, and enters it.
inline void Enter(QLineEdit& cell, const char* text) {
  cell.selectAll();
  QTest::keyClicks(&cell, QString::fromLatin1(text));
  QTest::keyClick(&cell, Qt::Key_Return);
}

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

  /// The texts of a table of figures, in the order of its cells.
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

  /// Types into the first cell of an editor, as a user does.
  void Type(const char* editor, const char* text) {
    auto& edit = Find<TQorVectorEdit>(editor);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    edit.setEditFocus(0);
    QTest::keyClicks(QApplication::focusWidget(), text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QApplication::processEvents();
  }

  Page page;
};

}  // namespace qorvex::gallery
