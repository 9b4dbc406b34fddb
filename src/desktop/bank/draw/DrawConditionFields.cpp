// SPDX-License-Identifier: MIT
#include "desktop/bank/draw/DrawConditionFields.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/FlowLayout.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/DrawTexts.h"
#include "platform/texts/VersionTexts.h"

#include <QBoxLayout>
#include <QDate>

#include <initializer_list>

namespace quorvantis {
namespace {

constexpr int kBetweenGroups = 12;  // pixels
constexpr int kFolderLetters = 22;  // that are seen of a folder
constexpr int kAnyTime = 0;
constexpr int kSince = 1;

}  // namespace

DrawConditionFields::DrawConditionFields(const StringTable& strings, QWidget* parent)
    : QWidget(parent),
      strings_(strings),
      used_(new QComboBox(this)),
      day_(new QDateEdit(this)),
      folder_(new QComboBox(this)),
      leaveOut_(new QCheckBox(Text(text_id::kDrawLeaveOut), this)),
      seed_(new SeedField(strings, "drawSeed", "drawNewSeed", this)) {
  new FlowLayout(kBetweenGroups, this);
  SetUpUsed();
  NameControl(folder_, "drawFolder", Text(text_id::kDrawFolder));
  folder_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  folder_->setMinimumContentsLength(kFolderLetters);
  NameControl(leaveOut_, "drawLeaveOut", leaveOut_->text());
  AddGroup(nullptr, {used_, day_});
  AddGroup(MakeLabel(this, "drawFolderLabel", Text(text_id::kDrawFolder)), {folder_});
  AddGroup(nullptr, {leaveOut_});
  AddGroup(MakeLabel(this, "drawSeedLabel", Text(text_id::kVersionsSeed)), {seed_});
  Offer({});
}

void DrawConditionFields::SetUpUsed() {
  NameControl(used_, "drawUsed", Text(text_id::kDrawUsed));
  used_->addItem(Text(text_id::kDrawAnyTime));
  used_->addItem(Text(text_id::kDrawNotUsedSince));
  NameControl(day_, "drawDay", Text(text_id::kDrawNotUsedSince));
  day_->setLayoutDirection(Qt::LeftToRight);  // first: a mirrored field turns its format around
  day_->setDisplayFormat("yyyy-MM-dd");
  day_->setCalendarPopup(true);
  connect(used_, &QComboBox::currentIndexChanged, day_,
          [this](int index) { day_->setEnabled(index == kSince); });
}

/// Fields that stay together when there is no room for all in a row.
void DrawConditionFields::AddGroup(QWidget* label, std::initializer_list<QWidget*> fields) {
  auto* group = new QWidget(this);
  auto* row = new QHBoxLayout(group);
  row->setContentsMargins(0, 0, 0, 0);
  if (label != nullptr) row->addWidget(label);
  for (QWidget* field : fields) row->addWidget(field);
  layout()->addWidget(group);
}

void DrawConditionFields::Offer(const std::vector<std::filesystem::path>& folders) {
  const std::filesystem::path chosen = Folder();
  folder_->clear();
  folder_->addItem(Text(text_id::kDrawAllFolders), QString());
  for (const std::filesystem::path& folder : folders) {
    const QString name = PathToQString(folder);
    folder_->addItem(name, name);
    folder_->setItemData(folder_->count() - 1, name, Qt::ToolTipRole);
  }
  Choose(chosen);
}

std::filesystem::path DrawConditionFields::Folder() const {
  return QStringToPath(folder_->currentData().toString());
}

void DrawConditionFields::Choose(const std::filesystem::path& folder) {
  const QString name = PathToQString(folder);
  if (folder_->findData(name) < 0) folder_->addItem(name, name);
  folder_->setCurrentIndex(folder_->findData(name));
}

void DrawConditionFields::Show(const TypedDraw& typed) {
  const QDate day = QDate::fromString(ToQString(typed.notUsedSince), Qt::ISODate);
  used_->setCurrentIndex(day.isValid() ? kSince : kAnyTime);
  day_->setEnabled(day.isValid());
  day_->setDate(day.isValid() ? day : QDate::currentDate().addYears(-1));
  Choose(typed.folder);
  leaveOut_->setChecked(typed.leavesOutOpenExam);
  if (!typed.seed.empty()) seed_->Show(ToQString(typed.seed));
}

void DrawConditionFields::AddTo(TypedDraw& typed) const {
  const bool hasDay = used_->currentIndex() == kSince;
  typed.notUsedSince = hasDay ? FromQString(day_->date().toString(Qt::ISODate)) : std::u16string();
  typed.folder = Folder();
  typed.leavesOutOpenExam = leaveOut_->isChecked();
  typed.seed = FromQString(seed_->Typed());
}

QString DrawConditionFields::Text(int number) const {
  return ToQString(strings_.Text(number));
}

}  // namespace quorvantis
