// SPDX-License-Identifier: MIT
#include "import/marking/QuestionTextParser.h"

#include "import/marking/ImportMarkers.h"
#include "import/marking/ParseAnswer.h"
#include "import/marking/RuleKeys.h"
#include "model/AnswerLetters.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr auto kNotFound = std::u16string_view::npos;

/// The groups of "Pattern" that are options.
constexpr std::u16string_view kOptionGroups[] = {u"A", u"B", u"C", u"D", u"E"};

/// A block of answers, taken one after the other.
struct AnswerList {
  std::u16string_view key{};  ///< of the rule for one of them
  int found = 0;
  std::vector<std::u16string> answers{};
  std::vector<WrittenAnswer> written{};
  std::vector<int> places{};  ///< the questions that the answers were given to

  /// An answer and its place in the marked text.
  struct Taken {
    std::u16string_view answer{};
    TextSpan place{};
  };

  /// The answer for a question of the paper. Empty if there are no more.
  Taken TakeFor(int question) {
    const std::size_t index = places.size();
    places.push_back(question);
    return index < answers.size() ? Taken{answers[index], written[index].place} : Taken{};
  }

  /// The first answer whose number fits neither its question nor the answer before it. Papers may restart
  /// their numbers in each part, and later numbers fit if there is an answer for each question.
  std::optional<MisplacedAnswer> FirstMisplaced() const {
    for (std::size_t i = 0; i < std::min(written.size(), places.size()); ++i) {
      const int number = written[i].number;
      const int before = i == 0 ? 0 : written[i - 1].number;
      const bool isUnknown = number == 0 || (i > 0 && before == 0);
      const bool isFirstOfAll = i == 0 && answers.size() == places.size();
      if (isUnknown || isFirstOfAll || number == 1 || number == before + 1) continue;
      if (number != places[i]) return MisplacedAnswer{key, number, places[i]};
    }
    return std::nullopt;
  }
};

/// A marked text without ideographic spaces, cut to its questions.
struct QuestionsOfText {
  std::u16string text{};
  std::u16string lost{};  ///< the beginning of the first question's part, which `text` lacks
  std::size_t begin = 0;  ///< where `text` begins in the marked text
};

/// Removes what precedes the first question, and the answer section.
QuestionsOfText QuestionPart(std::u16string_view markedText) {
  QuestionsOfText cut{std::u16string(markedText)};
  std::u16string& text = cut.text;
  std::ranges::replace(text, u'\u3000', u' ');
  const std::size_t first = text.find(kQuestionMarker);
  // Deliberate: without any marker four characters are lost (a missing marker counts as position -1).
  constexpr std::size_t kLostWithoutMarker = 4;
  if (first == kNotFound) cut.lost = text.substr(0, kLostWithoutMarker);
  cut.begin = first == kNotFound ? std::min(kLostWithoutMarker, text.size()) : first + kQuestionMarker.size();
  text.erase(0, cut.begin);
  const std::size_t section = text.find(kAnswerSectionMarker);
  // Deliberate: the last character survives; it becomes the end of the last question's part.
  if (section != kNotFound) text.erase(section, text.size() - section - 1);
  return cut;
}

/// Removes the part up to the next question marker, and the marker, from the front of `text`.
std::u16string_view TakePart(std::u16string_view& text) {
  const std::size_t end = text.find(kQuestionMarker);
  const std::u16string_view part = text.substr(0, end);
  text.remove_prefix(end == kNotFound ? text.size() : end + kQuestionMarker.size());
  return part;
}

/// Of two adjacent markers only the first counts: the search continues one character after a marker.
int CountOptionPictures(std::u16string_view question) {
  int count = 0;
  std::size_t at = question.find(kOptionPictureMarker);
  for (; at != kNotFound; at = question.find(kOptionPictureMarker, at + kOptionPictureMarker.size() + 1))
    ++count;
  return count;
}

std::u16string Beginning(std::u16string_view text) {
  constexpr std::size_t kEnoughToFind = 60;
  constexpr std::u16string_view kBlanks = u" \t\r\n\v\f";
  const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
  std::u16string beginning = ReplaceLoneSurrogates(text.substr(begin, kEnoughToFind));
  beginning.erase(beginning.find_last_not_of(kBlanks) + 1);
  std::ranges::replace_if(
      beginning, [](char16_t unit) { return unit < u' '; }, u' ');
  return beginning;
}

/// One paper being read.
class Reading {
 public:
  Reading(const ImportSettings& rules, int picture, DebugOutput& debug, const CancelHook& isCancelled)
      : rules_(rules),
        pattern_(rule_key::kPattern, rules.m_strPattern, isCancelled),
        picture_(picture),
        debug_(debug),
        isCancelled_(isCancelled) {}

  ReadPaper Read(std::u16string_view markedText) {
    FindAnswers(markedText);
    cut_ = QuestionPart(markedText);
    lost_ = std::move(cut_.lost);
    // The text after the last marker is a part only if it is not empty.
    for (std::u16string_view rest = cut_.text; !rest.empty(); lost_.clear()) {
      ++question_;
      ReadPart(TakePart(rest));
    }
    paper_.hasChoiceBlock = choice_.found == 1;
    paper_.hasJudgementBlock = judgement_.found == 1;
    paper_.choiceAnswers = choice_.answers.size();
    paper_.judgementAnswers = judgement_.answers.size();
    for (const AnswerList* list : {&choice_, &judgement_}) {
      if (const auto misplaced = list->FirstMisplaced()) paper_.misplaced.push_back(*misplaced);
    }
    return std::move(paper_);
  }

 private:
  void FindAnswers(std::u16string_view markedText) {
    Find(judgement_, markedText, {rule_key::kJudgementAnswerPattern, rules_.m_strJudgementAnswerPattern},
         {rule_key::kJudgementAnswer, rules_.m_strJudgementAnswer});
    Find(choice_, markedText, {rule_key::kChoiceAnswerPattern, rules_.m_strChoiceAnswerPattern},
         {rule_key::kChoiceAnswer, rules_.m_strChoiceAnswer});
    PickJudgementSymbols(judgement_.answers, firstSymbol_, secondSymbol_, judgement_.found);
  }

  struct Rule {
    std::u16string_view key;
    std::u16string_view pattern;
  };

  void Find(AnswerList& list, std::u16string_view markedText, const Rule& block, const Rule& item) {
    if (block.pattern.empty()) return;
    const RuleSearch blockSearch(block.key, block.pattern, isCancelled_);
    const RuleSearch itemSearch(item.key, item.pattern, isCancelled_);
    list.key = item.key;
    list.found = ParseAnswer(markedText, itemSearch, blockSearch, list.answers, debug_, &list.written);
  }

  void ReadPart(std::u16string_view part) {
    std::u16string_view question = part;
    std::u16string_view answer;
    // With a block of answers the whole part is the question, for every kind.
    if (judgement_.found == 0 && choice_.found == 0) {
      const std::size_t marker = part.find(kAnswerMarker);
      if (marker == kNotFound) return Drop(rule_key::kPreAnswer, part);
      question = part.substr(0, marker);
      answer = part.substr(marker + kAnswerMarker.size());
    }
    const std::u16string pictureText = TakePictures(question);
    const auto match = pattern_.Find(question);
    if (!match) return Drop(rule_key::kPattern, part);
    Recognise(*match, {part, question, answer}, pictureText);
  }

  /// Counts the pictures of a question, even of one that is dropped later, and cuts the question before its
  /// own picture. Returns the text that stands for that picture.
  std::u16string TakePictures(std::u16string_view& question) {
    picture_ += CountOptionPictures(question);
    const std::size_t marker = question.find(kPictureMarker);
    if (marker == kNotFound) return {};
    question = question.substr(0, marker);
    return u"  " + FormatInteger(picture_++) + u".bmp";
  }

  /// A part and what it consists of, all within the text.
  struct Segment {
    std::u16string_view part;
    std::u16string_view question;
    std::u16string_view answer;
  };

  void Recognise(const MatchResult& match, const Segment& segment, const std::u16string& pictureText) {
    const std::u16string_view question = segment.question;
    const auto group = [&](std::u16string_view name) {
      return GroupText(match, pattern_.Pattern().GetNamedGroupNumber(name), question);
    };
    const std::u16string choiceText = group(u"Q1");
    ReadQuestion read;
    read.places = PlacesOf(match, segment);
    read.text = choiceText + group(u"Q2") + pictureText;
    if (!choiceText.empty()) {
      std::ranges::transform(kOptionGroups, read.options.begin(), group);
      if (choice_.found == 1) {
        Take(read, choice_);
      } else {
        read.key = segment.answer;
      }
      SetLetters(read, read.key);
    } else if (judgement_.found != 0) {
      ReadTrueFalse(read);
    } else {
      read.kind = read.text.find(u"___") != kNotFound ? ReadKind::FillIn : ReadKind::Essay;
      read.answer = segment.answer;
    }
    paper_.questions.push_back(std::move(read));
  }

  void ReadTrueFalse(ReadQuestion& read) {
    read.kind = ReadKind::TrueFalse;
    read.options = {firstSymbol_, secondSymbol_};
    Take(read, judgement_);
    SetLetters(read, read.key.find(firstSymbol_) != kNotFound ? u"A" : u"B");
  }

  void Take(ReadQuestion& read, AnswerList& list) const {
    const AnswerList::Taken taken = list.TakeFor(question_);
    read.key = taken.answer;
    read.places.answer = taken.place;
  }

  /// Where a piece of the text stands in the marked text.
  TextSpan PlaceOf(std::u16string_view piece) const {
    if (piece.data() == nullptr) return {};
    const std::size_t begin = cut_.begin + static_cast<std::size_t>(piece.data() - cut_.text.data());
    return {begin, begin + piece.size()};
  }

  QuestionPlaces PlacesOf(const MatchResult& match, const Segment& segment) const {
    const auto place = [&](std::u16string_view name) {
      const int group = pattern_.Pattern().GetNamedGroupNumber(name);
      const int begin = match.GroupStart(group);
      if (begin < 0) return TextSpan{};
      const auto size = static_cast<std::size_t>(match.GroupEnd(group) - begin);
      return PlaceOf(segment.question.substr(static_cast<std::size_t>(begin), size));
    };
    QuestionPlaces places{PlaceOf(segment.part), place(u"Q1"), {}, PlaceOf(segment.answer)};
    if (places.text.IsEmpty()) places.text = place(u"Q2");
    std::ranges::transform(kOptionGroups, places.options.begin(), place);
    return places;
  }

  /// Upper-case letters only, each once and in order. They are stored as they are; readers of exams accept
  /// either case.
  static void SetLetters(ReadQuestion& read, std::u16string_view answer) {
    for (std::size_t box = 0; box < kOptionCount; ++box) {
      const char16_t letter = OptionLetter(box);
      if (answer.find(letter) == kNotFound) continue;
      read.letters += letter;
      read.mask += AnswerBoxWeight(box);
    }
  }

  void Drop(std::u16string_view key, std::u16string_view part) {
    paper_.dropped.push_back({key, Beginning(lost_ + std::u16string(part)), PlaceOf(part)});
  }

  const ImportSettings& rules_;
  const RuleSearch pattern_;
  int picture_;          ///< number of the next picture
  int question_ = 0;     ///< number of the current part
  std::u16string lost_;  ///< what the current part has lost at its beginning
  QuestionsOfText cut_;  ///< what is being read
  DebugOutput& debug_;
  const CancelHook& isCancelled_;
  AnswerList judgement_;
  AnswerList choice_;
  std::u16string firstSymbol_;
  std::u16string secondSymbol_;
  ReadPaper paper_;
};

void Store(const ReadQuestion& read, ExamQuestion& question) {
  question.text = read.text;
  if (read.kind == ReadKind::FillIn) {
    question.kind = QuestionKind::FillIn;
    question.answerText = read.answer;
  } else if (read.kind == ReadKind::Essay) {
    question.kind = QuestionKind::Essay;
    question.essayAnswer = read.answer;
  } else {
    question.kind = QuestionKind::Choice;
    question.options = read.options;
    question.answerLetters = read.letters;
    question.answerMask = read.mask;
  }
}

}  // namespace

ReadPaper QuestionTextParser::Parse(std::u16string_view markedText, int firstPicture) const {
  try {
    return Reading(rules_, firstPicture, debug_, isCancelled_).Read(TextBeforeNul(markedText));
  } catch (const ImportFailure& failure) {
    ReadPaper nothing;
    nothing.failure = failure;
    return nothing;
  }
}

int StoreQuestions(const ReadPaper& paper, ExamPaper& exam, int firstSlot) {
  int slot = firstSlot;
  for (const ReadQuestion& read : paper.questions) {
    if (!IsQuestionNumber(slot)) break;
    Store(read, exam.Question(slot++));
  }
  return slot;
}

}  // namespace quorvantis
