#include "apps/qorvex-gallery/pages/data_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QSaveFile>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "apps/common/input_error.h"
#include "apps/qorvex-gallery/model/column_figures.h"
#include "apps/qorvex-gallery/model/table_input.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/figure_table.h"
#include "apps/qorvex-gallery/widgets/heading.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "apps/qorvex-gallery/widgets/tall_editor.h"
#include "apps/qorvex-gallery/widgets/tool_tip.h"
#include "qorvex/vector/building.h"

namespace qorvex::gallery {

namespace {

// Larger files are read on a thread.
constexpr qint64 kReadAtOnce = qint64{1} << 20;

TQorFloatVector WithoutNulls(const TQorFloatVector& values) {
  auto kept = TQorFloatVector::ForOverwrite(values.size());
  std::size_t count = 0;
  for (const Extended value : values)
    if (!std::isnan(value)) kept[count++] = value;
  kept.SetLength(count);
  return kept;
}

// The file as CSV: beside it, or, for the example, where the program runs.
QString CsvFileFor(const QString& path) {
  const QFileInfo file(path);
  const QString name = file.completeBaseName() + QStringLiteral(".csv");
  return path.startsWith(u':') ? name : file.dir().filePath(name);
}

}  // namespace

DataPage::DataPage(QWidget* parent)
    : QWidget(parent),
      file_(new QLabel),
      columns_(new QComboBox),
      message_(new MessageBar),
      progress_(MakeProgress()),
      editor_(new TQorLabelledVectorEdit),
      tall_editor_(new TallEditor(editor_)),
      decimals_(new QSpinBox),
      population_(new QCheckBox(tr("Whole &population (divide by n)"))),
      report_(new FigureTable(
          {FigureTable::kLabel, FigureTable::kFigure, FigureTable::kLabel, FigureTable::kFigure})),
      remark_(new QLabel),
      plot_(new PlotView) {
  setObjectName("dataPage");

  editor_->setObjectName("values");
  editor_->setLabelType(TQorLabelledVectorEdit::ltSupplied);
  editor_->OnGetLabel = [this](quint32 row) { return table_.RowName(row); };
  editor_->setCellWidth(14 * fontMetrics().averageCharWidth());
  editor_->setBlankWhenNull(true);
  connect(editor_, &TQorVectorEdit::OnChange, this, &DataPage::RefreshSoon);
  connect(editor_, &TQorVectorEdit::OnBlockRefused, message_, &MessageBar::SetText);
  connect(editor_, &TQorVectorEdit::OnTextRefused, this, &DataPage::RefuseText);

  plot_->setObjectName("histogram");
  plot_->setAccessibleName(tr("Histogram"));
  plot_->SetPlaceholder(tr("No values to show"));

  auto* const values = new QVBoxLayout;
  QLabel* const heading = MakeHeading(tr("&Values"), editor_);
  // On the line of the other heading, which has a spin box beside it.
  heading->setMinimumHeight(decimals_->sizeHint().height());
  values->addWidget(heading);
  values->addWidget(tall_editor_, 1);
  auto* const results = new QVBoxLayout;
  results->addLayout(MakeReport());
  results->addSpacing(fontMetrics().height() / 2);
  results->addWidget(MakeHeading(tr("Histogram")));
  results->addWidget(plot_, 1);
  auto* const body = new QHBoxLayout;
  body->addLayout(values);
  body->addSpacing(fontMetrics().height());
  body->addLayout(results, 1);

  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(MakeHeader());
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addLayout(body, 1);
  layout->addWidget(progress_);
  layout->addWidget(message_);
  OpenExample();
}

DataPage::~DataPage() {
  StopReading();
  // A text that is being typed is committed when the editor goes.
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

QWidget* DataPage::MakeProgress() {
  auto* const row = new QWidget;
  row->setObjectName("progress");
  progress_bar_ = new QProgressBar;
  progress_bar_->setAccessibleName(tr("Progress of reading"));
  auto* const cancel = new QPushButton(tr("Cancel"));
  cancel->setObjectName("cancel");
  connect(cancel, &QPushButton::clicked, this, &DataPage::CancelReading);
  auto* const layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(progress_bar_, 1);
  layout->addWidget(cancel);
  row->hide();
  return row;
}

QLayout* DataPage::MakeReport() {
  report_->setObjectName("report");
  decimals_->setObjectName("decimals");
  decimals_->setRange(0, 40);
  decimals_->setValue(stats_.DecimalPlaces());
  connect(decimals_, &QSpinBox::valueChanged, this, &DataPage::RefreshSoon);
  remark_->setObjectName("remark");
  // Its length does not widen the page.
  remark_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  population_->setObjectName("population");
  connect(population_, &QCheckBox::toggled, this, &DataPage::RefreshSoon);
  auto* const decimals_label = new QLabel(tr("&Decimals:"));
  decimals_label->setBuddy(decimals_);

  auto* const head = new QHBoxLayout;
  head->addWidget(MakeHeading(tr("Statistics")));
  head->addWidget(remark_, 1);
  head->addWidget(population_);
  head->addSpacing(fontMetrics().height());
  head->addWidget(decimals_label);
  head->addWidget(decimals_);
  auto* const layout = new QVBoxLayout;
  layout->addLayout(head);
  layout->addWidget(report_);
  return layout;
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
  StopReading();
  const qint64 size = QFileInfo(source.file).size();
  if (size > kReadAtOnce) return ReadOnThread(source, size);
  try {
    EndReading(source, DataTable(OpenFile(source.file)));
  } catch (const apps::InputError& error) {
    RefuseReading(QString::fromUtf8(error.what()));
  }
}

void DataPage::ReadOnThread(const Source& source, qint64 size) {
  progress_bar_->setRange(0, 100);
  progress_bar_->setValue(0);
  progress_bar_->setFormat(
      tr("Reading %1 (%2): %p %").arg(source.title, locale().formattedDataSize(size)));
  SetBusy(true);

  // What a reading tells is heard only while it is the current one.
  const auto tell = [this, number = reading_number_](auto what) {
    QMetaObject::invokeMethod(
        this,
        [this, number, what = std::move(what)] {
          if (number == reading_number_) what();
        },
        Qt::QueuedConnection);
  };
  reader_ = std::jthread([this, tell, size, source](std::stop_token stop) {
    const auto progress = [this, tell, size, last = 0](qint64 bytes) mutable {
      const int percent = static_cast<int>(100 * bytes / size);
      if (percent == std::exchange(last, percent)) return;
      tell([this, percent] { progress_bar_->setValue(percent); });
    };
    try {
      const auto table =
          std::make_shared<DataTable>(Observed(OpenFile(source.file), std::move(stop), progress));
      tell([this, source, table] { EndReading(source, std::move(*table)); });
    } catch (const ReadingStopped&) {
    } catch (const std::exception& error) {
      tell([this, why = QString::fromUtf8(error.what())] { RefuseReading(why); });
    }
  });
}

void DataPage::StopReading() {
  ++reading_number_;
  reader_ = {};
  SetBusy(false);
}

void DataPage::CancelReading() {
  if (!IsReading()) return;
  StopReading();
  Q_EMIT ReadingEnded();
}

void DataPage::RefuseReading(const QString& why) {
  SetBusy(false);
  message_->SetText(why);
  Q_EMIT ReadingEnded();
}

void DataPage::EndReading(const Source& source, DataTable table) {
  SetBusy(false);
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
    message_->SetText(tr("The first row was taken for names, although it holds a number"));
  Q_EMIT ReadingEnded();
}

// What was typed into the table that is being replaced would be lost.
void DataPage::SetBusy(bool busy) {
  progress_->setVisible(busy);
  tall_editor_->setEnabled(!busy);
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

// A column that cannot be read shows no values, since its name stands over it.
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

// A text that is still being typed counts from now on.
void DataPage::CommitTexts() {
  for (TextCell* const cell : editor_->findChildren<TextCell*>()) cell->CommitOrRestore();
  StoreEdits();
}

void DataPage::RefuseText(const QString& message) {
  refusal_ = message;
  message_->SetText(message);
}

// Puts what differs from the table into it.
void DataPage::StoreEdits() {
  const TQorFloatVector values = editor_->Vector();
  for (std::size_t row = 0; row < stored_.size(); ++row) {
    const Extended value = values[row];
    const bool same = std::isnan(value) ? std::isnan(stored_[row])
                                        : value == stored_[row] &&
                                              std::signbit(value) == std::signbit(stored_[row]);
    if (same) continue;
    table_.SetNumber(row, column_, value);
    stored_[row] = value;
  }
  Q_EMIT TitleChanged();
}

bool DataPage::MayGo() {
  CommitTexts();
  if (!IsChanged()) return true;
  // The table that is asked about must not be replaced meanwhile.
  CancelReading();
  QMessageBox question(QMessageBox::Warning, tr("Unsaved changes"),
                       tr("Save the changes in the table?"),
                       QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
  question.setInformativeText(title_);
  const int answer = question.exec();
  return answer == QMessageBox::Discard || (answer == QMessageBox::Save && SaveAs());
}

bool DataPage::SaveAs() {
  CancelReading();
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

// Of the names that are seen first, within bounds.
int DataPage::LabelWidth() const {
  constexpr std::size_t looked_at = 1000;
  int width = 6 * fontMetrics().averageCharWidth();
  for (std::size_t row = 0; row < std::min(looked_at, table_.Rows()); ++row) {
    const QString name = table_.RowName(row) + QStringLiteral("  ");
    width = std::max(width, fontMetrics().horizontalAdvance(name));
  }
  return std::min(width, 20 * fontMetrics().averageCharWidth());
}

// Pasting changes many elements, one after the other.
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
  tall_editor_->FitFormat(values);
  stats_.setDecimalPlaces(decimals_->value());
  stats_.setPopulation(population_->isChecked());
  stats_.setValues(values);
  report_->SetRows(ReportTable(stats_.DescStats(), locale()));
  remark_->setText(RemarkOn(stats_, all.size() - values.size(), decimals_->maximum(), locale()));
  remark_->setToolTip(ToolTipOf(remark_->text()));
  plot_->SetAxisTitles(table_.Title(column_), tr("Density"));
  plot_->SetLayers(HistogramLayers(stats_, values));
}

}  // namespace qorvex::gallery
