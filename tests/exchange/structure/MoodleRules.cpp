// SPDX-License-Identifier: MIT
#include "FormatRules.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace quorvantis::test {
namespace {

const ElementRules& MoodleRules() {
  static const ElementRules rules{
      {{"quiz", "question*", ""},
       {"question", "category? name? questiontext? generalfeedback? defaultgrade? penalty? hidden? %answers*",
        "type!=category|multichoice|shortanswer|essay|cloze"},
       {"category", "text", ""},
       {"name", "text", ""},
       {"questiontext", "text file*", "format!=html"},
       {"generalfeedback", "text", "format!=html"},
       {"graderinfo", "text", "format!=html"},
       {"responsetemplate", "text", "format!=html"},
       {"feedback", "text", "format!=html"},
       {"answer", "text feedback?", "fraction!=float format!=html|moodle_auto_format|plain_text"},
       {"text", "#", ""},
       {"file", "#", "name! path!=/ encoding!=base64"},
       {"defaultgrade", "#", ""},
       {"penalty", "#", ""},
       {"hidden", "#", ""},
       {"single", "#", ""},
       {"shuffleanswers", "#", ""},
       {"answernumbering", "#", ""},
       {"usecase", "#", ""},
       {"responseformat", "#", ""},
       {"responserequired", "#", ""},
       {"responsefieldlines", "#", ""},
       {"attachments", "#", ""},
       {"attachmentsrequired", "#", ""}},
      {{"answers",
        "single shuffleanswers answernumbering usecase answer responseformat responserequired "
        "responsefieldlines attachments attachmentsrequired graderinfo responsetemplate"}}};
  return rules;
}

/// The shares of the score that its importer knows, in percent; others end the import.
bool IsKnownFraction(double percent) {
  constexpr double kKnown[] = {0,  5,  10, 11.11111, 12.5, 14.28571, 16.66667, 20,       25, 30, 33.33333,
                               40, 50, 60, 66.66667, 70,   75,       80,       83.33333, 90, 100};
  return std::ranges::any_of(
      kKnown, [percent](double known) { return std::abs(known - std::abs(percent)) < 0.00002; });
}

/// Judges one question.
class MoodleJudge {
 public:
  MoodleJudge(pugi::xml_node question, Faults& faults) : question_(question), faults_(faults) {}

  void Judge() {
    const std::string_view type = question_.attribute("type").value();
    if (type == "category") return JudgeCategory();
    if (TextOf("name").empty() && TextOf("questiontext").empty()) Tell("has neither a name nor a text");
    const std::string grade = question_.child_value("defaultgrade");
    if (!IsFloat(grade) || grade[0] == '-') Tell("has the score " + grade);
    JudgeFiles();
    if (type == "multichoice") JudgeChoice();
    if (type == "shortanswer") JudgeAnswers();
    if (type == "essay") JudgeEssay();
    if (type == "cloze") JudgeCloze(TextOf("questiontext"));
  }

 private:
  void Tell(const std::string& fault) { faults_.push_back(PlaceOf(question_) + " " + fault); }

  std::string TextOf(const char* element) const {
    return CharactersIn(question_.child(element).child("text"));
  }

  void JudgeCategory() {
    if (!TextOf("category").starts_with("$course$/top/")) Tell("is in no category of the course");
  }

  void JudgeFiles() {
    std::set<std::string> names;
    std::set<std::string> used;
    for (const pugi::xml_node file : question_.child("questiontext").children("file")) {
      const std::string name = file.attribute("name").value();
      if (!names.insert(name).second) Tell("has two files " + name);
      const bool isRisky = name.find_first_of("&<>\"`|':\\/") != name.npos || name.find("..") != name.npos;
      if (name.empty() || isRisky) Tell("has a file whose name changes: " + name);
      const std::string_view bytes = file.child_value();
      const std::size_t digits = std::min(bytes.find('='), bytes.size());
      const bool isBase64 = bytes.size() % 4 == 0 && bytes.size() - digits <= 2 &&
                            bytes.substr(0, digits).find_first_not_of(
                                "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                "0123456789+/") == bytes.npos;
      if (!isBase64) Tell("has a file of other bytes: " + name);
    }
    const auto take = [&](const std::string& address) {
      constexpr std::string_view kInside = "@@PLUGINFILE@@/";
      const bool isInside = address.starts_with(kInside);
      const std::string name = isInside ? UnescapedAddress(address.substr(kInside.size())) : address;
      if (!isInside || !names.contains(name)) Tell("refers to " + address);
      used.insert(name);
    };
    for (const char* const place : {"questiontext", "generalfeedback", "graderinfo"})
      CheckHtml(PlaceOf(question_), WithoutAnswers(TextOf(place)), take, faults_);
    if (used != names) Tell("has files that nothing shows");
  }

  /// An answer inside the text is no HTML.
  std::string WithoutAnswers(std::string text) const {
    for (std::size_t begin = text.find('{'); begin != text.npos; begin = text.find('{', begin + 1)) {
      const std::size_t end = std::min(text.find('}', begin), text.size() - 1);
      if (question_.attribute("type").value() == std::string_view("cloze"))
        text.erase(begin, end + 1 - begin);
    }
    return text;
  }

  std::vector<double> Fractions() {
    std::vector<double> fractions;
    for (const pugi::xml_node answer : question_.children("answer")) {
      fractions.push_back(answer.attribute("fraction").as_double());
      if (!IsKnownFraction(fractions.back()))
        Tell("has an unknown share: " + std::to_string(fractions.back()));
      const std::string text = CharactersIn(answer.child("text"));
      if (text.find_first_not_of(" \t\r\n") == text.npos) Tell("has an empty answer");
      if (answer.attribute("format").value() == std::string_view("html"))
        CheckHtml(
            PlaceOf(answer), text, [this](const std::string& address) { Tell("refers to " + address); },
            faults_);
    }
    return fractions;
  }

  void RequireWord(const char* element, std::string_view words) {
    const std::string word = question_.child_value(element);
    const auto known = WordsOf(words, '|');
    if (std::ranges::find(known, word) == known.end()) Tell("has the " + std::string(element) + " " + word);
  }

  void JudgeChoice() {
    RequireWord("single", "true|false");
    RequireWord("shuffleanswers", "true|false");
    RequireWord("answernumbering", "none|abc|ABCD|123|iii|IIII");
    const std::vector<double> fractions = Fractions();
    if (fractions.size() < 2) Tell("has less than two options");
    const bool isSingle = question_.child_value("single") == std::string_view("true");
    double sum = 0;
    for (const double fraction : fractions) sum += std::max(fraction, 0.0);
    const double most = fractions.empty() ? 0 : *std::ranges::max_element(fractions);
    if (std::abs((isSingle ? most : sum) - 100) > 1) Tell("gives not all points");
  }

  void JudgeAnswers() {
    RequireWord("usecase", "0|1");
    const std::vector<double> fractions = Fractions();
    if (fractions.empty() || *std::ranges::max_element(fractions) < 100) Tell("has no right answer");
  }

  void JudgeEssay() {
    RequireWord("responseformat", "editor|editorfilepicker|plain|monospaced|noinline");
    RequireWord("responserequired", "0|1");
    const pugi::xml_node files = question_.child("attachments");
    if (question_.child("attachmentsrequired").text().as_int() > files.text().as_int())
      Tell("asks for more files than can be handed in");
    if (question_.child_value("responseformat") == std::string_view("noinline") && files.text().as_int() == 0)
      Tell("can be answered in no way");
  }

  /// "{1:SHORTANSWER:=one~=other}". Any other brace would begin an answer, too.
  void JudgeCloze(const std::string& text) {
    std::size_t count = 0;
    for (std::size_t at = text.find('{'); at != text.npos; at = text.find('{', at + 1)) {
      const std::size_t end = text.find('}', at);
      if (end == text.npos) return Tell("has an answer without an end");
      constexpr std::string_view kKind = ":SHORTANSWER:";
      const std::string_view inside = std::string_view(text).substr(at + 1, end - at - 1);
      const std::size_t digits = std::min(inside.find_first_not_of("0123456789"), inside.size());
      if (digits == 0 || inside[0] == '0' || !inside.substr(digits).starts_with(kKind))
        return Tell("has an answer without its parts: " + std::string(inside));
      for (const std::string_view answer : WordsOf(inside.substr(digits + kKind.size()), '~'))
        JudgeClozeAnswer(answer);
      ++count;
    }
    if (count == 0) Tell("asks nothing");
  }

  /// A number sign begins feedback unless it is part of the number of a character.
  void JudgeClozeAnswer(std::string_view answer) {
    bool isPlain = answer.size() > 1 && answer[0] == '=';
    for (std::size_t i = 1; i < answer.size(); ++i) {
      const bool isRaw = answer[i] == '#' && answer[i - 1] != '&';
      if (isRaw || std::string_view("{\\\"<>=%").find(answer[i]) != std::string_view::npos) isPlain = false;
    }
    if (!isPlain) Tell("has an answer that ends early: " + std::string(answer));
  }

  pugi::xml_node question_;
  Faults& faults_;
};

}  // namespace

Faults CheckMoodleXml(const PackageParts& parts) {
  Faults faults;
  pugi::xml_document document;
  if (!ParseStrictly("file", parts.begin()->second, document, faults)) return faults;
  CheckElements(document.document_element(), MoodleRules(), faults);
  for (const pugi::xml_node question : document.document_element().children("question"))
    MoodleJudge(question, faults).Judge();
  return faults;
}

}  // namespace quorvantis::test
