#include "qorvex/base_controls/detail/accessible_label.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <utility>

#include "qorvex/base_controls/custom_label.h"

namespace qorvex::inline QorvexBaseControls::detail {

namespace {

class AccessibleLabel : public QAccessibleWidget {
 public:
  explicit AccessibleLabel(TQorCustomLabel* label)
      : QAccessibleWidget(label, QAccessible::StaticText) {}

  QString text(QAccessible::Text kind) const override {
    const bool named = kind != QAccessible::Name || !widget()->accessibleName().isEmpty();
    return named ? QAccessibleWidget::text(kind) : Label()->AccessibleText();
  }

  QList<std::pair<QAccessibleInterface*, QAccessible::Relation>> relations(
      QAccessible::Relation match) const override {
    auto found = QAccessibleWidget::relations(match);
    QWidget* const control = Label()->FocusControl();
    if (control != nullptr && match.testFlag(QAccessible::Labelled)) {
      found.append({QAccessible::queryAccessibleInterface(control), QAccessible::Labelled});
    }
    return found;
  }

 private:
  const TQorCustomLabel* Label() const { return static_cast<const TQorCustomLabel*>(widget()); }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  auto* const label = qobject_cast<TQorCustomLabel*>(object);
  return label == nullptr ? nullptr : new AccessibleLabel(label);
}

// Taken back at the end, for a library that is unloaded.
struct Registration {
  Registration() { QAccessible::installFactory(MakeAccessible); }
  ~Registration() { QAccessible::removeFactory(MakeAccessible); }
};

}  // namespace

void RegisterAccessibleLabels() {
  static const Registration registration;
}

}  // namespace qorvex::inline QorvexBaseControls::detail
