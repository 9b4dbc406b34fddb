// SPDX-License-Identifier: MIT
#include "host/PlanJson.h"

#include "host/PlanWords.h"
#include "model/AnswerLetters.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>

namespace quorvantis {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kForm = 1;
constexpr const char* kCheck = "check";

std::string Letter(std::size_t option) {
  return {static_cast<char>(OptionLetter(option))};
}

std::string Letters(const OptionOrder& order) {
  std::string letters;
  for (const std::size_t option : order) letters += Letter(option);
  return letters;
}

Json PinsToJson(const TeacherPins& pins) {
  Json options = Json::array();
  for (const auto& [question, option] : pins.options)
    options.push_back(std::to_string(question) + Letter(option));
  return {{"questions", pins.questions}, {"options", std::move(options)}};
}

Json PartsToJson(const std::vector<PinnedPart>& parts) {
  Json list = Json::array();
  for (const PinnedPart& part : parts) {
    Json json{{"question", part.question}};
    if (!IsOfQuestion(part.reason)) json["option"] = part.option ? Letter(*part.option) : "all";
    json["reason"] = ReasonWord(part.reason);
    if (part.other != 0) json["other"] = part.other;
    list.push_back(std::move(json));
  }
  return list;
}

Json VersionsToJson(const PlanRecord& record) {
  Json list = Json::array();
  for (std::size_t i = 0; i < record.plan.versions.size(); ++i) {
    const PlannedVersion& version = record.plan.versions[i];
    Json options = Json::array();
    for (const OptionOrder& order : version.options) options.push_back(Letters(order));
    list.push_back({{"name", Utf16ToUtf8(version.name)},
                    {"code", record.codes[i]},
                    {"questions", version.questions},
                    {"options", std::move(options)}});
  }
  return list;
}

Json FilesToJson(const std::vector<MadeFile>& files) {
  Json list = Json::array();
  for (const MadeFile& file : files) {
    Json json{{"name", Utf16ToUtf8(file.name)}, {"sha256", file.digest}};
    if (file.pages != 0) json["pages"] = file.pages;
    list.push_back(std::move(json));
  }
  return list;
}

std::string Dumped(const Json& json) {
  return json.dump(1) + "\n";
}

/// Reads what the functions above write. Throws Json::exception or std::domain_error for anything else.
class PlanReader {
 public:
  explicit PlanReader(const Json& json) : json_(json) {}

  PlanRecord Read() {
    if (json_.at("form") != kForm) Fail();
    PlanRecord record;
    record.program = json_.value("program", "");
    record.languageId = json_.value("language", 0);
    record.source = Text(json_.at("source"));
    record.sourceDigest = json_.at("sourceSha256").get<std::string>();
    ReadRequest(record.request);
    record.plan.moves = Moves(json_.at("moved"));
    for (const Json& part : json_.at("pinned")) record.plan.pinned.push_back(Part(part));
    for (const Json& version : json_.at("versions")) {
      record.codes.push_back(version.at("code").get<std::string>());
      record.plan.versions.push_back(Version(version));
      record.request.names.push_back(record.plan.versions.back().name);
    }
    for (const Json& file : json_.at("files"))
      record.files.push_back(
          {Text(file.at("name")), file.at("sha256").get<std::string>(), file.value("pages", 0)});
    return record;
  }

 private:
  [[noreturn]] static void Fail() { throw std::domain_error("no plan"); }

  static std::u16string Text(const Json& json) { return Utf8ToUtf16(json.get_ref<const std::string&>()); }

  static std::uint64_t Seed(const std::string& text) {
    std::uint64_t seed = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seed);
    if (error != std::errc() || end != text.data() + text.size()) Fail();
    return seed;
  }

  static QuestionMoves Moves(const Json& json) {
    const auto moves = MovesOfWord(json.get_ref<const std::string&>());
    if (!moves) Fail();
    return *moves;
  }

  static int Question(int number) {
    if (!IsQuestionNumber(number)) Fail();
    return number;
  }

  static std::size_t Option(const std::string& letter) {
    const auto option = letter.size() == 1 ? OptionIndex(static_cast<char16_t>(letter[0])) : std::nullopt;
    if (!option) Fail();
    return *option;
  }

  void ReadRequest(VersionRequest& request) const {
    request.seed = Seed(json_.at("seed").get_ref<const std::string&>());
    request.moves = Moves(json_.at("questions"));
    request.movesOptions = json_.at("options") == "on";
    const Json& kept = json_.at("kept");
    for (const int number : kept.at("questions")) request.pins.questions.insert(Question(number));
    for (const Json& json : kept.at("options")) {
      const auto& text = json.get_ref<const std::string&>();
      int number = 0;
      const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
      if (error != std::errc()) Fail();
      request.pins.options.insert({Question(number), Option({end, text.data() + text.size()})});
    }
  }

  static PinnedPart Part(const Json& json) {
    const auto reason = ReasonOfWord(json.at("reason").get_ref<const std::string&>());
    if (!reason) Fail();
    PinnedPart part{Question(json.at("question").get<int>()), {}, *reason, json.value("other", 0)};
    const std::string option = json.value("option", "all");
    if (option != "all") part.option = Option(option);
    return part;
  }

  static PlannedVersion Version(const Json& json) {
    PlannedVersion version{Text(json.at("name")), json.at("questions").get<std::vector<int>>(), {}};
    for (const Json& letters : json.at("options")) version.options.push_back(Order(letters));
    return version;
  }

  static OptionOrder Order(const Json& json) {
    const auto& letters = json.get_ref<const std::string&>();
    OptionOrder order{};
    if (letters.size() != order.size()) Fail();
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = Option({letters[i]});
    return order;
  }

  const Json& json_;
};

}  // namespace

std::string PlanJson::Write(const PlanRecord& record) const {
  Json json{{"form", kForm}};
  if (!record.program.empty()) json.update({{"program", record.program}, {"language", record.languageId}});
  json.update({{"source", Utf16ToUtf8(record.source)},
               {"sourceSha256", record.sourceDigest},
               {"seed", std::to_string(record.request.seed)},
               {"questions", MovesWord(record.request.moves)},
               {"options", record.request.movesOptions ? "on" : "off"},
               {"kept", PinsToJson(record.request.pins)},
               {"moved", MovesWord(record.plan.moves)},
               {"pinned", PartsToJson(record.plan.pinned)},
               {"versions", VersionsToJson(record)},
               {"files", FilesToJson(record.files)}});
  json[kCheck] = digest_.OfBytes(Dumped(json));
  return Dumped(json);
}

std::optional<PlanRecord> PlanJson::Read(std::string_view bytes) const {
  try {
    PlanRecord record = PlanReader(Json::parse(bytes)).Read();
    return Write(record) == bytes ? std::optional(std::move(record)) : std::nullopt;
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

}  // namespace quorvantis
