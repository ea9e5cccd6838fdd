#pragma once

/// @file
/// Application, which goes on after an error that nothing else has caught.

#include <QApplication>
#include <functional>

namespace qorvex::gallery {

/// The application of the program. An exception that leaves a slot or an event handler does not end
/// it, with the loss of what is not saved, but is shown in a message.
class Application : public QApplication {
  Q_OBJECT

 public:
  /// The arguments must outlive it.
  Application(int& argc, char** argv);
  ~Application() override;

  bool notify(QObject* receiver, QEvent* event) override;

  /// Calls a function that handles an event and returns what that returns; if it throws, shows the
  /// error and returns false. While a message is open, further errors are not shown.
  static bool Guard(const std::function<bool()>& handle);
};

}  // namespace qorvex::gallery
