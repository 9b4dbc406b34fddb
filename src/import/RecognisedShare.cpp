// SPDX-License-Identifier: MIT
#include "import/RecognisedShare.h"

#include "import/marking/ImportMarkers.h"

#include <algorithm>
#include <string_view>

namespace quorvantis {
namespace {

/// What markers consist of, and the wide blank.
constexpr std::u16string_view kNotSeen = u"!@#$&\u3000";

/// How much there is to see.
std::size_t SeenUnits(std::u16string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](char16_t unit) { return unit > u' ' && kNotSeen.find(unit) == kNotSeen.npos; }));
}

/// Of a part of the text, as far as that goes.
std::size_t SeenUnits(std::u16string_view text, TextSpan part) {
  const std::size_t begin = std::min(part.begin, text.size());
  return SeenUnits(text.substr(begin, part.Size()));
}

/// The marked text without the section of answers if they were found there: what else it says, such as
/// explanations, is no part of a question.
std::u16string_view QuestionsIn(const ImportReport& report) {
  const std::u16string_view marked = report.marked.text;
  const bool hasBlock = report.paper.hasChoiceBlock || report.paper.hasJudgementBlock;
  return hasBlock ? marked.substr(0, marked.find(kAnswerSectionMarker)) : marked;
}

/// From the beginning of its text to the end of its last option, labels included.
TextSpan RecognisedPart(const QuestionPlaces& places) {
  TextSpan part = places.text;
  for (const TextSpan& option : places.options) {
    if (!part.IsEmpty() && !option.IsEmpty()) part.end = std::max(part.end, option.end);
  }
  return part;
}

std::size_t RecognisedUnits(const ImportReport& report, std::u16string_view questions) {
  std::size_t units = 0;
  for (const ReadQuestion& question : report.paper.questions) {
    units += SeenUnits(questions, RecognisedPart(question.places));
    units += SeenUnits(questions, question.places.answer);
  }
  return units;
}

/// Of the whole paper. Rules for tables say nothing of the text around them, and the other way round.
std::size_t UnitsOfPaper(const ImportReport& report, std::u16string_view questions) {
  const std::u16string_view runningText =
      report.rules.m_nTable != 0 ? std::u16string_view(report.content->text) : questions;
  return SeenUnits(runningText) + report.content->tableUnits;
}

}  // namespace

bool RecognisesLittle(const ImportReport& report) {
  if (!report.content || report.marked.failure || report.paper.failure) return false;
  if (report.paper.dropped.size() > report.paper.questions.size()) return true;
  const std::u16string_view questions = QuestionsIn(report);
  return 2 * RecognisedUnits(report, questions) < UnitsOfPaper(report, questions);
}

std::size_t UnitsOfTables(const WordContent& document) {
  std::size_t units = 0;
  for (const WordTable& table : document.tables) {
    for (const auto& row : table.rows) {
      for (const WordText& cell : row) units += SeenUnits(cell.characters);
    }
  }
  return units;
}

}  // namespace quorvantis
