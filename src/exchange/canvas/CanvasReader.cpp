// SPDX-License-Identifier: MIT
#include "exchange/canvas/CanvasFormat.h"
#include "exchange/canvas/CanvasItemReader.h"
#include "exchange/form/ExchangeLimits.h"
#include "exchange/markup/Markup.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"

#include <string>

namespace quorvantis {
namespace {

/// Reads the assessments and banks of one package, one after the other.
class CanvasExamReading {
 public:
  CanvasExamReading(const ExchangeSource& source, ReadingTools& tools)
      : tools_(tools), package_(source, tools) {}

  ExchangedExam Read() {
    for (const std::string& name :
         package_.PartsOfType({"imsqti_xmlv1p", "imsqti_asmntv1p2", "imsqti_xmlv1"}))
      ReadPart(name);
    for (const std::string& name : package_.PartsOfType({"associatedcontent/imscc"})) ReadMeta(name);
    return std::move(exam_);
  }

 private:
  void ReadPart(const std::string& name) {
    tools_.notes.Begin(0);
    pugi::xml_document document;
    if (!package_.Parse(name, document)) return;
    const pugi::xml_node root = ChildOf(document, "questestinterop");
    const std::u16string title = PlainToExamText(TextOf(ValueOf(ChildOf(root, "assessment"), "title")));
    if (exam_.questions.empty()) {
      exam_.title = title;
    } else if (!title.empty()) {
      tools_.notes.Tell(text_id::kExchangeOtherCategory, {Excerpt(title)});
    }
    for (const pugi::xml_node item : ElementsBelow(root, {"item"})) {
      exam_.isCutShort = exam_.questions.size() >= kMaxReadQuestions;
      if (exam_.isCutShort || tools_.progress.IsCancelled()) break;
      tools_.notes.Begin(++number_);
      ExchangedQuestion question;
      question.number = number_;
      if (CanvasItemReader(package_, name, tools_).Read(item, question))
        exam_.questions.push_back(std::move(question));
    }
    tools_.notes.Begin(0);
  }

  void ReadMeta(const std::string& name) {
    if (!name.ends_with("assessment_meta.xml")) return;
    pugi::xml_document document;
    if (!package_.Parse(name, document)) return;
    const std::string_view shuffles = ChildOf(ChildOf(document, "quiz"), "shuffle_answers").text().get();
    exam_.shufflesOptions = exam_.shufflesOptions || shuffles == "true";
  }

  ReadingTools& tools_;
  QtiPackage package_;
  ExchangedExam exam_;
  int number_ = 0;
};

}  // namespace

bool LooksLikeCanvas(const ExchangeSource& source) {
  return PackageMentions(source, {"imsqti_xmlv1", "imsqti_asmntv1", "<questestinterop"});
}

std::optional<ExchangedExam> CanvasReader::Read(const ExchangeSource& source, ReadingTools& tools) {
  return CanvasExamReading(source, tools).Read();
}

}  // namespace quorvantis
