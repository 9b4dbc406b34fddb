// SPDX-License-Identifier: MIT
#include "exchange/form/Points.h"
#include "exchange/markup/Markup.h"
#include "exchange/qti/QtiFormat.h"
#include "exchange/qti/QtiItemWriter.h"
#include "exchange/qti/ZipWriter.h"
#include "exchange/xml/HtmlParts.h"
#include "exchange/xml/XmlText.h"
#include "text/Utf.h"

namespace quorvantis {
namespace {

// The elements of exam texts that items lack.
constexpr std::string_view kStyle =
    ".qv-u, .qv-ins { text-decoration: underline }\n"
    ".qv-s, .qv-strike, .qv-del { text-decoration: line-through }\n"
    ".qv-mark { background: yellow }\n";

/// "item001".
std::string ItemIdentifier(std::size_t index) {
  const std::string digits = std::to_string(index + 1);
  return "item" + std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

/// Composes one package.
class QtiPackageText {
 public:
  explicit QtiPackageText(const ExchangedExam& exam) : exam_(exam) {}

  std::string Bytes(Progress& progress) {
    std::vector<std::vector<std::string>> media;
    for (std::size_t i = 0; i < exam_.questions.size(); ++i) {
      if (progress.IsCancelled()) return {};
      progress.Report(i, exam_.questions.size());
      media.push_back(AddItem(i));
    }
    zip_.Add("test.xml", Test());
    zip_.Add("style.css", std::string(kStyle));
    zip_.Add("imsmanifest.xml", Manifest(media));
    return zip_.Finish();
  }

 private:
  /// Returns the names of its media in the package.
  std::vector<std::string> AddItem(std::size_t index) {
    const ExchangedQuestion& question = exam_.questions[index];
    const std::string identifier = ItemIdentifier(index);
    std::vector<std::string> names = PackageNames(question.files);
    std::vector<std::string> addresses;
    addresses.reserve(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
      names[i].insert(0, "media/" + identifier + "/");
      addresses.push_back("../" + names[i]);
      zip_.Add(names[i], BytesOf(question.files[i]), true);
    }
    zip_.Add("items/" + identifier + ".xml", QtiItem(question, identifier, exam_.shufflesOptions, addresses));
    return names;
  }

  static void DeclareScore(XmlWriter& xml) {
    xml.Begin("outcomeDeclaration",
              {{"identifier", "SCORE"}, {"cardinality", "single"}, {"baseType", "float"}});
    xml.Begin("defaultValue");
    xml.Text("value", "0");
    xml.End("defaultValue");
    xml.End("outcomeDeclaration");
  }

  std::string Test() const {
    std::string text(kXmlHead);
    XmlWriter xml(text);
    const std::string title = Utf16ToUtf8(ExamTextToPlain(exam_.title));
    xml.Begin(
        "assessmentTest",
        {{"xmlns", "http://www.imsglobal.org/xsd/imsqti_v2p1"}, {"identifier", "test"}, {"title", title}});
    DeclareScore(xml);
    xml.Begin("testPart",
              {{"identifier", "part"}, {"navigationMode", "nonlinear"}, {"submissionMode", "simultaneous"}});
    xml.Begin("assessmentSection", {{"identifier", "section"}, {"title", title}, {"visible", "true"}});
    for (std::size_t i = 0; i < exam_.questions.size(); ++i) {
      const std::string identifier = ItemIdentifier(i);
      const XmlAttributes attributes{{"identifier", identifier}, {"href", "items/" + identifier + ".xml"}};
      xml.Begin("assessmentItemRef", attributes);
      xml.Empty("weight",
                {{"identifier", "WEIGHT"}, {"value", PointsText(exam_.questions[i].score.value_or(1))}});
      xml.End("assessmentItemRef");
    }
    xml.End("assessmentSection");
    xml.End("testPart");
    xml.Begin("outcomeProcessing");
    xml.Begin("setOutcomeValue", {{"identifier", "SCORE"}});
    xml.Begin("sum");
    xml.Empty("testVariables", {{"variableIdentifier", "SCORE"}, {"weightIdentifier", "WEIGHT"}});
    xml.End("sum");
    xml.End("setOutcomeValue");
    xml.End("outcomeProcessing");
    xml.End("assessmentTest");
    return text;
  }

  std::string Manifest(const std::vector<std::vector<std::string>>& media) const {
    std::string text(kXmlHead);
    XmlWriter xml(text);
    xml.Begin("manifest", {{"xmlns", "http://www.imsglobal.org/xsd/imscp_v1p1"}, {"identifier", "manifest"}});
    xml.Begin("metadata");
    xml.Text("schema", "QTIv2.1 Package");
    xml.Text("schemaversion", "1.0.0");
    xml.End("metadata");
    xml.Empty("organizations");
    xml.Begin("resources");
    xml.Begin("resource", {{"identifier", "test"}, {"type", "imsqti_test_xmlv2p1"}, {"href", "test.xml"}});
    xml.Empty("file", {{"href", "test.xml"}});
    for (std::size_t i = 0; i < media.size(); ++i)
      xml.Empty("dependency", {{"identifierref", ItemIdentifier(i)}});
    xml.End("resource");
    for (std::size_t i = 0; i < media.size(); ++i) {
      const std::string href = "items/" + ItemIdentifier(i) + ".xml";
      xml.Begin("resource",
                {{"identifier", ItemIdentifier(i)}, {"type", "imsqti_item_xmlv2p1"}, {"href", href}});
      xml.Empty("file", {{"href", href}});
      xml.Empty("file", {{"href", "style.css"}});
      for (const std::string& name : media[i]) xml.Empty("file", {{"href", name}});
      xml.End("resource");
    }
    xml.End("resources");
    xml.End("manifest");
    return text;
  }

  const ExchangedExam& exam_;
  ZipWriter zip_;
};

}  // namespace

std::string QtiWriter::Write(const ExchangedExam& exam, const StringTable&, Progress& progress) {
  return QtiPackageText(exam).Bytes(progress);
}

}  // namespace quorvantis
