// SPDX-License-Identifier: MIT
#include "desktop/overview/OverviewModel.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/KindCaption.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/OverviewTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <iterator>

namespace quorvantis {
namespace {

constexpr int kHeadings[] = {text_id::kColumnNumber, text_id::kColumnKind,  text_id::kColumnText,
                             text_id::kColumnKey,    text_id::kColumnScore, text_id::kColumnFiles,
                             text_id::kColumnMissing};
static_assert(std::size(kHeadings) == OverviewModel::kColumns);

/// Numbers stand in the middle of their narrow columns.
QVariant AlignmentOf(int column) {
  const bool isNumeric =
      column == OverviewModel::Number || column == OverviewModel::Score || column == OverviewModel::Files;
  return QVariant(Qt::AlignVCenter | (isNumeric ? Qt::AlignHCenter : Qt::AlignLeft));
}

}  // namespace

OverviewModel::OverviewModel(const StringTable& strings, QObject* parent)
    : QAbstractTableModel(parent), strings_(strings) {}

std::optional<int> OverviewModel::RowOf(int question) const {
  const auto found = std::ranges::lower_bound(rows_, question, {}, &OverviewRow::number);
  if (found == rows_.end() || found->number != question) return std::nullopt;
  return static_cast<int>(found - rows_.begin());
}

void OverviewModel::Update(std::vector<OverviewRow> rows) {
  std::size_t at = 0;
  std::size_t next = 0;
  while (at < rows_.size() || next < rows.size()) {
    if (at < rows_.size() && (next == rows.size() || rows_[at].number < rows[next].number)) {
      std::size_t end = at + 1;
      while (end < rows_.size() && (next == rows.size() || rows_[end].number < rows[next].number)) ++end;
      RemoveRows(at, end);
    } else if (at == rows_.size() || rows[next].number < rows_[at].number) {
      std::size_t end = next + 1;
      while (end < rows.size() && (at == rows_.size() || rows[end].number < rows_[at].number)) ++end;
      InsertRows(at, {std::make_move_iterator(rows.begin() + static_cast<std::ptrdiff_t>(next)),
                      std::make_move_iterator(rows.begin() + static_cast<std::ptrdiff_t>(end))});
      at += end - next;
      next = end;
    } else {
      if (rows_[at] != rows[next]) {
        rows_[at] = std::move(rows[next]);
        emit dataChanged(index(static_cast<int>(at), 0), index(static_cast<int>(at), kColumns - 1));
      }
      ++at;
      ++next;
    }
  }
}

void OverviewModel::ShowMarks(std::map<int, OverviewMark> marks) {
  marks_ = std::move(marks);
  if (rows_.empty()) return;
  emit dataChanged(index(0, Missing), index(rowCount() - 1, Missing),
                   {Qt::DecorationRole, Qt::ToolTipRole, Qt::AccessibleTextRole});
}

/// Null for other columns than that of what is missing.
const OverviewMark* OverviewModel::MarkOf(const QModelIndex& index) const {
  if (index.column() != Missing) return nullptr;
  const auto mark = marks_.find(QuestionAt(index.row()));
  return mark == marks_.end() ? nullptr : &mark->second;
}

void OverviewModel::InsertRows(std::size_t at, std::vector<OverviewRow> rows) {
  beginInsertRows({}, static_cast<int>(at), static_cast<int>(at + rows.size()) - 1);
  rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(at), std::make_move_iterator(rows.begin()),
               std::make_move_iterator(rows.end()));
  endInsertRows();
}

void OverviewModel::RemoveRows(std::size_t begin, std::size_t end) {
  beginRemoveRows({}, static_cast<int>(begin), static_cast<int>(end) - 1);
  rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(begin),
              rows_.begin() + static_cast<std::ptrdiff_t>(end));
  endRemoveRows();
}

int OverviewModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int OverviewModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(kColumns);
}

QString OverviewModel::KindText(QuestionKind kind) const {
  return KindCaption(kind, strings_);
}

QString OverviewModel::MissingText(const MissingParts& missing) const {
  QStringList words;
  const auto add = [&](bool lacks, int text) {
    if (lacks) words.push_back(ToQString(strings_.Text(text)));
  };
  add(missing.text, text_id::kMissingText);
  add(missing.key, text_id::kMissingKey);
  add(missing.options, text_id::kMissingOptions);
  add(missing.files, text_id::kMissingFile);
  return words.join(", ");
}

QString OverviewModel::CellText(const OverviewRow& row, int column) const {
  switch (column) {
    case Number:
      return QString::number(row.number);
    case Kind:
      return KindText(row.kind);
    case Text:
      return ToQString(row.firstLine);
    case Key:
      return ToQString(row.key);
    case Score:
      return ToQString(row.score ? FormatScore(*row.score) : strings_.Text(text_id::kSameScoreWord));
    case Files:
      return row.files == 0 ? QString() : QString::number(row.files);
    case Missing:
      return MissingText(row.missing);
    default:
      return {};
  }
}

QString OverviewModel::SpokenText(const QModelIndex& index) const {
  const OverviewRow& row = rows_[static_cast<std::size_t>(index.row())];
  const QString heading = headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString();
  const OverviewMark* mark = MarkOf(index);
  const QString found = mark != nullptr ? "\n" + mark->tip : QString();
  return ToQString(FillMessage(
      strings_.Text(text_id::kCellOfQuestion),
      {FormatInteger(row.number), FromQString(heading), FromQString(CellText(row, index.column()) + found)}));
}

QVariant OverviewModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const OverviewRow& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
      return CellText(row, index.column());
    case Qt::DecorationRole:
      return MarkOf(index) != nullptr ? QVariant(MarkOf(index)->sign) : QVariant();
    case Qt::ToolTipRole:
      return MarkOf(index) != nullptr ? QVariant(PlainTip(MarkOf(index)->tip)) : QVariant();
    case Qt::AccessibleTextRole:
      return SpokenText(index);
    case Qt::TextAlignmentRole:
      return AlignmentOf(index.column());
    default:
      return {};
  }
}

QVariant OverviewModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kColumns) return {};
  if (role == Qt::DisplayRole) return ToQString(strings_.Text(kHeadings[section]));
  if (role == Qt::TextAlignmentRole) return AlignmentOf(section);
  return {};
}

Qt::ItemFlags OverviewModel::flags(const QModelIndex& index) const {
  // Between rows, the table itself takes what is dropped.
  if (!index.isValid()) return Qt::ItemIsDropEnabled;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
}

}  // namespace quorvantis
