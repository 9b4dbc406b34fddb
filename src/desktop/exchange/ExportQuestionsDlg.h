// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/BackgroundRun.h"
#include "desktop/controls/RunBar.h"
#include "desktop/exchange/FormatList.h"
#include "desktop/exchange/LossList.h"
#include "exchange/QuestionExport.h"
#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"
#include "shell/settings/ExchangeSetting.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <filesystem>
#include <system_error>

namespace quorvantis {

/// Writes the questions of an exam into a file for a learning system. The user chooses the format, sees at
/// once what it cannot hold, and names the file. Escape ends the writing first, then the window.
class ExportQuestionsDlg : public QDialog {
  Q_OBJECT

 public:
  /// `exam` is a copy of what is being edited; its attached files must stay as long as the window, which lets
  /// the user do nothing else. `examFile` is its full path; empty if it was never saved.
  ExportQuestionsDlg(FrameSetExam exam, std::filesystem::path examFile, QWidget* parent);

  void reject() override;

 private:
  QPushButton* MakeButton(const char* name, int text, void (ExportQuestionsDlg::*command)());
  void PlaceParts();
  std::filesystem::path ProposedTarget() const;
  void FormatChanged();
  /// Asks the format what it makes of the exam. False if that is not what is shown already.
  bool Foresee();
  void ShowForeseen();
  void ChooseFile();
  void Export();
  void CompleteTarget();
  /// Whether the target may be written; tells why not.
  bool AcceptTarget();
  void Write();
  void TakeWritten(const std::error_code& error);
  void ShowRun();
  void Tell(const std::u16string& text);
  std::filesystem::path Target() const;
  QString Text(int number) const;
  std::u16string NamingFormat(int text) const;

  const FrameSetExam exam_;
  const std::filesystem::path examFile_;
  const ExamServices& services_;
  ExchangeSetting setting_;
  ExchangeChoices choices_;
  ForeseenExport foreseen_;
  std::filesystem::path mayBeReplaced_;  ///< the user has agreed to it
  BackgroundRun run_;
  FormatList* formats_;
  LossList* losses_;
  QLineEdit* target_;
  QPushButton* choose_;
  QLabel* status_;
  RunBar* bar_;
  QPushButton* export_;
  QPushButton* close_;
};

}  // namespace quorvantis
