// SPDX-License-Identifier: MIT
#include "desktop/search/HitList.h"

#include "desktop/controls/QtText.h"
#include "desktop/search/HitRoles.h"
#include "platform/texts/SearchTexts.h"
#include "search/SearchTexts.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace quorvantis {
namespace {

HitLine LineOf(const FrameSetExam& exam, const SearchHit& hit) {
  return LineAround(*TextAt(exam, hit.place), hit.start, hit.length);
}

}  // namespace

void HitList::Show(std::shared_ptr<const FrameSetExam> exam, std::vector<SearchHit> hits) {
  if (hits == hits_) {
    exam_ = std::move(exam);
    if (!hits_.empty()) emit dataChanged(index(0, 0), index(Count() - 1, kColumns - 1));
    return;
  }
  beginResetModel();
  exam_ = std::move(exam);
  hits_ = std::move(hits);
  endResetModel();
}

int HitList::RowFrom(const TextPlace& place, std::size_t start) const {
  const auto key = [](const SearchHit& hit) { return std::tuple(hit.place, std::size_t{hit.start}); };
  const auto found = std::ranges::lower_bound(hits_, std::tuple(place, start), {}, key);
  return static_cast<int>(found - hits_.begin());
}

int HitList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Count();
}

int HitList::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QString HitList::TextOf(const SearchHit& hit, int column) const {
  if (column == kQuestion) return hit.place.question == 0 ? QString() : QString::number(hit.place.question);
  return ToQString(column == kField ? FieldName(hit.place, strings_) : LineOf(*exam_, hit).text);
}

QVariant HitList::data(const QModelIndex& index, int role) const {
  const SearchHit& hit = Hit(index.row());
  const bool isLine = index.column() == kLine;
  if (role == Qt::DisplayRole) return TextOf(hit, index.column());
  if (role == Qt::AccessibleTextRole && isLine)
    return ToQString(PlaceName(hit.place, strings_) + u": ") + TextOf(hit, kLine);
  if ((role == kHitStartRole || role == kHitLengthRole) && isLine) return HitValue(LineOf(*exam_, hit), role);
  return {};
}

QVariant HitList::headerData(int section, Qt::Orientation orientation, int role) const {
  constexpr int kCaptions[] = {text_id::kHitQuestion, text_id::kHitField, text_id::kHitLine};
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return ToQString(strings_.Text(kCaptions[section]));
}

}  // namespace quorvantis
