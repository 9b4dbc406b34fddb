// SPDX-License-Identifier: MIT
#pragma once

#include "learn/PaperStudy.h"
#include "learn/RoleLookup.h"
#include "learn/reading/ShownPaper.h"

#include <QPlainTextEdit>

#include <memory>
#include <optional>

namespace quorvantis {

/// The paper as text, coloured by what each part was understood as. Only what is in view is coloured, so that
/// long papers scroll. All places are those of the paper.
class PaperView : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit PaperView(QWidget* parent);

  /// Shows another paper. `hasFormulas`: whether "##" stands for formulas.
  void ShowPaper(std::shared_ptr<const Paper> paper, bool hasFormulas);
  bool ShowsAll() const { return shown_.IsWhole(); }

  /// Colours it. `study`, whose paper is shown, must stay as it is until the next call.
  void ShowStudy(const PaperStudy& study);

  /// Shows which part belongs to the chosen question.
  void ShowChosen(std::optional<TextSpan> part);
  /// Scrolls so that a place is in view.
  void BringIntoView(std::size_t place);

  /// Scrolls so that a place is at the top.
  void ScrollTo(std::size_t place);
  /// The place at the top of the view.
  std::size_t TopPlace() const;

  /// Selects a part and brings it into view.
  void Select(TextSpan part);
  /// What is selected, without blanks around it; empty if nothing is.
  TextSpan Selected() const;
  std::size_t CursorPlace() const;

 signals:
  /// The user has clicked or moved to a place.
  void PlaceChosen(std::size_t place);
  /// A key for a role was pressed.
  void RoleKeyPressed(PaperRole role);
  void TakeBackPressed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// What decides how a character looks.
  struct Look {
    PaperRole role = PaperRole::None;
    std::uint8_t emphasis = 0;
    bool isMarked = false;
    bool isPlain = false;  ///< a blank that nothing has taken

    bool operator==(const Look&) const = default;
  };

  void ColourAnew();
  void ColourVisible();
  void Colour(const QTextBlock& block);
  Look LookAt(std::size_t place) const;
  QTextCharFormat FormatOf(const Look& look) const;
  bool IsMarked(std::size_t place) const;

  std::shared_ptr<const Paper> paper_;
  ShownPaper shown_;
  RoleLookup lookup_;
  const PaperStudy* study_ = nullptr;
  std::optional<TextSpan> chosen_;
  int colouring_ = 0;  ///< blocks with another number have old colours
  bool isColouring_ = false;
};

}  // namespace quorvantis
