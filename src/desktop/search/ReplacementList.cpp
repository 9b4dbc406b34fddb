// SPDX-License-Identifier: MIT
#include "desktop/search/ReplacementList.h"

#include "desktop/controls/QtText.h"
#include "desktop/search/HitRoles.h"
#include "platform/texts/SearchTexts.h"
#include "search/SearchTexts.h"

#include <utility>

namespace quorvantis {

ReplacementList::ReplacementList(std::shared_ptr<const FrameSetExam> exam,
                                 std::vector<PlannedReplacement> planned, const StringTable& strings,
                                 QObject* parent)
    : QAbstractTableModel(parent), exam_(std::move(exam)), strings_(strings) {
  rows_.reserve(planned.size());
  for (PlannedReplacement& one : planned) {
    const bool isPossible = !one.obstacle;
    possible_ += isPossible ? 1 : 0;
    rows_.push_back({std::move(one), isPossible});
  }
  ticked_ = possible_;
}

std::vector<PlannedReplacement> ReplacementList::Chosen() const {
  std::vector<PlannedReplacement> chosen;
  for (const Row& row : rows_) {
    if (row.ticked) chosen.push_back(row.planned);
  }
  return chosen;
}

void ReplacementList::TickAll(bool on) {
  for (Row& row : rows_) row.ticked = on && !row.planned.obstacle;
  ticked_ = on ? possible_ : 0;
  if (!rows_.empty()) emit dataChanged(index(0, kQuestion), index(rowCount() - 1, kQuestion));
  emit TicksChanged();
}

int ReplacementList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ReplacementList::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

HitLine ReplacementList::LineOf(const Row& row, int column) const {
  const SearchHit& hit = row.planned.hit;
  const std::u16string& text = *TextAt(*exam_, hit.place);
  return column == kBefore ? LineAround(text, hit.start, hit.length)
                           : LineWith(text, hit.start, hit.length, row.planned.text);
}

QString ReplacementList::TextOf(const Row& row, int column) const {
  const TextPlace& place = row.planned.hit.place;
  if (column == kQuestion) return place.question == 0 ? QString() : QString::number(place.question);
  if (column == kField) return ToQString(FieldName(place, strings_));
  if (column == kAfter && row.planned.obstacle)
    return ToQString(ObstacleText(*row.planned.obstacle, place, strings_));
  return ToQString(LineOf(row, column).text);
}

QVariant ReplacementList::data(const QModelIndex& index, int role) const {
  const Row& row = At(index);
  const int column = index.column();
  const bool isLine = column == kBefore || (column == kAfter && !row.planned.obstacle);
  if (role == Qt::DisplayRole) return TextOf(row, column);
  if (role == Qt::ToolTipRole && column == kAfter && row.planned.obstacle) return TextOf(row, column);
  if (role == Qt::CheckStateRole && column == kQuestion) return row.ticked ? Qt::Checked : Qt::Unchecked;
  if (role == kDimmedRole) return row.planned.obstacle.has_value();
  if ((role == kHitStartRole || role == kHitLengthRole) && isLine) return HitValue(LineOf(row, column), role);
  return {};
}

QVariant ReplacementList::headerData(int section, Qt::Orientation orientation, int role) const {
  constexpr int kCaptions[] = {text_id::kHitQuestion, text_id::kHitField, text_id::kBefore, text_id::kAfter};
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return ToQString(strings_.Text(kCaptions[section]));
}

Qt::ItemFlags ReplacementList::flags(const QModelIndex& index) const {
  const bool canTick = index.column() == kQuestion && !At(index).planned.obstacle;
  const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  return canTick ? flags | Qt::ItemIsUserCheckable : flags;
}

bool ReplacementList::setData(const QModelIndex& index, const QVariant& value, int role) {
  Row& row = rows_[static_cast<std::size_t>(index.row())];
  if (role != Qt::CheckStateRole || row.planned.obstacle) return false;
  const bool on = value.toInt() == Qt::Checked;
  if (row.ticked == on) return true;
  row.ticked = on;
  ticked_ += on ? 1 : -1;
  emit dataChanged(index, index);
  emit TicksChanged();
  return true;
}

}  // namespace quorvantis
