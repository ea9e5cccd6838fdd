#pragma once

/// @file
/// TQorCustomPanel, the base of controls that hold other controls.

#include <QFrame>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/unit.h"

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// A panel whose display can be held back while many changes are made, and that learns when a
/// form has given it its properties. The frame around it is QFrame's, none at first.
class QORVEX_EXPORT TQorCustomPanel : public QFrame {
  Q_OBJECT

 public:
  /// An empty panel.
  explicit TQorCustomPanel(QWidget* parent = nullptr);
  ~TQorCustomPanel() override;

  /// @{
  /// Until the EndUpdate that belongs to it, the panel shows what it showed before. Brackets
  /// nest; an EndUpdate without its BeginUpdate does nothing. What the panel holds changes at
  /// once all the same, and so do its events.
  void BeginUpdate() noexcept { ++updates_; }
  void EndUpdate();
  [[nodiscard]] bool Updating() const noexcept { return updates_ > 0; }
  /// @}

  /// Brackets an update for as long as it lives, whatever is raised meanwhile.
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

  /// Shows everything anew, unless an update is under way.
  virtual void Redisplay() = 0;

 protected:
  /// The panel has its properties: it is shown for the first time, or the event loop has started.
  /// Qt has no other sign of it. Called once.
  virtual void Loaded() = 0;
  /// Whether that has been.
  [[nodiscard]] bool IsLoaded() const noexcept { return loaded_; }

  /// Qt's events.
  bool event(QEvent* event) override;

 private:
  int updates_ = 0;
  bool loaded_ = false;
};

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
