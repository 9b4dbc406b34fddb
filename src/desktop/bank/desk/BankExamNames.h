// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"
#include "platform/StringTable.h"

#include <QString>

#include <filesystem>
#include <map>
#include <vector>

namespace quorvantis {

/// How exams are named that a user sees together (BankExamName). Those that would look alike have the name of
/// their file behind it, with as many folders before that as it takes to tell them apart.
class BankExamNames {
 public:
  static constexpr qsizetype kWhole = -1;

  BankExamNames() = default;
  /// An exam may come several times. At most `longest` UTF-16 units of a title are shown.
  BankExamNames(const std::vector<const BankExam*>& exams, const StringTable& strings,
                qsizetype longest = kWhole);

  QString Of(const BankExam& exam) const;

 private:
  QString ShortName(const BankExam& exam) const;

  std::map<std::filesystem::path, QString> apart_;  ///< the names of those that are alike, by their files
  qsizetype longest_ = kWhole;
};

}  // namespace quorvantis
