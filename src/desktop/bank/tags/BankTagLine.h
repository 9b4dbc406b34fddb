// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bank/tags/BankTagChips.h"
#include "desktop/bank/tags/BankTagDesk.h"
#include "desktop/bank/tags/BankTagNotice.h"

#include <QTimer>
#include <QWidget>

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace quorvantis {

class BankDesk;
struct ExamServices;

/// The tags of the chosen questions of the bank, to look at and to change. A change shows at once and is
/// written on another thread; what cannot be written is told here and can be tried again.
class BankTagLine : public QWidget {
  Q_OBJECT

 public:
  /// `services` must outlive the line.
  BankTagLine(const BankDesk& bank, const ExamServices& services, QWidget* parent);
  ~BankTagLine() override;

  /// `hits` are the chosen questions.
  void Show(const std::vector<BankHit>& hits);

 signals:
  /// Tags of questions have been written.
  void Written(const std::vector<TagsNow>& now);

 private:
  /// A chosen question with the tags that it will have when all is written.
  struct Subject {
    BankQuestion question;
    std::vector<std::u16string> tags;
  };

  void Connect();
  void Change(const std::vector<std::u16string>& add, const std::vector<std::u16string>& remove);
  void TakeOver();
  void Learn(const std::vector<TagsNow>& now);
  void ShowTags();
  void ShowUndo();
  bool IsOfSubjects(const TagStep& step) const;
  void ShowEarlier();
  void ShowProblem();
  QString Joined(const std::vector<std::u16string>& tags) const;
  QString ProblemText() const;
  bool IsSomethingDamaged() const;

  const StringTable& strings_;
  BankTagDesk desk_;
  BankTagChips* chips_;
  BankTagNotice* earlier_;
  BankTagNotice* problem_;
  QTimer whenChosen_;  ///< runs while the user goes from question to question
  std::vector<Subject> subjects_;
  /// What questions will have once all is written, by folder and key: a search may still have found less.
  std::map<std::pair<std::filesystem::path, std::string>, std::vector<std::u16string>> unwritten_;
};

}  // namespace quorvantis
