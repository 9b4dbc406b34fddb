// SPDX-License-Identifier: MIT
#include "exchange/canvas/CanvasFormat.h"
#include "exchange/canvas/CanvasItemReader.h"
#include "exchange/form/ExchangeLimits.h"
#include "exchange/markup/Markup.h"
#include "exchange/qti/ItemParts.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/NumberText.h"

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace quorvantis {
namespace {

/// The full files of quizzes and banks, whose kinds of questions a cartridge cannot hold, end in this.
constexpr std::string_view kFullEnd = ".xml.qti";

std::string NameBetween(std::string_view path, std::string_view end) {
  path.remove_suffix(end.size());
  return std::string(path.substr(path.rfind('/') + 1));
}

/// The folder that a part lies in: "q" for "x/q/assessment_qti.xml".
std::string FolderOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return slash == path.npos ? std::string() : NameBetween(path.substr(0, slash), "");
}

bool IsBelow(pugi::xml_node node, pugi::xml_node above) {
  while (node && node != above) node = node.parent();
  return static_cast<bool>(node);
}

pugi::xml_node SelectionOf(pugi::xml_node section) {
  return ChildOf(ChildOf(section, "selection_ordering"), "selection");
}

double PointsPerItem(pugi::xml_node section) {
  return NumberIn(
      ChildOf(ChildOf(SelectionOf(section), "selection_extension"), "points_per_item").text().get(), -1);
}

/// Reads the assessments and banks of one package, one after the other.
class CanvasExamReading {
 public:
  CanvasExamReading(const ExchangeSource& source, ReadingTools& tools)
      : tools_(tools), package_(source, tools) {
    for (const std::string& name : package_.Names()) {
      if (name.ends_with(kFullEnd)) fullParts_.emplace(NameBetween(name, kFullEnd), name);
    }
  }

  ExchangedExam Read() {
    for (const std::string& name :
         package_.PartsOfType({"imsqti_xmlv1p", "imsqti_asmntv1p2", "imsqti_xmlv1"}))
      ReadCartridgePart(name);
    ReadOtherFullParts();
    for (const std::string& name : package_.PartsOfType({"associatedcontent/imscc"})) ReadMeta(name);
    exam_.shufflesOptions = shuffled_ > 0 && notShuffled_ == 0;
    if (shuffled_ > 0 && notShuffled_ > 0) tools_.notes.Tell(text_id::kExchangeShuffledInPart);
    return std::move(exam_);
  }

 private:
  struct FullPart {
    std::string name;
    std::unique_ptr<pugi::xml_document> document;
  };

  void ReadCartridgePart(const std::string& name) {
    const auto full = fullParts_.find(FolderOf(name));
    pugi::xml_document document;
    const std::string& part = full != fullParts_.end() ? full->second : name;
    if (full != fullParts_.end()) done_.insert(part);
    if (package_.Parse(part, document)) ReadRoot(part, ChildOf(document, "questestinterop"));
  }

  /// Quizzes that the cartridge does not have, then the banks.
  void ReadOtherFullParts() {
    std::vector<FullPart> banks;
    for (const std::string& name : package_.Names()) {
      if (!name.ends_with(kFullEnd) || !done_.insert(name).second) continue;
      auto document = std::make_unique<pugi::xml_document>();
      if (!package_.Parse(name, *document)) continue;
      const pugi::xml_node root = ChildOf(*document, "questestinterop");
      if (ChildOf(root, "objectbank")) {
        banks.push_back({name, std::move(document)});
      } else {
        ReadRoot(name, root);
      }
    }
    for (const FullPart& bank : banks) {
      if (!drawn_.contains(bank.name)) ReadRoot(bank.name, ChildOf(*bank.document, "questestinterop"));
    }
  }

  void ReadRoot(const std::string& name, pugi::xml_node root) {
    TakeTitle(root);
    CanvasItemReader reader(package_, name, tools_);
    passages_.clear();
    section_ = {};
    for (const pugi::xml_node part :
         ElementsBelow(root, {"item", "selection", "presentation_material", "objectives"})) {
      if (IsFull()) break;
      const std::string_view type = LocalName(part);
      if (type == "item") {
        ReadItem(part, reader, PointsOfSection(part.parent()));
      } else if (type == "selection") {
        ReadSelection(part);
      } else if (type == "objectives") {
        TellText(part, reader);
      } else {
        passages_.push_back(part);
      }
    }
    for (const pugi::xml_node passage : passages_) TellText(passage, reader);
    passages_.clear();
  }

  /// Items of a section stand side by side, and there can be many.
  double PointsOfSection(pugi::xml_node section) {
    if (section != section_) points_ = PointsPerItem(section);
    section_ = section;
    return points_;
  }

  void TakeTitle(pugi::xml_node root) {
    tools_.notes.Begin(0);
    std::string title(ValueOf(ChildOf(root, "assessment"), "title"));
    for (const pugi::xml_node field :
         ElementsBelow(ChildOf(ChildOf(root, "objectbank"), "qtimetadata"), {"qtimetadatafield"})) {
      if (std::string_view(ChildOf(field, "fieldlabel").text().get()) == "bank_title")
        title = ChildOf(field, "fieldentry").text().get();
    }
    const std::u16string text = PlainToExamText(TextOf(title));
    if (exam_.questions.empty()) {
      exam_.title = text;
    } else if (!text.empty()) {
      tools_.notes.Tell(text_id::kExchangeOtherCategory, {Excerpt(text)});
    }
  }

  bool IsFull() {
    exam_.isCutShort = exam_.questions.size() >= kMaxReadQuestions;
    return exam_.isCutShort || tools_.progress.IsCancelled();
  }

  /// A question of a bank that a quiz has asked already is not read again.
  void ReadItem(pugi::xml_node item, CanvasItemReader& reader, double pointsOfGroup) {
    if (LocalName(item.parent()) == "objectbank" && asked_.contains(std::string(ValueOf(item, "ident"))))
      return;
    const std::string source = FieldOfItem(item, "assessment_question_identifierref");
    if (!source.empty()) asked_.insert(source);
    tools_.notes.Begin(++number_);
    ExchangedQuestion question;
    question.number = number_;
    if (reader.Read(item, question)) {
      TakePassages(item, reader, question);
      if (pointsOfGroup >= 0) question.score = pointsOfGroup;
      exam_.questions.push_back(std::move(question));
    }
    tools_.notes.Begin(0);
  }

  void TakePassages(pugi::xml_node item, CanvasItemReader& reader, ExchangedQuestion& question) {
    for (auto passage = passages_.rbegin(); passage != passages_.rend(); ++passage) {
      if (IsBelow(item, passage->parent())) {
        PutInFront(reader.ReadMaterial(*passage, question), question, tools_.notes);
      } else {
        TellText(*passage, reader);
      }
    }
    passages_.clear();
  }

  /// A group gives some of its own questions or of a bank's.
  void ReadSelection(pugi::xml_node selection) {
    const pugi::xml_node section = selection.parent().parent();
    const std::string bank = ChildOf(selection, "sourcebank_ref").text().get();
    const double number = NumberIn(ChildOf(selection, "selection_number").text().get(), -1);
    if (!bank.empty() && !ReadBank(bank, PointsPerItem(section))) return;
    const bool isOfAll = bank.empty() && static_cast<double>(ChildrenOf(section, "item").size()) <= number;
    if (number >= 0 && !isOfAll)
      tools_.notes.Tell(text_id::kExchangeDrawnByLot, {FormatInteger(static_cast<std::int64_t>(number))});
  }

  /// False if the package does not have the bank, which is told.
  bool ReadBank(const std::string& identifier, double points) {
    const auto part = fullParts_.find(identifier);
    if (part == fullParts_.end()) {
      tools_.notes.Tell(text_id::kExchangeBankMissing, {Excerpt(TextOf(identifier))});
      return false;
    }
    if (!drawn_.insert(part->second).second) return true;
    done_.insert(part->second);
    pugi::xml_document document;
    if (!package_.Parse(part->second, document)) return false;
    CanvasItemReader reader(package_, part->second, tools_);
    for (const pugi::xml_node item : ElementsBelow(document, {"item"})) {
      if (IsFull()) break;
      ReadItem(item, reader, points);
    }
    return true;
  }

  void TellText(pugi::xml_node owner, CanvasItemReader& reader) {
    ExchangedQuestion itsFiles;
    TellText(reader.ReadMaterial(owner, itsFiles));
  }

  void TellText(std::u16string_view text) {
    const std::u16string words = Excerpt(ExamTextToPlain(text));
    if (!words.empty()) tools_.notes.Tell(text_id::kExchangeDescription, {words});
  }

  void ReadMeta(const std::string& name) {
    if (!name.ends_with("assessment_meta.xml")) return;
    pugi::xml_document document;
    if (!package_.Parse(name, document)) return;
    const pugi::xml_node quiz = ChildOf(document, "quiz");
    const std::string_view shuffles = ChildOf(quiz, "shuffle_answers").text().get();
    ++(shuffles == "true" ? shuffled_ : notShuffled_);
    TellText(ReadHtml(ContentOfChild(quiz, "description")).text);
  }

  ReadingTools& tools_;
  QtiPackage package_;
  ExchangedExam exam_;
  std::map<std::string, std::string, std::less<>> fullParts_;  ///< by the name of quiz or bank
  std::set<std::string> done_;                                 ///< full parts that are read, or will not be
  std::set<std::string> drawn_;                                ///< banks that groups draw from
  std::set<std::string> asked_;                                ///< questions of banks that quizzes ask
  std::vector<pugi::xml_node> passages_;                       ///< in front of the next question
  pugi::xml_node section_;                                     ///< of the last item
  double points_ = -1;                                         ///< of each item of that section
  int number_ = 0;
  int shuffled_ = 0;  ///< quizzes with options in random order
  int notShuffled_ = 0;
};

}  // namespace

bool LooksLikeCanvas(const ExchangeSource& source) {
  return PackageMentions(source, {"imsqti_xmlv1", "imsqti_asmntv1", "<questestinterop", kFullEnd});
}

std::optional<ExchangedExam> CanvasReader::Read(const ExchangeSource& source, ReadingTools& tools) {
  return CanvasExamReading(source, tools).Read();
}

}  // namespace quorvantis
