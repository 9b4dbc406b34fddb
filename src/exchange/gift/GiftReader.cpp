// SPDX-License-Identifier: MIT
#include "exchange/form/Blanks.h"
#include "exchange/form/ExchangeLimits.h"
#include "exchange/form/MoodleConventions.h"
#include "exchange/form/TextSource.h"
#include "exchange/gift/GiftAnswers.h"
#include "exchange/gift/GiftBraces.h"
#include "exchange/gift/GiftFormat.h"
#include "exchange/gift/GiftText.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/TextSpan.h"

#include <algorithm>

namespace quorvantis {
namespace {

struct GiftTitle {
  std::u16string_view name;  ///< as it stands in the file
  std::u16string_view rest;
};

/// "::name::" in front of a question.
GiftTitle TakeTitle(std::u16string_view question) {
  question = Trimmed(question);
  const std::size_t end =
      question.starts_with(u"::") ? FindUnprotectedWord(question.substr(2), u"::") : question.npos;
  if (end == question.npos) return {{}, question};
  return {Trimmed(question.substr(2, end)), Trimmed(question.substr(end + 4))};
}

/// The text of a question, piece by piece.
class BlankedText {
 public:
  /// A piece of the text itself. White space beside a blank is a space.
  void Add(std::u16string_view piece) {
    const std::u16string_view trimmed = Trimmed(piece);
    const bool isApart = hasBlank_ && !piece.empty() && Trimmed(piece.substr(0, 1)).empty();
    if (isApart) text_.push_back(u' ');
    if (trimmed.empty()) return;
    const auto begin = static_cast<std::size_t>(trimmed.data() - piece.data());
    text_.append(piece.substr(hasBlank_ ? begin : 0));
    hasBlank_ = false;
  }

  void AddBlank(std::u16string_view choices) {
    const std::u16string_view kept = Trimmed(text_);
    const bool isApart = !text_.empty() && Trimmed(text_.substr(text_.size() - 1)).empty();
    const std::size_t end =
        kept.empty() ? 0 : static_cast<std::size_t>(kept.data() - text_.data()) + kept.size();
    text_.resize(end);
    if (end > 0 && (isApart || hasBlank_)) text_.push_back(u' ');  // two blanks in a row would be one
    text_.append(kBlank);
    if (!choices.empty()) text_.append(u" (").append(choices).append(u")");
    hasBlank_ = true;
  }

  const std::u16string& Text() const { return text_; }

 private:
  std::u16string text_;
  bool hasBlank_ = false;  ///< at its end
};

/// Reads the blocks of a file.
class GiftExamReading {
 public:
  explicit GiftExamReading(ReadingTools& tools) : tools_(tools) {}

  ExchangedExam Read(std::u16string_view text) {
    for (const GiftBlock& block : GiftBlocks(text)) {
      if (tools_.progress.IsCancelled() || exam_.isCutShort) break;
      std::u16string_view rest = Trimmed(block.text);
      while (rest.starts_with(kGiftCategory)) TakeCategory(rest);
      if (!rest.empty()) ReadBlock(rest, block.hasTags);
    }
    tools_.notes.Begin(0);
    return std::move(exam_);
  }

 private:
  void ReadBlock(std::u16string_view block, bool hasTags) {
    bool isFirst = true;
    for (const std::u16string_view question : GiftQuestions(block)) {
      exam_.isCutShort = exam_.questions.size() >= kMaxReadQuestions;
      if (exam_.isCutShort) return;
      tools_.notes.Begin(++number_);
      if (!isFirst) tools_.notes.Tell(text_id::kExchangeNoBlankLine);
      if (isFirst && hasTags) tools_.notes.Tell(text_id::kExchangeTagsLeftOut);
      isFirst = false;
      ReadQuestion(question);
    }
  }

  void TakeCategory(std::u16string_view& rest) {
    const std::size_t end = std::min(rest.find(u'\n'), rest.size());
    const std::u16string_view path = Trimmed(rest.substr(0, end).substr(kGiftCategory.size()));
    TakeExamTitle(PlainToExamText(TitleOfCategory(path)));
    rest = Trimmed(rest.substr(end));
  }

  void TakeExamTitle(const std::u16string& title) {
    if (exam_.title.empty() && exam_.questions.empty()) {
      exam_.title = title;
    } else if (!title.empty() && title != exam_.title) {
      tools_.notes.Begin(0);
      tools_.notes.Tell(text_id::kExchangeOtherCategory, {Excerpt(title)});
    }
  }

  void ReadQuestion(std::u16string_view block) {
    auto [name, text] = TakeTitle(block);
    GiftAnswers answers(TakeGiftFormat(text, GiftTextFormat::Moodle), tools_);
    const std::vector<TextSpan> places = GiftAnswerPlaces(text);
    if (places.empty()) {
      const bool hasBraces = FindUnprotected(text, u"{") != text.npos;
      return tools_.notes.Tell(hasBraces ? text_id::kExchangePartNotRead : text_id::kExchangeDescription,
                               {Excerpt(text.empty() ? name : text)});
    }
    const std::size_t bare = FindBareBrace(text, places);
    if (bare != text.npos) tools_.notes.Tell(text_id::kExchangeBareBraces, {Excerpt(text.substr(bare))});
    ExchangedQuestion question;
    question.number = number_;
    const bool isRead = places.size() == 1 ? ReadWithOne(text, places.front(), answers, question)
                                           : ReadWithSeveral(text, places, answers, question);
    if (!isRead) return tools_.notes.Tell(text_id::kExchangePartNotRead, {Excerpt(text)});
    if (question.text.empty() && !name.empty()) {
      question.text = PlainToExamText(Unprotected(name));
      tools_.notes.Tell(text_id::kExchangeNameAsText);
    }
    exam_.questions.push_back(std::move(question));
  }

  /// A text with a blank where its answers stand, unless that is at its end. Pairs bring blanks of their own.
  static std::u16string AroundAnswers(std::u16string_view text, const TextSpan& place) {
    const std::u16string_view before = text.substr(0, place.begin - 1);
    const std::u16string_view after = text.substr(place.end + 1);
    if (Trimmed(after).empty()) return std::u16string(Trimmed(before));
    BlankedText blanked;
    const bool arePairs = AreGiftPairs(place.Of(text));
    blanked.Add(arePairs ? Trimmed(before) : before);
    if (!arePairs) blanked.AddBlank({});
    blanked.Add(arePairs ? u"\n" + std::u16string(Trimmed(after)) : std::u16string(after));
    return blanked.Text();
  }

  static bool ReadWithOne(std::u16string_view text, const TextSpan& place, GiftAnswers& answers,
                          ExchangedQuestion& question) {
    question.text = answers.Text(Trimmed(AroundAnswers(text, place)));
    return answers.Read(place.Of(text), question);
  }

  /// A fill-in question with several blanks. Answers that cannot be those of a blank are left out.
  bool ReadWithSeveral(std::u16string_view text, const std::vector<TextSpan>& places, GiftAnswers& answers,
                       ExchangedQuestion& question) {
    question.kind = QuestionKind::FillIn;
    BlankedText blanked;
    std::size_t begin = 0;
    for (const TextSpan& place : places) {
      blanked.Add(text.substr(begin, place.begin - 1 - begin));
      begin = place.end + 1;
      std::optional<GiftBlank> blank = answers.ReadBlank(place.Of(text));
      if (!blank) {
        tools_.notes.Tell(text_id::kExchangePartNotRead, {Excerpt(place.Of(text))});
        continue;
      }
      blanked.AddBlank(blank->choices);
      question.blanks.push_back(std::move(blank->rights));
    }
    blanked.Add(text.substr(begin));
    question.text = answers.Text(Trimmed(blanked.Text()));
    return !question.blanks.empty();
  }

  ReadingTools& tools_;
  ExchangedExam exam_;
  int number_ = 0;
};

}  // namespace

bool LooksLikeGift(const ExchangeSource& source) {
  const std::vector<GiftBlock> blocks = GiftBlocks(HeadText(source));
  return std::ranges::any_of(blocks, [](const GiftBlock& block) {
    return Trimmed(block.text).starts_with(kGiftCategory) || !GiftAnswerPlaces(block.text).empty();
  });
}

std::optional<ExchangedExam> GiftReader::Read(const ExchangeSource& source, ReadingTools& tools) {
  const auto text = ReadSourceText(source, tools);
  if (!text) return std::nullopt;
  return GiftExamReading(tools).Read(*text);
}

}  // namespace quorvantis
