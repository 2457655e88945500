#pragma once

// A walker that takes down what the keys of a role are and what an object holds for each.

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "analysis/schema/table_schema.h"
#include "settings/system_default.h"

namespace plateconfig {

/// A record as it is before anything is read into it.
template <typename Record>
Record FreshRecord() {
  return Record{};
}
/// The class without a default constructor; its tables are missing.
template <>
inline SystemDefault FreshRecord<SystemDefault>() {
  static const SystemDefault kFresh{"", ""};
  return kFresh;
}

class Snapshot {
 public:
  template <const auto& kKeys, typename Record>
  void Walk(const Record& record) {
    for (const auto& key : kKeys) {
      columns.push_back(Describe(key));
      values.push_back(PrintKey(key, record));
    }
  }

  template <const auto& kKeys, typename Record>
  void WalkRows(const std::vector<Record>& list) {
    ++records_;
    for (const auto& key : kKeys) {
      columns.push_back(DescribeRowColumn(key, DecidingColumn(kKeys)));
      columns.back().record = records_;
      Cells& cells = values.emplace_back();
      for (const Record& record : list) cells.push_back(PrintKey(key, record).front());
    }
  }

  std::vector<ColumnSchema> columns;
  std::vector<Cells> values;  ///< One entry per column.

 private:
  template <typename Record, typename... Further>
  static ColumnSchema Describe(const Key<Record, Further...>& key) {
    ColumnSchema column = DescribeCells(key);
    column.whenAbsent = std::visit([](const auto& kind) { return kind.WhenAbsent(); }, key.kind);
    column.taken = [&key](const Cells& cells) { return Taken(key, cells); };
    return column;
  }

  template <typename Record, typename... Further>
  static ColumnSchema DescribeRowColumn(const Key<Record, Further...>& key, std::string_view decidedBy) {
    ColumnSchema column = DescribeCells(key);
    column.isRowColumn = true;
    column.decidedBy = decidedBy;
    column.rowRule = key.rowRule;
    column.accepts = [&key](const std::string& cell) {
      return std::visit([&](const auto& kind) { return kind.Accepts(cell); }, key.kind);
    };
    column.taken = [&key](const Cells& cells) {
      Cells taken;
      for (const std::string& cell : cells)
        taken.push_back(Says(key, cell) ? Taken(key, {cell}).front() : "");
      return taken;
    };
    return column;
  }

  template <typename AnyKey>
  static ColumnSchema DescribeCells(const AnyKey& key) {
    const auto describe = [&](const auto& kind) {
      const Words help = {key.help.english, key.help.chinese};
      ColumnSchema column{std::string(key.column), kind.Form(), kind.kType, key.unit, help, {}};
      column.isList = kind.kIsList;
      column.emptyIsAbsent = kind.EmptyIsAbsent();
      column.use = key.use;
      column.exact = kind.Exact();
      return column;
    };
    return std::visit(describe, key.kind);
  }

  template <typename Keys>
  static std::string_view DecidingColumn(const Keys& keys) {
    const auto found = std::find_if(std::begin(keys), std::end(keys),
                                    [](const auto& key) { return key.rowRule == RowRule::kDecides; });
    return found == std::end(keys) ? std::string_view() : found->column;
  }

  template <typename AnyKey>
  static bool Says(const AnyKey& key, const std::string& cell) {
    return std::visit([&](const auto& kind) { return kind.Says(cell); }, key.kind);
  }

  template <typename Record, typename... Further>
  static Cells Taken(const Key<Record, Further...>& key, const Cells& cells) {
    Record record = FreshRecord<Record>();
    const std::vector<std::string_view> views(cells.begin(), cells.end());
    ReadKey(key, views, record);
    return PrintKey(key, record);
  }

  std::size_t records_ = 0;
};

/// What the library's classes hold once they have read the table at the host path `path` as that of a role,
/// or none when it is null. Of the index, the column widths and the rule table the columns alone. Throws what
/// the class throws.
Snapshot TakeSnapshot(Role role, const std::string* path);

}  // namespace plateconfig
