// SPDX-License-Identifier: MIT
#include "exchange/canvas/CanvasItemReader.h"

#include "exchange/canvas/CanvasFormat.h"
#include "exchange/form/QuestionParts.h"
#include "exchange/form/TextSource.h"
#include "exchange/qti/ItemParts.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/Utf.h"

#include <algorithm>
#include <map>

namespace quorvantis {
namespace {

std::vector<pugi::xml_node> LabelsOf(pugi::xml_node response) {
  return ElementsBelow(response, {"response_label"});
}

}  // namespace

std::string FieldOfItem(pugi::xml_node item, std::string_view label) {
  for (const pugi::xml_node field : ElementsBelow(ChildOf(item, "itemmetadata"), {"qtimetadatafield"})) {
    if (ChildOf(field, "fieldlabel").text().get() == label) return ChildOf(field, "fieldentry").text().get();
  }
  return {};
}

CanvasItemReader::CanvasItemReader(QtiPackage& package, std::string name, ReadingTools& tools)
    : package_(package),
      name_(std::move(name)),
      tools_(tools),
      html_(tools, [this](std::u16string_view address) { return Find(address); }) {}

bool CanvasItemReader::Read(pugi::xml_node item, ExchangedQuestion& question) {
  item_ = item;
  responses_ = ElementsBelow(ChildOf(item, "presentation"),
                             {"response_lid", "response_str", "response_num", "response_xy", "response_grp"});
  const CanvasKeys keys(item);
  const std::string type = TypeOfItem(keys);
  question.text = ReadMaterial(ChildOf(item_, "presentation"), question);
  if (!TakeByType(type, keys, question)) return Refuse(type, question);
  TakeRubric(question);
  TakeFeedback(question);
  question.score = Score(keys);
  return true;
}

/// Files stand in a folder of their own, or beside it.
std::optional<ExchangedFile> CanvasItemReader::Find(std::u16string_view address) {
  for (const std::string_view base : {kCanvasFileBase, std::string_view("%24IMS-CC-FILEBASE%24/")}) {
    if (!address.starts_with(TextOf(base))) continue;
    const std::u16string_view path = address.substr(base.size());
    auto file = package_.FindAnywhere(TextOf(kCanvasFiles) + std::u16string(path));
    return file ? file : package_.FindAnywhere(path);
  }
  return package_.Find(name_, address);
}

std::u16string CanvasItemReader::ReadMaterial(pugi::xml_node owner, ExchangedQuestion& question) {
  std::u16string text;
  for (const pugi::xml_node part :
       ElementsBelow(owner, {"mattext", "matemtext", "mat_formattedtext", "matimage", "mataudio", "matvideo",
                             "response_lid", "response_str", "response_num", "render_choice"})) {
    if (!LocalName(part).starts_with("mat")) continue;
    const std::u16string piece = Text(part, question);
    if (!text.empty() && !piece.empty()) text += u"\r\n";
    text += piece;
  }
  return text;
}

std::u16string CanvasItemReader::Text(pugi::xml_node part, ExchangedQuestion& question) {
  const std::string_view name = LocalName(part);
  if (!name.ends_with("text")) {
    html_.Take({{}, {{TextOf(ValueOf(part, "uri")), {}, false}}, {}}, question);
    return {};
  }
  const std::u16string content = ContentOf(part);
  const bool isHtml = ValueOf(part, "texttype") != "text/plain";
  std::u16string text = isHtml ? html_.Read(WithBlanksOfSpans(content), question) : PlainToExamText(content);
  if (name == "matemtext" && !text.empty()) text.insert(0, u"<em>").append(u"</em>");
  return text;
}

/// Where the type is not named, the responses tell it.
std::string CanvasItemReader::TypeOfItem(const CanvasKeys& keys) const {
  const std::string named = FieldOfItem(item_, "question_type");
  if (!named.empty()) return named;
  if (responses_.empty()) return "text_only_question";
  const std::string_view first = LocalName(responses_[0]);
  if (first == "response_num") return "numerical_question";
  if (first == "response_lid")
    return responses_.size() > 1 ? "matching_question" : "multiple_answers_question";
  if (first != "response_str") return std::string(first);
  return keys.AreEmpty() ? "essay_question" : "short_answer_question";
}

/// A cartridge has percentages only.
std::optional<double> CanvasItemReader::Score(const CanvasKeys& keys) const {
  const double points = NumberIn(FieldOfItem(item_, "points_possible"), -1);
  if (points >= 0) return points;
  const bool hasPercents =
      !FieldOfItem(item_, "question_type").empty() || !FieldOfItem(item_, "cc_profile").empty();
  return hasPercents ? std::nullopt : keys.Maximum();
}

bool CanvasItemReader::TakeByType(std::string_view type, const CanvasKeys& keys,
                                  ExchangedQuestion& question) {
  question.kind = QuestionKind::FillIn;
  if (type == "multiple_choice_question" || type == "multiple_answers_question" ||
      type == "true_false_question") {
    question.kind = QuestionKind::Choice;
    TakeOptions(keys, question);
  } else if (type == "short_answer_question") {
    TakeAnswers(keys, question);
  } else if (type == "numerical_question") {
    TakeNumbers(keys, question);
  } else if (type == "fill_in_multiple_blanks_question" || type == "multiple_dropdowns_question") {
    TakeNamedBlanks(type == "multiple_dropdowns_question", keys, question);
  } else if (type == "matching_question") {
    TakePairs(keys, question);
  } else if (type == "essay_question") {
    question.kind = QuestionKind::Essay;
  } else if (type == "file_upload_question") {
    question.kind = QuestionKind::Oral;
  } else {
    return false;
  }
  return true;
}

void CanvasItemReader::TakeOptions(const CanvasKeys& keys, ExchangedQuestion& question) {
  if (responses_.empty()) return;
  TakeLead(responses_[0], question);
  const std::string_view response = ValueOf(responses_[0], "ident");
  std::vector<double> scores;
  for (const pugi::xml_node label : LabelsOf(responses_[0])) {
    scores.push_back(keys.ScoreOf(response, ValueOf(label, "ident")));
    const std::size_t files = question.files.size();
    std::u16string text = ReadMaterial(label, question);
    question.options.push_back({TextOfPart(std::move(text), question, files, tools_.notes), false});
  }
  const bool takesSeveral = ValueOf(responses_[0], "rcardinality") != "Single";
  DecideByScores(scores, takesSeveral && keys.AddUp(), question.options, tools_.notes);
}

/// What stands between the question and its options belongs to the question.
void CanvasItemReader::TakeLead(pugi::xml_node response, ExchangedQuestion& question) {
  for (const pugi::xml_node owner : {response, ChildOf(response, "render_choice")}) {
    for (const pugi::xml_node material : ChildrenOf(owner, "material")) {
      const std::u16string lead = ReadMaterial(material, question);
      if (!lead.empty()) question.text.append(question.text.empty() ? u"" : u"\r\n").append(lead);
    }
  }
}

void CanvasItemReader::TakeAnswers(const CanvasKeys& keys, ExchangedQuestion& question) {
  const std::vector<CanvasKeys::Comparison> rights = keys.Rights();
  double best = 0;
  for (const CanvasKeys::Comparison& right : rights) best = std::max(best, right.score);
  BlankAnswers answers;
  for (const CanvasKeys::Comparison& right : rights) {
    std::u16string answer = PlainToExamText(TextOf(right.value));
    if (answer.empty()) continue;
    if (right.score * 100 < best * kFullFraction)
      tools_.notes.Tell(text_id::kExchangePartlyRightAnswer, {Excerpt(answer)});
    answers.push_back(std::move(answer));
  }
  if (!answers.empty()) question.blanks = {std::move(answers)};
}

/// A range around a number is a tolerance; one that stands alone is the answer.
void CanvasItemReader::TakeNumbers(const CanvasKeys& keys, ExchangedQuestion& question) {
  TakeAnswers(keys, question);
  const bool hasNumber = !question.blanks.empty();
  for (const pugi::xml_node test : ElementsBelow(ChildOf(item_, "resprocessing"), {"vargte", "vargt"})) {
    const std::u16string low(Trimmed(ContentOf(test)));
    pugi::xml_node end = test.next_sibling();
    while (end && LocalName(end) != "varlte" && LocalName(end) != "varlt") end = end.next_sibling();
    const std::u16string high(Trimmed(ContentOf(end)));
    if (hasNumber && low == high) continue;
    const std::u16string range = low == high ? low : low + u".." + high;
    if (hasNumber) {
      tools_.notes.Tell(text_id::kExchangeTolerance, {range});
      continue;
    }
    if (low != high) tools_.notes.Tell(text_id::kExchangeRangeIsAnswer, {range});
    if (question.blanks.empty()) question.blanks.resize(1);
    question.blanks[0].push_back(PlainToExamText(range));
  }
}

/// "[name]" in the text is the blank of "response_name".
void CanvasItemReader::TakeNamedBlanks(bool isDropDown, const CanvasKeys& keys, ExchangedQuestion& question) {
  if (isDropDown) tools_.notes.Tell(text_id::kExchangeInlineChoices);
  std::vector<CanvasBlank> blanks;
  blanks.reserve(responses_.size());
  for (const pugi::xml_node response : responses_)
    blanks.push_back(NamedBlank(response, isDropDown, keys, question));
  PlaceBlanks(std::move(blanks), question);
  KeepPlacesOfBlanks(question, tools_.notes);
}

CanvasBlank CanvasItemReader::NamedBlank(pugi::xml_node response, bool isDropDown, const CanvasKeys& keys,
                                         ExchangedQuestion& question) {
  const std::string_view identifier = ValueOf(response, "ident");
  CanvasBlank blank{PlainToExamText(TextOf(identifier.substr(identifier.find('_') + 1))), {}, {}};
  for (const pugi::xml_node label : LabelsOf(response)) {
    std::u16string answer = ReadMaterial(label, question);
    if (isDropDown) blank.choices.append(blank.choices.empty() ? u"" : u" / ").append(answer);
    if (keys.IsRight(identifier, ValueOf(label, "ident"))) blank.answers.push_back(std::move(answer));
  }
  return blank;
}

void CanvasItemReader::TakePairs(const CanvasKeys& keys, ExchangedQuestion& question) {
  std::vector<std::pair<std::u16string, std::u16string>> pairs;
  std::vector<std::u16string> wrongs;
  std::map<std::string, std::u16string, std::less<>> texts;  // most pairs have the same right sides
  for (const pugi::xml_node response : responses_) {
    std::u16string right;
    for (const pugi::xml_node label : LabelsOf(response)) {
      const std::string_view identifier = ValueOf(label, "ident");
      const auto [text, isNew] = texts.try_emplace(std::string(identifier));
      if (isNew) text->second = ReadMaterial(label, question);
      if (isNew) wrongs.push_back(text->second);
      if (keys.IsRight(ValueOf(response, "ident"), identifier)) right = text->second;
    }
    pairs.emplace_back(ReadMaterial(ChildOf(response, "material"), question), right);
  }
  for (std::u16string& wrong : wrongs) pairs.emplace_back(std::u16string(), std::move(wrong));
  MakeMatching(pairs, question, tools_.notes);
  KeepPlacesOfBlanks(question, tools_.notes);
}

/// What pupils are told about the question.
void CanvasItemReader::TakeRubric(ExchangedQuestion& question) {
  for (const pugi::xml_node rubric : ChildrenOf(item_, "rubric")) {
    const std::string_view view = ValueOf(rubric, "view");
    const std::u16string text = ReadMaterial(rubric, question);
    if (text.empty()) continue;
    if (view.empty() || view == "All" || view == "Candidate") {
      question.text = text + (question.text.empty() ? u"" : u"\r\n") + question.text;
    } else {
      tools_.notes.Tell(text_id::kExchangePartNotRead, {Excerpt(text)});
    }
  }
}

/// The comment on an essay is its model answer.
void CanvasItemReader::TakeFeedback(ExchangedQuestion& question) {
  for (const pugi::xml_node feedback : ElementsBelow(item_, {"itemfeedback"})) {
    ExchangedQuestion itsFiles;
    const std::u16string text = ReadMaterial(feedback, itsFiles);
    if (text.empty()) continue;
    if (question.kind == QuestionKind::Essay && ValueOf(feedback, "ident") == "general_fb") {
      question.modelAnswer = text;
    } else {
      tools_.notes.Tell(text_id::kExchangeFeedback);
    }
  }
}

bool CanvasItemReader::Refuse(const std::string& type, ExchangedQuestion& question) {
  const std::u16string words = Excerpt(ExamTextToPlain(question.text));
  if (type == "text_only_question") {
    tools_.notes.Tell(text_id::kExchangeDescription, {words});
  } else {
    tools_.notes.Tell(text_id::kExchangeTypeNotRead, {Excerpt(TextOf(type)), words});
  }
  return false;
}

}  // namespace quorvantis
