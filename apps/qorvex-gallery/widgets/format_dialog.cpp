#include "apps/qorvex-gallery/widgets/format_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "apps/common/input_error.h"
#include "apps/qorvex-gallery/model/missing_text.h"
#include "apps/qorvex-gallery/model/sheet_file.h"
#include "apps/qorvex-gallery/model/table_input.h"
#include "qorvex/controls/QorvexMatrixEdit.h"

namespace qorvex::gallery {

namespace {

void Choose(QComboBox& box, int value) {
  box.setCurrentIndex(box.findData(value));
}

TQorMatrixEdit* MakePreview(Sheet& sheet) {
  constexpr int rows = 8;
  constexpr int columns = 6;
  auto* const preview = new TQorMatrixEdit;
  preview->setObjectName("preview");
  preview->setAccessibleName(
      QCoreApplication::translate("qorvex::gallery::FormatDialog", "Preview"));
  preview->setReadOnly(true);
  preview->setRowHeadings(true);
  preview->setColHeadings(true);
  preview->setCellWidth(14 * preview->fontMetrics().averageCharWidth());
  preview->setCellHeight(preview->fontMetrics().height() + 8);
  preview->setNoOfRowEdits(rows);
  preview->setNoOfColEdits(columns);
  preview->setAutoEdits(true);
  preview->setBlankWhenNull(true);
  preview->setNumberFormat(NumberSettings::nfGeneral);
  preview->setSignificantDigits(12);
  preview->setTextItems(true);
  preview->setModel(&sheet);
  return preview;
}

}  // namespace

FormatDialog::FormatDialog(const QString& title, const QByteArray& first_lines,
                           const apps::TableFormat& format, const QString& reason, QWidget* parent)
    : QDialog(parent),
      first_lines_(first_lines),
      delimiter_(new QComboBox),
      decimal_sign_(new QComboBox),
      encoding_(new QComboBox),
      missing_(new QLineEdit(TextOfWords(format.missing))),
      header_(new QCheckBox(tr("The first row has the &names"))),
      error_(new QLabel),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel)) {
  setWindowTitle(tr("How is %1 written?").arg(title));
  auto* const why = new QLabel(reason);
  why->setTextFormat(Qt::PlainText);
  why->setWordWrap(true);
  why->setVisible(!reason.isEmpty());
  error_->setObjectName("error");
  error_->setTextFormat(Qt::PlainText);
  error_->setWordWrap(true);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(why);
  layout->addLayout(MakeChoices(format));
  layout->addWidget(MakePreview(sheet_), 1);
  layout->addWidget(error_);
  layout->addWidget(buttons_);
  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  for (QComboBox* const box : {delimiter_, decimal_sign_, encoding_})
    connect(box, &QComboBox::currentIndexChanged, this, &FormatDialog::Read);
  connect(missing_, &QLineEdit::textChanged, this, &FormatDialog::Read);
  connect(header_, &QCheckBox::toggled, this, &FormatDialog::Read);
  Read();
}

FormatDialog::~FormatDialog() = default;

QLayout* FormatDialog::MakeChoices(const apps::TableFormat& format) {
  const std::pair<QString, char> delimiters[] = {{tr("Comma"), ','},
                                                 {tr("Semicolon"), ';'},
                                                 {tr("Tab"), '\t'},
                                                 {tr("Blanks"), ' '},
                                                 {tr("Vertical bar"), '|'}};
  for (const auto& [text, sign] : delimiters) delimiter_->addItem(text, int{sign});
  const char delimiter = format.delimiter.value_or(',');
  if (delimiter_->findData(int{delimiter}) < 0)
    delimiter_->addItem(QString(QChar::fromLatin1(delimiter)), int{delimiter});
  decimal_sign_->addItem(tr("Point (1.5)"), int{'.'});
  decimal_sign_->addItem(tr("Comma (1,5)"), int{','});
  for (const apps::Encoding encoding :
       {apps::Encoding::kUtf8, apps::Encoding::kLatin1, apps::Encoding::kUtf16Le}) {
    encoding_->addItem(QString::fromLatin1(apps::NameOf(encoding)), static_cast<int>(encoding));
  }
  Choose(*delimiter_, delimiter);
  Choose(*decimal_sign_, format.decimal_sign.value_or('.'));
  Choose(*encoding_, static_cast<int>(format.encoding.value_or(apps::Encoding::kUtf8)));
  if (encoding_->currentIndex() < 0) {
    encoding_->addItem(QString::fromLatin1(apps::NameOf(*format.encoding)),
                       static_cast<int>(*format.encoding));
    encoding_->setCurrentIndex(encoding_->count() - 1);
  }
  header_->setChecked(format.header.value_or(true));
  delimiter_->setObjectName("delimiter");
  decimal_sign_->setObjectName("decimalSign");
  encoding_->setObjectName("encoding");
  missing_->setObjectName("missing");
  constexpr int characters = 24;
  missing_->setMinimumWidth(characters * fontMetrics().averageCharWidth());
  missing_->setCursorPosition(0);
  missing_->setToolTip(tr("Cells with one of these words, and empty cells, are left out"));
  header_->setObjectName("header");
  auto* const choices = new QHBoxLayout;
  auto* const left = new QFormLayout;
  left->addRow(tr("&Separator:"), delimiter_);
  left->addRow(tr("&Decimal sign:"), decimal_sign_);
  auto* const right = new QFormLayout;
  right->addRow(tr("&Encoding:"), encoding_);
  right->addRow(tr("&Missing values:"), missing_);
  choices->addLayout(left);
  choices->addSpacing(fontMetrics().height());
  choices->addLayout(right, 1);
  auto* const layout = new QVBoxLayout;
  layout->addLayout(choices);
  layout->addWidget(header_);
  return layout;
}

apps::TableFormat FormatDialog::Format() const {
  return {.encoding = static_cast<apps::Encoding>(encoding_->currentData().toInt()),
          .delimiter = static_cast<char>(delimiter_->currentData().toInt()),
          .decimal_sign = static_cast<char>(decimal_sign_->currentData().toInt()),
          .header = header_->isChecked(),
          .missing = WordsIn(missing_->text())};
}

void FormatDialog::Read() {
  QString error;
  try {
    sheet_.SetData(ReadSheet(TextInputOf(tr("The beginning"), first_lines_), Format()));
  } catch (const apps::InputError& fault) {
    error = QString::fromUtf8(fault.what());
    sheet_.SetData({});
  }
  error_->setText(error);
  buttons_->button(QDialogButtonBox::Open)->setEnabled(error.isEmpty());
}

}  // namespace qorvex::gallery
