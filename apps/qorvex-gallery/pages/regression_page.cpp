#include "apps/qorvex-gallery/pages/regression_page.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTimer>
#include <QUndoStack>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "apps/qorvex-gallery/model/matrix_file.h"
#include "apps/qorvex-gallery/model/sheet.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/column_box.h"
#include "apps/qorvex-gallery/widgets/column_list.h"
#include "apps/qorvex-gallery/widgets/figure_table.h"
#include "apps/qorvex-gallery/widgets/heading.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "qorvex/base_controls/text_cell.h"
#include "qorvex/controls/QorvexMatrixEdit.h"

namespace qorvex::gallery {

namespace {

constexpr int kGreatestDegree = 10;
// Larger tables of own values would make the file of settings slow to read.
constexpr quint32 kMostKeptRows = 100'000;

// Years, and thousands of people aged 14 and over in the United States. From J. W. Longley, An
// appraisal of least squares programs for the electronic computer from the point of view of the
// user, 1967. Such programs lost the digits that the years have in common.
constexpr std::pair<int, int> kExamplePairs[] = {
    {1947, 107608}, {1948, 108632}, {1949, 109773}, {1950, 110929}, {1951, 112075}, {1952, 113270},
    {1953, 115094}, {1954, 116219}, {1955, 117388}, {1956, 118734}, {1957, 120445}, {1958, 121950},
    {1959, 123366}, {1960, 125368}, {1961, 127852}, {1962, 130081}};

// Empty for NaN.
// As high as its contents, unless that leaves too little for the diagrams: then it scrolls.
class TableArea : public QScrollArea {
 public:
  explicit TableArea(QWidget* tables) {
    setWidget(tables);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  }
  [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }
  [[nodiscard]] QSize minimumSizeHint() const override {
    constexpr int kLeastLines = 5;
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(),
            kLeastLines * fontMetrics().lineSpacing()};
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
  }
};

}  // namespace

RegressionPage::RegressionPage(Sheet& sheet, QWidget* parent)
    : Page(parent),
      sheet_(sheet),
      message_(new MessageBar),
      source_(new QComboBox),
      degree_(new QSpinBox),
      values_(new QStackedWidget),
      own_(new TQorMatrixEdit),
      response_(new ColumnBox(sheet, ColumnBox::kNumeric)),
      predictors_(new ColumnList(sheet)),
      curve_(new PlotView),
      residuals_(new PlotView),
      coefficients_(
          new FigureTable({FigureTable::kLabel, FigureTable::kFigure, FigureTable::kFigure,
                           FigureTable::kFigure, FigureTable::kFigure, FigureTable::kFigure})),
      quality_(new FigureTable({FigureTable::kLabel, FigureTable::kFigure})),
      heading_(MakeHeading({})),
      remark_(new QLabel) {
  setObjectName("regressionPage");
  values_->addWidget(MakeOwnValues());
  values_->addWidget(MakeColumns(sheet));
  auto* const body = new QHBoxLayout;
  body->addLayout(MakeChoices());
  body->addSpacing(fontMetrics().height());
  body->addLayout(MakeResults(), 1);
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(body, 1);
  layout->addWidget(message_);
  ShowExample();
  own_->UndoStack()->clear();
  Refresh();
}

RegressionPage::~RegressionPage() {
  // The editor commits a text that is being typed when it is destroyed.
  own_->disconnect(this);
}

QLayout* RegressionPage::MakeChoices() {
  source_->setObjectName("source");
  source_->addItems({tr("Own values"), tr("Columns of the sheet")});
  connect(source_, &QComboBox::currentIndexChanged, this, &RegressionPage::ChooseSource);
  degree_->setObjectName("degree");
  degree_->setRange(1, kGreatestDegree);
  degree_->setToolTip(tr("1 for a line, 2 for a parabola; with several predictors always 1"));
  connect(degree_, &QSpinBox::valueChanged, this, &RegressionPage::RefreshSoon);
  auto* const form = new QFormLayout;
  form->addRow(tr("&Data:"), source_);
  form->addRow(tr("De&gree:"), degree_);
  auto* const layout = new QVBoxLayout;
  layout->addLayout(form);
  layout->addWidget(values_, 1);
  return layout;
}

QWidget* RegressionPage::MakeOwnValues() {
  own_->setObjectName("own");
  own_->setAccessibleName(tr("Own values"));
  own_->setNoOfCols(2);
  own_->setCanGrow(true);
  own_->setAllowKbdNull(true);
  own_->setBlankWhenNull(true);
  own_->setFullAccuracy(true);
  own_->setRowHeadings(true);
  own_->setColHeadings(true);
  own_->OnGetColHeading = [this](quint32 column) { return NameOf(column); };
  own_->setCellHeight(fontMetrics().height() + 8);
  own_->setCellWidth(14 * fontMetrics().averageCharWidth());
  own_->setNoOfColEdits(2);
  own_->setNoOfRowEdits(12);
  own_->setAutoEdits(true);
  message_->Watch(*own_);
  connect(own_, &TQorMatrixEdit::OnChange, this, &RegressionPage::RefreshSoon);
  connect(own_, &TQorMatrixEdit::OnUndo, this, &RegressionPage::RefreshSoon);
  connect(own_, &TQorMatrixEdit::OnNoRowsChange, this, &RegressionPage::RefreshSoon);
  connect(own_, &TQorMatrixEdit::OnNoColsChange, this, [this] {
    own_->Redisplay();  // the headings depend on the number of columns
    RefreshSoon();
  });
  auto* const example = new QPushButton(tr("E&xample"));
  example->setObjectName("example");
  example->setToolTip(
      tr("Year, and thousands of people aged 14 and over in the USA; Longley 1967"));
  connect(example, &QPushButton::clicked, this, &RegressionPage::ShowExample);
  auto* const clear = new QPushButton(tr("&Clear"));
  clear->setObjectName("clear");
  clear->setToolTip(tr("Deletes all rows; Ctrl+Z in the table takes it back"));
  connect(clear, &QPushButton::clicked, this, &RegressionPage::Clear);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(example);
  buttons->addWidget(clear);
  auto* const widget = new QWidget;
  auto* const layout = new QVBoxLayout(widget);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(buttons);
  layout->addWidget(own_, 1);
  return widget;
}

QWidget* RegressionPage::MakeColumns(Sheet& sheet) {
  response_->setObjectName("response");
  predictors_->setObjectName("predictors");
  auto* const response_label = new QLabel(tr("&Response (y):"));
  response_label->setBuddy(response_);
  auto* const predictors_label = new QLabel(tr("&Predictors (x):"));
  predictors_label->setBuddy(predictors_);
  connect(response_, &ColumnBox::ColumnChanged, this, &RegressionPage::RefreshSoon);
  connect(predictors_, &ColumnList::ColumnsChanged, this, &RegressionPage::RefreshSoon);
  connect(&sheet, &Sheet::Changed, this, [this] {
    if (TakesSheet()) RefreshSoon();
  });
  auto* const widget = new QWidget;
  auto* const layout = new QVBoxLayout(widget);
  layout->setContentsMargins(0, 0, 0, 0);
  for (QWidget* const part :
       std::initializer_list<QWidget*>{response_label, response_, predictors_label}) {
    layout->addWidget(part);
  }
  layout->addWidget(predictors_, 1);
  return widget;
}

QLayout* RegressionPage::MakeResults() {
  curve_->setObjectName("scatter");
  curve_->setAccessibleName(tr("Data and fit"));
  curve_->SetPlaceholder(tr("No complete rows to show"));
  residuals_->setObjectName("residuals");
  residuals_->setAccessibleName(tr("Residuals"));
  residuals_->SetPlaceholder(tr("No residuals to show"));
  coefficients_->setObjectName("coefficients");
  coefficients_->SetTitled();
  quality_->setObjectName("quality");
  auto* const plots = new QHBoxLayout;
  plots->addWidget(curve_, 3);
  plots->addWidget(residuals_, 2);
  auto* const head = new QHBoxLayout;
  // Level with the box beside it.
  heading_->setMinimumHeight(source_->sizeHint().height());
  head->addWidget(heading_);
  head->addWidget(remark_);
  head->addStretch(1);
  auto* const tables = new QWidget;
  auto* const tables_layout = new QVBoxLayout(tables);
  tables_layout->setContentsMargins(0, 0, 0, 0);
  tables_layout->addWidget(coefficients_);
  tables_layout->addSpacing(fontMetrics().height() / 2);
  tables_layout->addWidget(quality_);
  tables_layout->addStretch(1);
  auto* const layout = new QVBoxLayout;
  layout->addLayout(head);
  layout->addLayout(plots, 1);
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addWidget(new TableArea(tables));
  return layout;
}

// One step of undo, so that no values are lost.
void RegressionPage::ShowExample() {
  QString pairs;
  for (const auto& [year, people] : kExamplePairs)
    pairs += QStringLiteral("%1\t%2\n").arg(year).arg(people);
  own_->UndoStack()->beginMacro(tr("Example"));
  DeleteValues();
  own_->PasteBlock(pairs);
  own_->UndoStack()->endMacro();
  own_->ScrollTop();
}

void RegressionPage::Clear() {
  own_->UndoStack()->beginMacro(tr("Clear"));
  DeleteValues();
  own_->UndoStack()->endMacro();
  own_->setRowEditFocus(0);
}

void RegressionPage::DeleteValues() {
  if (own_->NoOfRows() > 0) own_->DeleteRows(0, own_->NoOfRows());
  if (own_->NoOfCols() > 2) own_->DeleteCols(2, own_->NoOfCols() - 2);
  own_->setCurrentRow(0);
  own_->setCurrentCol(0);
}

bool RegressionPage::TakesSheet() const {
  return source_->currentIndex() == 1;
}

// Begins with the first two columns, so that there is something to see.
void RegressionPage::ChooseSource() {
  values_->setCurrentIndex(source_->currentIndex());
  if (TakesSheet() && predictors_->Columns().empty() && response_->count() > 1) {
    predictors_->SetColumns({sheet_.ColumnWith(response_->itemData(0).toInt())});
    if (response_->currentIndex() == 0) response_->setCurrentIndex(1);
  }
  RefreshSoon();
}

// The last column is the response.
QString RegressionPage::NameOf(quint32 column) const {
  const quint32 columns = own_->NoOfCols();
  if (column + 1 == columns && columns > 1) return QStringLiteral("y");
  return columns <= 2 ? QStringLiteral("x") : QStringLiteral("x%1").arg(column + 1);
}

RegressionData RegressionPage::OwnData() const {
  const TQorFloatMatrix matrix = own_->Matrix();
  std::vector<RegressionData::Column> columns;
  for (quint32 column = 0; column < own_->NoOfCols(); ++column) {
    columns.push_back({NameOf(column), {}});
    for (const TQorFloatVector& row : matrix) columns.back().values.Append(row[column]);
  }
  RegressionData table;
  table.degree = static_cast<std::size_t>(degree_->value());
  if (columns.empty()) return table;
  table.response = std::move(columns.back());
  columns.pop_back();
  table.predictors = std::move(columns);
  return table;
}

RegressionData RegressionPage::SheetData() const {
  RegressionData table;
  table.degree = static_cast<std::size_t>(degree_->value());
  if (response_->Column() < 0) return table;
  table.response = {sheet_.Title(response_->Column()), sheet_.Numbers(response_->Column())};
  for (const int column : predictors_->Columns())
    table.predictors.push_back({sheet_.Title(column), sheet_.Numbers(column)});
  return table;
}

// Pasting changes many elements one after the other; one refresh is enough. A page that is not in
// sight waits until it is.
void RegressionPage::RefreshSoon() {
  if (std::exchange(refresh_is_due_, true) || !isVisible()) return;
  QTimer::singleShot(0, this, &RegressionPage::Refresh);
}

void RegressionPage::showEvent(QShowEvent* event) {
  Page::showEvent(event);
  if (refresh_is_due_) Refresh();
}

void RegressionPage::Refresh() {
  refresh_is_due_ = false;
  const RegressionData table = TakesSheet() ? SheetData() : OwnData();
  const bool has_bands = table.predictors.size() <= 1;
  degree_->setEnabled(has_bands);
  heading_->setText(
      has_bands ? tr("Least-squares fit, with 95 % bands for the mean and for single values")
                : tr("Least-squares fit"));
  const std::vector<int> chosen = predictors_->Columns();
  if (TakesSheet() && sheet_.columnCount() == 0) {
    message_->SetText(tr("The sheet on the page Data is empty."));
  } else if (TakesSheet() && chosen.empty()) {
    message_->SetText(tr("Tick one or more predictors."));
  } else if (TakesSheet() && std::ranges::find(chosen, response_->Column()) != chosen.end()) {
    message_->SetText(tr("%1 is the response and a predictor.").arg(table.response.name));
  } else {
    const RegressionReport report(table);
    message_->SetText(report.WhyNot());
    return ShowFit(report);
  }
  ShowFit(RegressionReport({}));
}

void RegressionPage::ShowFit(const RegressionReport& report) {
  remark_->setText(RemarkOn(report.LeftOut()));
  curve_->SetAxisTitles(report.XTitle(), report.YTitle());
  curve_->SetLayers(report.Curve());
  residuals_->SetAxisTitles(report.XTitle(), tr("Residual"));
  residuals_->SetLayers(report.Residuals());
  coefficient_rows_ = report.CoefficientRows();
  quality_rows_ = report.QualityRows();
  coefficients_->SetRows(coefficient_rows_);
  quality_->SetRows(quality_rows_);
  FigureTable::Align(*coefficients_, *quality_);
}

QString RegressionPage::RemarkOn(std::size_t left_out) const {
  if (left_out == 0) return {};
  return left_out == 1 ? tr("without 1 incomplete row")
                       : tr("without %1 incomplete rows").arg(locale().toString(left_out));
}

QVariantMap RegressionPage::State() const {
  for (TextCell* const cell : own_->findChildren<TextCell*>()) cell->CommitOrRestore();
  QVariantMap state = {{"sheet", TakesSheet()},
                       {"degree", degree_->value()},
                       {"response", response_->State()},
                       {"predictors", predictors_->State()}};
  if (own_->NoOfRows() <= kMostKeptRows) state["own"] = MatrixText(own_->Matrix());
  return state;
}

void RegressionPage::SetState(const QVariantMap& state) {
  if (const auto own = state.constFind("own"); own != state.constEnd()) {
    try {
      own_->setMatrix(MatrixOf(own->toString()));
    } catch (const std::exception&) {
      // Settings that another program has changed; the example stays.
    }
    if (own_->NoOfCols() < 2) own_->setNoOfCols(2);
  }
  degree_->setValue(state.value("degree", 1).toInt());
  response_->SetState(state.value("response").toList());
  predictors_->SetState(state.value("predictors").toList());
  source_->setCurrentIndex(state.value("sheet").toBool() ? 1 : 0);
  RefreshSoon();
}

PageReport RegressionPage::Report() const {
  return {tr("Regression"),
          {{tr("Coefficients"), coefficient_rows_},
           {tr("Quality of the fit"), quality_rows_},
           {tr("Data and fit"), {}, curve_},
           {tr("Residuals"), {}, residuals_}}};
}

}  // namespace qorvex::gallery
