// SPDX-License-Identifier: MIT
#include "overview/ScoreChangeTexts.h"

#include "platform/texts/OverviewTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kMostScoresTold = 5;

}  // namespace

std::vector<std::u16string> ScoreChangeTexts(const std::vector<ScoreChange>& changes,
                                             const StringTable& strings) {
  std::vector<std::u16string> texts;
  const std::size_t told = std::min(changes.size(), kMostScoresTold);
  texts.reserve(told + 1);
  for (std::size_t i = 0; i < told; ++i) {
    texts.push_back(FillMessage(
        strings.Text(text_id::kScoreChanged),
        {FormatInteger(changes[i].question), FormatScore(changes[i].now), FormatScore(changes[i].before)}));
  }
  if (changes.size() > told)
    texts.push_back(FillMessage(strings.Text(text_id::kMoreScoresChanged),
                                {FormatInteger(static_cast<std::int64_t>(changes.size() - told))}));
  return texts;
}

}  // namespace quorvantis
