// SPDX-License-Identifier: MIT
// Papers with a known key in any layout, sound or not, made at random, and what is wrong of what is read of
// them.
#pragma once

#include "import/labels/LineText.h"
#include "learn/PaperStudy.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis::test {

/// How the letters and words of a paper are written.
struct Script {
  std::u16string_view letters;
  std::u16string_view otherLetters;  ///< that keys may have instead
  std::u16string_view afterLetter;
  std::u16string_view part;
  std::u16string_view heading;
  std::u16string_view version;
};

inline constexpr Script kKeyScripts[] = {{u"ABCD", u"abcd", u". ", u"Part ", u"Answers", u"Version "},
                                         {u"ABCD", u"ＡＢＣＤ", u"．", u"Part ", u"参考答案", u"Version "},
                                         {u"АБВГ", u"абвг", u") ", u"Часть ", u"Ответы", u"Вариант "},
                                         {u"أبجد", u"أبجد", u") ", u"القسم ", u"الإجابات", u"نموذج "},
                                         {u"abcd", u"ABCD", u") ", u"Teil ", u"Lösungen", u"Version "}};

struct KeyedQuestion {
  std::u16string stem;
  int number = 0;
  std::size_t part = 0;
  std::vector<std::u16string> options;  ///< none: to fill in
  std::size_t right = 0;
  std::u16string answer;   ///< what may be read: "B" or a word; empty if the key does not say it
  bool isSaid = true;      ///< so that it must be read, or told
  bool isUnclear = false;  ///< nobody can read it, which must be told
};

/// A paper and what must be read of it.
class KeyedPaper {
 public:
  explicit KeyedPaper(unsigned seed) : random_(seed), script_(kKeyScripts[Below(std::size(kKeyScripts))]) {
    parts_ = 1 + Below(3);
    restarts_ = parts_ > 1 && OneIn(2);
    hasTitles_ = parts_ > 1 && !OneIn(4);
    usesOtherLetters_ = OneIn(4);
    MakeQuestions();
    WritePaper();
    WriteKey();
  }

  std::u16string text;
  std::u16string key;
  std::vector<KeyedQuestion> questions;

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }
  bool OneIn(std::size_t chances) { return Below(chances) == 0; }

  static std::u16string Number(int number) { return FormatInteger(number); }

  void MakeQuestions() {
    constexpr std::u16string_view kWords[] = {u"amber", u"birch", u"cedar", u"dune", u"egret", u"fern",
                                              u"glade", u"heron", u"inlet", u"jade", u"kelp",  u"lichen"};
    const std::size_t options = 3 + Below(2);
    const bool hasFillIns = parts_ > 1 && OneIn(2);
    int number = 0;
    for (std::size_t part = 0; part < parts_; ++part) {
      if (restarts_) number = 0;
      for (std::size_t i = 3 + Below(6); i > 0; --i) {
        KeyedQuestion question{u"", ++number, part, {}, Below(options), u""};
        question.stem = u"What is said of thing " + Number(static_cast<int>(questions.size()) + 101);
        const std::size_t first = Below(std::size(kWords));
        if (hasFillIns && part + 1 == parts_) {
          question.answer = kWords[first];
        } else {
          for (std::size_t k = 0; k < options; ++k)
            question.options.emplace_back(kWords[(first + k) % std::size(kWords)]);
          question.answer = std::u16string(1, static_cast<char16_t>(u'A' + question.right));
        }
        questions.push_back(std::move(question));
      }
    }
  }

  std::u16string PartTitle(std::size_t part) const {
    return std::u16string(script_.part) + Number(static_cast<int>(part) + 1);
  }

  void WritePaper() {
    const std::size_t version = Below(4);
    text = u"A test of things";
    if (version < 2) paperVersion_ = script_.letters[version];
    if (version < 2) text += u", " + std::u16string(script_.version) + paperVersion_;
    text += u"\n";
    for (std::size_t i = 0; i < questions.size(); ++i) {
      const KeyedQuestion& question = questions[i];
      const bool isFirst = i == 0 || questions[i - 1].part != question.part;
      if (isFirst && hasTitles_) text += PartTitle(question.part) + u"\n";
      text += Number(question.number) + u". " + question.stem +
              (question.options.empty() ? u" ______.\n" : u"?\n");
      for (std::size_t k = 0; k < question.options.size(); ++k)
        text += script_.letters[k] + std::u16string(script_.afterLetter) + question.options[k] + u"\n";
    }
  }

  std::u16string Written(const KeyedQuestion& question) const {
    if (question.options.empty()) return question.answer;
    const std::u16string_view letters = usesOtherLetters_ ? script_.otherLetters : script_.letters;
    return std::u16string(1, letters[question.right]);
  }

  void WriteKey() {
    const std::size_t kind = Below(6);
    if (!OneIn(5) || kind == 0) key += std::u16string(script_.heading) + (OneIn(2) ? u":\n" : u"\n");
    if (kind == 0) return WriteVersions();
    std::vector<std::size_t> order(parts_);
    for (std::size_t i = 0; i < parts_; ++i) order[i] = i;
    const bool isNamed = hasTitles_ && !OneIn(4);
    // A part that is neither named nor in its place can't be told from another one.
    if (OneIn(3) && (isNamed || !restarts_)) std::ranges::shuffle(order, random_);
    const bool isMixed = OneIn(2);
    const std::size_t form = Below(kForms);
    for (const std::size_t part : order) {
      if (isNamed) key += PartTitle(part) + (OneIn(2) ? u"\n" : u": ");
      WritePart(part, isMixed ? Below(kForms) : form);
    }
    if (OneIn(6)) key += Number(90) + u". " + Written(questions.front()) + u"\n";
    if (OneIn(8)) key += u"Good luck to all of you\n";
  }

  void WriteVersions() {
    for (KeyedQuestion& question : questions) question.answer.clear();
    for (std::size_t version = 0; version < 2; ++version) {
      key += std::u16string(script_.version) + script_.letters[version] + (OneIn(2) ? u"\n" : u": ");
      for (KeyedQuestion& question : questions) {
        const std::size_t right = question.options.empty() ? 0 : Below(question.options.size());
        const bool isOfPaper = paperVersion_ == script_.letters[version];
        const std::u16string said =
            question.options.empty() ? u"moss" : std::u16string(1, script_.letters[right]);
        if (isOfPaper)
          question.answer =
              question.options.empty() ? said : std::u16string(1, static_cast<char16_t>(u'A' + right));
        key += Number(question.number) + u". " + said + u"  ";
      }
      key += u"\n";
    }
  }

  static constexpr std::size_t kForms = 7;

  void WritePart(std::size_t part, std::size_t form) {
    std::vector<KeyedQuestion*> asked;
    for (KeyedQuestion& question : questions) {
      if (question.part == part) asked.push_back(&question);
    }
    const bool isFillIn = asked.front()->options.empty();
    if (isFillIn && form > 1 && form != 5) form = 0;
    if (form == 6) return WriteTable(asked);
    if (form == 2 || form == 3) return WriteRange(asked, form == 3);
    if (form == 4) return WriteRows(asked);
    for (KeyedQuestion* question : asked) {
      if (OneIn(12)) {
        question->answer.clear();  // a gap
        continue;
      }
      key += Number(question->number) + (form == 5 ? u") " : u". ") + Written(*question);
      if (form < 2 && !isFillIn && question->right == 0 && OneIn(8)) WriteOther(*question);
      if (form == 5 && !isFillIn) key += u") " + question->options[question->right];
      if (form == 0 && !isFillIn && OneIn(12)) key += u" because it says so";
      key += form == 1 ? u"  " : u"\n";
    }
    if (form == 1) key += u"\n";
  }

  /// Sometimes with a letter too few or too many.
  std::u16string LettersOf(const std::vector<KeyedQuestion*>& asked, std::u16string_view between) {
    std::u16string letters;
    const std::size_t gap = OneIn(4) ? Below(asked.size()) : asked.size();
    for (std::size_t i = 0; i < asked.size(); ++i) {
      if (i != gap) letters += (letters.empty() ? u"" : std::u16string(between)) + Written(*asked[i]);
    }
    if (gap == asked.size() && OneIn(6)) letters += std::u16string(between) + Written(*asked[0]);
    if (letters.size() == asked.size() + between.size() * (asked.size() - 1)) return letters;
    for (KeyedQuestion* question : asked) question->isSaid = false;
    return letters;
  }

  /// "A or C" may be one of two right answers, or both; "A-C" may be three.
  void WriteOther(KeyedQuestion& question) {
    constexpr std::u16string_view kBetween[] = {u" or ", u"/", u"-"};
    key += kBetween[Below(std::size(kBetween))];
    key += (usesOtherLetters_ ? script_.otherLetters : script_.letters)[2];
    question.answer.clear();
    question.isUnclear = true;
  }

  void WriteTable(const std::vector<KeyedQuestion*>& asked) {
    key += u"No.";
    for (const KeyedQuestion* question : asked) key += u"\t" + Number(question->number);
    key += u"\nKey";
    for (KeyedQuestion* question : asked) {
      const bool isGap = OneIn(10);
      key += u"\t" + (isGap ? std::u16string() : Written(*question));
      if (isGap) question->answer.clear();
    }
    key += u"\n";
  }

  void WriteRange(const std::vector<KeyedQuestion*>& asked, bool isSpaced) {
    key += Number(asked.front()->number) + u"-" + Number(asked.back()->number) + (OneIn(2) ? u" " : u": ") +
           LettersOf(asked, isSpaced ? u" " : u"") + u"\n";
  }

  void WriteRows(const std::vector<KeyedQuestion*>& asked) {
    for (const KeyedQuestion* question : asked) key += Number(question->number) + u" ";
    key += u"\n" + LettersOf(asked, u" ") + u"\n";
  }

  std::mt19937 random_;
  Script script_;
  std::size_t parts_ = 1;
  bool restarts_ = false;
  bool hasTitles_ = false;
  bool usesOtherLetters_ = false;
  char16_t paperVersion_ = 0;
};

using WarningKind = ReadingWarning::Kind;

inline bool IsAboutKey(WarningKind kind) {
  constexpr std::array kKinds = {WarningKind::KeyUnmatched, WarningKind::KeyMiscounted,
                                 WarningKind::KeyVersions, WarningKind::KeyLeftOut,
                                 WarningKind::KeyNotPlaced};
  return std::ranges::find(kKinds, kind) != kKinds.end();
}

/// Whether something is told of a question, or of the key as a whole.
inline bool IsTold(const PaperStudy& study, std::size_t question) {
  return std::ranges::any_of(study.Warnings(), [question](const ReadingWarning& warning) {
    return IsAboutKey(warning.kind) || warning.kind == WarningKind::NotRead ||
           warning.question == static_cast<int>(question);
  });
}

inline std::u16string ShownToPupils(const ReadQuestion& question) {
  std::u16string shown = question.text;
  for (const std::u16string& option : question.options) shown += u"\n" + option;
  return shown;
}

inline bool ShowsKey(const std::u16string& shown, const std::u16string& key) {
  for (std::size_t at = 0; at < key.size();) {
    const std::size_t end = std::min(key.find(u'\n', at), key.size());
    if (end > at + 2 && shown.find(key.substr(at, end - at)) != shown.npos) return true;
    at = end + 1;
  }
  return false;
}

/// Lines behind an answer in words may belong to it.
inline std::u16string FirstLine(const std::u16string& answer) {
  const TextSpan line = Trimmed(answer, {0, LineEndAfter(answer, 0)});
  return answer.substr(line.begin, line.Size());
}

/// What is wrong in silence; counts the answers that are read.
inline std::string Silent(const KeyedPaper& paper, std::size_t& right) {
  PaperStudy study(PaperOf(paper.text + paper.key));
  study.Learn();
  const auto& read = study.Reading().paper.questions;
  std::string faults;
  std::size_t found = 0;
  for (const KeyedQuestion& made : paper.questions) {
    const auto question = std::ranges::find_if(
        read, [&made](const ReadQuestion& one) { return one.text.starts_with(made.stem); });
    if (question == read.end()) {
      if (!IsTold(study, read.size())) faults += "no question " + Utf16ToUtf8(made.stem) + "; ";
      continue;
    }
    ++found;
    const auto index = static_cast<std::size_t>(question - read.begin());
    const std::u16string said = made.options.empty() ? FirstLine(question->answer) : question->letters;
    if (!said.empty() && said != made.answer)
      faults += "wrong " + Utf16ToUtf8(made.stem + u": " + said) + "; ";
    const bool isSeenBehind = read.size() > paper.questions.size() && IsTold(study, read.size() - 1);
    const bool isTold = isSeenBehind || IsTold(study, index);
    const bool isLost = said.empty() && made.isSaid && !made.answer.empty();
    if (isLost && !isTold) faults += "lost " + Utf16ToUtf8(made.stem) + "; ";
    if (ShowsKey(ShownToPupils(*question), paper.key) && !IsTold(study, index))
      faults += "seen " + Utf16ToUtf8(made.stem) + "; ";
    if (made.isUnclear && !isTold) faults += "unclear " + Utf16ToUtf8(made.stem) + "; ";
    right += !said.empty() && said == made.answer ? 1 : 0;
  }
  const bool areTold = std::ranges::any_of(study.Warnings(), [](const ReadingWarning& warning) {
    return IsAboutKey(warning.kind) || warning.kind == WarningKind::KeyVisible;
  });
  if (read.size() > found && !areTold) faults += "more questions; ";
  return faults;
}

}  // namespace quorvantis::test
