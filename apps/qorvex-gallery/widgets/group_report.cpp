#include "apps/qorvex-gallery/widgets/group_report.h"

#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>
#include <algorithm>

#include "apps/qorvex-gallery/model/group_figures.h"
#include "apps/qorvex-gallery/model/texts.h"
#include "apps/qorvex-gallery/widgets/heading.h"
#include "qorvex/controls/QorvexMatrixEdit.h"

namespace qorvex::gallery {

namespace {

// A column with more groups is most likely no column of groups.
constexpr qsizetype kMostGroups = 10'000;

}  // namespace

GroupReport::GroupReport(const Sheet& sheet, QWidget* parent)
    : QWidget(parent), sheet_(sheet), heading_(MakeHeading({})), table_(new TQorMatrixEdit) {
  constexpr int preferred_rows = 6;
  table_->setObjectName("groups");
  table_->setAccessibleName(tr("Statistics of groups"));
  table_->setReadOnly(true);
  table_->setRowHeadings(true);
  table_->setColHeadings(true);
  table_->setCellWidth(11 * fontMetrics().averageCharWidth());
  table_->setCellHeight(fontMetrics().height() + 8);
  table_->setNoOfRowEdits(preferred_rows);
  table_->setNoOfColEdits(static_cast<int>(GroupFigureTitles().size()));
  table_->setAutoEdits(true);
  table_->setNumberFormat(NumberSettings::nfGeneral);
  table_->setSignificantDigits(7);
  table_->setBlankWhenNull(true);
  table_->OnGetRowHeading = [this](quint32 row) { return groups_.value(row); };
  table_->OnGetColHeading = [](quint32 column) { return GroupFigureTitles().value(column); };
  const QStringList titles = GroupFigureTitles();
  for (qsizetype i = 0; i < titles.size(); ++i) {
    const int width =
        fontMetrics().horizontalAdvance(titles[i]) + 5 * fontMetrics().averageCharWidth();
    table_->setColWidth(static_cast<quint32>(i), std::max(width, table_->CellWidth()));
  }
  heading_->setBuddy(table_);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(heading_);
  layout->addWidget(table_, 1);
  hide();
}

GroupReport::~GroupReport() = default;

void GroupReport::Show(int column, int group_column, bool population) {
  setVisible(column >= 0 && group_column >= 0);
  if (isHidden()) return;
  const SheetGroups groups = sheet_.Groups(group_column);
  const bool shown = groups.names.size() <= kMostGroups;
  heading_->setText((shown ? tr("%1 by %2") : tr("%1 by %2: too many groups"))
                        .arg(sheet_.Title(column), sheet_.Title(group_column)));
  groups_ = shown ? groups.names : QStringList();
  table_->setMatrix(shown ? FiguresOfGroups(sheet_.Numbers(column), groups, population)
                          : TQorFloatMatrix());
}

QList<QStringList> GroupReport::Rows() const {
  QList<QStringList> rows;
  if (isHidden()) return rows;
  rows.append(QStringList(QString()) + GroupFigureTitles());
  for (quint32 row = 0; row < table_->NoOfRows(); ++row) {
    QStringList texts(groups_.value(row));
    for (quint32 column = 0; column < table_->NoOfCols(); ++column)
      texts.append(ExactText(table_->Element(row, column)));
    rows.append(texts);
  }
  return rows;
}

}  // namespace qorvex::gallery
