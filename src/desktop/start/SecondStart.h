// SPDX-License-Identifier: MIT
// A second start on an application folder hands over to the first one, which shows its window and opens the
// second one's exam.
#pragma once

#include <QLocalServer>

#include <filesystem>

namespace quorvantis {

/// What the second start needs of the first one.
class FirstStart {
 public:
  virtual ~FirstStart() = default;

  /// Whether an exam can be opened now.
  virtual bool IsFree() const = 0;

  /// Shows the window and opens the exam, if there is one. May wait for the user's answers.
  virtual void ComeForward(const std::filesystem::path& exam) = 0;
};

/// The first start's side: listens for later ones.
class SecondStartListener : public QObject {
  Q_OBJECT

 public:
  /// `folder` is the application folder, which this program has claimed. `first` must outlive the listener.
  SecondStartListener(const std::filesystem::path& folder, FirstStart& first);

 private:
  void Accept();
  void Answer(QLocalSocket& second);

  QLocalServer server_;
  FirstStart& first_;
};

enum class HandOverResult {
  Taken,
  Busy,     ///< the first one has a dialog or a preview open: the exam was not opened
  NoAnswer  ///< the folder is held by something else, or by a program that is starting or ending
};

/// The second start's side. `exam` is a full path, or empty.
HandOverResult HandOverStart(const std::filesystem::path& folder, const std::filesystem::path& exam);

}  // namespace quorvantis
