#pragma once

/// @file
/// ModelLink, the model of Qt that supplies the elements of a panel.

#include <QAbstractItemModel>
#include <QLocale>
#include <QPersistentModelIndex>
#include <QPointer>
#include <functional>
#include <optional>

#include "qorvex/base/element_types.h"
#include "qorvex/base_controls/detail/text_elements.h"
#include "qorvex/controls/panel/cell_range.h"
#include "qorvex/controls/panel/cell_table.h"
#include "qorvex/controls/panel/detail/cell_place.h"
#include "qorvex/controls/panel/detail/change_history.h"

namespace qorvex::inline QorvexControls::detail {

/// Columns of a panel have gone, and others have come in their place.
struct ReplacedCols {
  quint32 first = 0;
  quint32 removed = 0;
  quint32 inserted = 0;
};

/// What a change of the structure of a model has done.
struct ModelMove {
  bool is_append = false;             ///< Every element is where it was.
  bool is_stored = false;             ///< A value that the panel stores has moved elements.
  bool typed_is_gone = false;         ///< The element whose text is being typed is gone.
  std::optional<CellPlace> typed_to;  ///< Its new place, if it has another one.
  ReplacedCols cols;                  ///< None by default.
};

/// Reads and writes the elements of a panel in the items of a model, role EditRole, and tells the
/// panel what happens to them. Without a model it does nothing.
class ModelLink : public QObject {
 public:
  /// What the panel does.
  struct Owner {
    /// The locale in which items that hold a text are read.
    std::function<QLocale()> locale;
    /// The place of the element whose text is being typed, if there is one.
    std::function<std::optional<CellPlace>()> typed;
    /// Elements have other values.
    std::function<void(const TQorCellRange& range)> changed;
    /// Headings have other texts.
    std::function<void()> headings_changed;
    /// There may be more or fewer elements, or they may be in other places.
    std::function<void(const ModelMove& move)> moved;
    /// The model is being deleted.
    std::function<void()> deleted;
  };

  /// No model.
  explicit ModelLink(Owner owner);

  [[nodiscard]] QAbstractItemModel* Linked() const noexcept { return model_; }
  /// Links to another model, or to none.
  void Link(QAbstractItemModel* model);
  /// @{
  /// The column of the model that is the first column of the panel, 0 by default.
  [[nodiscard]] int FirstCol() const noexcept { return first_col_; }
  void SetFirstCol(int col) { first_col_ = col; }
  /// @}

  /// @{
  /// Whether items may be texts, which elements then stand for; otherwise texts that are not
  /// numbers are null.
  [[nodiscard]] bool HasTexts() const noexcept { return has_texts_; }
  void SetHasTexts(bool has_texts) { has_texts_ = has_texts; }
  [[nodiscard]] QorvexBaseControls::detail::TextElements& Texts() noexcept { return texts_; }
  /// @}

  /// The number of rows, or of columns from the first one on; 0 without a model.
  [[nodiscard]] quint32 Count(CellAxis axis) const;
  /// The value of an item; null if it is neither a number nor a text, or does not exist.
  [[nodiscard]] Extended Value(quint32 row, quint32 col);
  /// False if the model refuses the value.
  bool Store(quint32 row, quint32 col, Extended value);
  /// Whether the model does not let the user change the item.
  [[nodiscard]] bool IsReadOnly(quint32 row, quint32 col) const;

  /// The text of the model for the heading of a row or a column.
  [[nodiscard]] QString Heading(CellAxis axis, quint32 line) const;

  /// @{
  /// Insert or remove rows or columns, or do so at the end until there are as many as given. False
  /// or nothing if the model refuses. InsertLines gives their place, since a model that sorts has
  /// another one for them; nothing if they have several. New elements are as the model makes them,
  /// or have a value that is not null.
  std::optional<quint32> InsertLines(CellAxis axis, quint32 first, quint32 count, Extended value);
  bool RemoveLines(CellAxis axis, quint32 first, quint32 count);
  bool SetCount(CellAxis axis, quint32 count);
  /// @}
  /// Models that fetch their rows step by step are asked for more as long as the row is missing.
  void FetchRow(quint32 row);

  /// Follows the elements of changes; an empty function without a model.
  [[nodiscard]] ElementPlaces Follow(const ElementChanges& changes) const;

  /// An element of the model, which is found again after a change.
  class Element {
   public:
    /// The element at a place.
    Element(const ModelLink& link, CellPlace place)
        : link_(&link), place_(place), index_(link.Index(place.row, place.col)) {}
    /// Where it is now; nothing if it is gone. Without a model it stays.
    [[nodiscard]] std::optional<CellPlace> Place() const {
      return link_->Linked() ? link_->PlaceOf(index_) : place_;
    }
    /// Where it was.
    [[nodiscard]] CellPlace Origin() const { return place_; }

   private:
    const ModelLink* link_;
    CellPlace place_;
    QPersistentModelIndex index_;
  };

 private:
  // The row or the column of the model that comes first.
  [[nodiscard]] int First(CellAxis axis) const;
  [[nodiscard]] QModelIndex Index(quint32 row, quint32 col) const;
  [[nodiscard]] std::optional<CellPlace> PlaceOf(const QPersistentModelIndex& index) const;
  void ConnectMoves();
  void HoldTyped();
  void Changed(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) const;
  void Inserted(int first, int last);
  // Their place afterwards.
  std::optional<quint32> FillLines(CellAxis axis, quint32 first, quint32 count, Extended value);
  void Moved(bool is_append, const ReplacedCols& cols = {});

  Owner owner_;
  QPointer<QAbstractItemModel> model_;
  int first_col_ = 0;
  bool has_texts_ = false;
  QorvexBaseControls::detail::TextElements texts_;
  bool stores_ = false;
  // It is going to be asked for more rows.
  bool fetches_ = false;
  // While lines are inserted: what the model tells of them.
  struct Insertion {
    int first = 0;
    int count = 0;
    int signals_seen = 0;
  };
  Insertion* insertion_ = nullptr;
  // The element whose text is being typed, while the model moves elements.
  std::optional<Element> typed_;
};

}  // namespace qorvex::inline QorvexControls::detail
