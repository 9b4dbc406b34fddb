// SPDX-License-Identifier: MIT
// Packages as learning systems write them.
#include "ReadForeign.h"
#include "exchange/qti/ZipWriter.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

using Parts = std::vector<std::pair<std::string, std::string>>;

std::string ZipOf(const Parts& parts) {
  ZipWriter zip;
  for (const auto& [name, bytes] : parts) zip.Add(name, bytes);
  return zip.Finish();
}

/// Resources of one type, each a part.
std::string ManifestWith(const std::string& type, const std::vector<std::string>& names) {
  std::string manifest = "<manifest><resources>";
  for (const std::string& name : names)
    manifest.append("<resource type='").append(type).append("' href='").append(name).append("'/>");
  return manifest + "</resources></manifest>";
}

std::string Field(const std::string& label, const std::string& entry) {
  return "<qtimetadatafield><fieldlabel>" + label + "</fieldlabel><fieldentry>" + entry +
         "</fieldentry></qtimetadatafield>";
}

std::string OldItem(const std::string& type, const std::string& presentation, const std::string& processing,
                    const std::string& attributes = "") {
  const std::string metadata = type.empty() ? "" : Field("question_type", type);
  return "<item " + attributes + "><itemmetadata>" + metadata + "</itemmetadata><presentation>" +
         presentation + "</presentation><resprocessing>" + processing + "</resprocessing></item>";
}

std::string OldText(const std::string& text) {
  return "<material><mattext>" + text + "</mattext></material>";
}

std::string OldLabel(const std::string& identifier) {
  return "<response_label ident='" + identifier + "'>" + OldText(identifier) + "</response_label>";
}

std::string Scores(const std::string& response, const std::string& value, const std::string& set) {
  return "<respcondition><conditionvar><varequal respident='" + response + "'>" + value +
         "</varequal></conditionvar>" + set + "</respcondition>";
}

std::string OldExam(const std::string& content) {
  return "<questestinterop><assessment title='T'>" + content + "</assessment></questestinterop>";
}

std::string OldChoice(const std::string& text, const std::string& attributes = "") {
  return OldItem("multiple_choice_question",
                 OldText(text) + "<response_lid ident='r' rcardinality='Single'><render_choice>" +
                     OldLabel("a") + OldLabel("b") + "</render_choice></response_lid>",
                 Scores("r", "b", "<setvar action='Set'>100</setvar>"), attributes);
}

struct PackageRow {
  std::string bytes;
  const char* questions;
  const char* notes = "";
  std::vector<double> scores{};  ///< not looked at if empty
};

void ExpectPackages(const std::vector<PackageRow>& rows) {
  ForeignReader reader;
  for (const PackageRow& row : rows) {
    const ForeignFile read = reader.Read(row.bytes);
    EXPECT_EQ(read.questions, row.questions) << row.bytes;
    EXPECT_EQ(read.notes, row.notes) << row.questions;
    if (row.scores.empty() || !read.exam) continue;
    std::vector<double> scores;
    for (const ExchangedQuestion& question : read.exam->questions)
      scores.push_back(question.score.value_or(-1));
    EXPECT_EQ(scores, row.scores) << row.questions;
  }
}

TEST(ForeignPackages, QuestionsOfCanvas) {
  const std::string blanks =
      OldText("[x] and [y]") + "<response_lid ident='response_y'><render_choice>" + OldLabel("2") +
      "</render_choice></response_lid><response_lid ident='response_x'><render_choice>" + OldLabel("1") +
      "</render_choice></response_lid>";
  const std::string pairs = OldText("M") + "<response_lid ident='r'>" + OldText("left") + "<render_choice>" +
                            OldLabel("right") + OldLabel("wrong") + "</render_choice></response_lid>";
  const std::string range =
      "<respcondition><conditionvar><vargte>3</vargte><varlte>5</varlte></conditionvar></respcondition>";
  ExpectPackages(
      {{OldExam(OldItem("fill_in_multiple_blanks_question", blanks,
                        Scores("response_y", "2", "<setvar>50</setvar>") +
                            Scores("response_x", "1", "<setvar>50</setvar>"))),
        "fill ____ and ____ | 1 | 2\n"},
       {OldExam(OldItem("fill_in_multiple_blanks_question", blanks,
                        Scores("response_y", "2", "<setvar>50</setvar>"))),
        "fill ____ and ____ |  | 2\n", "question 1: a blank has no right answer; its place stays empty\n"},
       {OldExam(OldItem("matching_question", pairs, Scores("r", "right", "<setvar>100</setvar>"))),
        "fill M\\n(right / wrong)\\nleft ____ | right\n",
        "question 1: the pairs become a fill-in question with a blank for each\n"},
       {OldExam(OldItem("essay_question", OldText("E"),
                        "</resprocessing><rubric view='Candidate'>" + OldText("In ten lines.") +
                            "</rubric><rubric view='Scorer'>" + OldText("Be strict.") +
                            "</rubric><resprocessing>")),
        "essay In ten lines.\\nE\n", "question 1: a part could not be read and is left out: Be strict.\n"},
       {OldExam(OldItem("numerical_question", OldText("N"), range)), "fill N | 3..5\n",
        "question 1: every number in a range counts as right; the answer is the range: 3..5\n"},
       {OldExam(OldItem("multiple_choice_question",
                        OldText("C") + "<response_lid ident='r' rcardinality='Single'>" + OldText("lead") +
                            "<render_choice>" + OldLabel("a") + OldLabel("b") +
                            "</render_choice></response_lid>",
                        Scores("r", "a", "<setvar>50</setvar>") + Scores("r", "b", "<setvar>100</setvar>"))),
        "choice C\\nlead | -a | +b\n", "question 1: an option that is partly right counts as wrong: a\n"},
       {OldExam(OldItem("",
                        OldText("P") + "<material><matemtext>E</matemtext></material><response_str "
                                       "ident='r'><render_fib/></response_str>",
                        "<outcomes><decvar maxvalue='10.0'/></outcomes>" + Scores("r", "Paris", "") +
                            Scores("r", "Lutetia", ""))),
        "fill P\\n<em>E</em> | Paris, Lutetia\n",
        "",
        {10}},
       {OldExam("<presentation_material>" + OldText("Passage") + "</presentation_material><section>" +
                "<objectives>" + OldText("Aim") + "</objectives>" + OldChoice("Q") + OldChoice("R") +
                "</section>"),
        "choice Passage\\nQ | -a | +b\nchoice R | -a | +b\n",
        "a text without a question is left out: Aim\n"
        "question 1: a text that belongs to several questions stands in front of this one: Passage\n"}});
}

TEST(ForeignPackages, CoursesOfCanvas) {
  const std::string full = "non_cc_assessments/q.xml.qti";
  const std::string cartridge =
      ManifestWith("imsqti_xmlv1p2/imscc_xmlv1p1/assessment", {"q/assessment_qti.xml"});
  const std::string banks = ManifestWith("associatedcontent/imscc", {"non_cc_assessments/k.xml.qti"});
  const std::string asks = "<itemmetadata>" + Field("assessment_question_identifierref", "known");
  std::string asked = OldChoice("A");
  asked.replace(asked.find("<itemmetadata>"), 14, asks);
  const std::string bank = "<questestinterop><objectbank ident='k'>" + OldChoice("K", "ident='known'") +
                           OldChoice("L", "ident='l'") + "</objectbank></questestinterop>";
  const std::string group =
      "<section><selection_ordering><selection><sourcebank_ref>k</sourcebank_ref><selection_number>1"
      "</selection_number><selection_extension><points_per_item>2.5</points_per_item></selection_extension>"
      "</selection></selection_ordering></section>";
  const char* const kLot = "a group gives 1 question by lot; all of them are read\n";
  ExpectPackages(
      {{ZipOf({{"imsmanifest.xml", cartridge},
               {"q/assessment_qti.xml", OldExam(OldChoice("short"))},
               {full, OldExam(OldChoice("A") + OldChoice("B"))}}),
        "choice A | -a | +b\nchoice B | -a | +b\n"},
       {ZipOf({{"imsmanifest.xml", banks}, {"non_cc_assessments/k.xml.qti", bank}}),
        "choice K | -a | +b\nchoice L | -a | +b\n"},
       {ZipOf({{"imsmanifest.xml", banks}, {"non_cc_assessments/k.xml.qti", bank}, {full, OldExam(asked)}}),
        "choice A | -a | +b\nchoice L | -a | +b\n"},
       {ZipOf({{"imsmanifest.xml", cartridge},
               {"q/assessment_qti.xml", OldExam(group + OldChoice("A"))},
               {"non_cc_assessments/k.xml.qti", bank}}),
        "choice K | -a | +b\nchoice L | -a | +b\nchoice A | -a | +b\n",
        kLot,
        {2.5, 2.5, -1}},
       {ZipOf({{"imsmanifest.xml", cartridge}, {"q/assessment_qti.xml", OldExam(group)}}), "",
        "a group gives questions by lot from a bank that is not in the package: k\n"}});
}

std::string NewItem(const std::string& head, const std::string& body, const std::string& tail = "",
                    const std::string& attributes = "") {
  return "<assessmentItem " + attributes + ">" + head + "<itemBody>" + body + "</itemBody>" + tail +
         "</assessmentItem>";
}

std::string Declares(const std::string& name, const std::string& type, const std::string& values,
                     const std::string& mapping = "") {
  return "<responseDeclaration identifier='" + name + "' cardinality='single' baseType='" + type + "'>" +
         (values.empty() ? "" : "<correctResponse>" + values + "</correctResponse>") + mapping +
         "</responseDeclaration>";
}

std::string NewChoice(const std::string& text, const std::string& attributes = "",
                      const std::string& head = "", const std::string& mapping = "",
                      const std::string& tail = "") {
  return NewItem(head + Declares("R", "identifier", "<value>b</value>", mapping),
                 text +
                     "<choiceInteraction responseIdentifier='R'><simpleChoice "
                     "identifier='a'>a</simpleChoice><simpleChoice identifier='b'>b</simpleChoice>"
                     "</choiceInteraction>",
                 tail, attributes);
}

const std::string kEntry = "<textEntryInteraction responseIdentifier='R'/>";

std::string SetsScore(const std::string& condition, const std::string& score) {
  return "<responseProcessing><responseCondition><responseIf>" + condition +
         "<setOutcomeValue identifier='SCORE'><baseValue>" + score +
         "</baseValue></setOutcomeValue></responseIf></responseCondition></responseProcessing>";
}

TEST(ForeignPackages, ItemsOfQti) {
  const std::string match =
      "<stringMatch><variable identifier='R'/><baseValue>color</baseValue></stringMatch>";
  const std::string tolerance = "<equal toleranceMode='absolute' tolerance='0.1 0.1'/>";
  const std::string mapped =
      "<mapping upperBound='3'><mapEntry mapKey='b' mappedValue='3'/><mapEntry mapKey='a' "
      "mappedValue='1'/></mapping>";
  const std::string partner = "<simpleAssociableChoice identifier='";
  ExpectPackages(
      {{NewItem(Declares("R", "string", "<value>colour</value>"), kEntry,
                SetsScore("<or>" + match + "</or>", "3")),
        "fill ____ | colour, color\n",
        "question 1: an answer from its rules for scoring counts as right: color\n",
        {3}},
       {NewItem(Declares("R", "string", "<value>colour</value>"), kEntry,
                SetsScore("<not>" + match + "</not>", "3")),
        "fill ____ | colour\n"},
       {NewItem(Declares("R", "float", "<value>3.14</value>"), kEntry, SetsScore(tolerance, "1")),
        "fill ____ | 3.14\n",
        "question 1: the answer is a number; the range that would count as right is left out: \xC2\xB1 0.1 "
        "0.1\n"},
       {NewItem(Declares("R", "string", "<value>x</value>") + Declares("S", "string", "") +
                    Declares("T", "string", "<value>z</value>"),
                kEntry + " <textEntryInteraction responseIdentifier='S'/> <textEntryInteraction "
                         "responseIdentifier='T'/>"),
        "fill ____ ____ ____ | x |  | z\n",
        "question 1: a blank has no right answer; its place stays empty\n"},
       {NewChoice("Q", "", "", mapped, "<responseProcessing template='x/map_response'/>"),
        "choice Q | -a | +b\n",
        "question 1: an option that is partly right counts as wrong: a\n",
        {3}},
       {NewItem(Declares("R", "string", "<value>Model</value>"),
                "Write<extendedTextInteraction responseIdentifier='R'/>"),
        "essay Write | Model\n"},
       {NewItem(Declares("R", "directedPair", "<value>A Y</value><value>A X</value>"),
                "<matchInteraction responseIdentifier='R'><simpleMatchSet>" + partner +
                    "A'>A</simpleAssociableChoice></simpleMatchSet><simpleMatchSet>" + partner +
                    "X'>x</simpleAssociableChoice>" + partner +
                    "Y'>y</simpleAssociableChoice></simpleMatchSet></matchInteraction>"),
        "fill \\n(x / y)\\nA ____\\nA ____ | y | x\n",
        "question 1: the pairs become a fill-in question with a blank for each\n"},
       {NewItem("<templateProcessing/>", "V" + kEntry), "",
        "question 1: questions of the type \xE2\x80\x9CtemplateProcessing\xE2\x80\x9D cannot be read; left "
        "out: "
        "V\n"},
       {"<assessmentTest><assessmentItemRef href='i.xml'/></assessmentTest>", "",
        "question 1: this is a test without its questions, which are other files of the same package\n"}});
}

TEST(ForeignPackages, PassagesAndOrderOfQti) {
  const std::string reference = "<assessmentStimulusRef href='s.xml'/>";
  const std::string test =
      "<assessmentTest title='T'><assessmentSectionRef href='p/sec.xml'/><assessmentSection><selection "
      "select='1'/><rubricBlock view='candidate'><p>Rubric</p></rubricBlock><assessmentItemRef "
      "href='1.xml'/></assessmentSection></assessmentTest>";
  const std::string manifest =
      "<manifest><resources><resource type='imsqti_test_xmlv2p1' href='t.xml'/><resource "
      "type='imsqti_item_xmlv2p1' href='1.xml'/></resources></manifest>";
  ExpectPackages(
      {{ZipOf({{"imsmanifest.xml", manifest},
               {"t.xml", test},
               {"p/sec.xml",
                "<assessmentSection><assessmentItemRef href='2.xml'/><assessmentSectionRef href='sec.xml'/>"
                "</assessmentSection>"},
               {"1.xml", NewChoice("one")},
               {"p/2.xml", NewChoice("two")}}),
        "choice two | -a | +b\nchoice Rubric\\none | -a | +b\n",
        "a group gives 1 question by lot; all of them are read\n"
        "question 2: a text that belongs to several questions stands in front of this one: Rubric\n"},
       {ZipOf(
            {{"imsmanifest.xml", ManifestWith("imsqti_item_xmlv2p1", {"1.xml", "2.xml"})},
             {"1.xml", NewChoice("one", "", reference)},
             {"2.xml", NewChoice("two", "", reference)},
             {"s.xml", "<assessmentStimulus><stimulusBody><p>Long</p></stimulusBody></assessmentStimulus>"}}),
        "choice Long\\none | -a | +b\nchoice two | -a | +b\n",
        "question 1: a text that belongs to several questions stands in front of this one: Long\n"
        "question 2: the text that belongs to it stands in front of another question: Long\n"},
       {ZipOf({{"imsmanifest.xml",
                "<manifest><resources><resource type='imsqti_item_xmlv2p1' xml:base='c/' "
                "href='1.xml'/></resources></manifest>"},
               {"c/1.xml", NewChoice("<include href='b.xml'/><img src='p.png'/>", "xml:base='m/'")},
               {"c/m/b.xml", "<div>Inside</div>"},
               {"c/m/p.png", "png"}}),
        "choice Inside | -a | +b @p.png\n"}});
}

TEST(ForeignPackages, SayWhyTheyCannotBeRead) {
  const std::string whole = ZipOf(
      {{"imsmanifest.xml", ManifestWith("imsqti_item_xmlv2p1", {"1.xml"})}, {"1.xml", NewChoice("one")}});
  ForeignReader reader;
  EXPECT_EQ(reader.Read(whole.substr(0, whole.size() / 2)).notes,
            "the file is damaged, or not what it seems to be\n");
  std::string damaged = whole;
  char& checkSum = damaged[damaged.rfind("PK\x01\x02") + 16];
  checkSum = static_cast<char>(checkSum ^ 1);
  EXPECT_EQ(reader.Read(damaged).notes, "question 1: a part of the package is damaged: 1.xml\n");
}

}  // namespace
}  // namespace quorvantis::test
