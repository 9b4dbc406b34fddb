// SPDX-License-Identifier: MIT
#include "preview/SheetLayout.h"

#include "platform/pdf/PdfPageNumbers.h"

#include <QFile>

#include <string_view>

namespace quorvantis {
namespace {

// In millimetres.
constexpr double kSideMargin = 15;
constexpr double kTopMargin = 13;
constexpr double kBottomMargin = 12;
constexpr double kFootBaseline = 1.2;  // above the margin

constexpr double kPointsOfAMillimetre = 72 / 25.4;

}  // namespace

QPageLayout SheetLayout() {
  return {QPageSize(QPageSize::A4), QPageLayout::Portrait,
          QMarginsF(kSideMargin, kTopMargin, kSideMargin, kBottomMargin), QPageLayout::Millimeter};
}

bool NumberSheets(const std::filesystem::path& pdf, bool isRightToLeft) {
  QFile in(pdf);
  if (!in.open(QIODevice::ReadOnly)) return false;
  const QByteArray bytes = in.readAll();
  const NumberPlace place{isRightToLeft ? NumberCorner::BottomLeft : NumberCorner::BottomRight,
                          kSideMargin * kPointsOfAMillimetre,
                          (kBottomMargin + kFootBaseline) * kPointsOfAMillimetre};
  const auto numbered =
      WithPageNumbers(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())), place);
  if (!numbered) return !bytes.isEmpty();
  in.close();
  QFile out(pdf);
  const auto size = static_cast<qint64>(numbered->size());
  return out.open(QIODevice::WriteOnly) && out.write(numbered->data(), size) == size && out.flush();
}

}  // namespace quorvantis
