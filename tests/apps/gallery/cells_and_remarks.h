#pragma once

/// @file
/// Cells and messages of pages.

#include <QLineEdit>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/widgets/message_label.h"
#include "support/test.h"

namespace qorvex::gallery {

/// Types a text into a cell, in place of what is there, and enters it.
inline void Enter(QLineEdit& cell, const char* text) {
  cell.selectAll();
  QTest::keyClicks(&cell, QString::fromLatin1(text));
  QTest::keyClick(&cell, Qt::Key_Return);
}

/// What stands beside the cells that are wrong, one line a message.
inline std::string Remarks(const QWidget& page) {
  QStringList texts;
  for (const MessageLabel* const label : page.findChildren<MessageLabel*>()) {
    if (label->isVisibleTo(&page)) texts += label->text();
  }
  return texts.join('\n').toStdString();
}

}  // namespace qorvex::gallery
