#include "apps/qorvex-gallery/application.h"

#include <QMessageBox>
#include <QPointer>
#include <exception>

#include "apps/qorvex-gallery/model/error_text.h"

namespace qorvex::gallery {

namespace {

// Does not wait for the user: the error may have come while something was painted.
void ShowError(const QString& error) {
  static QPointer<QMessageBox> message;
  if (message != nullptr) return;
  message = new QMessageBox(
      QMessageBox::Critical, Application::tr("Internal error"),
      Application::tr("An error in the program has stopped the last action. Your data are still "
                      "there; save them before you go on."),
      QMessageBox::Ok, QApplication::activeWindow());
  message->setAttribute(Qt::WA_DeleteOnClose);
  message->setTextFormat(Qt::PlainText);
  message->setInformativeText(error);
  QMetaObject::invokeMethod(message, &QDialog::open, Qt::QueuedConnection);
}

}  // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {}

Application::~Application() = default;

bool Application::notify(QObject* receiver, QEvent* event) {
  const auto deliver = [&] { return QApplication::notify(receiver, event); };
  return Guard(std::ref(deliver));
}

bool Application::Guard(const std::function<bool()>& handle) {
  try {
    return handle();
  } catch (const std::exception& error) {
    ShowError(ErrorText(error));
    return false;
  }
}

}  // namespace qorvex::gallery
