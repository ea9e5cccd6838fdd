#include "apps/qorvex-gallery/widgets/help_window.h"

#include <QDirIterator>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QVBoxLayout>

namespace qorvex::gallery {

namespace {

constexpr const char* kDocuments = ":/qorvex/gallery/docs/";

QString ReadDocument(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The heading as links write it: "classes-of-equal-width".
QString SectionOf(const QString& heading) {
  static const QRegularExpression other(QStringLiteral("[^\\w -]"),
                                        QRegularExpression::UseUnicodePropertiesOption);
  return heading.toLower().remove(other).replace(u' ', u'-');
}

}  // namespace

HelpView::HelpView(QWidget* parent) : QTextBrowser(parent) {
  setOpenExternalLinks(true);
}

QVariant HelpView::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::MarkdownResource) return {};
  static const QRegularExpression picture(QStringLiteral("!\\[[^\\]]*\\]\\([^)]*\\)"));
  return ReadDocument(u':' + name.path()).remove(picture);
}

// Headings are no anchors for Qt.
void HelpView::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  if (!QFile::exists(u':' + name.path())) return;
  QTextBrowser::doSetSource(name, type);
  document()->setDocumentMargin(fontMetrics().height());
  ShowSection(name.fragment());
}

void HelpView::ShowSection(const QString& section) {
  if (section.isEmpty()) return;
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || SectionOf(block.text()) != section) continue;
    setTextCursor(QTextCursor(block));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top());
    return;
  }
}

HelpWindow::HelpWindow(QWidget* parent)
    : QDialog(parent), documents_(new QListWidget), view_(new HelpView) {
  setWindowTitle(tr("Help"));
  documents_->setObjectName("documents");
  view_->setObjectName("view");
  view_->setAccessibleName(tr("Document"));
  QDirIterator files(QLatin1String(kDocuments), {QStringLiteral("*.md")}, QDir::Files,
                     QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString path = files.next();
    const QString title = ReadDocument(path).section(u'\n', 0, 0).mid(2);
    auto* const item = new QListWidgetItem(title, documents_);
    item->setData(Qt::UserRole, path.mid(1));
    item->setToolTip(title);
  }
  documents_->sortItems();
  documents_->setFixedWidth(34 * fontMetrics().averageCharWidth());
  documents_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* const heading = new QLabel(tr("&Documents"));
  heading->setBuddy(documents_);
  auto* const back = new QPushButton(tr("&Back"));
  auto* const forward = new QPushButton(tr("&Forward"));
  back->setEnabled(false);
  forward->setEnabled(false);
  auto* const close = new QPushButton(tr("&Close"));
  connect(back, &QPushButton::clicked, view_, &QTextBrowser::backward);
  connect(forward, &QPushButton::clicked, view_, &QTextBrowser::forward);
  connect(view_, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
  connect(view_, &QTextBrowser::forwardAvailable, forward, &QPushButton::setEnabled);
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  connect(view_, &QTextBrowser::sourceChanged, this, &HelpWindow::FollowSource);
  connect(documents_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
    if (item != nullptr) view_->setSource(QUrl("qrc:" + item->data(Qt::UserRole).toString()));
  });

  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(back);
  buttons->addWidget(forward);
  buttons->addStretch(1);
  buttons->addWidget(close);
  auto* const left = new QVBoxLayout;
  left->addWidget(heading);
  left->addWidget(documents_, 1);
  auto* const right = new QVBoxLayout;
  right->addWidget(view_, 1);
  right->addLayout(buttons);
  auto* const layout = new QHBoxLayout(this);
  layout->addLayout(left);
  layout->addLayout(right, 1);
  resize(900, 640);
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::Open(const QString& document, const QString& section) {
  QUrl url(QStringLiteral("qrc:/qorvex/gallery/docs/") + document);
  if (!section.isEmpty()) url.setFragment(section);
  show();
  raise();
  activateWindow();
  view_->setSource(url);
  view_->setFocus();
}

void HelpWindow::FollowSource(const QUrl& source) {
  const QSignalBlocker blocker(documents_);
  for (int row = 0; row < documents_->count(); ++row) {
    if (documents_->item(row)->data(Qt::UserRole).toString() == source.path())
      documents_->setCurrentRow(row);
  }
}

}  // namespace qorvex::gallery
