// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/SeedField.h"
#include "platform/StringTable.h"
#include "versions/plan/VersionRequest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QWidget>

namespace quorvantis {

/// What the teacher chooses about versions, apart from what keeps its place.
class VersionChoices : public QWidget {
  Q_OBJECT

 public:
  VersionChoices(const StringTable& strings, QWidget* parent);

  /// Shows a request.
  void Show(const VersionRequest& request);

  /// The request as chosen, without pins. A seed that is no number is 0.
  VersionRequest Chosen() const;

 signals:
  void Changed();

 private:
  void AddRow(const char* name, int text, QWidget* field);
  void AddMoves();
  /// More or fewer names: letters, unless other names were given.
  void TakeCount(int count);
  void TakeNames();
  QStringList Names() const;
  QString Text(int number) const;

  const StringTable& strings_;
  QFormLayout* form_;
  QSpinBox* count_;
  QLineEdit* names_;
  SeedField* seed_;
  QComboBox* moves_;
  QCheckBox* options_;
};

}  // namespace quorvantis
