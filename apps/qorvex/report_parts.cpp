#include "apps/qorvex/report_parts.h"

#include <algorithm>
#include <iterator>

#include "apps/qorvex/text_table.h"

namespace qorvex::apps {

namespace {

// The figures of a list, or those of a row of a table, whose name may be indented there.
struct Item {
  std::string name;
  std::vector<Figure> figures;
};

std::vector<Item> ItemsOf(const ReportPart& part) {
  if (part.table.columns.empty()) return {{part.item, part.figures}};
  std::vector<Item> items;
  for (const std::vector<Cell>& row : part.table.rows) {
    Item item{CellText(row[0], {}), {}};
    item.name.erase(0, item.name.find_first_not_of(' '));
    for (std::size_t i = 1; i < row.size(); ++i)
      item.figures.push_back({part.table.columns[i].key, "", row[i]});
    items.push_back(std::move(item));
  }
  return items;
}

// Labels and values. What has no label is only a line of text.
ResultTable TableOf(const std::vector<Figure>& figures) {
  ResultTable table{.columns = {{"figure", ""}, {"value", ""}}};
  for (const Figure& figure : figures)
    if (!figure.label.empty()) table.rows.push_back({Heading(figure.label), figure.value});
  return table;
}

}  // namespace

ReportPart SideBySide(const std::vector<ReportPart>& lists) {
  ReportPart part{.key = lists[0].key, .table = {.columns = {{"figure", ""}}}};
  std::vector<std::vector<Cell>>& rows = part.table.rows;
  for (std::size_t column = 1; column <= lists.size(); ++column) {
    const ReportPart& list = lists[column - 1];
    part.table.columns.push_back({list.item, ShortName(list.item)});
    auto next = rows.begin();
    for (const Figure& figure : list.figures) {
      const std::string label = Heading(figure.label);
      auto row = std::ranges::find_if(rows, [&label](const std::vector<Cell>& cells) {
        return std::get<std::string>(cells[0]) == label;
      });
      if (row == rows.end()) {
        row = rows.emplace(next, lists.size() + 1);
        row->front() = label;
      }
      (*row)[column] = figure.value;
      next = row + 1;
    }
  }
  return part;
}

std::string TextOf(const std::vector<ReportPart>& parts, const OutputFormat& output,
                   int significant_digits) {
  const FigureFormat format = output.ForReport(significant_digits);
  const bool aligned = output.form == OutputForm::kTable;
  std::string text;
  bool follows_table = false;
  for (const ReportPart& part : parts) {
    const bool is_table = !part.table.columns.empty();
    if (!text.empty() && (is_table || follows_table)) text += '\n';
    if (!part.title.empty()) text += part.title + '\n';
    if (aligned) {
      text += AlignedTextOf(is_table ? part.table : TableOf(part.figures), format);
    } else {
      text += is_table ? TabbedTextOf(part.table, format) : LinesOf(part.figures, format);
    }
    follows_table = is_table;
  }
  return text;
}

std::string CsvOf(const std::vector<ReportPart>& parts, const FigureFormat& format) {
  ResultTable lines{.columns = {{"part", ""}, {"item", ""}, {"figure", ""}, {"value", ""}}};
  for (const ReportPart& part : parts) {
    for (const Item& item : ItemsOf(part)) {
      const auto add = [&](const std::string& key, const Cell& value) {
        lines.rows.push_back({part.key, item.name, key, value});
      };
      for (const Figure& figure : item.figures) {
        if (const auto* const ends = std::get_if<Interval<Extended>>(&figure.value)) {
          add(figure.key + "_lower", ends->least);
          add(figure.key + "_upper", ends->greatest);
        } else if (!std::holds_alternative<std::monostate>(figure.value)) {
          add(figure.key, figure.value);
        }
      }
    }
  }
  return CsvOf(lines, format);
}

void RemarkOnHidden(const std::string& place, const std::vector<ReportPart>& parts,
                    const OutputFormat& output) {
  std::vector<Figure> figures;
  for (const ReportPart& part : parts)
    for (Item& item : ItemsOf(part))
      figures.insert(figures.end(), std::make_move_iterator(item.figures.begin()),
                     std::make_move_iterator(item.figures.end()));
  RemarkOnHidden(place, figures, output);
}

}  // namespace qorvex::apps
