// SPDX-License-Identifier: MIT
#include "exchange/form/ExchangeLimits.h"
#include "exchange/markup/Markup.h"
#include "exchange/qti/ItemParts.h"
#include "exchange/qti/QtiBody.h"
#include "exchange/qti/QtiFormat.h"
#include "exchange/qti/QtiItemReader.h"
#include "exchange/qti/QtiTest.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"

#include <map>
#include <set>

namespace quorvantis {
namespace {

/// Reads the items of one package.
class QtiExamReading {
 public:
  QtiExamReading(const ExchangeSource& source, ReadingTools& tools)
      : tools_(tools), package_(source, tools), test_(package_, tools) {}

  ExchangedExam Read() {
    ReadTests();
    exam_.title = PlainToExamText(TextOf(test_.Title()));
    std::vector<QtiItemInTest>& items = test_.Items();
    std::set<std::string> known;
    for (const QtiItemInTest& item : items) known.insert(item.name);
    // Without a test, the manifest has the items in their order.
    for (const std::string& name : package_.PartsOfType({"imsqti_item_xmlv2", "imsqti_apipitem_xmlv2"})) {
      if (known.insert(name).second) items.push_back({name, std::nullopt});
    }
    exam_.isCutShort = items.size() > kMaxReadQuestions;
    if (exam_.isCutShort) items.erase(items.begin() + kMaxReadQuestions, items.end());
    for (std::size_t i = 0; i < items.size() && !tools_.progress.IsCancelled(); ++i) {
      tools_.progress.Report(i, items.size());
      ReadItem(items[i], static_cast<int>(i + 1));
    }
    TellLeft();
    return std::move(exam_);
  }

 private:
  void ReadTests() {
    if (package_.IsSingleFile()) return;  // whose items are elsewhere
    for (const std::string& test : package_.PartsOfType({"imsqti_test_xmlv2", "imsqti_assessment_xmlv2"}))
      test_.Read(test);
  }

  void ReadItem(const QtiItemInTest& item, int number) {
    tools_.notes.Begin(number);
    passages_.insert(passages_.end(), item.passages.begin(), item.passages.end());
    pugi::xml_document document;
    if (!package_.Parse(item.name, document)) return;
    const pugi::xml_node node = ChildOf(document, "assessmentItem");
    if (!node) return TellNoItem(item.name, document);
    QtiItemReader reader(package_, item.name, tools_);
    ExchangedQuestion question;
    question.number = number;
    if (!reader.Read(node, question)) return;
    TakeStimuli(node, item.name, reader, question);
    TakePassages(reader, question);
    const std::optional<double> most = QtiKeys(node).Maximum();
    if (item.weight || most) question.score = item.weight.value_or(1) * most.value_or(1);
    if (question.kind == QuestionKind::Choice) ++(reader.Shuffles() ? shuffled_ : notShuffled_);
    exam_.questions.push_back(std::move(question));
  }

  void TellNoItem(const std::string& name, pugi::xml_node document) {
    if (ChildOf(document, "assessmentTest")) {
      tools_.notes.Tell(text_id::kExchangeTestAlone);
    } else {
      tools_.notes.Tell(text_id::kExchangePartNotRead, {Excerpt(TextOf(name))});
    }
  }

  /// A passage that several items refer to stands in front of the first of them.
  void TakeStimuli(pugi::xml_node item, const std::string& name, QtiItemReader& reader,
                   ExchangedQuestion& question) {
    std::vector<pugi::xml_node> references = ChildrenOf(item, "assessmentStimulusRef");
    for (auto reference = references.rbegin(); reference != references.rend(); ++reference) {
      const std::string part = PathBeside(BaseOf(name, item), ValueOf(*reference, "href"));
      const auto known = stimuli_.find(part);
      if (known != stimuli_.end()) {
        tools_.notes.Tell(text_id::kExchangePassageElsewhere, {known->second});
        continue;
      }
      pugi::xml_document document;
      if (!package_.Parse(part, document)) continue;
      reader.ReadRelativeTo(part);
      const std::u16string text =
          reader.ReadPassage(ChildOf(ChildOf(document, "assessmentStimulus"), "stimulusBody"), question);
      PutInFront(text, question, tools_.notes);
      stimuli_[part] = Excerpt(ExamTextToPlain(text));
    }
  }

  void TakePassages(QtiItemReader& reader, ExchangedQuestion& question) {
    for (auto passage = passages_.rbegin(); passage != passages_.rend(); ++passage) {
      const std::string_view view = ValueOf(passage->element, "view");
      if (!view.empty() && view.find("candidate") == view.npos) {
        TellText(passage->element);
        continue;
      }
      reader.ReadRelativeTo(passage->part);
      PutInFront(reader.ReadPassage(passage->element, question), question, tools_.notes);
    }
    passages_.clear();
  }

  void TellText(pugi::xml_node element) {
    const std::u16string words = Excerpt(ExamTextToPlain(ReadHtml(ContentOf(element)).text));
    if (!words.empty()) tools_.notes.Tell(text_id::kExchangeDescription, {words});
  }

  void TellLeft() {
    tools_.notes.Begin(0);
    passages_.insert(passages_.end(), test_.Left().begin(), test_.Left().end());
    for (const QtiPassage& passage : passages_) TellText(passage.element);
    exam_.shufflesOptions = shuffled_ > 0 && notShuffled_ == 0;
    if (shuffled_ > 0 && notShuffled_ > 0) tools_.notes.Tell(text_id::kExchangeShuffledInPart);
  }

  ReadingTools& tools_;
  QtiPackage package_;
  QtiTest test_;
  ExchangedExam exam_;
  std::vector<QtiPassage> passages_;               ///< in front of the next question
  std::map<std::string, std::u16string> stimuli_;  ///< the begin of each that stands at a question
  int shuffled_ = 0;
  int notShuffled_ = 0;
};

/// QTI 3 has other names for everything.
bool IsNextVersion(const ExchangeSource& source) {
  return PackageMentions(source, {"imsqti_item_xmlv3", "imsqti_test_xmlv3", "<qti-assessment-item"});
}

}  // namespace

bool LooksLikeQti(const ExchangeSource& source) {
  return PackageMentions(
             source, {"imsqti_item_xmlv2", "imsqti_apipitem_xmlv2", "imsqti_test_xmlv2",
                      "imsqti_assessment_xmlv2", "<assessmentItem", ":assessmentItem", "<assessmentTest"}) ||
         IsNextVersion(source) || IsUnreadablePackage(source);
}

std::optional<ExchangedExam> QtiReader::Read(const ExchangeSource& source, ReadingTools& tools) {
  if (IsNextVersion(source)) {
    tools.notes.Tell(text_id::kExchangeNextQti);
    return std::nullopt;
  }
  return QtiExamReading(source, tools).Read();
}

}  // namespace quorvantis
