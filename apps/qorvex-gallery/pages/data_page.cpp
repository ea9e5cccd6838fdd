#include "apps/qorvex-gallery/pages/data_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "apps/qorvex-gallery/model/sheet.h"
#include "apps/qorvex-gallery/widgets/column_box.h"
#include "apps/qorvex-gallery/widgets/column_report.h"
#include "apps/qorvex-gallery/widgets/group_report.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "apps/qorvex-gallery/widgets/sheet_document.h"
#include "apps/qorvex-gallery/widgets/sheet_view.h"
#include "apps/qorvex-gallery/widgets/table_loader.h"
#include "apps/qorvex-gallery/widgets/tool_tip.h"

namespace qorvex::gallery {

DataPage::DataPage(Sheet& sheet, QWidget* parent)
    : Page(parent),
      sheet_(sheet),
      file_(new QLabel),
      view_(new SheetView(sheet)),
      columns_(new ColumnBox(sheet, ColumnBox::kNumeric)),
      groups_(new ColumnBox(sheet, ColumnBox::kAll, tr("(no groups)"))),
      report_(new ColumnReport(sheet)),
      group_report_(new GroupReport(sheet)),
      loader_(new TableLoader),
      message_(new MessageBar),
      document_(new SheetDocument(sheet, *loader_, *this)) {
  setObjectName("dataPage");
  auto* const body = new QHBoxLayout;
  body->addWidget(view_, 1);
  body->addSpacing(fontMetrics().height());
  body->addLayout(MakeStatistics(), 1);
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(MakeHeader());
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addLayout(body, 1);
  layout->addWidget(loader_);
  layout->addWidget(message_);
  ConnectParts();
  Refresh();
}

DataPage::~DataPage() {
  // The editor commits a text that is being typed when it is destroyed.
  sheet_.disconnect(this);
  view_->Editor().disconnect(this);
}

void DataPage::ConnectParts() {
  document_->CommitText = [this] { view_->CommitText(); };
  connect(document_, &SheetDocument::Message, this, &DataPage::Say);
  connect(document_, &SheetDocument::Opened, this, &DataPage::ShowColumn);
  connect(document_, &SheetDocument::TitleChanged, this, [this] {
    file_->setText(document_->Title());
    file_->setToolTip(ToolTipOf(document_->Title()));
  });
  connect(&view_->Editor(), &CellPanel::OnBlockRefused, this, &DataPage::Say);
  connect(&view_->Editor(), &CellPanel::OnTextRefused, this, &DataPage::Say);
  connect(view_, &SheetView::TablePasted, document_, &SheetDocument::ReadText);
  connect(view_, &SheetView::ColumnChosen, columns_, &ColumnBox::SetColumn);
  // Messages are about the table before.
  connect(&sheet_, &Sheet::modelReset, this, [this] { note_.clear(); });
  connect(columns_, &ColumnBox::ColumnChanged, this,
          [this] { Q_EMIT ColumnShown(columns_->Column()); });
  connect(&sheet_, &Sheet::Changed, this, &DataPage::Refresh);
  connect(report_, &ColumnReport::PopulationChosen, this, &DataPage::Refresh);
  for (ColumnBox* const box : {columns_, groups_})
    connect(box, &ColumnBox::ColumnChanged, this, &DataPage::Refresh);
  // What was typed while a table is read would be lost when that table is shown.
  connect(loader_, &TableLoader::Started, view_, [this] { view_->setEnabled(false); });
  connect(loader_, &TableLoader::Ended, this, [this] {
    view_->setEnabled(true);
    Q_EMIT ReadingEnded();
  });
}

QLayout* DataPage::MakeHeader() {
  const auto make = [](const QString& text, const QString& tip) {
    auto* const button = new QPushButton(text);
    button->setToolTip(tip);
    return button;
  };
  auto* const open = make(tr("&Open…"), tr("Open a CSV file; you can also drop one onto the page"));
  connect(open, &QPushButton::clicked, document_, &SheetDocument::ChooseFile);
  auto* const save = make(tr("&Save"), tr("Write the table with your changes to its file"));
  connect(save, &QPushButton::clicked, document_, &SheetDocument::Save);
  auto* const example =
      make(tr("E&xample"), tr("Michelson's determinations of the velocity of light, 1879"));
  connect(example, &QPushButton::clicked, document_, &SheetDocument::OpenExample);
  file_->setObjectName("file");
  file_->setTextFormat(Qt::PlainText);
  file_->setText(document_->Title());
  // A long name does not widen the page.
  file_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* const header = new QHBoxLayout;
  header->addWidget(open);
  header->addWidget(save);
  header->addWidget(example);
  header->addSpacing(fontMetrics().height());
  header->addWidget(file_, 1);
  return header;
}

QLayout* DataPage::MakeStatistics() {
  columns_->setObjectName("column");
  groups_->setObjectName("group");
  auto* const boxes = new QHBoxLayout;
  const auto add = [&](const QString& text, ColumnBox* box) {
    auto* const label = new QLabel(text);
    label->setBuddy(box);
    boxes->addWidget(label);
    boxes->addWidget(box);
  };
  add(tr("Co&lumn:"), columns_);
  boxes->addSpacing(fontMetrics().height());
  add(tr("&Groups:"), groups_);
  boxes->addStretch();
  auto* const layout = new QVBoxLayout;
  layout->addLayout(boxes);
  layout->addWidget(report_, 2);
  layout->addWidget(group_report_, 1);
  return layout;
}

void DataPage::ShowColumn(const QString& name) {
  for (int column = 0; column < sheet_.columnCount(); ++column)
    if (sheet_.Title(column) == name) columns_->SetColumn(column);
}

void DataPage::Say(const QString& message) {
  note_ = message;
  message_->SetText(message);
}

// A column of numbers with a few texts is most likely one of numbers.
QString DataPage::WarningOfTexts() const {
  for (int column = 0; column < sheet_.columnCount(); ++column) {
    if (!sheet_.Data().IsMixed(static_cast<std::size_t>(column))) continue;
    const int row = sheet_.FirstText(column);
    return tr("Column %1 counts as text: “%2” in row %3 is not a number")
        .arg(sheet_.Title(column), sheet_.Text(row, column), locale().toString(row + 1));
  }
  return {};
}

void DataPage::Refresh() {
  const QStringList messages{std::exchange(note_, {}), WarningOfTexts()};
  message_->SetText(messages.join(u' ').trimmed());
  const int column = columns_->Column();
  report_->ShowColumn(column, groups_->Column());
  group_report_->Show(column, groups_->Column(), report_->OfPopulation());
}

bool DataPage::IsReading() const {
  return loader_->IsLoading();
}

QVariantMap DataPage::State() const {
  return {
      {"column", columns_->State()}, {"groups", groups_->State()}, {"report", report_->State()}};
}

void DataPage::SetState(const QVariantMap& state) {
  columns_->SetState(state.value("column").toList());
  groups_->SetState(state.value("groups").toList());
  report_->SetState(state.value("report").toMap());
}

PageReport DataPage::Report() const {
  PageReport report{document_->Title(), report_->ReportParts()};
  const QList<QStringList> groups = group_report_->Rows();
  if (!groups.isEmpty()) report.parts.append({.heading = tr("Groups"), .rows = groups});
  return report;
}

}  // namespace qorvex::gallery
