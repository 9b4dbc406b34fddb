// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/BackgroundRun.h"
#include "desktop/controls/RunBar.h"
#include "desktop/exchange/LossList.h"
#include "desktop/overview/TickedQuestions.h"
#include "exchange/ForeignExam.h"
#include "model/document/ExamServices.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace quorvantis {

/// Shows the questions in a file of a learning system and what an exam cannot hold of it, and lets the user
/// tick those that are to come into the exam. It reads on another thread; Escape ends that and closes.
class ImportQuestionsDlg : public QDialog {
  Q_OBJECT

 public:
  struct Target {
    TickedQuestions::Place place;
    bool isEmpty = false;  ///< the exam takes over the title, the scores and the random order
    /// A new folder for what is in the file, each time the file is read.
    std::function<std::filesystem::path()> newFolder;
  };

  /// `services` are those of the exam being edited and must outlive the dialog.
  ImportQuestionsDlg(const ExamServices& services, std::filesystem::path file, Target target,
                     QWidget* parent);

  /// What was read, once the dialog has been accepted, and the numbers in it that are to be inserted.
  std::shared_ptr<const ForeignExam> Read() const { return read_; }
  std::vector<int> Ticked() const { return questions_->Ticked(); }

  /// Where they go: after this question, or, into an empty exam, to the beginning with all else of the file.
  int After() const { return target_.place.after; }
  bool TakesHeader() const { return target_.isEmpty; }

  /// What has to be told of it.
  std::vector<ExchangeNote> Notes() const;

 private:
  QPushButton* MakeButton(const char* name, int text, void (QDialog::*command)());
  void FillFormats();
  void PlaceParts();
  void StartReading();
  void TakeRead(std::shared_ptr<const ForeignExam> read);
  QString Heading() const;
  void EnableParts();
  QString Text(int number) const;

  const ExamServices& services_;
  const std::filesystem::path file_;
  const Target target_;
  std::shared_ptr<const ForeignExam> read_;  ///< null until the file has been read for the first time
  BackgroundRun run_;
  QComboBox* format_;
  QLabel* heading_;
  TickedQuestions* questions_;
  LossList* losses_;
  RunBar* bar_;
  QPushButton* insert_;
  QPushButton* cancel_;
};

}  // namespace quorvantis
