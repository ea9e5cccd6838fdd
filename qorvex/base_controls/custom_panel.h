#pragma once

/// @file
/// TQorCustomPanel, the base of controls that hold other controls.

#include <QFrame>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/unit.h"

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// A panel whose display can be suspended while many changes are made, and that is notified when a
/// form has set its properties. The frame is QFrame's, none by default.
class QORVEX_EXPORT TQorCustomPanel : public QFrame {
  Q_OBJECT

 public:
  /// An empty panel.
  explicit TQorCustomPanel(QWidget* parent = nullptr);
  ~TQorCustomPanel() override;

  /// @{
  /// Suspend and resume the display. Pairs nest; an EndUpdate without its BeginUpdate does nothing.
  /// Only the display waits: data and events do not.
  void BeginUpdate() noexcept { ++updates_; }
  void EndUpdate();
  [[nodiscard]] bool Updating() const noexcept { return updates_ > 0; }
  /// @}

  /// Suspends the display during its lifetime.
  class [[nodiscard]] Update {
   public:
    /// Begins the update.
    explicit Update(TQorCustomPanel& panel) noexcept : panel_(panel) { panel_.BeginUpdate(); }
    /// Ends it.
    ~Update() noexcept(false) { panel_.EndUpdate(); }
    Update(const Update&) = delete;
    Update& operator=(const Update&) = delete;

   private:
    TQorCustomPanel& panel_;
  };

  /// Shows everything again, unless an update is in progress.
  virtual void Redisplay() = 0;

 protected:
  /// The panel has its properties: it is shown for the first time, or the event loop has started.
  /// Called once. Qt has no other notification for it.
  virtual void Loaded() = 0;

  /// Qt's events.
  bool event(QEvent* event) override;

 private:
  int updates_ = 0;
  bool loaded_ = false;
};

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
