// A form of line edits and an editor of weighings. The tab key walks through all of them, Alt+W
// leads to the first weighing, and the menu of a weighing has an entry of the program.

#include <QApplication>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <iostream>

#include "qorvex/base/text.h"
#include "qorvex/controls/QorvexVectorEdit.h"
#include "qorvex/stats/QorvexStatistics.h"

class WeighingForm : public QWidget {
 public:
  WeighingForm() {
    setWindowTitle("Weighings");
    weighings_->setDecimalPlaces(2);
    weighings_->setLabelWidth(24);
    weighings_->setVector({10.1L, 10.2L, 10.3L, 10.4L, 10.2L, 10.3L});
    auto* const rows = new QFormLayout(this);
    rows->addRow("&Sample", new QLineEdit("Copper"));
    rows->addRow("&Weighings, g", weighings_);
    rows->addRow("&Remark", remark_);
    rows->addRow(message_);

    connect(weighings_, &qorvex::TQorVectorEdit::OnChange, this, &WeighingForm::ShowMean);
    connect(weighings_, &qorvex::TQorVectorEdit::OnTextRefused, this, &WeighingForm::Show);
    connect(weighings_, &qorvex::TQorVectorEdit::OnContextMenu, this,
            [this](QMenu& menu, quint32 row) {
              menu.addSeparator();
              menu.addAction("Weigh Again", this, [this, row] { WeighAgain(row); });
            });
  }

  QString Remark() const { return remark_->text(); }

 private:
  void Show(const QString& message) {
    message_->setText(message);
    std::cout << message.toStdString() << '\n';
  }
  void ShowMean() {
    const qorvex::Extended mean = QorMean(weighings_->Vector());
    Show(QString("Mean %1 g").arg(QString::fromStdString(qorvex::Float2EStr(mean, 3))));
  }
  void WeighAgain(quint32 row) { Show(QString("Row %1 is to be weighed again.").arg(row + 1)); }

  qorvex::TQorLabelledVectorEdit* const weighings_ = new qorvex::TQorLabelledVectorEdit;
  QLineEdit* const remark_ = new QLineEdit;
  QLabel* const message_ = new QLabel;
};

// Types as a user would.
void Type(const QString& text) {
  for (const QChar character : text) {
    const int key = character == '\t' ? int{Qt::Key_Tab} : 0;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, character);
    QApplication::sendEvent(QApplication::focusWidget(), &press);
  }
}

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  WeighingForm form;
  form.show();
  if (QGuiApplication::platformName() != "offscreen") return application.exec();

  // Without a screen: from the sample through the six weighings, four of which show, to the remark.
  QApplication::processEvents();
  Type("\t10.5\t10.6.1\t\t\t\t11\tafter calibration");
  std::cout << "Remark: " << form.Remark().toStdString() << '\n';
}
