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

namespace quorvantis {

/// Does the jobs of an order one after the other, in the event loop, and tells of each on standard output;
/// then ends the program.
class PaperWork : public QObject {
 public:
  explicit PaperWork(PaperOrder order);
  ~PaperWork() override;

  void Begin() { Next(); }

 private:
  void Next();
  void Start(const PaperJob& job);
  void Finish(bool succeeded);
  void Fail(const std::string& why);
  std::filesystem::path Draft() const { return order_.folder / "draft.pdf"; }

  struct Silence : Progress {
    void Report(std::uint64_t, std::uint64_t) override {}
  };

  const PaperOrder order_;
  std::size_t next_ = 0;  ///< the job to start next
  LanguageInUse language_;
  NoDialogs dialogs_;
  Silence progress_;
  LongAnswerFlags longAnswerFlags_;
  ExamHost host_;
  std::unique_ptr<SheetBrowser> browser_;
  QTimer signs_;  ///< of life, while documents are converted
};

}  // namespace quorvantis
