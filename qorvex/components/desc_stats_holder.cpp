#include "qorvex/components/desc_stats_holder.h"

#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexControls {

TQorDescStatsHolder::TQorDescStatsHolder(QWidget* parent)
    : ComponentHolder(parent), stats_(new TQorDescStats(this)) {
  ShareName(stats_);
  connect(stats_, &TQorDescStats::StatsUpdated, this, &TQorDescStatsHolder::StatsUpdated);
}

TQorDescStatsHolder::~TQorDescStatsHolder() = default;

void TQorDescStatsHolder::setItems(const QStringList& items) {
  try {
    stats_->setItems(items);
    SetProblem({});
  } catch (const EConvertError& error) {
    SetProblem(QString::fromUtf8(error.what()));
  }
}

}  // namespace qorvex::inline QorvexControls
