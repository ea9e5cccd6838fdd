#include "apps/qorvex-gallery/widgets/table_loader.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <memory>
#include <utility>

#include "apps/common/input_error.h"
#include "apps/qorvex-gallery/model/error_text.h"
#include "apps/qorvex-gallery/model/sheet_file.h"
#include "apps/qorvex-gallery/model/table_input.h"

namespace qorvex::gallery {

namespace {

// Larger files are read in the background.
constexpr qint64 kMostReadAtOnce = qint64{1} << 20;

}  // namespace

TableLoader::TableLoader(QWidget* parent) : QWidget(parent), bar_(new QProgressBar), work_(this) {
  setObjectName("progress");
  bar_->setAccessibleName(tr("Reading progress"));
  bar_->setRange(0, 1000);
  auto* const cancel = new QPushButton(tr("Cancel"));
  cancel->setObjectName("cancel");
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(bar_, 1);
  layout->addWidget(cancel);
  connect(cancel, &QPushButton::clicked, this, &TableLoader::Stop);
  connect(&work_, &BackgroundWork::Progressed, bar_, &QProgressBar::setValue);
  hide();
}

TableLoader::~TableLoader() = default;

void TableLoader::Load(const QString& file, const QString& title, const apps::TableFormat& format,
                       const Loaded& loaded, const Failed& failed) {
  Stop();
  const qint64 size = QFileInfo(file).size();
  if (size <= kMostReadAtOnce) {
    SheetData sheet;
    try {
      sheet = ReadSheet(OpenFile(file), format, static_cast<std::size_t>(size));
    } catch (const apps::InputError& error) {
      return failed(ErrorText(error));
    }
    return loaded(std::move(sheet));
  }
  const auto sheet = std::make_shared<SheetData>();
  work_.Start(
      [sheet, file, format, bytes = static_cast<std::size_t>(size)](const Proceed& proceed) {
        const auto observe = [&proceed, bytes](std::size_t done) { return proceed(done, bytes); };
        *sheet = ReadSheet(Observed(OpenFile(file), observe), format, bytes);
      },
      [this, sheet, loaded] {
        loaded(std::move(*sheet));
        End();
      },
      [this, failed](const QString& why) {
        failed(why);
        End();
      });
  bar_->setValue(0);
  bar_->setFormat(tr("Reading %1 (%2): %p %").arg(title, locale().formattedDataSize(size)));
  show();
  Q_EMIT Started();
}

void TableLoader::Stop() {
  if (!IsLoading()) return;
  work_.Stop();
  End();
}

void TableLoader::End() {
  hide();
  Q_EMIT Ended();
}

}  // namespace qorvex::gallery
