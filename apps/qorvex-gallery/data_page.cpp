#include "apps/qorvex-gallery/data_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "apps/qorvex-gallery/figure_table.h"
#include "apps/qorvex-gallery/heading.h"
#include "apps/qorvex-gallery/message_bar.h"
#include "apps/qorvex-gallery/plot/histogram.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/tall_editor.h"
#include "apps/qorvex/input_error.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/number_text.h"
#include "qorvex/stats/full_precision.h"

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

PlotLayer Bars(const Histogram& histogram) {
  PlotLayer layer{PlotShape::kBars, PlotRole::kData, DataPage::tr("Values"), {}};
  for (std::size_t i = 0; i < histogram.edges.size(); ++i) {
    const Extended density = i == 0 ? 0 : histogram.Density(i - 1);
    layer.points.emplace_back(static_cast<double>(histogram.edges[i]),
                              static_cast<double>(density));
  }
  return layer;
}

// Over the bars, and as far as the density shows.
PlotLayer NormalCurve(const Histogram& histogram, Extended mean, Extended std_dev) {
  constexpr int steps = 240;
  constexpr Extended reach = 3;
  PlotLayer layer{PlotShape::kLine,
                  PlotRole::kModel,
                  DataPage::tr("Normal density of the same mean and standard deviation"),
                  {}};
  const Extended low = std::min(histogram.edges.front(), mean - reach * std_dev);
  const Extended high = std::max(histogram.edges.back(), mean + reach * std_dev);
  for (int i = 0; i <= steps; ++i) {
    const Extended x = low + (high - low) * i / steps;
    layer.points.emplace_back(static_cast<double>(x),
                              static_cast<double>(full_precision::NormalPdf(mean, std_dev, x)));
  }
  return layer;
}

// Figures that are too long to be read get an exponent.
QString Readable(const QString& figure, const QLocale& locale) {
  constexpr qsizetype most_digits = 32;
  std::string text = figure.toStdString();
  if (figure.size() > most_digits) text = Float2Str(Str2Float(text));
  return QorvexBaseControls::detail::LocalNumber(text, locale);
}

// The lines of a report, label and figure, in two columns of pairs.
QList<QStringList> InTwoColumns(const QStringList& lines, const QLocale& locale) {
  const qsizetype rows = (lines.size() + 1) / 2;
  QList<QStringList> table(rows);
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const QString& line = lines[i];
    table[i % rows].append(line.section('\t', 0, 0));
    table[i % rows].append(Readable(line.section('\t', 1), locale));
  }
  return table;
}

QString FileOf(const QMimeData& data) {
  return data.urls().size() == 1 ? data.urls().first().toLocalFile() : QString();
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
  setAcceptDrops(true);

  editor_->setObjectName("values");
  editor_->setLabelType(TQorLabelledVectorEdit::ltSupplied);
  editor_->OnGetLabel = [this](quint32 row) {
    return row_names_.isEmpty() ? locale().toString(row + 1) : row_names_.value(row);
  };
  editor_->setCellWidth(14 * fontMetrics().averageCharWidth());
  editor_->setBlankWhenNull(true);
  connect(editor_, &TQorVectorEdit::OnChange, this, &DataPage::RefreshSoon);
  connect(editor_, &TQorVectorEdit::OnBlockRefused, message_, &MessageBar::SetText);

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
  layout->addWidget(message_);
  layout->addWidget(progress_);
  layout->addLayout(body, 1);
  OpenExample();
}

DataPage::~DataPage() {
  StopReading();
}

QLayout* DataPage::MakeHeader() {
  auto* const open = new QPushButton(tr("&Open…"));
  open->setToolTip(tr("Open a CSV file; you can also drop one onto the page"));
  connect(open, &QPushButton::clicked, this, &DataPage::ChooseFile);
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
  decimals_->setRange(0, 20);
  decimals_->setValue(stats_.DecimalPlaces());
  connect(decimals_, &QSpinBox::valueChanged, this, &DataPage::RefreshSoon);
  population_->setObjectName("population");
  connect(population_, &QCheckBox::toggled, this, &DataPage::RefreshSoon);
  auto* const decimals_label = new QLabel(tr("&Decimals:"));
  decimals_label->setBuddy(decimals_);

  auto* const head = new QHBoxLayout;
  head->addWidget(MakeHeading(tr("Statistics")));
  head->addWidget(remark_);
  head->addStretch(1);
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
  OpenSource(file, QFileInfo(file).fileName(), {});
}

void DataPage::ChooseFile() {
  const QString file = QFileDialog::getOpenFileName(
      this, tr("Open a table"), {}, tr("Tables (*.csv *.tsv *.txt *.dat);;All files (*)"));
  if (!file.isEmpty()) Open(file);
}

void DataPage::OpenExample() {
  OpenSource(":/qorvex/gallery/michelson_1879.csv",
             tr("Example: the velocity of light, Michelson 1879"), "speed_km_s");
}

void DataPage::dragEnterEvent(QDragEnterEvent* event) {
  if (!FileOf(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void DataPage::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  Open(FileOf(*event->mimeData()));
}

// The column of that name, or the first one of numbers.
void DataPage::OpenSource(const QString& file, const QString& title, const QString& column) {
  StopReading();
  Source source{file, title, {}, 0};
  try {
    source.head = ReadHead(OpenFile(file));
  } catch (const cli::InputError& error) {
    chosen_ = shown_;
    ShowSource();
    message_->SetText(QString::fromUtf8(error.what()));
    Q_EMIT ReadingEnded();
    return;
  }
  const auto& columns = source.head.columns;
  const auto named = std::ranges::find(columns, column, &TableHead::Column::title);
  source.column = named == columns.end() ? source.head.FirstOfNumbers()
                                         : static_cast<std::size_t>(named - columns.begin());
  chosen_ = std::move(source);
  Read();
}

void DataPage::ChooseColumn(int index) {
  chosen_.column = static_cast<std::size_t>(index);
  Read();
}

void DataPage::Read() {
  StopReading();
  message_->SetText({});
  ShowSource();
  const qint64 size = QFileInfo(chosen_.file).size();
  if (size > kReadAtOnce) return ReadOnThread(size);
  try {
    EndReading(ReadColumn(OpenFile(chosen_.file), chosen_.column));
  } catch (const cli::InputError& error) {
    EndReading(QString::fromUtf8(error.what()));
  }
}

void DataPage::ReadOnThread(qint64 size) {
  progress_bar_->setRange(0, 100);
  progress_bar_->setValue(0);
  progress_bar_->setFormat(
      tr("Reading %1 (%2): %p %").arg(chosen_.title, locale().formattedDataSize(size)));
  progress_->show();

  // What a reading tells is heard only while it is the current one.
  const auto tell = [this, number = reading_number_](auto what) {
    QMetaObject::invokeMethod(
        this,
        [this, number, what = std::move(what)] {
          if (number == reading_number_) what();
        },
        Qt::QueuedConnection);
  };
  reader_ = std::jthread(
      [this, tell, size, file = chosen_.file, column = chosen_.column](std::stop_token stop) {
        const auto progress = [this, tell, size, last = 0](qint64 bytes) mutable {
          const int percent = static_cast<int>(100 * bytes / size);
          if (percent == std::exchange(last, percent)) return;
          tell([this, percent] { progress_bar_->setValue(percent); });
        };
        Reading reading;
        try {
          reading = ReadColumn(Observed(OpenFile(file), std::move(stop), progress), column);
        } catch (const ReadingStopped&) {
          return;
        } catch (const std::exception& error) {
          reading = QString::fromUtf8(error.what());
        }
        tell([this, reading = std::move(reading)] { EndReading(reading); });
      });
}

void DataPage::StopReading() {
  ++reading_number_;
  reader_ = {};
  progress_->hide();
}

void DataPage::CancelReading() {
  StopReading();
  chosen_ = shown_;
  ShowSource();
  Q_EMIT ReadingEnded();
}

void DataPage::EndReading(const Reading& reading) {
  progress_->hide();
  shown_ = chosen_;
  // A column that cannot be read shows none, since its name stands over it.
  TQorFloatVector values;
  row_names_.clear();
  if (const auto* const column = std::get_if<TableColumn>(&reading)) {
    values = column->values;
    row_names_ = column->row_names;
  } else {
    message_->SetText(std::get<QString>(reading));
  }
  editor_->setLabelWidth(LabelWidth());
  editor_->setVector(values);
  editor_->ScrollTop();
  Refresh();
  Q_EMIT ReadingEnded();
}

// Of the names that are seen first, within bounds.
int DataPage::LabelWidth() const {
  constexpr qsizetype looked_at = 1000;
  int width = 6 * fontMetrics().averageCharWidth();
  for (const QString& name : row_names_.mid(0, looked_at))
    width = std::max(width, fontMetrics().horizontalAdvance(name + QStringLiteral("  ")));
  return std::min(width, 20 * fontMetrics().averageCharWidth());
}

void DataPage::ShowSource() {
  file_->setText(chosen_.title);
  file_->setToolTip(chosen_.title);
  const QSignalBlocker blocker(columns_);
  columns_->clear();
  for (const TableHead::Column& column : chosen_.head.columns) columns_->addItem(column.title);
  columns_->setCurrentIndex(static_cast<int>(chosen_.column));
}

// Pasting changes many elements, one after the other.
void DataPage::RefreshSoon() {
  if (std::exchange(refresh_is_due_, true)) return;
  QTimer::singleShot(0, this, &DataPage::Refresh);
}

void DataPage::Refresh() {
  refresh_is_due_ = false;
  const TQorFloatVector all = editor_->Vector();
  const TQorFloatVector values = WithoutNulls(all);
  tall_editor_->FitFormat(values);
  stats_.setDecimalPlaces(decimals_->value());
  stats_.setPopulation(population_->isChecked());
  stats_.setValues(values);
  report_->SetRows(InTwoColumns(stats_.DescStats(), locale()));
  const std::size_t empty = all.size() - values.size();
  remark_->setText(empty == 0 ? QString()
                              : tr("without %1 empty cells").arg(locale().toString(empty)));
  RefreshPlot(values);
}

void DataPage::RefreshPlot(const TQorFloatVector& values) {
  std::vector<PlotLayer> layers;
  const Histogram histogram = HistogramOf(values);
  if (histogram.total > 0) {
    layers.push_back(Bars(histogram));
    try {
      if (stats_.StdDev() > 0)
        layers.push_back(NormalCurve(histogram, stats_.Mean(), stats_.StdDev()));
    } catch (const EMathError&) {
      // Of values whose squares are beyond the range there is no density.
    }
  }
  plot_->SetAxisTitles(shown_.head.columns[shown_.column].title, tr("Density"));
  plot_->SetLayers(std::move(layers));
}

}  // namespace qorvex::gallery
