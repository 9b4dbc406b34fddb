// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/dialogs/FilteredEdit.h"
#include "desktop/dialogs/SteppedEdit.h"
#include "platform/StringTable.h"
#include "scoring/ScoreFields.h"

#include <QGridLayout>
#include <QLabel>

namespace quorvantis {

/// The controls of one score range in the score setup.
class RangeRow {
 public:
  /// `range` is 1 to 10. The controls belong to `parent`.
  RangeRow(int range, const StringTable& strings, QWidget* parent);

  /// Puts the controls into a row of a grid.
  void AddTo(QGridLayout& grid, int row) const;

  /// Shows what the fields of the range hold. An unused range is inconspicuous.
  void Show(const ScoreFields& fields);

  /// Shows the total score of the range's questions, according to `ranges`.
  void ShowSum(const ScoreDistribution& ranges);

  QWidget* swatch;  ///< the colour of the range
  QLabel* questionLabel;
  QLineEdit* from;  ///< null for range 1, which always starts with question 1
  QWidget* start;   ///< `from`, or its substitute
  QLabel* toLabel;
  SteppedEdit* to;
  QLabel* scoreLabel;
  FilteredEdit* score;
  QLabel* sum;

 private:
  void ShowUse(bool used);
  void NameFields();

  std::size_t index_;
  bool used_ = false;
};

}  // namespace quorvantis
