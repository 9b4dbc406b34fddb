// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/BackgroundRun.h"
#include "desktop/search/HitList.h"
#include "desktop/search/SearchControls.h"
#include "editor/ExamEditor.h"
#include "search/ReplacementPlan.h"
#include "shell/settings/SearchSetting.h"
#include "shell/settings/WindowPlace.h"

#include <QDialog>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace quorvantis {

/// Find and replace, beside the main window. All hits are listed, and the list follows the exam while it
/// changes. Choosing a hit shows it in the main window. Closing the window hides it; the search stays, for
/// Find next.
class SearchWindow : public QDialog {
  Q_OBJECT

 public:
  /// Shows a hit in the main window. The exam may have changed since it was found.
  using ShowHit = std::function<void(const SearchHit&)>;

  /// `editor` must outlive the window.
  SearchWindow(ExamEditor& editor, ShowHit showHit, QWidget* parent);
  ~SearchWindow() override;

  /// Shows the window, without or with the part for replacing. `text`, if not empty, becomes the query.
  void OpenFind(const QString& text);
  void OpenReplace(const QString& text);

  /// Shows the next or previous hit; asks for a query if there is none.
  void FindNext() { Step(1); }
  void FindPrevious() { Step(-1); }

  /// The exam may have changed, or another one is shown.
  void ExamChanged();

 protected:
  bool event(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void Connect();
  void Open(const QString& text);
  void Restore();
  void Remember() const;

  SearchQuery Query() const;
  void QueryChanged();
  void Search();
  void TakeHits(std::shared_ptr<const FrameSetExam> exam, SearchOutcome outcome);
  void ShowRuns();
  void Tell(const std::u16string& message);

  int Row() const;
  int FirstRow() const;
  bool IsShown(int row) const;
  void SetRow(int row);
  void GoTo(int row);
  void Step(int direction);
  void TakeStep(int direction);
  void RowChosen(int row);

  bool CanReplace(const TextSearch& search, const ReplacementText& replacement);
  void ReplaceOne();
  void ReplaceAll();
  void OfferReplacements(const std::shared_ptr<const FrameSetExam>& exam, const ReplacementPlan& plan);

  ExamEditor& editor_;
  const StringTable& strings_;
  ShowHit showHit_;
  SearchSetting setting_;
  WindowPlaceSetting place_;
  HitList hits_;
  SearchControls controls_;
  BackgroundRun run_;
  BackgroundRun planning_;             ///< of replacing all
  QTimer whenQuiet_;                   ///< searches once the query and the exam have not changed for a moment
  QTimer whenItTakes_;                 ///< shows that something is running
  bool stale_ = true;                  ///< the list is not that of the query and the exam
  bool gaveUp_ = false;                ///< the user has cancelled the search
  bool settling_ = false;              ///< the current row changes, but not by the user
  bool isShowing_ = false;             ///< a hit is being shown in the main window
  std::optional<SearchHit> shown_;     ///< in the main window
  std::optional<SearchHit> resumeAt_;  ///< the place from which the next list goes on
  std::optional<int> pendingStep_;     ///< to take when the search has ended
};

}  // namespace quorvantis
