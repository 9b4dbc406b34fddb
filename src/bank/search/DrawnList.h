// SPDX-License-Identifier: MIT
#pragma once

#include "bank/draw/DrawRequest.h"
#include "bank/index/BankIndex.h"
#include "bank/search/BankSearch.h"
#include "bank/search/DrawableQuestions.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

class Files;

/// What is to be drawn from the bank.
struct DrawOrder {
  DrawRequest request;
  std::filesystem::path folder;  ///< questions come from exams in it or below; empty for the whole bank
};

/// A question of a draw, with all that the index knows of it.
struct DrawnRow {
  BankQuestion question;
  DrawnQuestion drawn;      ///< why it came; its places among the candidates are those of the draw
  std::u16string lastExam;  ///< the exam that had it last: its title, or the name of its file
  bool isGone = false;      ///< found when it was to be taken: its exam no longer holds it
};

/// What a draw has given.
struct DrawnList {
  DrawOrder order;
  std::vector<DrawnRow> rows;
  std::vector<WishOutcome> wishes;  ///< one a wish of the order
  std::vector<UnreadTags> unread;   ///< files whose tags did not count
  BankProblem problem;
  bool hasChanged = false;   ///< exams were read again meanwhile: nothing was drawn, another try may do
  bool isCancelled = false;  ///< then nothing was drawn
};

/// Draws from the bank as its index is now.
DrawnList DrawFromBank(BankIndex& index, Files& files, const DrawOrder& order,
                       const std::function<bool()>& isCancelled = {});

/// What could come in the place of a row.
struct AnotherDrawn {
  std::optional<DrawnRow> row;
  WishOutcome outcome;  ///< of its wish
  BankProblem problem;
};

/// Draws another question for the wish of row `place`, which is not the same as any other of the list, also
/// when these have left the bank since. Neither that row nor `list.order.request.rejected` come.
AnotherDrawn DrawAnother(BankIndex& index, Files& files, const DrawnList& list, std::size_t place);

}  // namespace quorvantis
