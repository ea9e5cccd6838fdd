#pragma once

#include <QLineEdit>
#include <QWidget>
#include <QtTest/QTest>

#include "apps/qorvex-gallery/widgets/message_label.h"
#include "support/test.h"

namespace qorvex::gallery {

/// Types a text into a cell, in place of what is there, and enters it.
inline void Enter(QLineEdit* cell, const char* text) {
  ASSERT_NE(cell, nullptr);
  cell->selectAll();
  QTest::keyClicks(cell, QString::fromLatin1(text));
  QTest::keyClick(cell, Qt::Key_Return);
}

/// The child of that name.
template <class Widget>
Widget* Child(const QWidget& page, const char* name) {
  return page.findChild<Widget*>(QLatin1String(name));
}

/// What the page says is wrong, one line a message.
inline QString Messages(const QWidget& page) {
  QStringList texts;
  for (const MessageLabel* const label : page.findChildren<MessageLabel*>()) {
    if (label->isVisibleTo(&page) && !label->text().isEmpty()) texts += label->text();
  }
  return texts.join('\n');
}

}  // namespace qorvex::gallery
