// SPDX-License-Identifier: MIT
#include "learn/reading/ReadingRoles.h"

#include "import/labels/LineText.h"
#include "import/marking/ImportMarkers.h"
#include "import/marking/RuleKeys.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool IsSpace(char16_t unit) {
  return IsBlank(unit) || IsLineEnd(unit) || unit == u'\u0007';
}

/// Finds the role of every unit of a paper.
class RoleFinding {
 public:
  RoleFinding(const Paper& paper, const PaperReading& reading)
      : text_(paper.source.characters),
        marked_(reading.marked),
        roles_(text_.size(), PaperRole::None),
        questions_(text_.size(), -1) {
    for (std::size_t i = 0; i < reading.paper.questions.size(); ++i)
      TakeQuestion(reading.paper.questions[i].places, static_cast<int>(i));
    for (const ReplacedMatch& match : marked_.trace.replaced) TakeReplaced(match);
    TakeAnswerSection();
    TakeFront();
    JoinNumbers();
    JoinLabels();
  }

  std::vector<RolePart> Parts() const {
    std::vector<RolePart> parts;
    for (std::size_t at = 0; at < roles_.size(); ++at) {
      const bool isSame =
          !parts.empty() && parts.back().role == roles_[at] && parts.back().question == questions_[at];
      if (isSame) {
        parts.back().span.end = at + 1;
      } else {
        parts.push_back({{at, at + 1}, roles_[at], questions_[at]});
      }
    }
    return parts;
  }

 private:
  void Set(std::uint32_t place, PaperRole role, int question) {
    if (place == kInserted || roles_[place] != PaperRole::None) return;
    roles_[place] = role;
    questions_[place] = question;
  }

  /// Gives a role to what a span of the marked text came from.
  void Take(TextSpan span, PaperRole role, int question) {
    for (std::size_t at = span.begin; at < span.end; ++at) Set(marked_.trace.origins[at], role, question);
  }

  void TakeQuestion(const QuestionPlaces& places, int question) {
    Take(places.text, PaperRole::Question, question);
    std::size_t lastOption = places.text.end;
    for (const TextSpan& option : places.options) {
      Take(option, PaperRole::Option, question);
      lastOption = std::max(lastOption, option.end);
    }
    Take(places.answer, PaperRole::Answer, question);
    // What stands between the text and the options are their labels.
    for (std::size_t at = places.text.end; at < lastOption; ++at) {
      if (!IsSpace(marked_.text[at])) Set(marked_.trace.origins[at], PaperRole::OptionLabel, question);
    }
  }

  static PaperRole RoleOfRule(std::u16string_view key) {
    if (key == rule_key::kPreQuestion || key == rule_key::kPreParenQuestion) return PaperRole::QuestionNumber;
    if (key == rule_key::kPreAnswer || key == rule_key::kPreAllAnswer) return PaperRole::AnswerLabel;
    if (key == rule_key::kTitle) return PaperRole::Heading;
    if (key == rule_key::kBmp) return PaperRole::Question;
    return key == rule_key::kChoiceBmp ? PaperRole::Option : PaperRole::NotExam;
  }

  void TakeReplaced(const ReplacedMatch& match) {
    const PaperRole role = RoleOfRule(match.key);
    for (const std::uint32_t place : match.units) {
      const bool isKeyLine = match.key == rule_key::kPrepare && IsOnAnswerLine(place);
      if (!IsSpace(text_[place])) Set(place, isKeyLine ? PaperRole::AnswerLabel : role, -1);
    }
  }

  /// Steps that move answers leave behind what stood around them.
  bool IsOnAnswerLine(std::size_t place) {
    if (!line_.Contains(place)) {
      line_ = {LineBeginBefore(text_, place), LineEndAfter(text_, place) + 1};
      const auto from = roles_.begin() + static_cast<std::ptrdiff_t>(line_.begin);
      const auto to = roles_.begin() + static_cast<std::ptrdiff_t>(line_.end - 1);
      isAnswerLine_ = std::find(from, to, PaperRole::Answer) != to;
    }
    return isAnswerLine_;
  }

  /// Blocks of answers, and what stands around the answers in them.
  void TakeAnswerSection() {
    const std::size_t section = marked_.text.find(kAnswerSectionMarker);
    if (section == marked_.text.npos) return;
    for (std::size_t at = section; at < marked_.text.size(); ++at) {
      if (!IsSpace(marked_.text[at])) Set(marked_.trace.origins[at], PaperRole::AnswerLabel, -1);
    }
  }

  /// What precedes the first question is left out by every import.
  void TakeFront() {
    const auto first = std::ranges::find(roles_, PaperRole::QuestionNumber);
    if (first == roles_.end()) return;
    for (auto role = roles_.begin(); role != first; ++role) {
      const auto at = static_cast<std::size_t>(role - roles_.begin());
      if (*role == PaperRole::None && !IsSpace(text_[at])) *role = PaperRole::NotExam;
    }
  }

  /// A number belongs to the question behind it.
  void JoinNumbers() {
    int next = -1;
    for (std::size_t at = roles_.size(); at-- > 0;) {
      if (roles_[at] == PaperRole::Question) next = questions_[at];
      if (roles_[at] == PaperRole::QuestionNumber) questions_[at] = next;
    }
  }

  /// The label of an answer belongs to the question before it.
  void JoinLabels() {
    int last = -1;
    for (std::size_t at = 0; at < roles_.size(); ++at) {
      if (questions_[at] >= 0) last = questions_[at];
      if (roles_[at] == PaperRole::AnswerLabel && questions_[at] < 0) questions_[at] = last;
    }
  }

  std::u16string_view text_;
  const MarkedText& marked_;
  std::vector<PaperRole> roles_;
  std::vector<int> questions_;
  TextSpan line_;  ///< the line that was looked at last, with its end
  bool isAnswerLine_ = false;
};

}  // namespace

std::vector<RolePart> RolesOf(const Paper& paper, const PaperReading& reading) {
  if (reading.HasFailed()) return {{{0, paper.source.Size()}, PaperRole::None, -1}};
  return RoleFinding(paper, reading).Parts();
}

double ExplainedShare(const Paper& paper, const std::vector<RolePart>& roles) {
  std::size_t all = 0;
  std::size_t explained = 0;
  for (const RolePart& part : roles) {
    for (std::size_t at = part.span.begin; at < part.span.end; ++at) {
      if (IsSpace(paper.source.characters[at])) continue;
      ++all;
      if (part.role != PaperRole::None) ++explained;
    }
  }
  return all == 0 ? 0 : static_cast<double>(explained) / static_cast<double>(all);
}

}  // namespace quorvantis
