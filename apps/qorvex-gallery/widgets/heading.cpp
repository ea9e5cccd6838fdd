#include "apps/qorvex-gallery/widgets/heading.h"

#include <QLabel>

namespace qorvex::gallery {

QLabel* MakeHeading(const QString& text, QWidget* buddy) {
  auto* const heading = new QLabel(text);
  QFont font = heading->font();
  font.setBold(true);
  heading->setFont(font);
  heading->setBuddy(buddy);
  return heading;
}

}  // namespace qorvex::gallery
