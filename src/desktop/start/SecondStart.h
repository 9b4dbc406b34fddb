// SPDX-License-Identifier: MIT
// A second start on an application folder hands over to the first one: that shows its window, and opens the
// exam that the second one was to open.
#pragma once

#include <QLocalServer>

#include <filesystem>

namespace quorvantis {

/// The first start, as the second one needs it.
class FirstStart {
 public:
  virtual ~FirstStart() = default;

  /// Whether an exam can be opened now.
  virtual bool IsFree() const = 0;

  /// Shows the window and opens the exam, if there is one, which may take as long as questions to the user
  /// take.
  virtual void ComeForward(const std::filesystem::path& exam) = 0;
};

/// The first start's side: waits for later ones.
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
  NoAnswer  ///< what holds the folder is something else, or is about to start or end
};

/// The second start's side. `exam` may be empty; it is a full path.
HandOverResult HandOverStart(const std::filesystem::path& folder, const std::filesystem::path& exam);

}  // namespace quorvantis
