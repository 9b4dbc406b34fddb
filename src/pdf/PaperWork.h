// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExamHost.h"
#include "model/LongAnswerFlags.h"
#include "pdf/NoDialogs.h"
#include "pdf/SheetBrowser.h"
#include "platform/programs/PaperJobArguments.h"
#include "shell/language/LanguageInUse.h"

#include <QObject>
#include <QTimer>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace quorvantis {

/// Does the jobs of an order one after the other, in the event loop, and tells of each on standard output;
/// then ends the program. Files that are filled up to the length of the longest are delivered at the end.
class PaperWork : public QObject {
 public:
  explicit PaperWork(PaperOrder order);
  ~PaperWork() override;

  void Begin();

 private:
  /// What the browser has printed for a job, without numbers of pages.
  struct Draft {
    std::filesystem::path file;
    const PaperJob* job = nullptr;
    bool isRightToLeft = false;  ///< decides where the numbers stand
  };

  void Next();
  void Start(const PaperJob& job);
  void Finish(bool succeeded);
  void Fail(const std::string& why);
  bool Deliver(const Draft& draft, int pages);
  bool DeliverFilledUp();

  struct Silence : Progress {
    void Report(std::uint64_t, std::uint64_t) override {}
  };

  const PaperOrder order_;
  std::size_t next_ = 0;  ///< the job to start next
  Draft draft_;           ///< of the last job that was started
  std::vector<Draft> filledUp_;
  LanguageInUse language_;
  NoDialogs dialogs_;
  Silence progress_;
  LongAnswerFlags longAnswerFlags_;
  ExamHost host_;
  std::unique_ptr<SheetBrowser> browser_;
  QTimer signs_;  ///< of life, while documents are converted
};

}  // namespace quorvantis
