// SPDX-License-Identifier: MIT
#include "desktop/studio/FindingsList.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "learn/LeftOutPlaces.h"
#include "learn/StudyTexts.h"
#include "platform/texts/StudioTexts.h"

namespace quorvantis {
namespace {

constexpr int kFindingsLines = 5;
constexpr int kLinesInSmallWindows = 2;
constexpr std::size_t kMostWarnings = 100;  // the headline tells how many there are
constexpr int kAroundFindings = 16;         // pixels: frame and margins

}  // namespace

FindingsList::FindingsList(const StringTable& strings, QWidget* parent)
    : QListWidget(parent), strings_(strings) {
  NameControl(this, "studioFindings", ToQString(strings.Text(text_id::kColumnNotes)));
  setWordWrap(true);
  setResizeMode(QListView::Adjust);
  setTextElideMode(Qt::ElideNone);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  SetCompact(false);
  connect(this, &QListWidget::itemClicked, this, &FindingsList::Choose);
  connect(this, &QListWidget::itemActivated, this, &FindingsList::Choose);
}

void FindingsList::SetCompact(bool isCompact) {
  const int lines = isCompact ? kLinesInSmallWindows : kFindingsLines;
  setMaximumHeight(fontMetrics().lineSpacing() * lines + kAroundFindings);
}

void FindingsList::ShowStudy(const PaperStudy& study) {
  clear();
  places_.clear();
  AddWarnings(study);
  for (const std::u16string& line : StudyLines(study, strings_)) addItem(ToQString(line));
  places_.resize(static_cast<std::size_t>(count()));
}

void FindingsList::AddWarnings(const PaperStudy& study) {
  const RoleLookup lookup(study.Roles());
  LeftOutPlaces leftOut(study.StudiedPaper(), lookup);
  for (const ReadingWarning& warning : study.Warnings()) {
    if (warning.question >= 0) continue;
    if (places_.size() == kMostWarnings) return addItem(QStringLiteral("\u2026"));
    addItem(QStringLiteral("\u26A0 ") + ToQString(WarningText(warning, strings_)));
    places_.push_back(leftOut.Find(warning.text));
    if (places_.back())
      item(count() - 1)->setToolTip(PlainTip(ToQString(strings_.Text(text_id::kShowsThePlace))));
  }
}

void FindingsList::Choose(const QListWidgetItem* item) {
  const auto row = static_cast<std::size_t>(this->row(item));
  if (row < places_.size() && places_[row]) emit PlaceChosen(*places_[row]);
}

}  // namespace quorvantis
