// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankPlace.h"
#include "bank/search/BankSearch.h"
#include "bank/tags/TagStep.h"
#include "desktop/controls/WorkQueue.h"

#include <QObject>

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quorvantis {

/// The tags that a question has now.
struct TagsNow {
  std::filesystem::path folder;
  std::string key;
  std::vector<std::u16string> tags;
};

/// Changes tags of the bank's questions as windows need it: on other threads, since a file may be held by
/// another program, with what is needed to take a step back or to make it again.
class BankTagDesk : public QObject {
  Q_OBJECT

 public:
  /// `files` must outlive this. What was asked for is written before the desk is destroyed.
  BankTagDesk(BankPlace place, Files& files, std::shared_ptr<FolderTags> tags, QObject* parent);
  ~BankTagDesk() override;

  void Change(const std::vector<BankQuestion>& questions, const std::vector<std::u16string>& add,
              const std::vector<std::u16string>& remove);

  /// Takes the last step back, if there is one.
  void UndoLast();
  /// What UndoLast would do; empty for nothing.
  const TagStep& LastUndo() const { return lastUndo_; }

  /// What could not be written.
  const std::vector<FailedChange>& Failed() const { return failed_; }
  void TryAgain();
  /// Renames the damaged files among them, and tries again.
  void KeepAsideAndTryAgain();
  void ForgetFailed();
  /// Where damaged files are now.
  const std::vector<std::filesystem::path>& KeptAside() const { return keptAside_; }

  /// Looks for the tags of an earlier version of a question; EarlierFound follows. What comes of an earlier
  /// look is dropped.
  void LookForEarlier(const BankQuestion& question);
  void ForgetEarlier();
  const std::vector<std::u16string>& Earlier() const { return earlier_; }

  /// Reads all tags of the bank; KnownFound follows.
  void LookForKnown();
  const std::vector<std::u16string>& Known() const { return known_; }

 signals:
  /// Everything that was asked for has been tried. `now` are the tags of the questions that it concerned.
  void Written(const std::vector<TagsNow>& now);
  void EarlierFound();
  void KnownFound();

 private:
  using Steps = std::vector<TagStep>;

  void Make(std::function<TagStep(Steps& undo)> wanted, bool isUndo);
  void End(const TagStepResult& result, std::vector<TagsNow> now, const TagStep& lastUndo);
  TagStep TakeFailed();

  const BankPlace place_;
  Files& files_;
  const std::shared_ptr<FolderTags> tags_;
  const std::shared_ptr<Steps> undo_ = std::make_shared<Steps>();  ///< of the thread that writes alone
  TagStep lastUndo_;
  std::vector<FailedChange> failed_;
  std::vector<TagsNow> now_;  ///< to be told when all is written
  std::vector<std::filesystem::path> keptAside_;
  std::vector<std::u16string> earlier_;
  std::vector<std::u16string> known_;
  bool isReadingKnown_ = false;
  const std::shared_ptr<std::atomic_int> looks_ = std::make_shared<std::atomic_int>(0);  ///< for earlier tags
  bool isKnownWanted_ = false;  ///< once more, after the look that is on its way
  WorkQueue reads_;
  WorkQueue writes_;
};

}  // namespace quorvantis
