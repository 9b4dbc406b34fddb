// SPDX-License-Identifier: MIT
#include "preview/SheetLayout.h"

#include "platform/pdf/PdfPageNumbers.h"

#include <QFile>

#include <optional>
#include <string>
#include <utility>

namespace quorvantis {
namespace {

// In millimetres.
constexpr double kSideMargin = 15;
constexpr double kTopMargin = 13;
constexpr double kBottomMargin = 12;
constexpr double kFootBaseline = 1.2;  // above the margin

constexpr double kPointsOfAMillimetre = 72 / 25.4;

std::optional<std::string> BytesOf(const std::filesystem::path& file) {
  QFile in(file);
  if (!in.open(QIODevice::ReadOnly)) return std::nullopt;
  return in.readAll().toStdString();
}

}  // namespace

QPageLayout SheetLayout() {
  return {QPageSize(QPageSize::A4), QPageLayout::Portrait,
          QMarginsF(kSideMargin, kTopMargin, kSideMargin, kBottomMargin), QPageLayout::Millimeter};
}

int CountSheets(const std::filesystem::path& pdf) {
  return CountPdfPages(BytesOf(pdf).value_or("")).value_or(0);
}

bool NumberSheets(const std::filesystem::path& pdf, bool isRightToLeft, int pages) {
  std::optional<std::string> bytes = BytesOf(pdf);
  if (!bytes) return false;
  if (auto filled = pages > 0 ? WithBlankPages(*bytes, pages) : std::nullopt) bytes = std::move(filled);
  const NumberPlace place{isRightToLeft ? NumberCorner::BottomLeft : NumberCorner::BottomRight,
                          kSideMargin * kPointsOfAMillimetre,
                          (kBottomMargin + kFootBaseline) * kPointsOfAMillimetre};
  const auto numbered = WithPageNumbers(*bytes, place);
  if (!numbered) return !bytes->empty();
  QFile out(pdf);
  const auto size = static_cast<qint64>(numbered->size());
  return out.open(QIODevice::WriteOnly) && out.write(numbered->data(), size) == size && out.flush();
}

}  // namespace quorvantis
