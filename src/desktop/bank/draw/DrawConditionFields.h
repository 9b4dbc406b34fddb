// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/SeedField.h"
#include "platform/StringTable.h"
#include "shell/settings/DrawSetting.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QWidget>

#include <filesystem>
#include <vector>

namespace quorvantis {

/// What holds for all wishes of a draw: since when a question was not used, from which folder it comes,
/// whether it may be like one of the open exam, and the seed.
class DrawConditionFields : public QWidget {
  Q_OBJECT

 public:
  /// `strings` must outlive this.
  DrawConditionFields(const StringTable& strings, QWidget* parent);

  /// The folders that can be chosen. The chosen one stays, even if it is not among them.
  void Offer(const std::vector<std::filesystem::path>& folders);

  /// All but the wishes.
  void Show(const TypedDraw& typed);
  /// The next draw is another one.
  void RenewSeed() { seed_->Renew(); }
  void AddTo(TypedDraw& typed) const;

 private:
  void AddGroup(QWidget* label, std::initializer_list<QWidget*> fields);
  void SetUpUsed();
  std::filesystem::path Folder() const;
  void Choose(const std::filesystem::path& folder);
  QString Text(int number) const;

  const StringTable& strings_;
  QComboBox* used_;
  QDateEdit* day_;
  QComboBox* folder_;
  QCheckBox* leaveOut_;
  SeedField* seed_;
};

}  // namespace quorvantis
