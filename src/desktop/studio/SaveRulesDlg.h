// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>

#include <functional>
#include <optional>
#include <string>

namespace quorvantis {

/// Asks for the name of rules and saves them. What hinders that is told in the dialog, which stays open.
class SaveRulesDlg : public QDialog {
  Q_OBJECT

 public:
  /// Saves the rules under a name. Nothing if that is done, or why it is not.
  using Save = std::function<std::optional<std::u16string>(const std::u16string& name)>;

  SaveRulesDlg(const QString& proposed, Save save, const StringTable& strings, QWidget* parent);

  QString Name() const { return name_->text(); }
  void accept() override;

 private:
  Save save_;
  QLineEdit* name_;
  QLabel* why_;
};

}  // namespace quorvantis
