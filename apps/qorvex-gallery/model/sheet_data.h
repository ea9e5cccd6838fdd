#pragma once

/// @file
/// SheetData, the cells of a sheet as texts.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "apps/common/table_format.h"
#include "qorvex/base/element_types.h"

namespace qorvex::gallery {

/// What a cell holds. It is missing if it is empty or one of the words for missing values.
enum class CellKind { kMissing, kNumber, kText };

/// Columns of cells, each a text exactly as it was read or typed.
///
/// Memory: the text and 8 bytes for each cell, and about 60 bytes for each changed cell.
class SheetData {
 public:
  /// Rows or columns that were inserted or removed.
  struct Lines {
    bool are_rows = false;
    bool were_inserted = false;
    std::size_t first = 0;
    std::size_t count = 0;
  };

  /// No rows, no columns.
  SheetData() = default;
  /// Columns without rows, with these names.
  SheetData(apps::TableFormat format, const std::vector<std::string>& names);

  /// @{
  /// How numbers, missing values and files are written. Setting it changes no text. O(cells)
  /// if other texts count as numbers or as missing.
  [[nodiscard]] const apps::TableFormat& Format() const noexcept { return format_; }
  void SetFormat(const apps::TableFormat& format);
  /// @}

  [[nodiscard]] std::size_t Rows() const noexcept { return rows_; }
  [[nodiscard]] std::size_t Columns() const noexcept { return columns_.size(); }
  /// @{
  /// The name of a column; empty for none.
  [[nodiscard]] const std::string& Name(std::size_t column) const { return columns_[column].name; }
  void SetName(std::size_t column, std::string name);
  /// @}
  [[nodiscard]] bool HasNames() const;

  /// The text of a cell. Valid until the next change.
  [[nodiscard]] std::string_view Cell(std::size_t row, std::size_t column) const;
  /// Changes a cell. The same text, or the same number, as it had when it was read or saved brings
  /// that text back.
  void SetCell(std::size_t row, std::size_t column, std::string_view text);

  /// What a text is as a cell.
  [[nodiscard]] CellKind KindOf(std::string_view cell) const;
  /// The number in a cell, rounded once; nothing for text, infinities and NaN.
  [[nodiscard]] std::optional<Extended> NumberIn(std::string_view cell) const;
  /// The text of a number in this table, with all its digits; empty for NaN.
  [[nodiscard]] std::string TextOf(Extended number) const;
  /// Whether a column has a number, and otherwise only numbers and missing cells. O(1).
  [[nodiscard]] bool IsNumeric(std::size_t column) const;
  /// Whether a column has both numbers and text. O(1).
  [[nodiscard]] bool IsMixed(std::size_t column) const;
  /// How many cells of a column are missing. O(1).
  [[nodiscard]] std::size_t Missing(std::size_t column) const;

  /// Appends a row while the table is read; there are as many texts as columns.
  template <class Texts>
  void AppendRow(const Texts& texts) {
    std::size_t column = 0;
    for (const std::string_view text : texts) Append(columns_[column++], text);
    ++rows_;
  }
  /// Provides room for texts of so many bytes.
  void Reserve(std::size_t bytes) { text_.reserve(bytes + 1); }
  /// Releases memory that only further rows would use.
  void ShrinkToFit();

  /// @{
  /// Insert empty rows or columns before the given one, or remove some. What is removed is kept for
  /// UndoLines, in 8 bytes for each cell.
  void InsertRows(std::size_t row, std::size_t count);
  void RemoveRows(std::size_t row, std::size_t count);
  void InsertColumns(std::size_t column, std::size_t count);
  void RemoveColumns(std::size_t column, std::size_t count);
  /// @}
  /// @{
  /// The last of these changes that is not undone, and undoing it. Rows that were appended one by
  /// one count as one change.
  [[nodiscard]] std::optional<Lines> LastLines() const;
  void UndoLines();
  /// @}

  /// @{
  /// Whether any cell, name, row or column differs from what was read or saved last.
  [[nodiscard]] bool IsChanged() const { return rearranged_ || !originals_.empty(); }
  void SetSaved();
  void SetChanged() { rearranged_ = true; }
  /// @}

 private:
  // Where the text of a cell is. The place of a changed cell belongs to it alone.
  class CellText {
   public:
    static constexpr int kSizeBits = 26;

    CellText() = default;
    CellText(std::size_t offset, std::size_t size) : bits_(offset << kSizeBits | size) {}
    [[nodiscard]] std::size_t Offset() const { return bits_ >> kSizeBits; }
    [[nodiscard]] std::size_t Size() const { return bits_ & ((std::size_t{1} << kSizeBits) - 1); }

   private:
    std::uint64_t bits_ = 0;
  };
  struct Column {
    std::string name = {};
    std::vector<CellText> cells = {};
    std::size_t numbers = 0;
    std::size_t texts = 0;

    // The count of cells of a kind; nowhere for missing ones.
    [[nodiscard]] std::size_t* CountOf(CellKind kind);
  };

  // A change that can be undone, with what it has removed.
  struct Step {
    Lines lines;
    std::vector<Column> removed = {};
  };

  [[nodiscard]] std::string_view TextAt(CellText cell) const;
  [[nodiscard]] CellText Keep(std::string_view text);
  void Append(Column& column, std::string_view text);
  void PutRows(std::size_t row, std::size_t count, const std::vector<Column>& removed);
  [[nodiscard]] std::vector<Column> TakeRows(std::size_t row, std::size_t count);
  void Count(Column& column, CellKind kind, bool more) const;
  [[nodiscard]] bool IsSame(std::string_view a, std::string_view b) const;

  apps::TableFormat format_;
  std::size_t rows_ = 0;
  std::vector<Column> columns_;
  // The texts of all cells one after the other. The first byte belongs to no cell.
  std::string text_{'\0'};
  // What the changed cells held when they were read or saved, by the offset of their new text.
  std::unordered_map<std::size_t, CellText> originals_;
  bool rearranged_ = false;
  std::vector<Step> steps_;
};

}  // namespace qorvex::gallery
