// SPDX-License-Identifier: MIT
#include "exchange/canvas/CanvasFormat.h"
#include "exchange/canvas/CanvasItemWriter.h"
#include "exchange/markup/Markup.h"
#include "exchange/qti/ZipWriter.h"
#include "exchange/xml/HtmlParts.h"
#include "exchange/xml/XmlText.h"
#include "text/Utf.h"

#include <cstdint>

namespace quorvantis {
namespace {

/// A name that only the same questions have: what is imported with a known name replaces what had it.
std::string IdentifierOf(const ExchangedExam& exam) {
  std::uint64_t hash = 0xCBF29CE484222325;  // FNV-1a, of 64 bits
  const auto add = [&hash](std::u16string_view text) {
    for (const char16_t unit : text) hash = (hash ^ unit) * 0x100000001B3;
    hash = (hash ^ 0x10000) * 0x100000001B3;  // the end
  };
  add(exam.title);
  for (const ExchangedQuestion& question : exam.questions) {
    add(question.text);
    for (const ExchangedOption& option : question.options) add(option.text);
    for (const ExchangedFile& file : question.files) add(file.name);
  }
  std::string identifier = "exam";
  for (int shift = 60; shift >= 0; shift -= 4) identifier.push_back("0123456789abcdef"[hash >> shift & 0xF]);
  return identifier;
}

/// Composes one package.
class CanvasPackage {
 public:
  explicit CanvasPackage(const ExchangedExam& exam)
      : exam_(exam), title_(Utf16ToUtf8(ExamTextToPlain(exam.title))), identifier_(IdentifierOf(exam)) {}

  std::string Bytes(Progress& progress) {
    zip_.Add("assessment/assessment.xml", Assessment(progress));
    zip_.Add("assessment/assessment_meta.xml", Meta());
    zip_.Add("imsmanifest.xml", Manifest());
    return zip_.Finish();
  }

 private:
  std::string Assessment(Progress& progress) {
    std::string text(kXmlHead);
    XmlWriter xml(text);
    xml.Begin("questestinterop", {{"xmlns", "http://www.imsglobal.org/xsd/ims_qtiasiv1p2"}});
    xml.Begin("assessment", {{"ident", identifier_}, {"title", title_}});
    xml.Begin("section", {{"ident", "root_section"}});
    std::uint64_t done = 0;
    for (const ExchangedQuestion& question : exam_.questions) {
      if (progress.IsCancelled()) break;
      progress.Report(done++, exam_.questions.size());
      WriteCanvasItem(question, identifier_ + "-" + std::to_string(done), AddFiles(question), xml);
    }
    xml.End("section");
    xml.End("assessment");
    xml.End("questestinterop");
    return text;
  }

  /// Adds the files of a question, and returns their addresses in its HTML.
  std::vector<std::string> AddFiles(const ExchangedQuestion& question) {
    const std::string folder = identifier_ + "/question" + std::to_string(question.number) + "/";
    const std::vector<std::string> names = PackageNames(question.files);
    std::vector<std::string> addresses;
    addresses.reserve(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
      fileHrefs_.push_back(std::string(kCanvasFiles) + folder + names[i]);
      zip_.Add(fileHrefs_.back(), BytesOf(question.files[i]), true);
      addresses.push_back(std::string(kCanvasFileBase) + folder + names[i]);
    }
    return addresses;
  }

  std::string Meta() const {
    std::string text(kXmlHead);
    XmlWriter xml(text);
    xml.Begin("quiz", {{"xmlns", "http://canvas.instructure.com/xsd/cccv1p0"}, {"identifier", identifier_}});
    xml.Text("title", title_);
    xml.Text("shuffle_answers", exam_.shufflesOptions ? "true" : "false");
    xml.Text("quiz_type", "assignment");
    xml.End("quiz");
    return text;
  }

  std::string Manifest() const {
    std::string text(kXmlHead);
    XmlWriter xml(text);
    xml.Begin("manifest",
              {{"xmlns", "http://www.imsglobal.org/xsd/imsccv1p1/imscp_v1p1"}, {"identifier", "manifest"}});
    xml.Begin("metadata");
    xml.Text("schema", "IMS Content");
    xml.Text("schemaversion", "1.1.3");
    xml.End("metadata");
    xml.Empty("organizations");
    xml.Begin("resources");
    xml.Begin("resource", {{"identifier", identifier_}, {"type", "imsqti_xmlv1p2"}});
    xml.Empty("file", {{"href", "assessment/assessment.xml"}});
    xml.Empty("dependency", {{"identifierref", identifier_ + "-meta"}});
    xml.End("resource");
    xml.Begin("resource", {{"identifier", identifier_ + "-meta"},
                           {"type", "associatedcontent/imscc_xmlv1p1/learning-application-resource"},
                           {"href", "assessment/assessment_meta.xml"}});
    xml.Empty("file", {{"href", "assessment/assessment_meta.xml"}});
    xml.End("resource");
    for (std::size_t i = 0; i < fileHrefs_.size(); ++i) {
      const std::string& href = fileHrefs_[i];
      xml.Begin("resource", {{"identifier", identifier_ + "-file" + std::to_string(i + 1)},
                             {"type", "webcontent"},
                             {"href", href}});
      xml.Empty("file", {{"href", href}});
      xml.End("resource");
    }
    xml.End("resources");
    xml.End("manifest");
    return text;
  }

  const ExchangedExam& exam_;
  std::string title_;
  std::string identifier_;
  ZipWriter zip_;
  std::vector<std::string> fileHrefs_;
};

}  // namespace

std::string CanvasWriter::Write(const ExchangedExam& exam, const StringTable&, Progress& progress) {
  return CanvasPackage(exam).Bytes(progress);
}

}  // namespace quorvantis
