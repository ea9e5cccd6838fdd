#pragma once

/// @file
/// HelpWindow, the documents of the program.

#include <QDialog>
#include <QString>
#include <QTextBrowser>

class QListWidget;

namespace qorvex::gallery {

/// Shows the documents, which are part of the program, without their pictures. Links lead from one
/// to the other and to their sections; links to the web open in the browser.
class HelpView : public QTextBrowser {
  Q_OBJECT

 public:
  explicit HelpView(QWidget* parent = nullptr);

  [[nodiscard]] QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

 private:
  void ShowSection(const QString& section);
};

/// A list of all documents beside the one that is shown.
class HelpWindow : public QDialog {
  Q_OBJECT

 public:
  explicit HelpWindow(QWidget* parent = nullptr);
  ~HelpWindow() override;

  /// Shows a section of a document: "gallery.md", "data". The section is the heading in lower case
  /// with hyphens for blanks; an empty one is the beginning.
  void Open(const QString& document, const QString& section);

 private:
  void FollowSource(const QUrl& source);

  QListWidget* documents_;
  HelpView* view_;
};

}  // namespace qorvex::gallery
