// SPDX-License-Identifier: MIT
#include "exchange/form/ExchangeLimits.h"
#include "exchange/markup/Markup.h"
#include "exchange/qti/QtiFormat.h"
#include "exchange/qti/QtiItemReader.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"

#include <algorithm>
#include <map>

namespace quorvantis {
namespace {

/// What the test of a package says of an item.
struct ItemInTest {
  std::string name;
  std::optional<double> weight;
};

/// Reads the items of one package.
class QtiExamReading {
 public:
  QtiExamReading(const ExchangeSource& source, ReadingTools& tools)
      : tools_(tools), package_(source, tools) {}

  ExchangedExam Read() {
    std::vector<ItemInTest> items;
    for (const std::string& test : package_.PartsOfType({"imsqti_test_xmlv2", "imsqti_assessment_xmlv2"}))
      ReadTest(test, items);
    // Without a test, the manifest has the items in their order.
    for (const std::string& name : package_.PartsOfType({"imsqti_item_xmlv2", "imsqti_apipitem_xmlv2"})) {
      const bool isKnown =
          std::ranges::any_of(items, [&name](const ItemInTest& item) { return item.name == name; });
      if (!isKnown) items.push_back({name, std::nullopt});
    }
    exam_.isCutShort = items.size() > kMaxReadQuestions;
    if (exam_.isCutShort) items.resize(kMaxReadQuestions);
    for (std::size_t i = 0; i < items.size() && !tools_.progress.IsCancelled(); ++i) {
      tools_.progress.Report(i, items.size());
      ReadItem(items[i], static_cast<int>(i + 1));
    }
    exam_.shufflesOptions = shuffled_ > 0 && notShuffled_ == 0;
    return std::move(exam_);
  }

 private:
  void ReadTest(const std::string& name, std::vector<ItemInTest>& items) {
    pugi::xml_document document;
    if (!package_.Parse(name, document)) return;
    const pugi::xml_node test = ChildOf(document, "assessmentTest");
    if (exam_.title.empty()) exam_.title = PlainToExamText(TextOf(ValueOf(test, "title")));
    const std::filesystem::path folder = std::filesystem::path(name).parent_path();
    for (const pugi::xml_node reference : ElementsBelow(test, {"assessmentItemRef"})) {
      const std::string href =
          (folder / std::string(ValueOf(reference, "href"))).lexically_normal().generic_string();
      const std::string_view weight = ValueOf(ChildOf(reference, "weight"), "value");
      items.push_back(
          {href, weight.empty() ? std::nullopt : std::optional(std::max(0.0, NumberIn(weight, 1)))});
    }
  }

  void ReadItem(const ItemInTest& item, int number) {
    tools_.notes.Begin(number);
    pugi::xml_document document;
    if (!package_.Parse(item.name, document)) return;
    const pugi::xml_node node = ChildOf(document, "assessmentItem");
    QtiItemReader reader(package_, item.name, tools_);
    ExchangedQuestion question;
    question.number = number;
    if (!reader.Read(node, question)) return;
    question.score = item.weight ? item.weight : MaximumOf(node);
    if (question.kind == QuestionKind::Choice) ++(reader.Shuffles() ? shuffled_ : notShuffled_);
    exam_.questions.push_back(std::move(question));
  }

  static std::optional<double> MaximumOf(pugi::xml_node item) {
    for (const pugi::xml_node outcome : ChildrenOf(item, "outcomeDeclaration")) {
      if (ValueOf(outcome, "identifier") != "MAXSCORE") continue;
      const double value = NumberIn(ChildOf(ChildOf(outcome, "defaultValue"), "value").text().get(), -1);
      if (value >= 0) return value;
    }
    return std::nullopt;
  }

  ReadingTools& tools_;
  QtiPackage package_;
  ExchangedExam exam_;
  int shuffled_ = 0;
  int notShuffled_ = 0;
};

/// QTI 3 has other names for everything.
bool IsNextVersion(const ExchangeSource& source) {
  return PackageMentions(source, {"imsqti_item_xmlv3", "imsqti_test_xmlv3", "<qti-assessment-item"});
}

}  // namespace

bool LooksLikeQti(const ExchangeSource& source) {
  return PackageMentions(source, {"imsqti_item_xmlv2", "imsqti_apipitem_xmlv2", "imsqti_test_xmlv2",
                                  "imsqti_assessment_xmlv2", "<assessmentItem", ":assessmentItem"}) ||
         IsNextVersion(source);
}

std::optional<ExchangedExam> QtiReader::Read(const ExchangeSource& source, ReadingTools& tools) {
  if (IsNextVersion(source)) {
    tools.notes.Tell(text_id::kExchangeNextQti);
    return std::nullopt;
  }
  return QtiExamReading(source, tools).Read();
}

}  // namespace quorvantis
