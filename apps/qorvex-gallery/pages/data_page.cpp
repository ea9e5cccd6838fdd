#include "apps/qorvex-gallery/pages/data_page.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "apps/common/input_error.h"
#include "apps/qorvex-gallery/model/column_figures.h"
#include "apps/qorvex-gallery/widgets/column_report.h"
#include "apps/qorvex-gallery/widgets/heading.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "apps/qorvex-gallery/widgets/table_loader.h"
#include "apps/qorvex-gallery/widgets/tool_tip.h"
#include "apps/qorvex-gallery/widgets/value_editor.h"
#include "qorvex/vector/building.h"

namespace qorvex::gallery {

namespace {

// Where to save a file as CSV: in its folder, or, for the example, in the current one.
QString CsvFileFor(const QString& path) {
  const QFileInfo file(path);
  const QString name = file.completeBaseName() + QStringLiteral(".csv");
  return path.startsWith(u':') ? name : file.dir().filePath(name);
}

}  // namespace

DataPage::DataPage(QWidget* parent)
    : Page(parent),
      file_(new QLabel),
      columns_(new QComboBox),
      message_(new MessageBar),
      loader_(new TableLoader),
      editor_(new TQorLabelledVectorEdit),
      report_(new ColumnReport) {
  setObjectName("dataPage");
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(MakeHeader());
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addLayout(MakeBody(), 1);
  layout->addWidget(loader_);
  layout->addWidget(message_);

  connect(editor_, &TQorVectorEdit::OnChange, this, &DataPage::RefreshSoon);
  connect(editor_, &TQorVectorEdit::OnBlockRefused, message_, &MessageBar::SetText);
  connect(editor_, &TQorVectorEdit::OnTextRefused, this, &DataPage::RefuseText);
  connect(report_, &ColumnReport::OptionsChanged, this, &DataPage::RefreshSoon);
  // What was typed while a table is read would be lost when that table is shown.
  connect(loader_, &TableLoader::Started, editor_, [this] { editor_->setEnabled(false); });
  connect(loader_, &TableLoader::Ended, this, [this] {
    editor_->setEnabled(true);
    Q_EMIT ReadingEnded();
  });
  OpenExample();
}

DataPage::~DataPage() {
  // The editor commits a text that is being typed when it is destroyed.
  editor_->disconnect(this);
}

QLayout* DataPage::MakeHeader() {
  auto* const open = new QPushButton(tr("&Open…"));
  open->setToolTip(tr("Open a CSV file; you can also drop one onto the page"));
  connect(open, &QPushButton::clicked, this, &DataPage::ChooseFile);
  auto* const save = new QPushButton(tr("&Save As…"));
  save->setToolTip(tr("Write the table with your changes to a CSV file"));
  connect(save, &QPushButton::clicked, this, &DataPage::SaveAs);
  auto* const example = new QPushButton(tr("&Example"));
  example->setToolTip(tr("Michelson's determinations of the velocity of light, 1879"));
  connect(example, &QPushButton::clicked, this, &DataPage::OpenExample);

  file_->setObjectName("file");
  file_->setTextFormat(Qt::PlainText);
  // A long name does not widen the page.
  file_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  columns_->setObjectName("column");
  columns_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  columns_->setMaximumWidth(40 * fontMetrics().averageCharWidth());
  connect(columns_, &QComboBox::activated, this, &DataPage::ChooseColumn);
  auto* const column_label = new QLabel(tr("&Column:"));
  column_label->setBuddy(columns_);

  auto* const header = new QHBoxLayout;
  header->addWidget(open);
  header->addWidget(save);
  header->addWidget(example);
  header->addSpacing(fontMetrics().height());
  header->addWidget(file_, 1);
  header->addWidget(column_label);
  header->addWidget(columns_);
  return header;
}

QLayout* DataPage::MakeBody() {
  editor_->setObjectName("values");
  editor_->setLabelType(TQorLabelledVectorEdit::ltSupplied);
  editor_->OnGetLabel = [this](quint32 row) { return table_.RowName(row); };
  SetUpValueEditor(*editor_);
  QLabel* const heading = MakeHeading(tr("&Values"), editor_);
  // Level with the heading of the report, which has a spin box beside it.
  heading->setMinimumHeight(QSpinBox().sizeHint().height());
  auto* const values = new QVBoxLayout;
  values->addWidget(heading);
  values->addWidget(editor_, 1);
  auto* const body = new QHBoxLayout;
  body->addLayout(values);
  body->addSpacing(fontMetrics().height());
  body->addWidget(report_, 1);
  return body;
}

void DataPage::Open(const QString& file) {
  OpenSource({file, QFileInfo(file).fileName(), {}});
}

void DataPage::ChooseFile() {
  const QString file = QFileDialog::getOpenFileName(
      this, tr("Open a table"), {}, tr("Tables (*.csv *.tsv *.txt *.dat);;All files (*)"));
  if (!file.isEmpty()) Open(file);
}

void DataPage::OpenExample() {
  OpenSource({":/qorvex/gallery/michelson_1879.csv",
              tr("Example: the velocity of light, Michelson 1879"), "speed_km_s"});
}

void DataPage::OpenSource(const Source& source) {
  if (!MayGo()) return;
  reading_error_.clear();
  loader_->Load(
      source.file, source.title,
      [this, source](DataTable table) { ShowTable(source, std::move(table)); },
      [this](const QString& why) {
        reading_error_ = why;
        message_->SetText(why);
      });
}

void DataPage::ShowTable(const Source& source, DataTable table) {
  table_ = std::move(table);
  column_ = table_.Find(source.column);
  {
    const QSignalBlocker blocker(columns_);
    columns_->clear();
    for (std::size_t i = 0; i < table_.Columns(); ++i) columns_->addItem(table_.Title(i));
    columns_->setCurrentIndex(static_cast<int>(column_));
  }
  SetSource(source.file, source.title);
  refusal_.clear();
  ShowColumn();
  if (message_->Text().isEmpty() && table_.HasDoubtfulHeader())
    message_->SetText(tr("The first row was read as names, although it contains a number"));
}

void DataPage::SetSource(const QString& file, const QString& title) {
  path_ = file;
  title_ = title;
  file_->setText(title);
  file_->setToolTip(ToolTipOf(title));
  Q_EMIT TitleChanged();
}

void DataPage::ChooseColumn(int index) {
  CommitTexts();
  column_ = static_cast<std::size_t>(index);
  ShowColumn();
}

// If the column cannot be read, shows no values: those of another column would be under its name.
void DataPage::ShowColumn() {
  QStringList messages(std::exchange(refusal_, {}));
  try {
    stored_ = table_.Numbers(column_);
  } catch (const apps::InputError& error) {
    stored_ = {};
    messages.append(QString::fromUtf8(error.what()));
  }
  message_->SetText(messages.join(u' ').trimmed());
  editor_->setLabelWidth(LabelWidth());
  editor_->setVector(CopyVector(stored_));
  editor_->ScrollTop();
  Refresh();
}

// Includes the text that is being typed.
void DataPage::CommitTexts() {
  for (TextCell* const cell : editor_->findChildren<TextCell*>()) cell->CommitOrRestore();
  StoreEdits();
}

void DataPage::RefuseText(const QString& message) {
  refusal_ = message;
  message_->SetText(message);
}

// Writes the numbers that differ from those in the table into the table.
void DataPage::StoreEdits() {
  const TQorFloatVector values = editor_->Vector();
  for (std::size_t row = 0; row < stored_.size(); ++row) {
    if (SameNumber(values[row], stored_[row])) continue;
    table_.SetNumber(row, column_, values[row]);
    stored_[row] = values[row];
  }
  Q_EMIT TitleChanged();
}

bool DataPage::MayGo() {
  CommitTexts();
  if (!IsChanged()) return true;
  // Otherwise the table could be replaced while the question is open.
  loader_->Stop();
  QMessageBox question(QMessageBox::Warning, tr("Unsaved changes"),
                       tr("Save the changes in the table?"),
                       QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
  question.setInformativeText(title_);
  const int answer = question.exec();
  return answer == QMessageBox::Discard || (answer == QMessageBox::Save && SaveAs());
}

bool DataPage::SaveAs() {
  loader_->Stop();
  CommitTexts();
  const QFileInfo offered(CsvFileFor(path_));
  QFileDialog dialog(this, tr("Save the table"), offered.path(), tr("CSV files (*.csv)"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("csv"));
  dialog.selectFile(offered.fileName());
  return dialog.exec() == QDialog::Accepted && Save(dialog.selectedFiles().constFirst());
}

bool DataPage::Save(const QString& file) {
  CommitTexts();
  QSaveFile out(file);
  if (out.open(QIODevice::WriteOnly)) {
    table_.WriteCsv([&out](std::string_view text) {
      out.write(text.data(), static_cast<qsizetype>(text.size()));
    });
  }
  const QString name = QFileInfo(file).fileName();
  if (!out.commit()) {
    message_->SetText(QStringLiteral("%1: %2").arg(name, out.errorString()));
    return false;
  }
  message_->SetText(std::exchange(refusal_, {}));
  table_.SetSaved();
  SetSource(file, name);
  return true;
}

// The width of the longest of the first names, within bounds.
int DataPage::LabelWidth() const {
  constexpr std::size_t kMostRows = 1000;
  int width = 6 * fontMetrics().averageCharWidth();
  for (std::size_t row = 0; row < std::min(kMostRows, table_.Rows()); ++row) {
    const QString name = table_.RowName(row) + QStringLiteral("  ");
    width = std::max(width, fontMetrics().horizontalAdvance(name));
  }
  return std::min(width, 20 * fontMetrics().averageCharWidth());
}

// Pasting changes many elements one after the other; one refresh is enough.
void DataPage::RefreshSoon() {
  refusal_.clear();
  message_->SetText({});
  if (std::exchange(refresh_is_due_, true)) return;
  QTimer::singleShot(0, this, &DataPage::Refresh);
}

void DataPage::Refresh() {
  refresh_is_due_ = false;
  StoreEdits();
  const TQorFloatVector all = editor_->Vector();
  const TQorFloatVector values = WithoutNulls(all);
  report_->Show(values, all.size() - values.size(), table_.Title(column_));
}

}  // namespace qorvex::gallery
